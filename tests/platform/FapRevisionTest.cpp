#include "chip/FapRevision.h"
#include "state/CellStatus.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>

using Hardware::ChipType;
using namespace Hardware::Dace;

namespace {

template< class T >
std::string text( T const & value ) {
   std::ostringstream out;
   out << value;
   return out.str();
}

TEST( ChipType, isPrintedByItsNameAndByItsNumberWhereItHasNone ) {
   EXPECT_EQ( text( ChipType::BCM88690_B0 ), "BCM88690_B0" );
   EXPECT_EQ( text( ChipType{ 11 } ), "BCM88800_A0" );
   EXPECT_EQ( text( ChipType{ 12 } ), "BCM88850_A0" );
   EXPECT_EQ( text( ChipType{ 14 } ), "BCM88859_A2" );
   EXPECT_EQ( text( ChipType{ 15 } ), "BCM88480_A0" );
   EXPECT_EQ( text( ChipType{ 16 } ), "BCM88480_B0" );
   EXPECT_EQ( text( ChipType{ 13 } ), "13" );
   EXPECT_EQ( Hardware::chipTypeName( ChipType{ 0 } ), nullptr );
}

TEST( FapId, isTheDriversChipIdAndIsPrintedAsANumber ) {
   ChipId const chip = FapId{ 300 };
   EXPECT_EQ( chip.value, 300 );
   EXPECT_EQ( text( FapId{ 65 } ), "65" );
}

TEST( FapId, ordersFapsByNumber ) {
   std::map< FapId, int > const faps{ { FapId{ 10 }, 1 }, { FapId{ 2 }, 2 }, { FapId{ 9 }, 3 } };
   std::vector< int > order;
   for ( auto const & [fapId, value] : faps ) {
      order.push_back( value );
   }
   EXPECT_EQ( order, ( std::vector{ 2, 3, 1 } ) );
}

TEST( FapType, isPrintedAsANumber ) {
   EXPECT_EQ( text( FapType{ 3 } ), "3" );
}

TEST( FapRevision, holdsMajorChipAndSdk ) {
   FapRevision const revision{ 9, ChipType::BCM88859_A2, 6 };
   EXPECT_EQ( revision.fapRevMajor(), 9u );
   EXPECT_EQ( revision.chipType(), ChipType::BCM88859_A2 );
   EXPECT_EQ( revision.sdkVersion(), 6u );
   EXPECT_EQ( revision, ( FapRevision{ 9, ChipType::BCM88859_A2, 6 } ) );
   EXPECT_NE( revision, ( FapRevision{ 8, ChipType::BCM88859_A2, 6 } ) );
}

TEST( FapRevision, isReadWithTheChipsOwnMajorAndTheNewestSdkWhereTheyAreLeftOut ) {
   using Codec = Rex::Codec< FapRevision >;
   for ( auto const chipType : Hardware::allChipTypes ) {
      Rex::Value::Object value{ { "chipType", Hardware::chipTypeName( chipType ) } };
      EXPECT_EQ( Codec::fromValue( value ), FapRevision( fapRevMajorOf( chipType ), chipType, 7 ) );
      value["major"] = 3;
      value["sdkVersion"] = 6;
      EXPECT_EQ( Codec::fromValue( value ), FapRevision( 3, chipType, 6 ) );
   }
   EXPECT_THROW( Codec::fromValue( Rex::Value::Object{ { "major", 5 } } ), Rex::ValueError );
}

// Which chips have a second element of the in-LIF flags is told by the number alone.
TEST( FapRevision, isEightOrNineOnTheChipsWithTwoElements ) {
   for ( auto const chipType : Hardware::allChipTypes ) {
      auto const major = fapRevMajorOf( chipType );
      bool const hasTwo = chipType == ChipType::BCM88850_A0 || chipType == ChipType::BCM88859_A2;
      EXPECT_EQ( major == 8 || major == 9, hasTwo ) << chipType;
   }
   EXPECT_EQ( fapRevMajorOf( ChipType{ 13 } ), 0u );
}

} // namespace
