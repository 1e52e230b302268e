#include "scale/Fabric.h"

#include <algorithm>

namespace Scale {

namespace {

constexpr Rex::Seconds step = 0.001; // between two looks at whether all is done
constexpr Rex::Seconds longest = 3600;
constexpr U64 firstRevision = 1;

Rex::Seconds percentile( std::vector< Rex::Seconds > const & sorted, double part ) {
   return sorted.empty() ? 0 : sorted[static_cast< std::size_t >( part * static_cast< double >( sorted.size() - 1 ) )];
}

} // namespace

Fabric::Fabric( Costs const & costs, FabricSize const & size, U64 seed )
   : random_( seed ), size_( size ), cluster_( time_, costs, size.state() ), written_( firstRevision + 1 ) {
   for ( std::size_t number = 0; number < size.agents; ++number ) {
      agents_.push_back( std::make_unique< FabricAgent >( cluster_, number, size ) );
      agents_.back()->onlookerAdd( onlooker_ );
   }
}

double Fabric::random() {
   constexpr double range = 9007199254740992.0; // 2^53
   return static_cast< double >( random_() >> 11U ) / range;
}

void Fabric::Lags::transactionPlayed( Transaction const & transaction, Rex::Seconds ) {
   fabric_.lags_.push_back( fabric_.time_.now() - fabric_.written_[FabricCluster::revisionOf( transaction.position )] );
}

void Fabric::write() {
   written_.push_back( time_.now() );
   auto const path = FabricSize::pathOf( random_() % FabricSize::paths );
   cluster_.write( { { .kind = Inspection::Event::Kind::set,
                       .path = path,
                       .attribute = "mtu",
                       .value = static_cast< int >( 2000 + written_.size() ) } } );
}

bool Fabric::isSettled() const {
   return cluster_.revision() + 1 == written_.size() && std::ranges::all_of( agents_, [this]( auto const & agent ) {
             return agent->phase() == Live::Phase::running && agent->reported() == cluster_.revision();
          } );
}

Seen Fabric::seen( std::function< void() > const & what ) {
   auto const begun = time_.now();
   auto const before = cluster_.counts();
   auto const worked = cluster_.worked();
   lags_.clear();
   what();
   while ( !isSettled() ) {
      time_.turnsUntil( time_.now() + step );
      if ( time_.now() - begun > longest ) {
         throw std::runtime_error( "the fabric doesn't settle" );
      }
   }
   std::ranges::sort( lags_ );
   auto const & after = cluster_.counts();
   Seen seen{ .lasted = time_.now() - begun,
              .half = percentile( lags_, 0.5 ),
              .most = percentile( lags_, 0.99 ),
              .last = percentile( lags_, 1 ),
              .worked = cluster_.worked() - worked };
   auto const & assumed = cluster_.costs().assumed;
   seen.share = std::min( 1.0, seen.worked / seen.lasted / static_cast< double >( assumed.members * assumed.cores ) );
   seen.counts = { after.writes - before.writes,
                   after.deliveries - before.deliveries,
                   after.reports - before.reports,
                   after.snapshotKeys - before.snapshotKeys,
                   after.publishedKeys - before.publishedKeys,
                   after.syncs - before.syncs };
   time_.turnsUntil( time_.now() + 1 ); // quiet
   return seen;
}

Seen Fabric::starts() {
   return seen( [this] {
      for ( auto const & agent : agents_ ) {
         time_.after( random(), [&agent] { agent->begin(); } );
      }
   } );
}

Seen Fabric::changes( std::size_t count, double perSecond ) {
   return seen( [&] {
      for ( std::size_t number = 0; number < count; ++number ) {
         write();
         if ( number + 1 < count ) { // twice the mean at most, and nothing at least
            time_.turnsUntil( time_.now() + 2 * random() / perSecond );
         }
      }
   } );
}

Seen Fabric::losesMember( std::size_t member, bool isCompacted ) {
   return seen( [&] {
      cluster_.dies( member );
      for ( int count = 0; count < 10; ++count ) {
         write();
      }
      if ( isCompacted ) {
         time_.turnsUntil( time_.now() + 0.05 );
         cluster_.compacts();
      }
   } );
}

bool Fabric::isConverged() const {
   return std::ranges::all_of( agents_, [this]( auto const & agent ) {
      return agent->phase() == Live::Phase::running && agent->held() == *cluster_.state();
   } );
}

} // namespace Scale
