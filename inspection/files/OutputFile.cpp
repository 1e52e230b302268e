#include "inspection/files/OutputFile.h"

#include "inspection/files/InputError.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace Inspection {

namespace {

[[noreturn]] void refusePath( std::string const & path, int reason ) {
   throw InputError( path, std::string( "can't be written: " ) + std::strerror( reason ) );
}

} // namespace

OutputFile::OutputFile( std::string path ) : path_( std::move( path ) ) {
   if ( !isWanted() || isStandard() ) {
      return;
   }
   namespace fs = std::filesystem;
   if ( fs::is_directory( path_ ) ) {
      refusePath( path_, EISDIR );
   }
   auto const parent = fs::path( path_ ).parent_path();
   std::string const there = fs::exists( path_ ) ? path_ : parent.empty() ? "." : parent.string();
   if ( ::access( there.c_str(), W_OK ) != 0 ) {
      refusePath( path_, errno );
   }
}

void OutputFile::write( std::string const & text ) const {
   stream( [&]( std::ostream & out ) { out << text; } );
}

void OutputFile::stream( std::function< void( std::ostream & out ) > const & write ) const {
   if ( !isWanted() ) {
      return;
   }
   if ( isStandard() ) {
      write( std::cout );
      std::cout.flush();
      if ( !std::cout ) {
         refusePath( "standard output", errno );
      }
      return;
   }
   std::ofstream out( path_, std::ios::binary );
   write( out );
   out.close();
   if ( !out ) {
      refusePath( path_, errno );
   }
}

void OutputFile::refuse( std::string const & why ) const {
   throw InputError( path_, "can't be written: " + why.substr( path_.size() + 2 ) );
}

void eachAlone( std::vector< std::string > const & written, std::vector< std::string > const & read ) {
   namespace fs = std::filesystem;
   std::vector< std::string > all = read;
   std::erase( all, "-" );
   all.insert( all.end(), written.begin(), written.end() );
   for ( auto one = all.begin(); one != all.end(); ++one ) {
      for ( auto other = all.begin(); other != one; ++other ) {
         std::error_code none;
         // A file that isn't there yet is known by its place.
         bool const isSame = *one == *other || fs::equivalent( *one, *other, none ) ||
                             fs::weakly_canonical( fs::absolute( *one, none ), none ) ==
                                fs::weakly_canonical( fs::absolute( *other, none ), none );
         if ( isSame && !one->empty() && !fs::is_other( *one, none ) ) { // devices take whatever comes
            throw InputError( *one == "-" ? "standard output" : *one,
                              "is named twice; give each file a name of its own" );
         }
      }
   }
}

} // namespace Inspection
