#include "inspection/Plan.h"

#include "inspection/Planner.h"
#include "inspection/Play.h"
#include "simulator/StagedDriver.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace Inspection {

namespace {

using Simulator::Row;
using Simulator::StagedDriver;

// How many entries, or controls, the rows are of.
std::size_t countOf( std::vector< Row > const & rows, Row::Kind kind ) {
   std::vector< std::tuple< U64, U64 > > places;
   places.reserve( rows.size() );
   for ( Row const & row : rows ) {
      if ( row.kind == kind ) {
         U64 const table = U64{ row.fap } << 32 | U64{ row.tableNumber } << 16 | row.variant;
         U64 const place = static_cast< U64 >( row.array ) << 32 | ( row.entry ? *row.entry : row.control );
         places.emplace_back( table, place );
      }
   }
   std::ranges::sort( places );
   return places.size() - std::ranges::unique( places ).size();
}

// As long as it lives, what a switch does is staged and told, also where an event ends it.
class Staging {
 public:
   Staging( Simulator::SimulatedSwitch & sw, StagedDriver & staged, DaceSal::SchanDriver & under, Planner & planner )
      : sw_( sw ), under_( under ), planner_( planner ) {
      DaceSal::schanDriverIs( &staged );
      sw_.journal().readerAdd( planner_ );
   }
   Staging( Staging const & ) = delete;
   Staging & operator=( Staging const & ) = delete;
   ~Staging() {
      sw_.journal().readerDel( planner_ );
      DaceSal::schanDriverIs( &under_ );
   }

 private:
   Simulator::SimulatedSwitch & sw_;
   DaceSal::SchanDriver & under_;
   Planner & planner_;
};

} // namespace

std::size_t PlannedEvent::entries() const {
   return countOf( changes, Row::Kind::write );
}

std::size_t PlannedEvent::controls() const {
   return countOf( changes, Row::Kind::control );
}

bool Plan::isEmpty() const {
   return std::ranges::all_of( events, []( PlannedEvent const & event ) { return event.changes.empty(); } );
}

Plan planOn( Simulator::SimulatedSwitch & sw,
             std::string const & name,
             std::vector< Event > const & events,
             std::optional< U16 > fap ) {
   Plan plan{ .name = name, .events = {} };
   auto & under = *DaceSal::schanDriver();
   StagedDriver staged( under );
   Planner planner( plan, events, staged, fap, sw.event() );
   Staging const staging( sw, staged, under, planner );
   for ( Event const & event : events ) {
      Rex::below( std::to_string( event.number - 1 ), [&] {
         Rex::below( event.word(),
                     [&] { sw.change( [&] { event.change( sw.state() ); }, event.cause(), valueOf( event ) ); } );
      } );
   }
   return plan;
}

Plan planOf( Scenario const & scenario, std::string const & plugin, PlanOptions const & options ) {
   Plan plan{ .name = scenario.title(), .events = {} };
   loadPlugin( plugin );
   auto description = scenario.description;
   description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   description.supervised = Simulator::SwitchDescription::Supervised::never; // what is planned is what the agent does
   Simulator::SimulatedSwitch sw( description );
   scenario.fillChips( sw.driver() );
   Scenario played = scenario;
   played.chips.clear();
   for ( StagedDriver::Change const & change : options.chips ) {
      if ( change.isControl ) {
         sw.driver().control( change.chip, change.control, change.after.front() );
      } else {
         sw.driver().write( change.chip, change.at, change.after );
      }
   }
   StagedDriver staged( sw.driver() );
   DaceSal::schanDriverIs( &staged );
   Planner planner( plan, scenario.events, staged, options.fap );
   sw.journal().readerAdd( planner );
   for ( auto * const other : options.others ) {
      sw.journal().readerAdd( *other );
   }
   play( played, sw );
   sw.stop();
   return plan;
}

} // namespace Inspection
