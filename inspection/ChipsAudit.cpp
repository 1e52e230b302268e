#include "inspection/ChipsAudit.h"

#include "inspection/Play.h"

namespace Inspection {

ChipsAudit auditAfter( Scenario const & scenario, std::string const & plugin ) {
   loadPlugin( plugin );
   auto description = scenario.description;
   description.journalled = Simulator::SwitchDescription::Journalled::none;
   description.supervised = Simulator::SwitchDescription::Supervised::always;
   Simulator::SimulatedSwitch sw( description );
   play( scenario, sw );
   auto & chips = *sw.supervised();
   ChipsAudit audit{ .wrong = {}, .degraded = chips.shadow().degraded(), .faults = chips.fired() };
   chips.audit().finish(
      [&]( Simulator::Mismatch const & it ) { audit.wrong.push_back( wrongPlaceOf( description, it ) ); } );
   return audit;
}

} // namespace Inspection
