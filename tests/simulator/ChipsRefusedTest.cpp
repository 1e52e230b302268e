// What can't be the chips of a switch is refused, with the reason.
#include "Folder.h"
#include "simulator/ChipsMapping.h"

#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Simulator;
using Hardware::ChipType;
using Hardware::Dace::FapId;

namespace {

SwitchDescription switchOf( std::vector< std::pair< U16, ChipType > > const & faps ) {
   SwitchDescription description;
   for ( auto const & [number, chipType] : faps ) {
      description.faps.push_back( { .fapId = FapId( number ), .revision = { 5, chipType, 7 } } );
   }
   return description;
}

struct ChipsRefusedTest : testing::Test {
   Folder folder;
   std::string path = folder / "chips";
   SwitchDescription description = switchOf( { { 0, ChipType::BCM88480_A0 } } );
   static constexpr std::size_t headerBytes = 80; // with one FAP

   std::string made() const {
      ChipsMapping::make( path, description );
      return folder.text( "chips" );
   }
   std::string refusal() const { return refusal( description ); }
   std::string refusal( SwitchDescription const & of ) const {
      auto const before = folder.text( "chips" );
      try {
         ChipsMapping::open( path, of );
      } catch ( ChipsRefused const & refused ) {
         EXPECT_EQ( folder.text( "chips" ), before ) << "it was changed";
         std::string const said = refused.what();
         EXPECT_EQ( said.rfind( path + ": ", 0 ), 0u ) << said;
         return said.substr( std::min( said.size(), path.size() + 2 ) );
      }
      return "isn't refused";
   }
   std::string refusalOf( std::string_view contents ) const {
      folder.file( "chips", contents );
      return refusal();
   }
};

// The header with the sum that belongs to it.
std::string summed( std::string file ) {
   std::size_t bytes = 0;
   std::memcpy( &bytes, file.data() + 12, sizeof( U32 ) );
   std::string header = file.substr( 0, bytes );
   std::memset( header.data() + 24, 0, 8 );
   std::memset( header.data() + 40, 0, 8 );
   U64 sum = 0xcbf29ce484222325;
   for ( char const letter : header ) {
      sum = ( sum ^ static_cast< unsigned char >( letter ) ) * 0x100000001b3;
   }
   std::memcpy( file.data() + 40, &sum, sizeof sum );
   return file;
}

TEST_F( ChipsRefusedTest, isAFileThatIsEmptyOrNothingOfTheKind ) {
   EXPECT_EQ( refusalOf( "" ), "is empty" );
   EXPECT_EQ( refusalOf( "{" ), "is no file of chips" );
   EXPECT_EQ( refusalOf( R"({"faps": {"0": {"chipType": "BCM88480_A0", "controls": {}, "tables": {}}}})" ),
              "is no file of chips" );
   EXPECT_EQ( refusalOf( std::string( 1 << 20, '\0' ) ), "is no file of chips" );
}

TEST_F( ChipsRefusedTest, isWhatIsNoFileOrCannotBeOpened ) {
   std::filesystem::create_directory( path );
   EXPECT_EQ( refusal(), "can't be opened: Is a directory" );
   std::filesystem::remove( path );
   ASSERT_EQ( ::mkfifo( path.c_str(), 0600 ), 0 );
   try {
      ChipsMapping::open( path, description );
      FAIL() << "a pipe is no file";
   } catch ( ChipsRefused const & refused ) {
      EXPECT_EQ( refused.what(), path + ": is no file of chips" );
   }
   try {
      ChipsMapping::make( folder / "none" + "/chips", description );
      FAIL() << "there is no such folder";
   } catch ( ChipsRefused const & refused ) {
      EXPECT_EQ( refused.what(), folder / "none" + "/chips: can't be opened: No such file or directory" );
   }
}

TEST_F( ChipsRefusedTest, isAFileThatIsCutAnywhereInItsHeader ) {
   auto const whole = made();
   for ( std::size_t bytes = 1; bytes < headerBytes; ++bytes ) {
      EXPECT_EQ( refusalOf( std::string_view( whole ).substr( 0, bytes ) ), "is cut: it ends within its header" )
         << bytes;
   }
}

TEST_F( ChipsRefusedTest, isAFileThatIsCutBelowItsHeader ) {
   auto const whole = made();
   for ( std::size_t const bytes : { headerBytes,
                                     headerBytes + 1,
                                     std::size_t{ 4095 },
                                     std::size_t{ 4096 },
                                     whole.size() / 2,
                                     whole.size() - 4096,
                                     whole.size() - 1 } ) {
      EXPECT_EQ( refusalOf( std::string_view( whole ).substr( 0, bytes ) ),
                 "is cut: " + std::to_string( bytes ) + " of " + std::to_string( whole.size() ) + " bytes are there" );
   }
   EXPECT_EQ( refusalOf( whole + "x" ),
              "is too long: " + std::to_string( whole.size() + 1 ) + " bytes, of which " +
                 std::to_string( whole.size() ) + " are its chips" );
}

TEST_F( ChipsRefusedTest, isAFileWithAnyBitOfItsHeaderFlipped ) {
   auto const whole = made();
   for ( std::size_t bit = 0; bit < headerBytes * 8; ++bit ) {
      auto flipped = whole;
      flipped[bit / 8] = static_cast< char >( flipped[bit / 8] ^ 1 << bit % 8 );
      auto const why = refusalOf( flipped );
      if ( bit < 8 * 8 ) {
         EXPECT_EQ( why, "is no file of chips" ) << bit;
      } else if ( bit < 12 * 8 ) {
         EXPECT_EQ( why.rfind( "has the format ", 0 ), 0u ) << bit << ": " << why;
      } else if ( bit < 16 * 8 ) {
         EXPECT_TRUE( why == "has a damaged header" || why == "is cut: it ends within its header" ) << bit << why;
      } else {
         EXPECT_EQ( why, "has a damaged header" ) << bit;
      }
   }
   EXPECT_EQ( refusalOf( whole ), "isn't refused" );
}

TEST_F( ChipsRefusedTest, isAFileOfAnotherFormat ) {
   auto other = made();
   other[8] = 2;
   EXPECT_EQ( refusalOf( summed( other ) ), "has the format 2, and this build knows the format 1" );
}

TEST_F( ChipsRefusedTest, isAFileOfOtherTables ) {
   auto other = made();
   EXPECT_EQ( summed( other ), other );
   other[48 + 8] = static_cast< char >( other[48 + 8] + 1 ); // of the sum of the addresses
   EXPECT_EQ( refusalOf( summed( other ) ), "holds the chips of BCM88480_A0 with other tables than this build's" );
}

TEST_F( ChipsRefusedTest, isAFileOfAnotherSwitch ) {
   using enum ChipType;
   description = switchOf( { { 3, BCM88480_A0 }, { 0, BCM88480_A0 }, { 1, BCM88690_B0 } } );
   made();
   EXPECT_EQ( refusal( switchOf( { { 1, BCM88690_B0 } } ) ),
              "holds the chips of FAPs 0, 1 and 3, and the switch has FAP 1" );
   EXPECT_EQ( refusal( switchOf( {} ) ), "holds the chips of FAPs 0, 1 and 3, and the switch has no FAP" );
   EXPECT_EQ( refusal( switchOf( { { 0, BCM88480_A0 }, { 3, BCM88480_A0 }, { 1, BCM88850_A0 } } ) ),
              "holds a BCM88690_B0 for FAP 1, and the switch has a BCM88850_A0 there" );
   EXPECT_EQ( refusal( switchOf( { { 1, BCM88690_B0 }, { 0, BCM88480_A0 }, { 3, BCM88480_A0 } } ) ), "isn't refused" );
}

TEST_F( ChipsRefusedTest, isAFileOfChipsWithAnotherNoise ) {
   made();
   description.bootNoise = BootNoise::inverted;
   EXPECT_EQ( refusal(), "holds chips that were booted with another noise" );
}

TEST_F( ChipsRefusedTest, isMemoryWithoutChipsInIt ) {
   int const file = ::open( folder.file( "other", "{}" ).c_str(), O_RDWR );
   try {
      ChipsMapping::of( file, description );
      FAIL() << "there are no chips";
   } catch ( ChipsRefused const & refused ) {
      EXPECT_STREQ( refused.what(), "the chips in memory: is no file of chips" );
   }
   ::close( file );
   EXPECT_THROW( ChipsMapping::of( file, description ), ChipsRefused );
}

} // namespace
