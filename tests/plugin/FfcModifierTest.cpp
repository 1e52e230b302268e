#include "ChipView.h"
#include "DaceL3Unicast/DaceFapNiPlugin/RemFfcModifierSm.h"
#include "ObservedL3Sm.h"

#include <gtest/gtest.h>

using namespace Test;
using DaceFapNi::RemFfcModifierSm;

namespace {

constexpr char const * prefixLengths = "routing/hardware/route/status";

Toggle::Settings const served{ { "Dace.json", { { "ArmOrderedSwTable", false } } } };

// The unified IPv4 context of each chip, and the bits of a VRF in its keys.
struct {
   ChipType chip;
   U32 context;
   U32 vrfBits;
} const chips[] = {
   { ChipType::BCM88690_B0, 10, 5 },
   { ChipType::BCM88800_A0, 1, 5 },
   { ChipType::BCM88850_A0, 49, 5 },
   { ChipType::BCM88859_A2, 32, 5 },
   { ChipType::BCM88480_A0, 4, 4 },
   { ChipType::BCM88480_B0, 51, 4 },
};

// The key: two instruction words, and the database. In the boot image the destination is copied by the instruction 16
// (memory 3, element 0 of its array, third of the entry), the VRF by 31 (memory 4, element 0, second).
struct Key {
   U64 dip;
   U64 vrf;
   U64 database;
   friend bool operator==( Key const &, Key const & ) = default;
   friend std::ostream & operator<<( std::ostream & out, Key const & key ) {
      return out << std::hex << key.dip << " " << key.vrf << std::dec << " " << key.database;
   }
};
Key keyOn( TestSwitch const & sw, U32 context, FapId fap = {} ) {
   return { sw.field( { "FwdFfcTable", 3, 0, context }, "ffcInstruction2", fap ),
            sw.field( { "FwdFfcTable", 4, 0, context }, "ffcInstruction1", fap ),
            sw.field( { "FwdKbrTable", 0, 6, context }, "appDb", fap ) };
}
// Destination: offset in the headers 992 for the whole address. VRF: offset 0x5a8 in the registers, tag 8 at bit 25.
Key keyFor( U64 prefixLen, U64 vrfBits ) {
   return { ( 992 + 32 - prefixLen ) << 13 | ( prefixLen - 1 ) << 8,
            U64{ 8 } << 25 | U64{ 0x5a8 } << 13 | ( vrfBits - 1 ) << 8 | prefixLen,
            prefixLen == 21 ? 23u : 22u };
}

void lengthIs( TestSwitch & sw, char const * key, int length ) {
   sw.setEntry( prefixLengths, "prefixLensInExactMatch", key, length );
}

TEST( FfcModifier, theKeyFollowsThePrefixLengthAndGoesBack ) {
   for ( auto const & row : chips ) {
      TestSwitch sw( { row.chip }, served );
      EXPECT_EQ( keyOn( sw, row.context ), keyFor( 21, row.vrfBits ) ) << row.chip; // the microcode's own
      sw.start();
      EXPECT_EQ( keyOn( sw, row.context ), keyFor( 32, row.vrfBits ) ) << row.chip;
      lengthIs( sw, "0", 24 );
      EXPECT_EQ( keyOn( sw, row.context ), keyFor( 24, 13 ) ) << row.chip;
      lengthIs( sw, "0", 21 );
      EXPECT_EQ( keyOn( sw, row.context ), keyFor( 21, row.vrfBits ) ) << row.chip;
      lengthIs( sw, "0", 32 );
      EXPECT_EQ( keyOn( sw, row.context ), keyFor( 32, row.vrfBits ) ) << row.chip;
      sw.deleteEntry( prefixLengths, "prefixLensInExactMatch", "0" );
      EXPECT_EQ( keyOn( sw, row.context ), keyFor( 32, row.vrfBits ) ) << row.chip;
   }
}

TEST( FfcModifier, theKeyWordsByHand ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88480_A0 }, served );
   sw.start();
   EXPECT_EQ( keyOn( sw, 10 ), ( Key{ 0x007c1f00, 0x10b50420, 22 } ) );
   EXPECT_EQ( keyOn( sw, 4, FapId( 1 ) ), ( Key{ 0x007c1f00, 0x10b50320, 22 } ) );
   lengthIs( sw, "7", 24 );
   EXPECT_EQ( keyOn( sw, 10 ), ( Key{ 0x007d1700, 0x10b50c18, 22 } ) );
   EXPECT_EQ( keyOn( sw, 4, FapId( 1 ) ), ( Key{ 0x007d1700, 0x10b50c18, 22 } ) );
   lengthIs( sw, "7", 21 );
   EXPECT_EQ( keyOn( sw, 10 ), ( Key{ 0x007d7400, 0x10b50415, 23 } ) );
   EXPECT_EQ( keyOn( sw, 4, FapId( 1 ) ), ( Key{ 0x007d7400, 0x10b50315, 23 } ) );
}

