#include "l3sm/OutputFile.h"

#include "l3sm/InputError.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace Cli {

namespace {

[[noreturn]] void refuse( std::string const & path, int reason ) {
   throw InputError( path, std::string( "can't be written: " ) + std::strerror( reason ) );
}

} // namespace

OutputFile::OutputFile( std::string path ) : path_( std::move( path ) ) {
   if ( !isWanted() ) {
      return;
   }
   namespace fs = std::filesystem;
   if ( fs::is_directory( path_ ) ) {
      refuse( path_, EISDIR );
   }
   auto const parent = fs::path( path_ ).parent_path();
   std::string const there = fs::exists( path_ ) ? path_ : parent.empty() ? "." : parent.string();
   if ( ::access( there.c_str(), W_OK ) != 0 ) {
      refuse( path_, errno );
   }
}

void OutputFile::write( std::string const & text ) const {
   if ( !isWanted() ) {
      return;
   }
   std::ofstream out( path_, std::ios::binary );
   out << text;
   out.close();
   if ( !out ) {
      refuse( path_, errno );
   }
}

} // namespace Cli
