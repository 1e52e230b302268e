#include "scale/FabricDatabase.h"

#include "agent/database/EtcdLayout.h"
#include "agent/database/EtcdLease.h"

#include <utility>

namespace Scale {

namespace {

constexpr std::size_t pageSize = 1000; // of a snapshot
constexpr double renewals = 3;         // of a lease, while it lasts
constexpr std::size_t keysOfAReport = Live::mostOperations - 2;

} // namespace

FabricDatabase::FabricDatabase( Live::EventLoop & loop,
                                FabricCluster & cluster,
                                std::size_t number,
                                std::size_t weight )
   : loop_( loop ), cluster_( cluster ), member_( number % cluster.costs().assumed.members ), weight_( weight ) {}

FabricDatabase::~FabricDatabase() {
   cluster_.forget( *this );
}

void FabricDatabase::later( std::function< void() > what ) {
   // The wire first, then the agent, when it has nothing older to do.
   cluster_.time().after( cluster_.costs().assumed.latency,
                          tether_.of( [this, does = std::move( what )] { loop_.soon( tether_.of( does ) ); } ) );
}

void FabricDatabase::asks( Rex::Seconds cost, std::function< void() > answered ) {
   member_ = cluster_.memberFor( member_ );
   cluster_.time().after( cluster_.costs().assumed.latency, tether_.of( [this, cost, does = std::move( answered )] {
      cluster_.works( member_, cost, tether_.of( [this, does] { later( does ); } ) );
   } ) );
}

void FabricDatabase::snapshot() {
   auto const begins = [this] {
      auto const state = cluster_.state();
      page( state->size() * weight_, state, cluster_.position() );
   };
   if ( std::exchange( hasRight_, true ) ) {
      begins();
      return;
   }
   renews();
   asks( cluster_.costs().server.start, begins );
}

void FabricDatabase::page( std::size_t left,
                           std::shared_ptr< Paths const > const & state,
                           Live::Position const & position ) {
   auto const size = std::min( left, pageSize );
   cluster_.counts().snapshotKeys += size;
   asks( static_cast< double >( size ) * cluster_.costs().server.snapshotKey, [this, left, size, state, position] {
      cluster_.time().spends( static_cast< double >( size ) * cluster_.costs().agent.snapshotKey );
      if ( left > size ) {
         page( left - size, state, position );
      } else {
         follower()->snapshotIs( { position, *state } );
      }
   } );
}

void FabricDatabase::since( Live::Position const & position ) {
   isWanted_ = true;
   if ( isWatching_ && position == told_ ) {
      if ( !page_.empty() ) {
         loop_.soon( tether_.of( [this] { tell(); } ) );
      }
      return;
   }
   cluster_.forget( *this );
   page_.clear();
   told_ = position;
   asks( hasRight_ ? 0 : cluster_.costs().server.start, [this] {
      hasRight_ = true;
      isWatching_ = cluster_.watch( member_, *this, FabricCluster::revisionOf( told_ ) );
      if ( isWatching_ ) {
         follower()->follows();
      } else {
         follower()->gapIs( "the revisions behind the place that was read up to are compacted" );
      }
   } );
}

void FabricDatabase::comes( FabricCluster::Told const & transaction ) {
   later( [this, transaction] {
      page_.push_back( *transaction );
      tell();
   } );
}

void FabricDatabase::tell() {
   if ( isWanted_ && !page_.empty() ) {
      isWanted_ = false;
      told_ = page_.back().position;
      follower()->transactionsAre( std::exchange( page_, {} ) );
   }
}

void FabricDatabase::isLost() {
   tether_.cut(); // whatever was asked is off
   isWatching_ = hasRight_ = isUnderWay_ = isWaiting_ = false;
   page_.clear();
   breath_ = {};
   later( [this] { follower()->unreachable( "a member of the cluster was lost" ); } );
}

void FabricDatabase::publish( Live::Report const & report ) {
   if ( !hasRight_ ) {
      return;
   }
   applied_ = FabricCluster::revisionOf( report.applied );
   unpublished_ += report.published.size() * weight_;
   isWaiting_ = true;
   if ( !isUnderWay_ ) {
      this->report();
   }
}

void FabricDatabase::report() {
   isUnderWay_ = true;
   isWaiting_ = false;
   published( std::exchange( unpublished_, 0 ) );
}

// The agent's own key comes with the last of them.
void FabricDatabase::published( std::size_t left ) {
   auto const size = std::min( left, keysOfAReport );
   bool const isLast = left == size;
   auto const & costs = cluster_.costs();
   cluster_.counts().publishedKeys += size;
   cluster_.counts().reports += isLast ? 1 : 0;
   cluster_.time().spends( costs.agent.report );
   auto const cost = static_cast< double >( size ) * costs.server.publishedKey + ( isLast ? costs.server.report : 0 );
   auto const answered = [this, left, size, isLast, applied = applied_] {
      if ( !isLast ) {
         published( left - size );
         return;
      }
      reported_ = applied;
      breath_ = loop_.timer( cluster_.costs().assumed.breath, [this] {
         isUnderWay_ = false;
         if ( isWaiting_ ) {
            report();
         }
      } );
   };
   member_ = cluster_.memberFor( member_ );
   cluster_.time().after( costs.assumed.latency, tether_.of( [this, cost, answered] {
      cluster_.commits( member_, cost, tether_.of( [this, answered] { later( answered ); } ) );
   } ) );
}

void FabricDatabase::renews() {
   Rex::Seconds const period = Live::usualLeaseSeconds / renewals;
   renewal_ = loop_.timer( period, [this, period] {
      renewal_.timeIs( period );
      cluster_.works( cluster_.memberFor( member_ ), period * cluster_.costs().server.idleSecond, [] {} );
   } );
}

void FabricDatabase::stop() {
   tether_.cut();
   breath_ = {};
   renewal_ = {};
   cluster_.forget( *this );
   isWatching_ = false;
}

} // namespace Scale
