// What an agent counts, in the text format that Prometheus reads.
//
//    Metrics metrics;
//    sw.journal().readerAdd( metrics );              // operations, gates and events, as they happen
//    metrics.add( Metric::resyncs, { "gap in the log" } );
//    metrics.is( Metric::rejectedEntries, 3 );
//    metrics.phaseIs( Phase::running );
//    metrics.eventTook( 0.0004 );
//    out << metrics.text();
//
// What there is, with its labels, is the table in MetricFamilies.cpp. A label has few values: none is made of an entry,
// an interface or another key of the state.
//
// Threading: the agent's loop.
#pragma once

#include "agent/Phase.h"
#include "rex/Clock.h"
#include "simulator/Row.h"

#include <array>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace Live {

// In the order in which they are told.
enum class Metric : U8 {
   events,
   chipOperations,
   eventDuration,
   databaseLag,
   resyncs,
   rejectedEntries,
   startChangingWrites,
   auditMismatches,
   repairs,
   faultsInjected,
   gatesClosed,
   phase,
   recording,
   recordingFailures,
   buildInfo,
};

struct MetricFamily {
   enum class Type : U8 { counter, gauge, histogram };
   char const * name;
   Type type;
   char const * help;
   std::array< char const *, 3 > labels; // null: none
};

// By Metric.
std::span< MetricFamily const > metricFamilies();

class Metrics final : public Simulator::RowReader {
 public:
   using Labels = std::vector< std::string >; // values, in the order of the family's

   Metrics();

   // Counters.
   void add( Metric metric, Labels const & labels = {}, U64 more = 1 );
   // Gauges.
   void is( Metric metric, double value, Labels const & labels = {} );
   void phaseIs( Phase phase );
   void eventTook( Rex::Seconds time );

   std::string text() const;
   // Of all FAPs, controls left aside.
   U64 changingWrites() const;

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;

 private:
   struct Operations { // of a FAP, by kind and whether something changed
      std::array< std::array< U64, 2 >, 3 > counts{};
   };
   static constexpr std::size_t bounds = 16; // of the histogram

   std::map< Metric, std::map< Labels, double > > values_;
   std::vector< Operations > operations_; // by FAP
   std::map< std::string, U64, std::less<> > gates_;
   std::map< std::string, U64, std::less<> > events_;
   std::array< U64, bounds + 1 > durations_{}; // by bucket, the last one without a bound
   Rex::Seconds durationSum_ = 0;
};

// What an event is the consequence of, without keys: the path whose attribute, member or entry changes, "start", or
// "several" where there is more than one.
std::string causeWithoutKeys( Rex::Value const & what );

} // namespace Live
