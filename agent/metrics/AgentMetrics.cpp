#include "agent/metrics/AgentMetrics.h"

namespace Live {

void AgentMetrics::phaseIs( Phase phase, std::string const & ) {
   metrics_.phaseIs( phase );
   if ( auto const writes = agent_.startChangingWrites() ) { // which a start that was held makes later
      metrics_.is( Metric::startChangingWrites, static_cast< double >( *writes ) );
   }
}

void AgentMetrics::snapshotPlayed( Position const &, Paths const & ) {
   if ( !isStarted_ && agent_.isStarted() ) {
      isStarted_ = true;
      if ( !agent_.isWarm() ) {
         metrics_.is( Metric::startChangingWrites, static_cast< double >( metrics_.changingWrites() ) );
      }
   }
   metrics_.is( Metric::rejectedEntries, static_cast< double >( agent_.rejected().size() ) );
}

void AgentMetrics::transactionPlayed( Transaction const & transaction, Rex::Seconds duration ) {
   metrics_.eventTook( duration );
   metrics_.is( Metric::rejectedEntries, static_cast< double >( agent_.rejected().size() ) );
   if ( auto const lag = transaction.lag() ) {
      metrics_.is( Metric::databaseLag, *lag );
   }
}

void AgentMetrics::resyncs( std::string const & reason ) {
   metrics_.add( Metric::resyncs, { reason } );
}

} // namespace Live
