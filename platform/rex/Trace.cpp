#include "rex/Trace.h"

#include <algorithm>
#include <cstdio>
#include <deque>
#include <map>
#include <memory>
#include <set>

namespace Rex {

namespace {

struct TraceState {
   std::vector< TraceFacility * > facilities;
   std::set< std::string > names; // of all facilities there ever were: records outlive the library of their facility
   std::map< std::string, int > asked;      // facility, or "*", to the highest level
   std::shared_ptr< TraceSink const > sink; // null: the default. Shared: it may be replaced while it runs
   std::deque< TraceRecord > ring;
};

// Facilities are static objects of libraries that come and go in any order; the state outlives them all.
TraceState & traceState() {
   static auto * state = new TraceState;
   return *state;
}

int highestAskedFor( std::string const & facility ) {
   auto const & asked = traceState().asked;
   int highest = -1;
   for ( auto const & name : { std::string( "*" ), facility } ) {
      if ( auto found = asked.find( name ); found != asked.end() ) {
         highest = std::max( highest, found->second );
      }
   }
   return highest;
}

} // namespace

TraceFacility::TraceFacility( char const * name ) : name_( traceState().names.emplace( name ).first->c_str() ) {
   traceState().facilities.push_back( this );
   highestLevelIs( highestAskedFor( name ) );
}

TraceFacility::~TraceFacility() {
   std::erase( traceState().facilities, this );
}

void TraceFacility::highestLevelIs( int highest ) {
   for ( int level = 0; level < levelCount; ++level ) {
      on_[level] = level <= highest;
   }
}

void TraceFacility::emit( int level, std::string text ) const {
   auto const sink = traceState().sink;
   TraceRecord const record{ name_, level, std::move( text ) };
   if ( sink ) {
      ( *sink )( record );
   } else {
      std::fprintf( stderr, "%s/%d %s\n", record.facility, record.level, record.text.c_str() );
   }
}

void Impl::ringRecord( char const * facility, int level, std::string text ) {
   auto & ring = traceState().ring;
   if ( ring.size() == RingTrace::capacity ) {
      ring.pop_front();
   }
   ring.push_back( { facility, level, std::move( text ) } );
}

std::vector< TraceRecord > RingTrace::records() {
   auto const & ring = traceState().ring;
   return { ring.begin(), ring.end() };
}

void RingTrace::clear() {
   traceState().ring.clear();
}

void traceSinkIs( TraceSink sink ) {
   traceState().sink = sink ? std::make_shared< TraceSink const >( std::move( sink ) ) : nullptr;
}

void traceLevelIs( std::string const & facility, int highest ) {
   traceState().asked[facility] = highest;
   for ( auto * registered : traceState().facilities ) {
      registered->highestLevelIs( highestAskedFor( registered->name() ) );
   }
}

std::vector< std::string > traceFacilityNames() {
   std::vector< std::string > names;
   for ( auto const * facility : traceState().facilities ) {
      names.emplace_back( facility->name() );
   }
   std::sort( names.begin(), names.end() );
   return names;
}

} // namespace Rex
