// Trace facilities: named, with levels 0 to 9, each switched on by itself.
//
//    static Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
//    trace( 5, "L3Sm::", "handleInitialized", " initialized: ", initialized_ );
//
// A level that is off costs one byte test; nothing is formatted. `DualTrace` writes to a facility and to the ring
// buffer as well; `ringTrace` writes to the ring buffer alone. The ring buffer is always on and holds the newest
// records of the process, so that the last steps before a failure can be read.
//
// Values are printed as streams print them, but for two: a `U8` is printed as a number, a `bool` as true or false.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Types.h"

#include <array>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace Rex {

struct TraceRecord {
   char const * facility; // name of the facility, empty for ringTrace
   int level;
   std::string text;
};

namespace Impl {

template< class T >
void tracePart( std::ostream & out, T const & part ) {
   if constexpr ( std::is_same_v< T, bool > ) {
      out << ( part ? "true" : "false" );
   } else if constexpr ( std::is_same_v< T, U8 > ) {
      out << unsigned{ part };
   } else {
      out << part;
   }
}

template< class... Parts >
std::string traceText( Parts const &... parts ) {
   std::ostringstream out;
   ( tracePart( out, parts ), ... );
   return out.str();
}

void ringRecord( char const * facility, int level, std::string text );

} // namespace Impl

class TraceFacility {
 public:
   static constexpr int levelCount = 10;

   // Registers the facility under `name` and switches on the levels that were asked for before.
   explicit TraceFacility( char const * name );
   ~TraceFacility();
   TraceFacility( TraceFacility const & ) = delete;
   TraceFacility & operator=( TraceFacility const & ) = delete;

   char const * name() const { return name_; }
   bool enabled( int level ) const { return on_[level]; }

   // Switches the levels 0 to `highest` on and the others off; -1 switches all off.
   void highestLevelIs( int highest );

   template< class... Parts >
   void operator()( int level, Parts const &... parts ) const {
      if ( enabled( level ) ) [[unlikely]] {
         emit( level, Impl::traceText( parts... ) );
      }
   }

   // Hands a finished text to the sink.
   void emit( int level, std::string text ) const;

 private:
   std::array< bool, levelCount > on_{};
   char const * name_;
};

// Writes to a facility and to the ring buffer.
class DualTrace {
 public:
   explicit DualTrace( TraceFacility const & facility ) : facility_( facility ) {}

   template< class... Parts >
   void operator()( int level, Parts const &... parts ) const {
      std::string text = Impl::traceText( parts... );
      if ( facility_.enabled( level ) ) [[unlikely]] {
         facility_.emit( level, text );
      }
      Impl::ringRecord( facility_.name(), level, std::move( text ) );
   }

 private:
   TraceFacility const & facility_;
};

// Writes to the ring buffer alone.
template< class... Parts >
void ringTrace( int level, Parts const &... parts ) {
   Impl::ringRecord( "", level, Impl::traceText( parts... ) );
}

// The ring buffer of the process.
class RingTrace {
 public:
   static constexpr std::size_t capacity = 4096;
   // What it holds, oldest first.
   static std::vector< TraceRecord > records();
   static void clear();
};

// Where the records of all facilities go. The default prints "<facility>/<level> <text>" on standard error.
// An empty function restores the default.
using TraceSink = std::function< void( TraceRecord const & ) >;
void traceSinkIs( TraceSink sink );

// Switches the levels 0 to `highest` of a facility on, now and when it registers later; "*" means every facility.
void traceLevelIs( std::string const & facility, int highest );

// The names of the facilities that are registered, sorted.
std::vector< std::string > traceFacilityNames();

} // namespace Rex
