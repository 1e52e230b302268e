#include "agent/database/EmbeddedDatabase.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Live {

using Inspection::Event;

namespace {

// Tries the value where it can harm nobody.
void checkValue( Event const & event ) {
   PathPlace const place = placeOf( event.path );
   if ( event.kind != Event::Kind::set ) {
      return;
   }
   auto const fresh = place.type->fresh();
   auto const & attribute = Rex::attributeOf( *place.type, *event.attribute );
   if ( fresh && event.key ) {
      attribute.entryIs( *fresh, *event.key, event.value );
   } else if ( fresh ) {
      Rex::below( "value", [&] { attribute.valueIs( *fresh, event.value ); } );
   }
}

} // namespace

EmbeddedDatabase::EmbeddedDatabase( EventLoop & loop, Paths paths ) : loop_( loop ), paths_( std::move( paths ) ) {}

Position EmbeddedDatabase::position() const {
   return { "embedded", "embedded", std::to_string( entry_ ) };
}

void EmbeddedDatabase::stop() {
   tether_.cut();
   isFollowed_ = false;
}

void EmbeddedDatabase::snapshot() {
   loop_.soon( tether_.of( [this] {
      waiting_.clear();
      follower()->snapshotIs( { position(), paths_ } );
   } ) );
}

void EmbeddedDatabase::since( Position const & position ) {
   auto const known = std::ranges::find( waiting_, position, &Transaction::position );
   waiting_.erase( waiting_.begin(), known == waiting_.end() ? waiting_.begin() : std::next( known ) );
   isFollowed_ = true;
   hand();
}

void EmbeddedDatabase::hand() {
   if ( isFollowed_ && !waiting_.empty() ) {
      loop_.soon( tether_.of( [this] {
         if ( isFollowed_ && !waiting_.empty() ) {
            isFollowed_ = false;
            follower()->transactionsAre( waiting_ ); // until it asks for what comes behind them
         }
      } ) );
   }
}

void EmbeddedDatabase::transact( std::vector< Event > changes ) {
   for ( Event const & event : changes ) {
      pathChangesOf( event, PathLookup( paths_ ) );
      checkValue( event );
   }
   for ( Event const & event : changes ) {
      for ( PathChange const & change : pathChangesOf( event, PathLookup( paths_ ) ) ) {
         apply( change, paths_ );
      }
   }
   ++entry_;
   waiting_.push_back( { .position = position(), .changes = std::move( changes ) } );
   hand();
}

} // namespace Live
