#include "inspection/files/InputFile.h"

#include "inspection/files/InputError.h"
#include "inspection/files/InputNames.h"
#include "inspection/files/StandardInput.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Inspection {

namespace {

class Descriptor {
 public:
   explicit Descriptor( std::string const & path )
      : number_( path == "-" ? STDIN_FILENO : ::open( path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY ) ) {}
   ~Descriptor() {
      if ( number_ > STDIN_FILENO ) {
         ::close( number_ );
      }
   }
   Descriptor( Descriptor const & ) = delete;
   Descriptor & operator=( Descriptor const & ) = delete;
   operator int() const { return number_; } // NOLINT(google-explicit-constructor)

 private:
   int number_;
};

[[noreturn]] void refuse( std::string const & name, int reason ) {
   throw InputError( name, std::string( "can't be read: " ) + std::strerror( reason ) );
}

[[noreturn]] void refuseSize( std::string const & name ) {
   throw InputError( name,
                     "holds more than the " + std::to_string( largestInput >> 20 ) +
                        " MB that are read; a scenario need only name what differs from the defaults" );
}

std::map< std::string, std::string > & otherNames() {
   static std::map< std::string, std::string > names;
   return names;
}

} // namespace

void inputIsCalled( std::string const & path, std::string name ) {
   otherNames()[path] = std::move( name );
}

std::string inputName( std::string const & path ) {
   auto const other = otherNames().find( path );
   return path == "-" ? "standard input" : other == otherNames().end() ? path : other->second;
}

std::string & readAheadOfStandardInput() {
   static std::string text;
   return text;
}

std::string readFile( std::string const & path ) {
   auto const name = inputName( path );
   Descriptor const file( path );
   if ( file < 0 ) {
      refuse( name, errno );
   }
   struct stat status {};
   if ( ::fstat( file, &status ) != 0 ) {
      refuse( name, errno );
   }
   if ( ::isatty( file ) ) {
      throw InputError( name, "is a terminal; name a file, or give the text through a pipe" );
   }
   if ( S_ISDIR( status.st_mode ) ) {
      refuse( name, EISDIR );
   }
   std::size_t const told = S_ISREG( status.st_mode ) ? static_cast< std::size_t >( status.st_size ) : 0;
   if ( told > largestInput ) {
      refuseSize( name );
   }
   constexpr std::size_t step = 1 << 16;
   std::string text = path == "-" ? std::exchange( readAheadOfStandardInput(), {} ) : std::string();
   std::size_t size = text.size();
   for ( text.resize( size + told + step );; text.resize( std::max( text.size(), size + step ) ) ) {
      auto const got = ::read( file, text.data() + size, text.size() - size );
      if ( got < 0 && errno != EINTR ) {
         refuse( name, errno );
      }
      if ( got == 0 ) {
         break;
      }
      size += got < 0 ? 0 : static_cast< std::size_t >( got );
      if ( size > largestInput ) {
         refuseSize( name );
      }
   }
   text.resize( size );
   return text;
}

} // namespace Inspection
