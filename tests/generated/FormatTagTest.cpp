// Formats with a tag: bits that say which format an entry has.
#include "Chips.h"

#include <cstring>

namespace {

using namespace Hardware;

// The bits that are set in a buffer, lowest first.
template< std::size_t bytes >
std::vector< unsigned > bitsOf( U8 const ( &buf )[bytes] ) {
   std::vector< unsigned > bits;
   for ( unsigned bit = 0; bit < bytes * 8; ++bit ) {
      if ( buf[bit / 8] >> bit % 8 & 1 ) {
         bits.push_back( bit );
      }
   }
   return bits;
}

using Bits = std::vector< unsigned >;

Bits ffcTag( ChipType chip, U8 variant ) {
   U8 buf[80] = {};
   FfcInstruction ffc( chip, buf, sizeof buf, false, variant );
   return bitsOf( buf );
}

template< class Table >
Bits tagOf( ChipType chip ) {
   U8 buf[40] = {};
   Table table( chip, buf, sizeof buf, false, 0 );
   return bitsOf( buf );
}

TEST( FormatTag, AnFfcInstructionOverAZeroBufferLeavesOnlyTheVariantsTag ) {
   for ( auto chip : { chip10, chip11, chip12, chip14, chip15, chip16 } ) {
      EXPECT_EQ( ffcTag( chip, 0 ), ( Bits{ 27 } ) );     // bits 27 to 28 = 1
      EXPECT_EQ( ffcTag( chip, 1 ), ( Bits{ 27, 28 } ) ); // = 3
      EXPECT_EQ( ffcTag( chip, 2 ), ( Bits{ 28 } ) );     // bits 25 to 28 = 8
      EXPECT_EQ( ffcTag( chip, 3 ), ( Bits{} ) );         // bits 27 to 28 = 0
   }
}

TEST( FormatTag, ATagIsWrittenOverWhatStoodThere ) {
   U8 buf[80];
   std::memset( buf, 0xff, sizeof buf );
   FfcInstruction ffc( chip10, buf, sizeof buf, false, 3 );
   EXPECT_EQ( Detail::loadWord( buf ), 0xe7ffffffu );
   EXPECT_EQ( ffc.resultType(), 0 );
}

TEST( FormatTag, HostEntriesAreTaggedInFourPlaces ) {
   // 20 at 137, 3 at 143, 1 at 290, 23 at 293.
   Bits const big{ 139, 141, 143, 144, 290, 293, 294, 295, 297 };
   Bits const small{ 138, 140, 142, 143, 288, 291, 292, 293, 295 };
   for ( auto chip : { chip10, chip11, chip12, chip14 } ) {
      EXPECT_EQ( tagOf< Ipv4PcremFwdDestPcrem >( chip ), big );
      EXPECT_EQ( tagOf< PrivateHostReducedVrf >( chip ), ( Bits{ 78, 80, 84, 291, 294, 295, 297 } ) );
   }
   for ( auto chip : { chip15, chip16 } ) {
      EXPECT_EQ( tagOf< Ipv4PcremFwdDestPcrem >( chip ), small );
      EXPECT_EQ( tagOf< PrivateHostReducedVrf >( chip ), ( Bits{ 77, 79, 83, 289, 292, 293, 295 } ) );
   }
}

TEST( FormatTag, ADoubleOutLifIsTaggedInTwo ) {
   EXPECT_EQ( tagOf< PpmcDoubleOutLifSwap >( chip10 ), ( Bits{ 83, 169 } ) );
   EXPECT_EQ( tagOf< PpmcDoubleOutLifSwap >( chip11 ), ( Bits{ 83, 169 } ) );
   EXPECT_EQ( tagOf< PpmcDoubleOutLifSwap >( chip12 ), ( Bits{ 83, 168 } ) );
   EXPECT_EQ( tagOf< PpmcDoubleOutLifSwap >( chip14 ), ( Bits{ 83, 168 } ) );
   EXPECT_EQ( tagOf< PpmcDoubleOutLifSwap >( chip15 ), ( Bits{ 82, 167 } ) );
   EXPECT_EQ( tagOf< PpmcDoubleOutLifSwap >( chip16 ), ( Bits{ 82, 167 } ) );
}

TEST( FormatTag, OverACallersBufferItShowsInTheFieldsThatItFixes ) {
   U8 buf[40] = {};
   Ipv4PcremFwdDestPcrem route( chip14, buf, sizeof buf, false, 0 );
   EXPECT_EQ( route.tid(), 23 );
   EXPECT_EQ( route.appId(), 23 );
   EXPECT_EQ( route.resultType(), 20 );
   EXPECT_EQ( route.vmv(), 3 );
   EXPECT_EQ( route.entryType(), 1 );

   U8 hostBuf[40] = {};
   PrivateHostReducedVrf host( chip15, hostBuf, sizeof hostBuf, false, 0 );
   EXPECT_EQ( host.tid(), 22 );
   EXPECT_EQ( host.resultType(), 10 );
   EXPECT_EQ( host.vmv(), 2 );
   EXPECT_EQ( host.entryType(), 2 );
}

TEST( FormatTag, DoesNotSurviveInStorage ) {
   EXPECT_EQ( PpmcDoubleOutLifSwap::WithStorage( chip10 ).resultType(), 0 );
   EXPECT_EQ( PrivateHostReducedVrf::WithStorage( chip10 ).tid(), 0 );
   EXPECT_EQ( FfcInstruction::WithStorage( chip10, false, 1 ).resultType(), 0 );
   EXPECT_EQ( stringObj( "Ipv4PcremFwdDestPcrem", chip16, 0 )->stringField( "tid", 0 ), 0u );
}

TEST( FormatTag, ABufferThatHoldsAnEntryIsTakenWhereTheTagIsRight ) {
   U8 buf[80] = {};
   buf[3] = 3 << 3; // bits 27 and 28
   FfcInstruction ffc( chip10, buf, sizeof buf, true, 1 );
   EXPECT_EQ( ffc.resultType(), 3 );
   FfcInstruction::WithStorage zero( chip10, true, 3 ); // its tag is zero
   EXPECT_EQ( zero.resultType(), 0 );
}

TEST( FormatTag, IsAskedForWithoutAnObject ) {
   U8 buf[80] = {};
   EXPECT_TRUE( FfcInstruction::isFfcInstruction( chip10, buf, sizeof buf, 3 ) );
   EXPECT_FALSE( FfcInstruction::isFfcInstruction( chip10, buf, sizeof buf, 0 ) );
   buf[3] = 1 << 3;
   EXPECT_TRUE( FfcInstruction::isFfcInstruction( chip10, buf, sizeof buf, 0 ) );
   EXPECT_FALSE( FfcInstruction::isFfcInstruction( chip13, buf, sizeof buf, 0 ) );
   EXPECT_FALSE( FfcInstruction::isFfcInstruction( chip10, buf, sizeof buf, 4 ) );
   EXPECT_FALSE( FfcInstruction::isFfcInstruction( chip10, buf, 3, 0 ) ); // the buffer ends before the tag

   // A format without a tag is any entry of a known chip.
   EXPECT_TRUE( IppbFlpLePd0::isIppbFlpLePd0( chip10, buf, 0, 0 ) );
   EXPECT_FALSE( IppbFlpLePd0::isIppbFlpLePd0( chip13, buf, sizeof buf, 0 ) );
   EXPECT_FALSE( IppdInLifProfileMap::isIppdInLifProfileMap( chip10, buf, sizeof buf, 0 ) );
}

// ---- a field that a format fixes has no setter

template< class Table >
constexpr bool setsResultType = requires( Table & table ) {
   table.resultTypeIs( 1 );
};
template< class Table >
constexpr bool setsVmv = requires( Table & table ) {
   table.vmvIs( 1 );
};
template< class Table >
constexpr bool setsEntryType = requires( Table & table ) {
   table.entryTypeIs( 1 );
};
template< class Table >
constexpr bool setsAppId = requires( Table & table ) {
   table.appIdIs( 1 );
};
template< class Table >
constexpr bool setsTid = requires( Table & table ) {
   table.tidIs( 1 );
};
template< class Table >
constexpr bool setsVrf = requires( Table & table ) {
   table.vrfIs( 1 );
};

TEST( FormatTag, TheFieldsThatItFixesHaveNoSetter ) {
   static_assert( !setsResultType< FfcInstruction > && !setsResultType< PpmcDoubleOutLifSwap > );
   static_assert( !setsResultType< Ipv4PcremFwdDestPcrem > && !setsResultType< PrivateHostReducedVrf > );
   static_assert( !setsVmv< Ipv4PcremFwdDestPcrem > && !setsVmv< PrivateHostReducedVrf > );
   static_assert( !setsEntryType< Ipv4PcremFwdDestPcrem > && !setsEntryType< PrivateHostReducedVrf > );
   static_assert( !setsAppId< Ipv4PcremFwdDestPcrem > && !setsAppId< PrivateHostReducedVrf > );
   static_assert( !setsTid< Ipv4PcremFwdDestPcrem > && !setsTid< PrivateHostReducedVrf > );
   static_assert( setsVrf< Ipv4PcremFwdDestPcrem > && setsVrf< PrivateHostReducedVrf > );
}

} // namespace
