// The one way in which a programming error ends the process, and the exceptions of the runtime.
//
//    Rex::sassert( cellStatus != nullptr, "cellStatus" );
//    Rex::SassertHelper( "false" ) << "Unhandled chipType " << chipType;
//
// The text is part of the interface: engineers search for it, and death tests look at it. It is written out, so that
// renaming a local variable can't change it.
//
// Threading: any thread; the hooks run on the thread that failed.
#pragma once

#include <functional>
#include <source_location>
#include <sstream>
#include <stdexcept>
#include <string>

namespace Rex {

// Where an assertion stands. Functions that are written by a generator, or that check on behalf of their caller,
// pass their own.
struct AssertionSite {
   char const * file;
   unsigned line;
   char const * function;

   AssertionSite( char const * file_, unsigned line_, char const * function_ )
      : file( file_ ), line( line_ ), function( function_ ) {}
   AssertionSite( std::source_location const & at ) // NOLINT(google-explicit-constructor)
      : file( at.file_name() ), line( at.line() ), function( at.function_name() ) {}
};

// Prints "<program>: <file>:<line>: <function>: Assertion `<text>' failed." on standard error, and `message` below it,
// runs the hooks of atFailure, and aborts. The only place in the system that aborts.
[[noreturn]] void assertionFailed( char const * text, AssertionSite const & site, std::string const & message = {} );

// Ends the process with `text` unless `holds`.
inline void sassert( bool holds, char const * text, std::source_location at = std::source_location::current() ) {
   if ( !holds ) [[unlikely]] {
      assertionFailed( text, at );
   }
}

// An assertion with a message. What is streamed into it is printed on a line of its own when the helper is destroyed,
// at the end of the full expression; then the process ends with the assertion text `"<text>" == nullptr`.
class SassertHelper {
 public:
   explicit SassertHelper( char const * text, AssertionSite const & site = std::source_location::current() )
      : text_( text ), site_( site ) {}
   SassertHelper( SassertHelper const & ) = delete;
   SassertHelper & operator=( SassertHelper const & ) = delete;
   [[noreturn]] ~SassertHelper();

   template< class T >
   SassertHelper & operator<<( T const & value ) {
      message_ << value;
      return *this;
   }

 private:
   char const * text_;
   AssertionSite site_;
   std::ostringstream message_;
};

// What ended the process, for the hooks of atFailure.
struct Failure {
   std::string text;     // the assertion's, or what an exception that nobody caught says
   std::string message;  // what more is said of it; may be empty
   std::string file;     // empty for an exception
   unsigned line = 0;    // 0 for an exception
   std::string function; // as the compiler writes it
};

// Null as long as nothing has failed.
Failure const * failure();

// Registers a hook that runs once before the process ends by an assertion or an uncaught exception, newest first.
// Used to bring to safety what is still in memory. A hook that fails in turn is not run again.
// Returns a number by which failureHookDel takes it back.
int atFailure( std::function< void() > hook );
void failureHookDel( int hook );

// A null argument to a collection's mutator.
class MutatorArgNullPointerException : public std::invalid_argument {
 public:
   using std::invalid_argument::invalid_argument;
};

// Throws MutatorArgNullPointerException, naming the type and the attribute.
[[noreturn]] void throwMutatorArgNullPointerException( char const * type, char const * attribute );

// The runtime's bad-optional-access exception.
class BadOptionalAccess : public std::logic_error {
 public:
   using std::logic_error::logic_error;
};

namespace Impl {
[[noreturn]] void throwBadOptionalAccess();
}

} // namespace Rex
