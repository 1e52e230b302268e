// What entries are written with.
//
//    BytesFile const file( bytes );
//    mayRefuse( [&] {
//       showReplay( forPeople(), replayOf( { .journal = file.path() }, OutputFile( "" ) ), "", Style() );
//    } );
//
// Threading: one thread.
#pragma once

#include "assert/Assert.h"
#include "inspection/files/InputError.h"
#include "inspection/views/Terminal.h"

#include <sstream>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace Fuzz {

// The bytes as a file that has a path and no place on a disk.
class BytesFile {
 public:
   explicit BytesFile( std::string const & bytes ) : file_( ::memfd_create( "input", 0 ) ) {
      for ( std::size_t at = 0; at < bytes.size(); ) {
         at += static_cast< std::size_t >( ::write( file_, bytes.data() + at, bytes.size() - at ) );
      }
   }
   BytesFile( BytesFile const & ) = delete;
   BytesFile & operator=( BytesFile const & ) = delete;
   ~BytesFile() { ::close( file_ ); }

   std::string path() const { return "/proc/self/fd/" + std::to_string( file_ ); }

 private:
   int file_;
};

// A text that a terminal gets. What came from outside is written out in it.
class ForPeople {
 public:
   ForPeople() = default;
   ForPeople( ForPeople const & ) = delete;
   ForPeople & operator=( ForPeople const & ) = delete;
   ~ForPeople() {
      std::istringstream lines( out_.str() );
      for ( std::string line; std::getline( lines, line ); ) {
         if ( line != Inspection::printable( line ) ) {
            Rex::assertionFailed(
               "a text for people is printable", std::source_location::current(), Inspection::printable( line ) );
         }
      }
   }
   operator std::ostream &() { return out_; } // NOLINT(google-explicit-constructor)

 private:
   std::ostringstream out_;
};

// Runs a reader that may refuse what it reads, each mistake in a line.
template< class Read >
void mayRefuse( Read const & read ) {
   try {
      read();
   } catch ( Inspection::InputError const & error ) {
      for ( auto const & line : error.lines() ) {
         Rex::sassert( !line.empty(), "a refusal says what is wrong" );
      }
   }
}

// Lines without their ends.
inline std::vector< std::string > linesOf( std::string const & bytes ) {
   std::vector< std::string > lines;
   std::istringstream in( bytes );
   for ( std::string line; std::getline( in, line ); ) {
      lines.push_back( line );
   }
   return lines;
}

inline std::vector< std::string > partsOf( std::string const & line ) {
   std::vector< std::string > parts;
   std::istringstream in( line );
   for ( std::string part; std::getline( in, part, '\t' ); ) {
      parts.push_back( part );
   }
   return parts;
}

} // namespace Fuzz
