// The instructions of a key may stand anywhere in the five memories of the stage.
#include "ChipView.h"
#include "DaceL3Unicast/DaceFapNiPlugin/RemFfcModifierSm.h"

#include <gtest/gtest.h>

using namespace Test;
using DaceFapNi::RemFfcModifierSm;

namespace {

constexpr U32 ipv4Context = 10; // the unified IPv4 context of BCM88690_B0

// The instructions by number: which memory, which element of its array, which place in the entry.
struct Numbers {
   U32 first;
   U32 last;
   U32 variant;
   U32 array;
};
constexpr Numbers places[] = {
   // clang-format off
   {  0,  1, 0, 0 },
   {  2,  5, 1, 0 },
   {  6,  9, 2, 0 },
   { 10, 13, 2, 1 },
   { 14, 17, 3, 0 },
   { 18, 21, 3, 1 },
   { 22, 25, 3, 2 },
   { 26, 29, 3, 3 },
   { 30, 33, 4, 0 },
   { 34, 37, 4, 1 },
   // clang-format on
};
constexpr U32 instructions = 38;

class Image : public TestSwitch {
 public:
   Image() : TestSwitch( { ChipType::BCM88690_B0 } ) {}

   U64 instruction( U32 number ) const { return field( at( number ), name( number ).c_str() ); }
   void instructionIs( U32 number, U64 word ) { fieldIs( at( number ), name( number ).c_str(), word ); }

