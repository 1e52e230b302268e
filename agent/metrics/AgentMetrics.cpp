#include "agent/metrics/AgentMetrics.h"

#include <algorithm>
#include <chrono>

namespace Live {

void AgentMetrics::phaseIs( Phase phase, std::string const & ) {
   metrics_.phaseIs( phase );
}

void AgentMetrics::snapshotPlayed( Position const &, Paths const & ) {
   if ( !isStarted_ && agent_.isStarted() ) {
      isStarted_ = true;
      metrics_.is( Metric::startChangingWrites, static_cast< double >( metrics_.changingWrites() ) );
   }
   metrics_.is( Metric::rejectedEntries, static_cast< double >( agent_.rejected().size() ) );
}

void AgentMetrics::transactionPlayed( Transaction const & transaction, Rex::Seconds duration ) {
   metrics_.eventTook( duration );
   metrics_.is( Metric::rejectedEntries, static_cast< double >( agent_.rejected().size() ) );
   if ( transaction.written > 0 ) {
      // The database's clock is another machine's: what lies ahead of ours is no lag.
      std::chrono::duration< double > const now = std::chrono::system_clock::now().time_since_epoch();
      metrics_.is( Metric::databaseLag, std::max( now.count() - transaction.written, 0.0 ) );
   }
}

void AgentMetrics::resyncs( std::string const & reason ) {
   metrics_.add( Metric::resyncs, { reason } );
}

} // namespace Live
