#include "agent/metrics/MetricsFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace Live {

namespace {

// Errno, or 0.
int writeWhole( std::string const & path, std::string_view text ) {
   int const file = ::open( path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644 );
   if ( file < 0 ) {
      return errno;
   }
   int wrong = 0;
   while ( !text.empty() && wrong == 0 ) {
      auto const written = ::write( file, text.data(), text.size() );
      if ( written >= 0 ) {
         text.remove_prefix( static_cast< std::size_t >( written ) );
      } else if ( errno != EINTR ) {
         wrong = errno;
      }
   }
   if ( ::close( file ) != 0 && wrong == 0 ) {
      wrong = errno;
   }
   return wrong;
}

} // namespace

std::optional< std::string > MetricsFile::write() {
   std::string const beside = path_ + ".new"; // a name that no collector looks for
   int wrong = writeWhole( beside, metrics_.text() );
   if ( wrong == 0 && ::rename( beside.c_str(), path_.c_str() ) != 0 ) {
      wrong = errno;
   }
   std::string line;
   if ( wrong != 0 ) {
      ::unlink( beside.c_str() );
      line = path_ + ": metrics can't be written: " + std::strerror( wrong );
   }
   std::string const before = std::exchange( wrong_, line );
   if ( line == before ) {
      return std::nullopt;
   }
   return line.empty() ? path_ + ": metrics are written again" : line;
}

} // namespace Live
