// Geometry and addresses of the tables, against numbers typed from the chips' documents.
#include "Chips.h"

namespace {

using namespace Hardware;

TEST( Geometry, AMemoryTellsItsShapeByChipAndVariant ) {
   EXPECT_EQ( EnablersVectors::entries( 10, 0 ), 32u );
   EXPECT_EQ( EnablersVectors::width( 10, 0 ), 2 );
   EXPECT_EQ( EnablersVectors::tableWidth( 16, 1 ), 2 );
   EXPECT_EQ( EnablersVectors::arrayElements( 12, 0 ), 3u );
   EXPECT_EQ( EnablersVectors::arrayElements( 12, 1 ), 2u );
   EXPECT_EQ( EnablersVectors::sdkDefinedId( 14, 0 ), 8278 );
   EXPECT_EQ( EnablersVectors::sdkDefinedId( 14, 1 ), 7780 );
   EXPECT_EQ( EnablersVectors::index_min( 10, 0 ), 0u );
   EXPECT_EQ( EnablersVectors::fieldCount( 10, 1 ), 1 );
   EXPECT_EQ( EnablersVectors::tableVariantCount( 10 ), 2u );

   EXPECT_EQ( CgmSnifTmTable::entries( 15, 0 ), 32u );
   EXPECT_EQ( CgmSnifTmTable::width( 15, 0 ), 15 );
   EXPECT_EQ( CgmSnifTmTable::arrayElements( 15, 0 ), 3u );
   EXPECT_EQ( FwdKbrTable::arrayElements( 11, 0 ), 18u );
   EXPECT_EQ( EtppcEncapsulation2ContextSelectionCam::entries( 10, 0 ), 68u );
}

TEST( Geometry, WhereItDiffersByChipEachChipHasItsOwn ) {
   EXPECT_EQ( IppbFlpLePd0::width( 10, 0 ), 8 );
   EXPECT_EQ( IppbFlpLePd0::width( 11, 0 ), 6 );
   EXPECT_EQ( FlpaInitContextEnablers::width( 10, 0 ), 3 );
   EXPECT_EQ( FlpaInitContextEnablers::width( 16, 0 ), 2 );
   EXPECT_EQ( FlpKapsStrengthMapping::width( 10, 0 ), 1 );
   EXPECT_EQ( FlpKapsStrengthMapping::width( 12, 0 ), 2 );
   EXPECT_EQ( EtppEnc1ContextSelectionPortProfile::entries( 14, 0 ), 256u );
   EXPECT_EQ( EtppEnc1ContextSelectionPortProfile::entries( 15, 0 ), 1024u );
   EXPECT_EQ( EtppbEnc5Arr0FormatCfg::entries( 15, 0 ), 64u );
   EXPECT_EQ( EtppbEnc5Arr0FormatCfg::entries( 14, 0 ), 128u );
}

TEST( Geometry, FiveVariantsOfOneShapeDifferInWidthAndArray ) {
   EXPECT_EQ( FwdFfcTable::tableVariantCount( 12 ), 5u );
   EXPECT_EQ( FwdFfcTable::width( 12, 0 ), 3 );
   EXPECT_EQ( FwdFfcTable::width( 12, 3 ), 4 );
   EXPECT_EQ( FwdFfcTable::arrayElements( 12, 1 ), 1u );
   EXPECT_EQ( FwdFfcTable::arrayElements( 12, 3 ), 4u );
   EXPECT_EQ( FwdFfcTable::sdkDefinedId( 12, 4 ), 7947 );
}

TEST( Geometry, TwoPhysicalCopiesStandOnTheTwoBigChipsUnlessTheTableSaysOtherwise ) {
   EXPECT_EQ( FwdKbrTable::instanceCount( 10, 0 ), 2u );
   EXPECT_EQ( FwdKbrTable::instanceCount( 11, 0 ), 1u );
   EXPECT_EQ( FwdKbrTable::instanceCount( 12, 0 ), 2u );
   EXPECT_EQ( FwdKbrTable::instanceCount( 14, 0 ), 1u );
   EXPECT_EQ( FwdKbrTable::instanceCount( 15, 0 ), 1u );
   EXPECT_EQ( FwdKbrTable::instanceCount( 16, 0 ), 1u );
   EXPECT_EQ( PrivateHostReducedVrf::instanceCount( 10, 0 ), 1u );
   EXPECT_EQ( PpmcDoubleOutLifSwap::instanceCount( 12, 0 ), 1u );
   EXPECT_EQ( FfcInstruction::instanceCount( 10, 3 ), 1u );
}

TEST( Geometry, ARegisterHasWidthAndStrideAndMayBeAnArray ) {
   EXPECT_EQ( IppbProgTrapCfg::regWidth( 10, 0 ), 9 );
   EXPECT_EQ( IppbProgTrapCfg::width( 10, 0 ), 9 );
   EXPECT_EQ( IppbProgTrapCfg::arrayElements( 10, 0 ), 8u );
   EXPECT_EQ( IppbProgTrapCfg::maxIdentifier( 10, 0 ), 0u );
   EXPECT_EQ( IppbProgTrapCfg::addrStride( 10, 0 ), 1u );
   EXPECT_EQ( EtppOutlifOrientationMap::regWidth( 15, 0 ), 6 );
   EXPECT_EQ( InLifProfileCsFlagsLsb::arrayElements( 12, 1 ), 2u );
   EXPECT_EQ( InLifProfileCsFlagsLsb::arrayElements( 10, 1 ), 1u );
   EXPECT_EQ( InLifProfileCsFlagsLsb::arrayIndex_min( 12, 1 ), 0u );
   EXPECT_EQ( EgressOutrifMaxValue::sdkDefinedId( 10, 2 ), 31490 );
}

TEST( Geometry, OnlyTwoTablesNumberTheirArrayFromThree ) {
   EXPECT_EQ( EnablersVectors::arrayIndex_min( 10, 1 ), 3u );
   EXPECT_EQ( VsiProfileEnablers::arrayIndex_min( 16, 1 ), 3u );
   EXPECT_EQ( EnablersVectors::arrayIndex_min( 10, 0 ), 0u );
   EXPECT_EQ( VsiProfileEnablers::arrayIndex_min( 10, 0 ), 0u );
   EXPECT_EQ( FwdKbrTable::arrayIndex_min( 10, 0 ), 0u );
}

TEST( Geometry, AFormatWithoutMemoryHasAllNumbersForEntries ) {
   EXPECT_EQ( FfcInstruction::entries( 10, 0 ), 4294967295u );
   EXPECT_EQ( FfcInstruction::width( 10, 0 ), 20 );
   EXPECT_EQ( FfcInstruction::sdkDefinedId( 10, 0 ), -1 );
   auto const spans = VeloroL2FodoProfile::entrySpans( 14, 0 );
   ASSERT_EQ( spans.count, 1u );
   EXPECT_EQ( spans.spans[0].first, 0u );
   EXPECT_EQ( spans.spans[0].count, 4294967295u );
   // Its address is the entry's number.
   EXPECT_EQ( ( addressOf< FfcInstruction >( 10, 2, 0, 4294967294u, 0 ) ), ( Address{ true, 4294967294u, 10, 1 } ) );
   EXPECT_EQ( ( addressOf< RoutingInlifCsProfile >( 14, 0, 0, 7, 0 ) ), ( Address{ true, 7, 28, 12 } ) );
}

TEST( Geometry, AMemoryHasOneSpanOfEntries ) {
   auto const spans = IppbFlpLePd0::entrySpans( 10, 0 );
   ASSERT_EQ( spans.count, 1u );
   EXPECT_EQ( spans.spans[0].first, 0u );
   EXPECT_EQ( spans.spans[0].count, 64u );
}

TEST( Geometry, MembersSayTheSameAsTheStatics ) {
   FwdFfcTable::WithStorage ffc( chip14, false, 3 );
   EXPECT_EQ( ffc.entries(), 64u );
   EXPECT_EQ( ffc.width(), 4 );
   EXPECT_EQ( ffc.tableWidth(), 4 );
   EXPECT_EQ( ffc.index_min(), 0u );
   EXPECT_EQ( ffc.arrayElements(), 4u );
   EXPECT_EQ( ffc.arrayIndex_min(), 0u );
   EXPECT_EQ( ffc.sdkDefinedId(), 7945 );
   EXPECT_EQ( ffc.fieldCount(), 6 );
   EXPECT_EQ( ffc.instanceCount(), 1u );
   EXPECT_EQ( ffc.tableVariantCount(), 5u );
   EXPECT_EQ( ffc.entrySpans().spans[0].count, 64u );
   EXPECT_TRUE( ffc.hasIdentifier( 0 ) );
   EXPECT_FALSE( ffc.hasIdentifier( 1 ) );
   EXPECT_TRUE( ffc.isTable() );
   EXPECT_TRUE( ffc.isPrimary() );

   EgressOutrifMaxValue::WithStorage rif( chip12, false, 2 );
   EXPECT_FALSE( rif.isTable() );
   EXPECT_EQ( rif.regWidth(), 1 );
   EXPECT_EQ( rif.maxIdentifier(), 0u );
   EXPECT_EQ( rif.addrStride(), 1u );
   EXPECT_EQ( rif.fieldCount(), 1 );
}

TEST( Validity, AChipOrVariantThatAClassLacksIsNotValid ) {
   for ( auto chip : { chip10, chip11, chip12, chip14, chip15, chip16 } ) {
      EXPECT_TRUE( IppbFlpLePd0::chipTypeVariantValid( chip, 0 ) );
   }
   for ( U8 chip : { 0, 9, 13, 17, 255 } ) {
      EXPECT_FALSE( IppbFlpLePd0::chipTypeVariantValid( ChipType{ chip }, 0 ) ) << unsigned{ chip };
      EXPECT_EQ( IppbFlpLePd0::tableVariantCount( chip ), 0u );
   }
   EXPECT_FALSE( IppbFlpLePd0::chipTypeVariantValid( chip10, 1 ) );
   EXPECT_TRUE( FwdFfcTable::chipTypeVariantValid( chip10, 4 ) );
   EXPECT_FALSE( FwdFfcTable::chipTypeVariantValid( chip10, 5 ) );

   EXPECT_FALSE( IppbLifMcBridgeFallbackAllow::chipTypeVariantValid( chip10, 0 ) );
   EXPECT_TRUE( IppbLifMcBridgeFallbackAllow::chipTypeVariantValid( chip12, 0 ) );
   EXPECT_TRUE( IppbLifMcBridgeFallbackAllow::chipTypeVariantValid( chip14, 0 ) );
   EXPECT_FALSE( IppbLifMcBridgeFallbackAllow::chipTypeVariantValid( chip15, 0 ) );
   EXPECT_FALSE( IppdInLifProfileMap::chipTypeVariantValid( chip10, 0 ) );
   EXPECT_FALSE( IppdInLifProfileMap::chipTypeVariantValid( chip11, 0 ) );
   EXPECT_TRUE( IppdInLifProfileMap::chipTypeVariantValid( chip16, 0 ) );
   EXPECT_EQ( IppdInLifProfileMap::tableVariantCount( 10 ), 0u );
   EXPECT_EQ( IppdInLifProfileMap::tableVariantCount( 15 ), 1u );
}

TEST( Validity, IsKnownByNameToo ) {
   EXPECT_TRUE( chipTypeVariantValid( "FwdFfcTable", chip10, 4 ) );
   EXPECT_FALSE( chipTypeVariantValid( "FwdFfcTable", chip10, 5 ) );
   EXPECT_FALSE( chipTypeVariantValid( "FwdFfcTable", chip13, 0 ) );
   EXPECT_FALSE( chipTypeVariantValid( "IppdInLifProfileMap", chip10, 0 ) );
   EXPECT_FALSE( chipTypeVariantValid( "NoSuchTable", chip10, 0 ) );
}

TEST( SchanAddress, IsBasePlusEntryPlusArrayIndexTimesStep ) {
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 10, 0, 0, 9, 0 ) ), ( Address{ true, 0x2730009, 10, 2 } ) );
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 10, 0, 1, 9, 0 ) ), ( Address{ true, 0x2730009, 24, 9 } ) );
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 12, 0, 1, 0, 0 ) ), ( Address{ true, 0x2730000, 6, 26 } ) );
   EXPECT_EQ( ( addressOf< FwdKbrTable >( 15, 0, 0, 63, 17 ) ), ( Address{ true, 0x2600000 + 63 + 17 * 64, 0, 17 } ) );
   EXPECT_EQ( ( addressOf< CgmSnifTmTable >( 11, 0, 0, 1, 2 ) ), ( Address{ true, 0x66b00 + 1 + 2 * 32, 22, 1 } ) );
   EXPECT_EQ( ( addressOf< FlpKapsStrengthMapping >( 14, 0, 0, 5, 3 ) ), ( Address{ true, 0x16b0305, 6, 14 } ) );
   EXPECT_EQ( ( addressOf< Ipv4PcremFwdDestPcrem >( 14, 0, 0, 1023, 0 ) ), ( Address{ true, 0x233ff, 24, 36 } ) );
   EXPECT_EQ( ( addressOf< Ipv4PcremFwdDestPcrem >( 10, 0, 0, 1, 0 ) ), ( Address{ true, 0x27001, 2, 5 } ) );
}

