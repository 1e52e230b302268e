#include "constants/FapRevision.h"

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

} // namespace
