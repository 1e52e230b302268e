#include "simulator/ChipsMapping.h"

#include "Folder.h"
#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Simulator;
using Hardware::ChipType;
using Hardware::Dace::FapId;

namespace {

constexpr ChipType kind = ChipType::BCM88690_B0;

SwitchDescription twoFaps() {
   return { .faps = { { .fapId = FapId( 4 ), .revision = { 5, kind, 7 } },
                      { .fapId = FapId( 1 ), .revision = { 8, ChipType::BCM88850_A0, 7 } } } };
}

Chip chipOn( ChipMemory memory ) {
   return { ChipId{ 4 }, "chip", addressMap( kind ), std::move( memory ) };
}

// An entry that boots with something in it.
SchanAddress const booted = [] {
   auto const & layout = *Catalogue::layout( *Catalogue::table( "VsiProfileEnablers" ), static_cast< U8 >( kind ), 0 );
   return addressOf( layout, layout.arrayIndexFirst, 7 );
}();

std::vector< U32 > read( Chip const & chip, SchanAddress const & at ) {
   auto const words = chip.entry( at ).words();
   return { words.begin(), words.end() };
}

struct ChipsMappingTest : testing::Test {
   Folder folder;
   std::string path = folder / "chips";
   SwitchDescription description = twoFaps();

   std::vector< U32 > other() const {
      std::vector< U32 > words( Chip( ChipId{ 4 }, "chip", addressMap( kind ) ).entry( booted ).width() );
      words[0] = 0x155;
      return words;
   }
   ChipsMapping opened() const { return ChipsMapping::open( path, description ).value(); }
};

TEST_F( ChipsMappingTest, isNoneWhereThereIsNoFile ) {
   EXPECT_FALSE( ChipsMapping::open( path, description ).has_value() );
   EXPECT_FALSE( std::filesystem::exists( path ) );
}

// A write to a mapping for which a full disk has no room ends the process.
TEST_F( ChipsMappingTest, hasAllOfItsRoomFromTheBeginning ) {
   ChipsMapping::make( path, description );
   struct stat file;
   ASSERT_EQ( ::stat( path.c_str(), &file ), 0 );
   constexpr off_t block = 512;
   EXPECT_GE( file.st_blocks * block, file.st_size );
}

TEST_F( ChipsMappingTest, beginsWithTheBootImageInBothImages ) {
   for ( BootNoise const noise : { BootNoise::plain, BootNoise::inverted } ) {
      description.bootNoise = noise;
      auto const chips = ChipsMapping::make( path, description );
      for ( auto const & fap : description.faps ) {
         auto const chipType = fap.revision.chipType();
         Chip chip( fap.fapId, "chip", addressMap( chipType ) );
         boot( chip, chipType, noise );
         Chip const made( fap.fapId, "chip", addressMap( chipType ), chips.chip( fap.fapId ) );
         Chip const expected( fap.fapId, "chip", addressMap( chipType ), chips.expected( fap.fapId ) );
         EXPECT_EQ( Simulator::contentsOf( made, chipType ), Simulator::contentsOf( chip, chipType ) );
         EXPECT_EQ( Simulator::contentsOf( expected, chipType ), Simulator::contentsOf( chip, chipType ) );
      }
   }
   EXPECT_THROW( ChipsMapping::make( folder / "two", description ).chip( FapId( 2 ) ), std::out_of_range );
}

TEST_F( ChipsMappingTest, beginsWithWhatElseIsFilledInInBothImages ) {
   auto const chips = ChipsMapping::make( path, description, [&]( ChipDriver & driver ) {
      driver.chip( ChipId{ 4 } )->fill( booted, other() );
      driver.chip( ChipId{ 4 } )->controlIs( 64, 9 );
   } );
   for ( auto const & memory : { chips.chip( FapId( 4 ) ), chips.expected( FapId( 4 ) ) } ) {
      EXPECT_EQ( read( chipOn( memory ), booted ), other() );
      EXPECT_EQ( chipOn( memory ).control( 64 ), 9u );
   }
}

TEST_F( ChipsMappingTest, holdsWhatTheOneBeforeWroteAndIsNotBootedAgain ) {
   std::vector< U32 > atFirst;
   {
      auto const chips = ChipsMapping::make( path, description );
      EXPECT_EQ( chips.generation(), 1u );
      Chip chip = chipOn( chips.chip( FapId( 4 ) ) );
      atFirst = read( chip, booted );
      chip.write( booted, other() );
      chip.controlIs( 66, 1 );
      chip.controlIs( 64, 7 );
      chip.controlIs( 66, 2 );
   }
   for ( U32 generation = 2; generation < 5; ++generation ) {
      auto const chips = opened();
      EXPECT_EQ( chips.generation(), generation );
      Chip const chip = chipOn( chips.chip( FapId( 4 ) ) );
      EXPECT_EQ( read( chip, booted ), other() );
      EXPECT_EQ( chip.controls(), ( std::map< U32, U32 >{ { 64, 7 }, { 66, 2 } } ) );
      Chip const expected = chipOn( chips.expected( FapId( 4 ) ) );
      EXPECT_EQ( read( expected, booted ), atFirst );
      EXPECT_TRUE( expected.controls().empty() );
   }
   auto const made = ChipsMapping::make( path, description );
   EXPECT_EQ( made.generation(), 1u );
   EXPECT_EQ( read( chipOn( made.chip( FapId( 4 ) ) ), booted ), atFirst );
}

TEST_F( ChipsMappingTest, isWhatASwitchStandsIn ) {
   {
      auto const chips = ChipsMapping::make( path, description );
      SimulatedSwitch sw( description, &chips );
      sw.driver().write( ChipId{ 4 }, booted, other() );
   }
   auto const chips = opened();
   {
      SimulatedSwitch const sw( description, &chips );
      EXPECT_EQ( read( sw.chip( FapId( 4 ) ), booted ), other() );
   }
   SimulatedSwitch const sw( description );
   EXPECT_NE( read( sw.chip( FapId( 4 ) ), booted ), other() );
}

TEST_F( ChipsMappingTest, staysWithoutTheMappingAsLongAsAChipDoes ) {
   Chip chip = chipOn( ChipsMapping::make( path, description ).chip( FapId( 4 ) ) );
   chip.write( booted, other() );
   EXPECT_EQ( read( chip, booted ), other() );
   EXPECT_THROW( opened(), ChipsInUse );
}

TEST_F( ChipsMappingTest, liesInMemoryThatIsFoundAgainByItsDescriptor ) {
   int keeper = -1; // as somebody has it who was sent it
   {
      auto const chips = ChipsMapping::makeInMemory( description );
      EXPECT_EQ( chips.generation(), 1u );
      keeper = ::dup( chips.file() );
      chipOn( chips.chip( FapId( 4 ) ) ).write( booted, other() );
   }
   {
      auto const chips = ChipsMapping::of( keeper, description );
      EXPECT_EQ( chips.generation(), 2u );
      EXPECT_EQ( read( chipOn( chips.chip( FapId( 4 ) ) ), booted ), other() );
      EXPECT_NE( ::ftruncate( keeper, 0 ), 0 ) << "somebody could take the pages away";
   }
   EXPECT_EQ( ChipsMapping::of( keeper, description ).generation(), 3u );
   ::close( keeper );
}

} // namespace