TEST( SchanAddress, AlsoWhereTheFirstIndexIsThree ) {
   EXPECT_EQ( ( addressOf< EnablersVectors >( 10, 1, 0, 5, 3 ) ), ( Address{ true, 0x8f0060 + 5 + 3 * 32, 8, 2 } ) );
   EXPECT_EQ( ( addressOf< EnablersVectors >( 10, 1, 1, 5, 4 ) ), ( Address{ true, 0x8f0060 + 5 + 4 * 32, 22, 9 } ) );
   EXPECT_EQ( ( addressOf< VsiProfileEnablers >( 16, 1, 0, 255, 4 ) ),
              ( Address{ true, 0x8d0300 + 255 + 4 * 256, 8, 17 } ) );
}

TEST( SchanAddress, TwoArrayElementsOfAnInLifRegisterAreReachedByTheirCallersNumbers ) {
   EXPECT_EQ( ( addressOf< InLifProfileCsFlagsLsb >( 12, 1, 1, 0, 3 ) ), ( Address{ true, 0x1ca + 3, 4, 26 } ) );
   EXPECT_EQ( ( addressOf< InLifProfileCsFlagsLsb >( 14, 1, 0, 0, 4 ) ), ( Address{ true, 0x1ca + 4, 4, 14 } ) );
   EXPECT_EQ( ( addressOf< InLifProfileCsFlagsMsb >( 12, 1, 0, 0, 4 ) ), ( Address{ true, 0x1da + 4, 4, 14 } ) );
   // On the others it is no array, and variant 0 counts from 0 everywhere.
   EXPECT_EQ( ( addressOf< InLifProfileCsFlagsLsb >( 10, 1, 0, 0, 0 ) ), ( Address{ true, 0x1c8, 8, 2 } ) );
   EXPECT_EQ( ( addressOf< InLifProfileCsFlagsMsb >( 12, 0, 0, 0, 2 ) ), ( Address{ true, 0x206, 2, 14 } ) );
}

