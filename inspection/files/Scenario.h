// Scenarios: a switch, what stands on its chips and in its state before the start, and what happens then.
//
//    Scenario const scenario = readScenario( "scenario.json" );    // InputError, before anything has happened
//    Simulator::SimulatedSwitch sw( scenario.description );
//    scenario.prepare( sw );
//    sw.start( plugin );
//    for ( auto const & event : scenario.events ) {
//       scenario.play( sw, event );
//    }
//
// Reading checks everything, the events too: it plays them on a switch without a plug-in.
#pragma once

#include "inspection/files/Json.h"
#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"

namespace Inspection {

// One change of state.
struct Event {
   enum class Kind : U8 { set, remove };

   U32 number; // from 1
   Kind kind;
   std::string path;
   std::optional< std::string > attribute;
   std::optional< std::string > key;
   Rex::Value value;

   // "set evpn/status evpnDciEnabled = true"
   std::string text() const;
};

struct Scenario {
   std::string file; // for messages
   std::string name;
   Simulator::SwitchDescription description;
   std::map< U16, Simulator::Contents > chips; // on top of the boot image
   Rex::Value::Object state;                   // path to attributes, null to leave the path out
   std::vector< Event > events;
   Rex::Value document; // as it was read

   // The document without its events, with the toggles that hold: what a journal begins with.
   Rex::Value begin() const;
   // Puts chips and state in place. InputError where they don't fit.
   void prepare( Simulator::SimulatedSwitch & sw ) const;
   void fillChips( Simulator::ChipDriver & driver ) const;
   void play( Simulator::SimulatedSwitch & sw, Event const & event ) const;
   // The FAP of a number; it must be there.
   Simulator::FapDescription const & fap( U16 number ) const;
};

Scenario readScenario( std::string const & path );
// The same from a value that stands in another file, checked likewise.
Scenario scenarioOf( Rex::Value const & value, std::string const & file );
// A scenario, or one of its events, as its file has it.
enum class Parts : U8 { all, withoutEvents };
Rex::Value valueOf( Scenario const & scenario, Parts parts = Parts::all );
Rex::Value valueOf( Event const & event );
// The scenario that is played where none is named.
Scenario builtInScenario();

// "FILE:NAME=on" or "FILE:NAME=off", into the settings. InputError.
void toggleIs( Toggle::Settings & toggles, std::string const & text );

} // namespace Inspection