TEST( FfcModifier, theLowestKeyDecidesBetween21And24 ) {
   TestSwitch sw( { ChipType::BCM88690_B0 }, served );
   sw.start();
   lengthIs( sw, "5", 24 );
   lengthIs( sw, "3", 21 );
   EXPECT_EQ( keyOn( sw, 10 ), keyFor( 21, 5 ) );
   lengthIs( sw, "1", 24 );
   EXPECT_EQ( keyOn( sw, 10 ), keyFor( 24, 13 ) );
   lengthIs( sw, "0", 32 ); // has no say
   EXPECT_EQ( keyOn( sw, 10 ), keyFor( 24, 13 ) );
}

TEST( FfcModifier, theRestOfTheEntriesSurvives ) {
   TestSwitch sw( { ChipType::BCM88690_B0 }, served );
   auto const rest = [&] {
      std::vector< U64 > values;
      for ( char const * name : { "ffcInstruction0", "ffcInstruction1", "ffcInstruction3" } ) {
         values.push_back( sw.field( { "FwdFfcTable", 3, 0, 10 }, name ) );
      }
      for ( char const * name : { "ffcInstruction0", "ffcInstruction2", "ffcInstruction3" } ) {
         values.push_back( sw.field( { "FwdFfcTable", 4, 0, 10 }, name ) );
      }
      values.push_back( sw.field( { "FwdKbrTable", 0, 6, 10 }, "kbr" ) );
      return values;
   };
   auto const before = rest();
   sw.start();
   lengthIs( sw, "0", 24 );
   lengthIs( sw, "0", 21 );
   EXPECT_EQ( rest(), before );
}

TEST( FfcModifier, rewritesDestinationThenVrfThenDatabase ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88800_A0 }, served );
   sw.start();
   lengthIs( sw, "0", 24 );
   std::vector< std::string > texts;
   for ( auto const & row : sw.rows() ) {
      if ( row.function.starts_with( "RemFfcModifierSm" ) ) {
         texts.push_back( std::to_string( row.fap ) + " " + TestSwitch::text( row ) );
      }
   }
   EXPECT_EQ( texts,
              ( std::vector< std::string >{ "0 read FwdFfcTable 3/0/10",
                                            "0 write FwdFfcTable 3/0/10",
                                            "0 read FwdFfcTable 4/0/10",
                                            "0 write FwdFfcTable 4/0/10",
                                            "1 read FwdFfcTable 3/0/1",
                                            "1 write FwdFfcTable 3/0/1",
                                            "1 read FwdFfcTable 4/0/1",
                                            "1 write FwdFfcTable 4/0/1",
                                            "0 read FwdKbrTable 0/6/10",
                                            "0 write FwdKbrTable 0/6/10",
                                            "1 read FwdKbrTable 0/6/1",
                                            "1 write FwdKbrTable 0/6/1" } ) );
   // The strengths of L3Sm come first: it subscribed first.
   EXPECT_TRUE( sw.rows()[0].function.starts_with( "L3Sm" ) );
}

TEST( FfcModifier, existsOnlyWhereTheFapIsServed ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } ); // both toggles on
   sw.start();
   lengthIs( sw, "0", 24 );
   EXPECT_TRUE( sw.operations( "FwdFfc", {}, 0 ).empty() );
   EXPECT_TRUE( sw.operations( "FwdFfc" ).empty() );
   EXPECT_TRUE( sw.operations( "FwdKbr" ).empty() );
   EXPECT_EQ( keyOn( sw, 10 ), keyFor( 21, 5 ) );
}

TEST( FfcModifier, eitherToggleServesTheFap ) {
   TestSwitch sw( { ChipType::BCM88690_B0 }, { { "DaceToggles.json", { { "J2DaceL3Ni", false } } } } );
   sw.start();
   EXPECT_EQ( keyOn( sw, 10 ), keyFor( 32, 5 ) );
}

TEST( FfcModifier, withoutTheUnifiedContextTheProcessEnds ) {
   auto toggles = served;
   toggles["DaceL3Unicast.json"]["UnifiedIPv4Fwd2Ctx"] = false;
   EXPECT_DEATH(
      {
         TestSwitch sw( { ChipType::BCM88690_B0 }, toggles );
         sw.start();
      },
      "getFwd2Context.*Assertion `toggleUnifiedIPv4Fwd2CtxEnabled\\(\\)' failed" );
}

