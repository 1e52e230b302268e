#include "scale/FabricCluster.h"

#include <algorithm>
#include <utility>

namespace Scale {

FabricCluster::FabricCluster( VirtualTime & time, Costs const & costs, Paths state )
   : time_( time ), costs_( costs ),
     members_( costs.assumed.members,
               { std::vector< VirtualTime::Nanoseconds >( costs.assumed.cores ), {}, {}, true } ),
     state_( std::make_shared< Paths >( std::move( state ) ) ) {}

void FabricCluster::works( std::size_t member, Rex::Seconds cost, std::function< void() > done ) {
   worked_ += cost;
   auto const now = VirtualTime::inNanoseconds( time_.now() );
   auto & free = *std::ranges::min_element( members_[member].busyUntil );
   free = std::max( free, now ) + VirtualTime::inNanoseconds( cost );
   time_.after( VirtualTime::inSeconds( free - now ), std::move( done ) );
}

void FabricCluster::commits( std::size_t member, Rex::Seconds cost, std::function< void() > done ) {
   for ( std::size_t other = 0; other < members_.size(); ++other ) {
      if ( other != member && isUp( other ) ) {
         works( other, cost, [] {} );
      }
   }
   works( member, cost, [this, does = std::move( done )] {
      unsynced_.push_back( does );
      if ( !isSyncing_ ) {
         sync();
      }
   } );
}

// The majority's disks are written at the same time, and have said so one round of the network later.
void FabricCluster::sync() {
   isSyncing_ = true;
   ++counts_.syncs;
   time_.after( costs_.server.sync, [this, together = std::exchange( unsynced_, {} )] {
      for ( auto const & done : together ) {
         time_.after( 2 * costs_.assumed.latency, done );
      }
      isSyncing_ = false;
      if ( !unsynced_.empty() ) {
         sync();
      }
   } );
}

void FabricCluster::write( std::vector< Inspection::Event > changes ) {
   ++counts_.writes;
   commits( memberFor( 0 ), costs_.server.write, [this, all = std::move( changes )] {
      if ( state_.use_count() > 1 ) { // somebody reads it, as it was
         state_ = std::make_shared< Paths >( *state_ );
      }
      for ( auto const & event : all ) {
         for ( auto const & change : Live::pathChangesOf( event, Live::PathLookup( *state_ ) ) ) {
            Live::apply( change, *state_ );
         }
      }
      ++revision_;
      log_.push_back( std::make_shared< Transaction const >( Transaction{ .position = position(), .changes = all } ) );
      for ( std::size_t member = 0; member < members_.size(); ++member ) {
         for ( auto * const watch : members_[member].watches ) {
            tell( member, *watch, log_.back() );
         }
      }
   } );
}

bool FabricCluster::has( std::size_t member, Watch const & watch ) const {
   return std::ranges::find( members_[member].watches, &watch ) != members_[member].watches.end();
}

void FabricCluster::tell( std::size_t member, Watch & watch, Told const & transaction ) {
   ++counts_.deliveries;
   works( member, costs_.server.delivery, [this, member, &watch, transaction] {
      if ( has( member, watch ) ) {
         watch.comes( transaction );
      }
   } );
}

std::size_t FabricCluster::memberFor( std::size_t wanted ) const {
   for ( std::size_t more = 0; more < members_.size(); ++more ) {
      if ( auto const member = ( wanted + more ) % members_.size(); isUp( member ) ) {
         return member;
      }
   }
   throw std::logic_error( "no member is left" );
}

void FabricCluster::dies( std::size_t member ) {
   members_[member].isUp = false;
   members_[member].watches.clear();
   for ( auto * const client : std::exchange( members_[member].clients, {} ) ) {
      client->isLost();
   }
}

void FabricCluster::comes( std::size_t member, Client & client ) {
   members_[member].clients.push_back( &client );
}

void FabricCluster::goes( Client & client ) {
   for ( auto & member : members_ ) {
      std::erase( member.clients, &client );
   }
}

bool FabricCluster::watch( std::size_t member, Watch & watch, U64 behind ) {
   auto const first = revision_ - log_.size() + 1; // that the log has
   if ( behind + 1 < first ) {
      return false;
   }
   members_[member].watches.push_back( &watch );
   for ( auto const & transaction : log_ ) {
      if ( revisionOf( transaction->position ) > behind ) {
         tell( member, watch, transaction );
      }
   }
   return true;
}

void FabricCluster::forget( Watch & watch ) {
   for ( auto & member : members_ ) {
      std::erase( member.watches, &watch );
   }
}

} // namespace Scale
