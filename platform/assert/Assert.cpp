#include "assert/Assert.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>

namespace Rex {

namespace {

struct FailureHooks {
   std::map< int, std::function< void() > > hooks;
   int next = 1;
   std::terminate_handler previousTerminate = nullptr;
};

FailureHooks & failureHooks() {
   static auto * hooks = new FailureHooks; // outlives every static object that may fail in its destructor
   return *hooks;
}

// Each is taken out before it runs: where one fails in turn, the others still have theirs.
void runFailureHooks() {
   auto & hooks = failureHooks().hooks;
   while ( !hooks.empty() ) {
      auto const hook = hooks.extract( std::prev( hooks.end() ) );
      hook.mapped()();
   }
}

std::optional< Failure > theFailure;

// The first failure counts: one that follows is its consequence.
Failure & failed( Failure const & what ) {
   return theFailure ? *theFailure : theFailure.emplace( what );
}

std::string textOfTheException() {
   if ( auto const exception = std::current_exception() ) {
      try {
         std::rethrow_exception( exception );
      } catch ( std::exception const & error ) {
         return error.what();
      } catch ( ... ) { // NOLINT(bugprone-empty-catch)
      }
   }
   return "terminate";
}

[[noreturn]] void terminateWithHooks() {
   failed( { .text = textOfTheException(), .message = {}, .file = {}, .function = {} } );
   runFailureHooks();
   if ( failureHooks().previousTerminate ) {
      failureHooks().previousTerminate();
   }
   std::abort();
}

} // namespace

Failure const * failure() {
   return theFailure ? &*theFailure : nullptr;
}

void assertionFailed( char const * text, AssertionSite const & site, std::string const & message ) {
   Failure & what =
      failed( { .text = {}, .message = message, .file = site.file, .line = site.line, .function = site.function } );
   if ( what.text.empty() ) {
      what.text = text;
   }
   std::cout.flush();
   std::fprintf( stderr,
                 "%s: %s:%u: %s: Assertion `%s' failed.\n",
                 program_invocation_short_name,
                 site.file,
                 site.line,
                 site.function,
                 text );
   if ( !message.empty() ) {
      std::fprintf( stderr, "%s\n", message.c_str() );
   }
   runFailureHooks();
   std::abort();
}

SassertHelper::~SassertHelper() {
   std::string const message = message_.str();
   std::fprintf( stderr, "%s\n", message.c_str() );
   failed( { .text = {}, .message = message, .file = site_.file, .line = site_.line, .function = site_.function } );
   std::string const text = std::string( "\"" ) + text_ + "\" == nullptr";
   assertionFailed( text.c_str(), site_ );
}

int atFailure( std::function< void() > hook ) {
   auto & state = failureHooks();
   if ( !state.previousTerminate ) {
      state.previousTerminate = std::set_terminate( terminateWithHooks );
   }
   state.hooks.emplace( state.next, std::move( hook ) );
   return state.next++;
}

void failureHookDel( int hook ) {
   failureHooks().hooks.erase( hook );
}

void throwMutatorArgNullPointerException( char const * type, char const * attribute ) {
   throw MutatorArgNullPointerException( std::string( "null argument to " ) + type + "::" + attribute );
}

void Impl::throwBadOptionalAccess() {
   throw BadOptionalAccess( "bad optional access" );
}

} // namespace Rex
