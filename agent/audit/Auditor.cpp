#include "agent/audit/Auditor.h"

#include <algorithm>

namespace Live {

namespace {

using Rex::Value;
using Simulator::Mismatch;

constexpr Rex::Seconds hardWithin = 3600;
constexpr std::size_t sliceEntries = 2000; // which take a fraction of a millisecond
constexpr std::size_t mostKept = 100;      // findings
constexpr U32 controlBlock = ~U32{ 0 };

} // namespace

Value Finding::value() const {
   Value::Object value = wrong.value();
   value["event"] = event;
   value["rightAt"] = rightAt;
   value["since"] = static_cast< std::int64_t >( Rex::now() - found );
   value["kind"] = isHard ? "hard" : "soft";
   value["result"] = isHard ? "left" : isRepaired ? "repaired" : "failed";
   return value;
}

std::string Finding::text() const {
   return wrong.text() + ( isHard       ? "; wrong again, and left: l3sm ctl repair"
                           : isRepaired ? "; repaired"
                                        : "; not repaired" );
}

Auditor::Auditor( Simulator::SimulatedSwitch & sw, Metrics & metrics, Options options )
   : sw_( sw ), metrics_( metrics ), options_( std::move( options ) ) {}

// Whether the copy holds what it is to hold since.
bool Auditor::isRepaired( Mismatch const & it ) {
   auto & shadow = chips().shadow();
   if ( it.control ) {
      return shadow.repairControl( it.chip, *it.control );
   }
   std::vector< U32 > now( it.expected.size() );
   return shadow.repair( it.chip, it.at ) && shadow.readChip( it.chip, it.at, now ) &&
          std::ranges::equal( now, it.expected );
}

void Auditor::visit( Mismatch const & it ) {
   Key const key = it.control ? Key{ it.chip.value, controlBlock, *it.control }
                              : Key{ it.chip.value, it.at.selectorA << 8 | it.at.selectorB, it.at.address };
   ++walk_.mismatches;
   auto const known = places_.find( key );
   if ( known != places_.end() && known->second.finding.isHard ) {
      known->second.walk = walks_;
      ++walk_.hard; // told already
      return;
   }
   Finding finding{ .wrong = Inspection::wrongPlaceOf( sw_.description(), it ),
                    .event = sw_.event(),
                    .rightAt = rightAt_,
                    .found = Rex::now(),
                    .isHard = false,
                    .isRepaired = false };
   if ( !options_.mayRepair || options_.mayRepair() ) {
      std::string const fap = std::to_string( it.chip.value );
      finding.isHard = known != places_.end() && finding.found - known->second.finding.found < hardWithin;
      finding.isRepaired = !finding.isHard && isRepaired( it );
      walk_.hard += finding.isHard ? 1 : 0;
      walk_.repaired += finding.isRepaired ? 1 : 0;
      metrics_.add( Metric::auditMismatches, { fap, finding.isHard ? "hard" : "soft" } );
      if ( !finding.isHard ) {
         metrics_.add( Metric::repairs, { fap, finding.isRepaired ? "repaired" : "failed" } );
      }
      places_.insert_or_assign( key, Place{ finding, walks_ } );
   }
   keep( std::move( finding ) );
}

void Auditor::keep( Finding finding ) {
   if ( options_.log ) {
      options_.log( finding.text() );
   }
   latest_.push_back( std::move( finding ) );
   if ( latest_.size() > mostKept ) {
      latest_.pop_front();
   }
}

// A place that is right again, and stays so for an hour, is like any other.
void Auditor::walkEnds() {
   std::erase_if( places_, [&]( auto const & it ) {
      Place const & place = it.second;
      return place.walk != walks_ && ( place.finding.isHard || Rex::now() - place.finding.found >= hardWithin );
   } );
   all_.mismatches += walk_.mismatches;
   all_.repaired += walk_.repaired;
   all_.hard += walk_.hard;
   walk_ = {};
   entries_ = 0;
   ++walks_;
   rightAt_ = begunAt_;
}

std::size_t Auditor::valuedEntries() const {
   std::size_t count = 1; // so that a walk over nothing ends, too
   for ( auto const * const chip : sw_.supervised()->shadow().expected().chips() ) {
      for ( U32 entry = chip->nextValued( 0 ); entry < chip->map().entries(); entry = chip->nextValued( entry + 1 ) ) {
         ++count;
      }
   }
   return count;
}

bool Auditor::works( Rex::Seconds more ) {
   if ( options_.period <= 0 ) {
      return false;
   }
   if ( entries_ == 0 ) {
      entries_ = valuedEntries();
      begunAt_ = sw_.event();
   }
   due_ += static_cast< double >( entries_ ) * more / options_.period;
   if ( due_ < 1 ) {
      return false;
   }
   auto const slice = std::min( sliceEntries, static_cast< std::size_t >( due_ ) );
   due_ -= static_cast< double >( slice );
   if ( chips().audit().step( slice, [this]( Mismatch const & it ) { visit( it ); } ) ) {
      walkEnds();
      due_ = 0;
   }
   return due_ >= 1;
}

Auditor::Outcome Auditor::runs() {
   auto & audit = chips().audit();
   audit.restart();
   walk_ = {};
   begunAt_ = sw_.event();
   auto const visits = [this]( Mismatch const & it ) { visit( it ); };
   audit.finish( visits );
   Outcome const outcome = walk_;
   walkEnds();
   return outcome;
}

Auditor::Outcome Auditor::triesAgain() {
   for ( U16 const fap : std::set< U16 >( chips().shadow().degraded() ) ) {
      chips().shadow().triesAgain( DaceSal::ChipId{ fap } );
   }
   places_.clear();
   return runs();
}

Value Auditor::status() const {
   Value::List hard;
   Value::List latest;
   for ( auto const & [key, place] : places_ ) {
      if ( place.finding.isHard ) {
         hard.push_back( place.finding.value() );
      }
   }
   for ( auto const & finding : latest_ ) {
      latest.push_back( finding.value() );
   }
   Value::List degraded;
   for ( U16 const fap : sw_.supervised()->shadow().degraded() ) {
      degraded.emplace_back( fap );
   }
   return Value::Object{ { "period", static_cast< std::int64_t >( options_.period ) },
                         { "walks", walks_ },
                         { "mismatches", all_.mismatches + walk_.mismatches },
                         { "repaired", all_.repaired + walk_.repaired },
                         { "hard", std::move( hard ) },
                         { "degraded", std::move( degraded ) },
                         { "latest", std::move( latest ) } };
}

} // namespace Live
