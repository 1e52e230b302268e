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
// Reading checks everything, the events too: it plays them on a state without a plug-in, and tells all that is wrong in
// one InputError. What contradicts the chips is played as a switch would, and stands in `warnings`.
#pragma once

#include "inspection/ToggleNames.h"
#include "inspection/files/Json.h"
#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"

namespace Inspection {

// One change of state, or several at once.
struct Event {
   enum class Kind : U8 { set, remove, transaction, fault };

   U32 number = 0; // from 1
   Kind kind = Kind::set;
   std::string path = {};
   std::optional< std::string > attribute = {};
   std::optional< std::string > key = {};
   Rex::Value value = {};
   std::vector< Event > changes = {};            // of a transaction, each a set or a remove; it has nothing else
   std::optional< Simulator::Fault > fault = {}; // of a fault, which has nothing else

   // "set evpn/status evpnDciEnabled = true"
   std::string text() const;
   // As it is told who hears of it: "evpn/status evpnDciEnabled".
   std::string cause() const;
   // The word that a scenario has for its kind: "set", "delete", "transaction", "fault".
   char const * word() const;
   // A fault changes nothing of it. Throws Rex::ValueError, its place seen from {"path", "attribute", "key", "value"}.
   void change( Simulator::StateTree & state ) const;
};

// One by one: a transaction's, or itself.
std::vector< Event > changesOf( Event event );

// Something in a scenario that no switch would be like.
struct Warning {
   std::string place; // "scenario.json:7:31"
   std::string text;
   std::optional< U32 > event = {}; // that it stands in
};

struct Scenario {
   std::string file; // for messages
   std::string name;
   Simulator::SwitchDescription description;
   std::map< U16, Simulator::Contents > chips; // on top of the boot image
   Rex::Value::Object state;                   // path to attributes, null to leave the path out
   std::vector< Event > events;
   std::vector< Warning > warnings;

   // What people know it by.
   std::string const & title() const { return name.empty() ? file : name; }
   // Puts chips and state in place, and supervises chips that are to fail. InputError where they don't fit.
   void prepare( Simulator::SimulatedSwitch & sw ) const;
   void fillChips( Simulator::ChipDriver & driver ) const;
   void play( Simulator::SimulatedSwitch & sw, Event const & event ) const;
   // The FAP of a number; it must be there.
   Simulator::FapDescription const & fap( U16 number ) const;
};

// From a file, or "-" for standard input.
Scenario readScenario( std::string const & path );
// The scenario that is played where none is named.
Scenario builtInScenario();
// The same from a value that stands in another file, checked likewise.
Scenario scenarioOf( Rex::Value value, std::string const & file );

// A scenario, or one of its events, as its file has it.
enum class Parts : U8 { all, withoutEvents };
Rex::Value valueOf( Scenario const & scenario, Parts parts = Parts::all );
Rex::Value valueOf( Event const & event );

// InputError where a FAP is asked for, as by --fap, that the switch doesn't have.
void checkHasFap( Simulator::SwitchDescription const & description, std::optional< U16 > asked );

// Sets what stands at a path before the start: its attributes, or null to leave the path out. Throws Rex::ValueError,
// its place seen from the value; a wrong path is a wrong key.
void stateIs( Simulator::StateTree & state, std::string const & path, Rex::Value const & attributes );

} // namespace Inspection
