// A simulated switch with the plug-in, seen as a reader of tables sees it: fields of its chips, and the operations that
// an event made, as text.
//
//    TestSwitch sw( { ChipType::BCM88690_B0 } );
//    sw.start();
//    sw.set( "evpn/status", "vxlanEnabled", true );
//    sw.field( { "InLifProfileCsFlagsLsb", 1 }, "csProfile72" );
//    sw.operations();               // of the last event: "write InLifProfileCsFlagsLsb 1/0/-"
#pragma once

#include "rex/Trace.h"
#include "simulator/SimulatedSwitch.h"
#include "simulator/TableMap.h"

#include <algorithm>

namespace Test {

using Hardware::ChipType;
using Hardware::Dace::FapId;
using Simulator::Journal;
using Object = Rex::Value::Object;

// A place in a table. A register has the entry 0.
struct At {
   char const * table;
   U32 variant = 0;
   U32 array = 0;
   U32 entry = 0;
};

// Major revisions as the chips have them: 8 and 9 are those with a second element of the in-LIF flags.
U32 majorOf( ChipType chipType );

// FAPs 0, 1, ... of these kinds, in slice "Linecard1".
Simulator::SwitchDescription switchOf( std::vector< ChipType > const & chips, Toggle::Settings toggles = {} );

class TestSwitch : public Simulator::SimulatedSwitch {
 public:
   explicit TestSwitch( Simulator::SwitchDescription description );
   explicit TestSwitch( std::vector< ChipType > const & chips, Toggle::Settings toggles = {} );
   ~TestSwitch();

   ChipType chipType( FapId fap ) const;

   Simulator::Chip::Entry entry( At const & at, FapId fap = {} ) const;
   U64 field( At const & at, char const * name, FapId fap = {} ) const;
   // Contents that no program wrote, in every copy.
   void fieldIs( At const & at, char const * name, U64 value, FapId fap = {} );

   // The rows of an event; of the last one if none is named.
   std::vector< Simulator::Row > rows( std::optional< U32 > ofEvent = {} ) const;
   // The same as text: "read <table> <variant>/<array>/<entry>", "write ...", "control <number> = <value>", of the
   // tables whose name contains `part`, on one FAP.
   std::vector< std::string >
   operations( std::string const & part = "", FapId fap = {}, std::optional< U32 > ofEvent = {} ) const;
   static std::string text( Simulator::Row const & row );

   // Announces an attribute again, unchanged.
   void announce( std::string const & path, short attribute );

 private:
   Catalogue::Layout const & layout( At const & at, FapId fap ) const;
};

// The records of a facility, up to a level.
class Traced {
 public:
   Traced( std::string facility, int highest );
   ~Traced();
   // Those that contain `part`.
   std::vector< std::string > with( std::string const & part ) const;
   std::vector< std::string > texts; // "<level> <text>"

 private:
   std::string facility_;
};

} // namespace Test
