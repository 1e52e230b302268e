// A simulated switch under a test: what programming leaves on the chips, by table and field name, and in what order it
// got there.
//
//    class RoutingTest : public EveryChip {};
//    TEST_P( RoutingTest, leavesTheOtherHalfAlone ) {
//       chipIs( GetParam() );                              // FAP 0, as its boot image leaves it
//       L3Sm::initEnablersVectors( fap() );
//       EXPECT_EQ( field( "EnablersVectors", { .variant = 1, .array = 3, .entry = 21 }, "routingEnableVector" ), 0x1du
//       ); EXPECT_EQ( operations().front(), "write EnablersVectors 0/0/0" );
//    }
//    TEST_F( UrpfTest, followsTheSetting ) {
//       toggleIs( "Dace.json", "ArmOrderedSwTable", false );
//       switchIs( { faps } );
//       start();                                           // the plug-in mounts and programs
//       sw().set( "routing/hardware/config", "urpfLooseFailForward", true );
//    }
//
// A toggle is read once in a process: such tests rely on a process of their own, as ctest gives them.
#pragma once

#include "L3Sm.h"
#include "Programming.h"
#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>
#include <optional>
#include <set>

namespace DaceFapNi {

using Hardware::ChipType;
using Hardware::Dace::FapId;
using Simulator::Words;

// The revision that a chip of the kind comes with here. 8 and 9 are those of the chips whose second context-selection
// register has two array elements.
Hardware::Dace::FapRevision revisionOf( ChipType chipType, U32 sdkVersion = 7 );

// How many physical copies most tables have; as many cores are what the chip can serve one by one.
inline U16 copiesOf( ChipType chipType ) {
   return chipType == ChipType::BCM88690_B0 || chipType == ChipType::BCM88850_A0 ? 2 : 1;
}

// What a test may say of its chip.
struct ChipOptions {
   std::optional< U16 > cores = {}; // none: one for each copy
   U32 sdkVersion = 7;
   std::optional< U32 > fapRevMajor = {}; // none: the chip's own
};

class ChipFixture : public testing::Test {
 public:
   ChipFixture();
   ~ChipFixture() override;
   // Before the switch is made.
   void toggleIs( std::string const & file, std::string const & name, bool state );

   // A switch of one FAP, number 0, or of any description. Not started: static programming is called by hand.
   void chipIs( ChipType chipType, ChipOptions const & options = {} );
   void switchIs( Simulator::SwitchDescription description );
   // Enters the plug-in, which this program is linked with, and brings the slice up.
   void start() { sw().start(); }

   Simulator::SimulatedSwitch & sw() { return *switch_; }
   Simulator::SimulatedSwitch const & sw() const { return *switch_; }
   FapStatusPtr fap( FapId fapId = FapId( 0 ) ) const;
   L3Sm::SwitchControlSalPtr sal();
   ChipType chipType( FapId fapId = FapId( 0 ) ) const { return fap( fapId )->revision().chipType(); }

   // ---- what is on the chip

   Catalogue::Layout const & layout( char const * table, Place const & place, FapId fapId = FapId( 0 ) ) const;
   Words words( char const * table, Place const & place, U32 copy = 0, FapId fapId = FapId( 0 ) ) const;
   // A field of at most 64 bits.
   U64
   field( char const * table, Place const & place, char const * name, U32 copy = 0, FapId fapId = FapId( 0 ) ) const;
   // What the chip is to hold beforehand, in every copy; and the same taken as its contents before.
   void wordsAre( char const * table, Place const & place, Words const & value, FapId fapId = FapId( 0 ) );
   void fieldIs( char const * table, Place const & place, char const * name, U64 value, FapId fapId = FapId( 0 ) );
   std::map< U32, U32 > controls( FapId fapId = FapId( 0 ) ) const { return sw().chip( fapId ).controls(); }
   Simulator::Contents contents( FapId fapId = FapId( 0 ) ) const;
   Simulator::Contents const & before( FapId fapId = FapId( 0 ) ) const { return before_.at( fapId ); }

   // The places whose contents are others than before: "VsiProfileFlags 1/0/5", variant, array index and entry.
   std::set< std::string > changedPlaces( FapId fapId = FapId( 0 ) ) const;

   // ---- how it got there

   using Row = Simulator::Row;
   std::vector< Row > rows() const;

   // "read IppdFerTrapCfg 0/3" (variant, array index), "write EnablersVectors 0/1/22" (entry), "write ... core 1",
   // "control 64 = 255".
   static std::string text( Row const & row );
   // Every operation so far; of one table only, if that is named.
   std::vector< std::string > operations( std::string_view table = {} ) const;

 private:
   DaceSal::SchanAddress address( char const * table, Place const & place, FapId fapId ) const;
   Catalogue::Field const & fieldOf( char const * table, Place const & place, char const * name, FapId fapId ) const;

   Toggle::Settings toggles_;
   std::optional< Simulator::SimulatedSwitch > switch_;
   std::map< FapId, Simulator::Contents > before_;
};

// The same, once for each chip type.
class EveryChip : public ChipFixture, public testing::WithParamInterface< ChipType > {};

inline auto const everyChip = testing::ValuesIn( Hardware::allChipTypes );
std::string chipNameOf( testing::TestParamInfo< ChipType > const & info );

// What a test listens to: the records of every facility up to a level, as "<facility>/<level> <text>".
class TraceListener {
 public:
   // `told` runs with each record, as long as whoever traces waits.
   TraceListener( std::string facility, int level, std::function< void() > told = {} );
   ~TraceListener();
   TraceListener( TraceListener const & ) = delete;
   TraceListener & operator=( TraceListener const & ) = delete;
   std::vector< std::string > const & records() const { return records_; }

 private:
   std::string facility_;
   std::function< void() > told_;
   std::vector< std::string > records_;
};

} // namespace DaceFapNi