 private:
   static Numbers const & row( U32 number ) {
      return *std::ranges::find_if( places, [=]( auto & it ) { return it.first <= number && number <= it.last; } );
   }
   static At at( U32 number ) { return { "FwdFfcTable", row( number ).variant, row( number ).array, ipv4Context }; }
   static std::string name( U32 number ) { return "ffcInstruction" + std::to_string( number - row( number ).first ); }
};

// A literal instruction that copies from 0x5a8 of the registers, a relative-header one, and one that is neither.
constexpr U64 vrfFrom5a8 = U64{ 8 } << 25 | U64{ 0x5a8 } << 13;
constexpr U64 header = U64{ 0x3eb } << 13;
constexpr U64 neither( U32 number ) {
   return U64{ 1 } << 27 | number;
}

TEST( FfcPlaces, aKeyIsRewrittenWhereverItsInstructionsStand ) {
   Image sw;
   auto const lengths = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   for ( U32 dip = 0; dip < instructions; ++dip ) {
      U32 const vrf = ( dip * 7 + 11 ) % instructions;
      ASSERT_NE( dip, vrf );
      for ( U32 number = 0; number < instructions; ++number ) {
         sw.instructionIs( number, neither( number ) );
      }
      sw.instructionIs( dip, header );
      sw.instructionIs( vrf, vrfFrom5a8 );
      sw.fieldIs( { "FwdKbrTable", 0, 6, ipv4Context }, "kbr", U64{ 1 } << dip | U64{ 1 } << vrf );
      sw.fieldIs( { "FwdKbrTable", 0, 6, ipv4Context }, "appDb", 23 );
      lengths->prefixLenIs( 0, 24 );
      auto const sm = RemFfcModifierSm::RemFfcModifierSmIs( sw.cellStatus(), lengths );
      for ( U32 number = 0; number < instructions; ++number ) {
         U64 const expected = number == dip   ? U64{ 1000 } << 13 | 23u << 8
                              : number == vrf ? vrfFrom5a8 | 12u << 8 | 24u
                                              : neither( number );
         EXPECT_EQ( sw.instruction( number ), expected ) << "instruction " << number << ", DIP at " << dip;
      }
   }
}

Corvo::Ptr< Hardware::Dace::Cell::CellStatus > emptyCell() {
   return Corvo::makePtr< Hardware::Dace::Cell::CellStatus >();
}

// Without FAPs nothing asks for the unified context, and the lengths can be looked at with its toggle off.
TEST( FfcPrefixLength, withoutTheUnifiedContextTheReducedLengthCountsForNothing ) {
   TestSwitch const sw( { ChipType::BCM88690_B0 }, { { "DaceL3Unicast.json", { { "UnifiedIPv4Fwd2Ctx", false } } } } );
   auto const lengths = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   auto const sm = RemFfcModifierSm::RemFfcModifierSmIs( emptyCell(), lengths );
   EXPECT_EQ( sm->getPrefixLen(), 32 );
   lengths->prefixLenIs( 1, 21 );
   EXPECT_EQ( sm->getPrefixLen(), 32 );
   lengths->prefixLenIs( 2, 24 );
   EXPECT_EQ( sm->getPrefixLen(), 24 );
}

// Which keys are looked at, by name: those that look hosts up, where reduced prefixes have no context.
TEST( FfcPrefixLength, withoutTheUnifiedContextKeysOfHostsAreInteresting ) {
   ChipType const chip = ChipType::BCM88690_B0;
   TestSwitch sw( { chip }, { { "DaceL3Unicast.json", { { "UnifiedIPv4Fwd2Ctx", false } } } } );
   auto const sm =
      RemFfcModifierSm::RemFfcModifierSmIs( emptyCell(), Routing::Hardware::prefixLensInExactMatchFactory( "" ) );
   U8 const hosts = 22;
   U8 const reducedPrefixes = 23;
   sw.fieldIs( { "FwdKbrTable", 0, 6, 10 }, "appDb", hosts );
   EXPECT_TRUE( sm->isAppDbIdInteresting( chip, 10, FapId( 0 ), 6 ) );
   sw.fieldIs( { "FwdKbrTable", 0, 6, 10 }, "appDb", reducedPrefixes );
   EXPECT_FALSE( sm->isAppDbIdInteresting( chip, 10, FapId( 0 ), 6 ) );
}

TEST( FfcPrefixLength, withTheUnifiedContextItCounts ) {
   TestSwitch const sw( { ChipType::BCM88690_B0 } );
   auto const lengths = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   auto const sm = RemFfcModifierSm::RemFfcModifierSmIs( emptyCell(), lengths );
   lengths->prefixLenIs( 1, 21 );
   lengths->prefixLenIs( 2, 24 );
   EXPECT_EQ( sm->getPrefixLen(), 21 );
}

// The width of a VRF in the keys, by chip type, and the chip types that have none.
TEST( FfcVrfWidth, isFourBitsOnTheSmallChipsAndFiveElsewhere ) {
   for ( int number = 0; number <= 26; ++number ) {
      auto const chipType = static_cast< ChipType >( number );
      if ( number == 0 || ( number >= 21 && number <= 23 ) || number > 25 ) {
         EXPECT_DEATH( DaceFapNi::chipTypeToFapRevMajor( chipType ), "Assertion `0 && \"Invalid chipType\"' failed" )
            << number;
      } else {
         EXPECT_EQ( DaceFapNi::chipTypeToFapRevMajor( chipType ), number == 15 || number == 16 ? 4 : 5 ) << number;
      }
   }
}

// What the chip has in either state is asked for all the same, so that the toggle is seen to count on that chip.
TEST( FfcVrfWidth, asksForABringUpOnItsChipAlone ) {
   auto const isRead = [] {
      auto const & readings = Toggle::readings();
      return std::any_of(
         readings.begin(), readings.end(), []( auto const & one ) { return one.name == "J3AiBringup"; } );
   };
   for ( int const number : { 1, 14, 15, 19, 24, 25 } ) {
      DaceFapNi::chipTypeToFapRevMajor( static_cast< ChipType >( number ) );
   }
   EXPECT_FALSE( isRead() );
   DaceFapNi::chipTypeToFapRevMajor( static_cast< ChipType >( 20 ) );
   EXPECT_TRUE( isRead() );
}

} // namespace