TEST( FfcModifier, whatIsNotInTheImageIsTakenForZero ) {
   TestSwitch sw( { ChipType::BCM88690_B0 }, served );
   // The image has no key with the database of reduced prefixes: nothing is found, only the database is written.
   sw.fieldIs( { "FwdKbrTable", 0, 6, 10 }, "appDb", 30 );
   sw.start();
   EXPECT_TRUE( sw.operations( "FwdFfc" ).empty() );
   EXPECT_EQ( sw.field( { "FwdKbrTable", 0, 6, 10 }, "appDb" ), 22u );
}

TEST( FfcModifier, aKeyWithoutAVrfHasThePlaceOfNumberZeroRewritten ) {
   TestSwitch sw( { ChipType::BCM88690_B0 }, served );
   sw.fieldIs( { "FwdKbrTable", 0, 6, 10 }, "kbr", U64{ 1 } << 16 ); // the destination alone
   sw.start();
   EXPECT_EQ( sw.field( { "FwdFfcTable", 3, 0, 10 }, "ffcInstruction2" ), keyFor( 32, 5 ).dip );
   EXPECT_EQ( sw.field( { "FwdFfcTable", 0, 0, 10 }, "ffcInstruction0" ), U64{ 8 } << 25 | 4u << 8 | 32u );
}

// The machine by itself.

struct Machine {
   TestSwitch sw;
   Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch > lengths =
      Routing::Hardware::prefixLensInExactMatchFactory( "" );
   Corvo::Ptr< RemFfcModifierSm > sm;

   explicit Machine( std::vector< ChipType > const & kinds = { ChipType::BCM88690_B0 } ) : sw( kinds ) {
      sm = RemFfcModifierSm::RemFfcModifierSmIs( sw.cellStatus(), lengths );
   }
};

// What changes while it rewrites the keys must not be lost.
TEST( FfcModifier, hearsTheLengthsBeforeItRewritesTheKeys ) {
   TestSwitch const sw( { ChipType::BCM88690_B0 } );
   auto const lengths = Corvo::makePtr< Watchful< Routing::Hardware::PrefixLensInExactMatch > >();
   std::vector< U64 > operationsAtLooks;
   lengths->looked = [&] { operationsAtLooks.push_back( sw.journal().operationCount() ); };
   auto const sm = Corvo::makePtr< RemFfcModifierSm >( sw.cellStatus(), lengths );
   lengths->looked = nullptr;
   EXPECT_EQ( operationsAtLooks, std::vector< U64 >{ 0 } );
   EXPECT_GT( sw.journal().operationCount(), 0U );
}

TEST( FfcModifier, readsTheParametersOfAnInstruction ) {
   Machine machine;
   auto const & sm = *machine.sm;
   ChipType const chip = ChipType::BCM88690_B0;
   U64 const literal = 0x10000000 | 0xabc << 13 | 0x0c << 8 | 0x5d;
   U64 const header = 0x03000000 | 0x3eb << 13 | 0x14 << 8 | 0x6e;
   EXPECT_TRUE( sm.isFfcLiterally( chip, literal ) );
   EXPECT_FALSE( sm.isFfcRelativeHeader( chip, literal ) );
   EXPECT_TRUE( sm.isFfcRelativeHeader( chip, header ) );
   EXPECT_FALSE( sm.isFfcLiterally( chip, header ) );
   for ( U64 const other : { 0x08000000, 0x18000000 } ) {
      EXPECT_FALSE( sm.isFfcLiterally( chip, other ) );
      EXPECT_FALSE( sm.isFfcRelativeHeader( chip, other ) );
   }
   EXPECT_EQ( sm.getBaseFieldOffsetForHeader( header, chip ), 992 );
   EXPECT_EQ( sm.getBaseFieldOffsetForHeader( 0, chip ), 992 );
   EXPECT_EQ( sm.getBaseKeyOffsetForHeader( header, chip ), 0x6e );
   EXPECT_EQ( sm.getBaseFieldOffsetForLiterally( literal, chip ), 0xabc );
   EXPECT_EQ( sm.getBaseKeyOffsetForLiterally( literal, chip ), 0x5d );
   EXPECT_DEATH( sm.getBaseKeyOffsetForHeader( literal, chip ), "Assertion" );
   EXPECT_DEATH( sm.getBaseKeyOffsetForLiterally( header, chip ), "Assertion" );
}