TEST( SchanAddress, ARegisterTakesOneIdentifierMoreThanItHasCopies ) {
   EXPECT_EQ( ( addressOf< EgressOutrifMaxValue >( 12, 2, 1, 0, 0 ) ), ( Address{ true, 0x905, 26, 25 } ) );
   // Two copies: the third leaves the selectors as they were.
   EXPECT_EQ( ( addressOf< EgressOutrifMaxValue >( 12, 2, 2, 0, 0 ) ), ( Address{ true, 0x905, 0xdead, 0xdead } ) );
   // One copy: the second is the first.
   EXPECT_EQ( ( addressOf< EgressOutrifMaxValue >( 11, 2, 1, 0, 0 ) ), ( Address{ true, 0x904, 20, 5 } ) );
   EXPECT_TRUE( EgressOutrifMaxValue::hasIdentifier( 12, 2, 2 ) );
   EXPECT_FALSE( EgressOutrifMaxValue::hasIdentifier( 12, 2, 3 ) );
   EXPECT_TRUE( EgressOutrifMaxValue::hasIdentifier( 11, 2, 1 ) );
   EXPECT_FALSE( EgressOutrifMaxValue::hasIdentifier( 11, 2, 2 ) );
   EXPECT_TRUE( IppbFlpLePd0::hasIdentifier( 10, 0, 1 ) );
   EXPECT_FALSE( IppbFlpLePd0::hasIdentifier( 10, 0, 2 ) );
}

TEST( SchanAddress, IsNotFoundForWhatAClassLacksAndNothingFails ) {
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 13, 0, 0, 0, 0 ) ), Address{} );
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 9, 0, 0, 0, 0 ) ), Address{} );
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 0xffffffff, 0, 0, 0, 0 ) ), Address{} );
   EXPECT_EQ( ( addressOf< IppbFlpLePd0 >( 10, 1, 0, 0, 0 ) ), Address{} );
   EXPECT_EQ( ( addressOf< IppdInLifProfileMap >( 10, 0, 0, 0, 0 ) ), Address{} );
}

TEST( SchanAddress, TheMemberAsksForTheObjectsChipAndVariant ) {
   EgressOutrifMaxValue::WithStorage rif( chip10, false, 1 );
   Address at;
   at.found = rif.getSchanAddress( at.address, at.selectorA, at.selectorB, 1, 0, 0 );
   EXPECT_EQ( at, ( Address{ true, 0x108, 8, 10 } ) );
}

} // namespace
