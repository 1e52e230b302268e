#include "agent/control/MemoryFile.h"

#include "inspection/files/InputError.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace Live {

namespace {

[[noreturn]] void refuse() {
   throw Inspection::InputError( std::string( "no room in memory for a file: " ) + std::strerror( errno ) );
}

} // namespace

MemoryFile::MemoryFile( char const * name ) : file_( ::memfd_create( name, MFD_CLOEXEC ) ) {
   if ( !file_ ) {
      refuse();
   }
}

void MemoryFile::append( std::string_view text ) {
   while ( !text.empty() ) {
      auto const written = ::write( file_.number(), text.data(), text.size() );
      if ( written < 0 && errno != EINTR ) {
         refuse();
      }
      text.remove_prefix( written < 0 ? 0 : static_cast< std::size_t >( written ) );
   }
}

void MemoryFile::eachLine( std::function< void( std::string_view ) > const & each ) const {
   std::string text;
   std::size_t from = 0; // in the text
   for ( off_t at = 0;; ) {
      text.erase( 0, std::exchange( from, 0 ) );
      auto const before = text.size();
      constexpr std::size_t chunk = 1 << 18;
      text.resize( before + chunk );
      auto const got = ::pread( file_.number(), text.data() + before, chunk, at );
      text.resize( before + static_cast< std::size_t >( std::max< ssize_t >( got, 0 ) ) );
      at += got;
      if ( got <= 0 ) {
         return;
      }
      for ( auto end = text.find( '\n', before ); end != std::string::npos; end = text.find( '\n', from ) ) {
         each( std::string_view( text ).substr( from, end - from ) );
         from = end + 1;
      }
   }
}

} // namespace Live