TEST( FfcModifier, aRunWithTheSameLengthsChangesNoWord ) {
   Machine machine( { ChipType::BCM88850_A0 } );
   machine.lengths->prefixLenIs( 0, 24 );
   auto const before = machine.sw.journal().operationCount();
   machine.sm->handlePrefixLengthInExactMatch();
   auto const rows = machine.sw.journal().operations();
   EXPECT_EQ( rows.size(), before + 6 );
   for ( auto at = before; at < rows.size(); ++at ) {
      EXPECT_FALSE( rows[at].changed );
   }
}

TEST( FfcModifier, aSecondMachineFindsNothingInAKeyThatIsNoLongerReduced ) {
   Machine machine;
   auto const before = machine.sw.journal().operationCount();
   auto const second = RemFfcModifierSm::RemFfcModifierSmIs( machine.sw.cellStatus(), machine.lengths );
   auto const rows = machine.sw.journal().operations();
   EXPECT_EQ( rows.size(), before + 18 + 2 ); // every builder is looked at, and the database written
}

TEST( FfcModifier, hearsTheLengthsUntilItGoes ) {
   Machine machine;
   auto const lengths = machine.lengths;
   machine.sm->markAndSweepFlagSet( true );
   auto const before = machine.sw.journal().operationCount();
   lengths->prefixLenIs( 0, 24 );
   EXPECT_EQ( machine.sw.journal().operationCount(), before );
   machine.sm->markAndSweepFlagSet( false );
   machine.sm->hasNotificationActiveIs( false );
   lengths->prefixLenIs( 0, 21 );
   EXPECT_EQ( machine.sw.journal().operationCount(), before );
   machine.sm = nullptr;
   EXPECT_FALSE( lengths->publisher()->hasSubscribers() );
}

TEST( FfcModifier, tellsWhatItFindsAndWrites ) {
   TestSwitch sw( { ChipType::BCM88690_B0 }, served );
   Traced const traced( "DaceFapNiRemFfcModifierSm", 9 );
   Rex::RingTrace::clear();
   sw.start();
   auto const looked = traced.with( "isAppDbIdInteresting" );
   ASSERT_EQ( looked.size(), 18u );
   EXPECT_EQ(
      looked[6],
      "9 RemFfcModifierSm::isAppDbIdInteresting fapId 0 chipType BCM88690_B0 context 10 ISEM appDb 23, Expected "
      "ISEM appDb 23" );
   EXPECT_EQ(
      looked[9],
      "9 RemFfcModifierSm::isAppDbIdInteresting fapId 0 chipType BCM88690_B0 context 10 ISEM appDb 22, Expected "
      "ISEM appDb 23" );
   EXPECT_EQ( traced.with( "getFfcBitMap" ),
              ( std::vector< std::string >{ "0 RemFfcModifierSm::getFfcBitMap contextId 10 fapId 0 kbrArrayIdx 6" } ) );
   EXPECT_EQ( traced.texts.front(), "2 RemFfcModifierSm::handleInitialized" );

   auto const before = traced.texts.size();
   lengthIs( sw, "0", 24 );
   std::vector< std::string > const run( traced.texts.begin() + static_cast< long >( before ), traced.texts.end() );
   EXPECT_EQ(
      run,
      ( std::vector< std::string >{
         "2 RemFfcModifierSm::handlePrefixLengthInExactMatch",
         "2 RemFfcModifierSm::getPrefixLen mergedPrefixLensInExactMatchV4 24",
         "2 RemFfcModifierSm::writeFfcInstructionForStage fapId 0 chipType BCM88690_B0 prefixLen 24 contextId 10",
         "2 RemFfcModifierSm::modifyInterestingFfcForDip fapId 0 writing ffcIndex: 0 ffcFieldSize: 23 ffcKeyOffset: 0 "
         "ffcFieldOffset: 1000",
         "2 RemFfcModifierSm::modifyInterestingFfcForVrf fapId 0 ffcFieldSize: 12 ffcKeyOffset: 24 ffcFieldOffset: "
         "1448",
         "2 RemFfcModifierSm::writeFfcInstructionForStage ffcInstructionBufForDip 8197888 ffcInstructionBufForVrf "
         "280300568",
         "2 RemFfcModifierSm::writeFfcInstruction fapId 0 ffcIndex 16",
         "2 RemFfcModifierSm::writeFfcInstruction fapId 0 ffcIndex 31",
         "2 RemFfcModifierSm::getPrefixLen mergedPrefixLensInExactMatchV4 24",
         "2 RemFfcModifierSm::handleAppDbModification prefixLen 24",
         "2 RemFfcModifierSm::handleAppDbModification fapId 0 chipType BCM88690_B0" } ) );
}

} // namespace
