// Fields: where they lie, against numbers typed from the chips' documents, and every way to reach them.
#include "Chips.h"

#include <cstring>

namespace {

using namespace Hardware;

U32 wordAt( U8 const * buf, unsigned word ) {
   return Detail::loadWord( buf + 4 * word );
}

TEST( Field, ANarrowFieldChangesItsBitsAndNoOthers ) {
   U8 buf[4] = { 0xff, 0xff, 0xff, 0xff };
   IppdFerTrapCfg cfg( chip10, buf, sizeof buf, false, 0 );
   cfg.cpuStrengthNIs( 5 ); // 9:4
   EXPECT_EQ( wordAt( buf, 0 ), ( 0xffffffffu & ~( 15u << 9 ) ) | 5u << 9 );
   EXPECT_EQ( cfg.cpuStrengthN(), 5 );
   EXPECT_EQ( cfg.cpuSnoopCodeN(), 0x1ff );
}

TEST( Field, AFieldMayCrossWords ) {
   U8 buf[12] = {};
   AdditionalHeadersMapTable0 map( chip10, buf, sizeof buf, false, 0 );
   map.protocolSpecificInformationIs( 0x7edcba987 ); // 30:35
   EXPECT_EQ( wordAt( buf, 0 ), 0xc0000000u );
   EXPECT_EQ( wordAt( buf, 1 ), 0xfb72ea61u );
   EXPECT_EQ( wordAt( buf, 2 ), 0x1u );
   EXPECT_EQ( map.protocolSpecificInformation(), 0x7edcba987u );
}

TEST( Field, OneThatMovesLiesWhereTheChipHasIt ) {
   Ipv4PcremFwdDestPcrem::WithStorage big( chip14 );
   EXPECT_EQ( big.vrfOffset(), 30 );
   EXPECT_EQ( big.vrfLen(), 5 );
   EXPECT_EQ( big.payloadOffset(), 57 );
   EXPECT_EQ( big.foundOffset(), 307 );
   EXPECT_EQ( big.entryLen(), 257 );
   Ipv4PcremFwdDestPcrem::WithStorage small( chip15 );
   EXPECT_EQ( small.vrfOffset(), 30 );
   EXPECT_EQ( small.vrfLen(), 4 );
   EXPECT_EQ( small.payloadOffset(), 56 );
   EXPECT_EQ( small.foundOffset(), 305 );
   EXPECT_EQ( small.entryLen(), 256 );

   U8 buf[40] = {};
   Ipv4PcremFwdDestPcrem host( chip14, buf, sizeof buf, false, 0 );
   std::memset( buf, 0, sizeof buf );
   host.vrfIs( 0x15 );
   EXPECT_EQ( wordAt( buf, 0 ), 1u << 30 );
   EXPECT_EQ( wordAt( buf, 1 ), 5u );
   EXPECT_EQ( host.vrf(), 0x15 );
}

TEST( Field, ChipsNameAndPlaceTheTrafficManagersFieldsDifferently ) {
   CgmSnifTmTable::WithStorage first( chip10 );
   CgmSnifTmTable::WithStorage second( chip11 );
   CgmSnifTmTable::WithStorage third( chip12 );
   EXPECT_TRUE( first.isItem403403Valid() );
   EXPECT_FALSE( second.isItem403403Valid() );
   EXPECT_FALSE( third.isItem403403Valid() );
   EXPECT_FALSE( first.isInTcValid() );
   EXPECT_EQ( second.inTcOffset(), 406 );
   EXPECT_EQ( third.inTcOffset(), 404 );
   EXPECT_EQ( first.inPpPortLen(), 8 );
   EXPECT_EQ( second.inPpPortLen(), 10 );
   EXPECT_EQ( first.nwkHeaderTruncateSizeOffset(), 432 );
   EXPECT_EQ( second.nwkHeaderTruncateSizeOffset(), 434 );
   EXPECT_EQ( third.nwkHeaderTruncateSizeOffset(), 433 );
   EXPECT_EQ( third.nwkHeaderTruncateSizeLen(), 10 );
   EXPECT_EQ( third.intTmStatFilterOffset(), 452 );
   EXPECT_FALSE( second.isIntTmStatFilterValid() );
}

TEST( Field, SomeChipsHaveOtherFieldsAtTheSamePlace ) {
   EtppcEncapsulation2ContextSelectionCam::WithStorage old( chip11 );
   EtppcEncapsulation2ContextSelectionCam::WithStorage young( chip12 );
   EXPECT_EQ( old.etpsTosEntryTypeOffset(), 6 );
   EXPECT_EQ( young.etpsTosEntryTypeProfileOffset(), 6 );
   EXPECT_FALSE( young.isEtpsTosEntryTypeValid() );
   EXPECT_FALSE( old.isEtpsTosEntryTypeProfileValid() );

   IppbIpv4ActionProfilesCfg::WithStorage a0( chip15 );
   IppbIpv4ActionProfilesCfg::WithStorage b0( chip16 );
   EXPECT_TRUE( a0.isActionProfileIpv4ChecksumVersionErrorSnpValid() );
   EXPECT_TRUE( b0.isActionProfileIpv4ChecksumErrorSnpValid() );
   EXPECT_FALSE( b0.isActionProfileIpv4ChecksumVersionErrorSnpValid() );

   IppdInLifProfileTable::WithStorage first( chip10 );
   IppdInLifProfileTable::WithStorage later( chip14 );
   EXPECT_EQ( first.inLifSameInterfaceProfileOffset(), 2 );
   EXPECT_EQ( later.inLifSameInterfaceProfileOffset(), 4 );
   EXPECT_EQ( later.inLifRpfModeIpv6Offset(), 2 );
   EXPECT_FALSE( later.isInLifRpfModeValid() );
}

TEST( Field, AVariantMayOwnAFieldAlone ) {
   U8 buf[4] = {};
   EgressOutrifMaxValue rif( chip10, buf, sizeof buf, false, 1 );
   EXPECT_FALSE( rif.isCfgRifMaxValueValid() );
   EXPECT_FALSE( rif.isCfgOutrifMaxValueValid() );
   EXPECT_TRUE( rif.isOutrifMaxValueValid() );
   rif.outrifMaxValueIs( 0x3ffff );
   EXPECT_EQ( wordAt( buf, 0 ), 0x3ffffu );
}

TEST( Field, ADeclaredTypeIsThatOfTheLargestWidth ) {
   static_assert( std::is_same_v< decltype( std::declval< FwdFfcTable const & >().ffcInstructionsVec() ), Raw128 > );
   static_assert( std::is_same_v< decltype( std::declval< PrivateHostReducedVrf const & >().entry() ), Raw512 > );
   static_assert( std::is_same_v< decltype( std::declval< FlpKapsStrengthMapping const & >().strengthVec() ), U64 > );
   static_assert( std::is_same_v< decltype( std::declval< CgmSnifTmTable const & >().inPpPort() ), U16 > );
   static_assert( std::is_same_v< decltype( std::declval< IppbFlpLePd0 const & >().memData() ), Raw256 > );
   static_assert( std::is_same_v< decltype( std::declval< IppbFlpLePd0 const & >().reserved() ), U64 > );
}

TEST( Field, AFieldOf257BitsMovesWhole ) {
   Ipv4PcremFwdDestPcrem::WithStorage host( chip10 );
   Raw512 entry;
   for ( unsigned word = 0; word < 8; ++word ) {
      entry.word[word] = 0x01234567u * ( word + 3 );
   }
   entry.word[8] = 1;     // bit 256
   host.entryIs( entry ); // 9:257
   EXPECT_EQ( host.entry(), entry );
   EXPECT_EQ( host.command(), 0 );
   EXPECT_EQ( host.wayIndex(), 0 );
   EXPECT_EQ( host.key(), entry.word[0] & 0x3ffffff );
}

TEST( Field, ABufferMayEndWithTheFieldAndNothingBehindItIsTouched ) {
   U8 buf[5] = { 0, 0, 0, 0xaa, 0xbb };
   EgressOutrifMaxValue rif( chip10, buf, 3, false, 2 );
   rif.cfgRifMaxValueIs( 0x3fffff ); // 0:22 in three bytes
   EXPECT_EQ( buf[2], 0x3f );
   EXPECT_EQ( buf[3], 0xaa );
   EXPECT_EQ( rif.cfgRifMaxValue(), 0x3fffffu );
}

TEST( Field, ABufferMayLieAnywhere ) {
   alignas( 8 ) U8 room[40] = {};
   IppbFlpLePd0 program( chip10, room + 3, 32, false, 0 );
   program.constStrengthVecIs( 0x1122334455667788 );
   EXPECT_EQ( program.constStrengthVec(), 0x1122334455667788u );
   EXPECT_EQ( room[3 + 4], 0x88 );
   EXPECT_EQ( room[3 + 11], 0x11 );
}

TEST( Field, ALiveObjectMayChangeItsVariant ) {
   U8 buf[4] = {};
   EgressOutrifMaxValue rif( chip10, buf, sizeof buf, false, 0 );
   rif.variantIs( 2 );
   EXPECT_TRUE( rif.isCfgRifMaxValueValid() );
   EXPECT_FALSE( rif.isCfgOutrifMaxValueValid() );
   rif.cfgRifMaxValueIs( 0x2abcde );
   rif.cfgRifMaxValueIs( rif.cfgRifMaxValue() + 1 );
   EXPECT_EQ( wordAt( buf, 0 ), 0x2abcdfu );
   EXPECT_EQ( rif.sdkDefinedId(), 31490 );

   U8 ffcBuf[16] = {};
   FwdFfcTable ffc( chip10, ffcBuf, sizeof ffcBuf, false, 0 );
   ffc.variantIs( 3 );
   ffc.ffcInstruction3Is( 0x1234567 );
   ffc.variantIs( 0 );
   EXPECT_FALSE( ffc.isFfcInstruction3Valid() );
}

TEST( Field, NumbersOfFieldsAreTheSameInEveryClass ) {
   EgressOutrifMaxValue::WithStorage rif( chip10, false, 2 );
   EXPECT_TRUE( rif.isFieldValid( 63 ) );
   EXPECT_FALSE( rif.isFieldValid( 61 ) );
   rif.setField64( 63, 7 );
   EXPECT_EQ( rif.cfgRifMaxValue(), 7u );
   EXPECT_EQ( rif.fieldWidth( 63 ), 22 );
   EXPECT_EQ( rif.fieldOffset( 63 ), 0 );

   IppbFlpLePd0::WithStorage program( chip10 );
   EXPECT_EQ( program.fieldWidth( 79 ), 64 );    // constStrengthVec
   EXPECT_EQ( program.fieldOffset( 631 ), 176 ); // reserved
   EXPECT_EQ( program.fieldWidth( 665 ), 32 );   // strengthWidthVec
   EXPECT_EQ( ErppCfgSplitHorizonFilter::WithStorage( chip10 ).fieldWidth( 65 ), 64 );
   EXPECT_EQ( EtppCfgSplitHorizonFilter::WithStorage( chip10 ).fieldWidth( 65 ), 64 );
   EXPECT_EQ( PrivateHostReducedVrf::WithStorage( chip15 ).fieldOffset( 722 ), 265 ); // wayIndex
   EXPECT_FALSE( program.isFieldValid( 0 ) );
   EXPECT_FALSE( program.isFieldValid( 723 ) );
}

TEST( Field, SettingByNumberOrNameNarrowsTheValueToTheFieldsType ) {
   IppdFerTrapCfg::WithStorage cfg( chip10 );
   cfg.stringFieldIs( "cpuStrengthN", 0x103 ); // a U8
   EXPECT_EQ( cfg.cpuStrengthN(), 3 );
   IppbFlpLePd0::WithStorage program( chip10 );
   program.setField64( 665, 0x100000002 ); // a U32
   EXPECT_EQ( program.strengthWidthVec(), 2u );
}

TEST( Field, AWideFieldIsReadByNameInWordsOf64Bits ) {
   IppbFlpLePd0::WithStorage program( chip10 );
   Raw256 data;
   data.word64Is( 0, 0x1111111122222222 );
   data.word64Is( 1, 0x3333333344444444 );
   data.word64Is( 2, 0x555566667777 );
   program.memDataIs( data );
   EXPECT_EQ( program.stringField( "memData", 0 ), 0x1111111122222222u );
   EXPECT_EQ( program.stringField( "memData", 1 ), 0x3333333344444444u ); // bits 64 to 127
   EXPECT_EQ( program.stringField( "memData", 2 ), 0x555566667777u );
   EXPECT_EQ( program.stringField( "memData", 3 ), 0u );
   EXPECT_EQ( program.stringField( "strengthWidthVec", 0 ), 0x22222222u );
}

TEST( Field, ARunIsReachedByNumber ) {
   InLifProfileCsFlagsLsb::WithStorage lsb( chip10, false, 1 );
   lsb.csProfileIs( 0, 1 );
   lsb.csProfileIs( 127, 9 );
   EXPECT_EQ( lsb.csProfile0(), 1 );
   EXPECT_EQ( lsb.csInlifProfile(), 1 );
   EXPECT_EQ( lsb.csProfile127(), 9 );
   EXPECT_EQ( lsb.csInlifProfileMapLsb().word[15], 0x90000000u );
   EXPECT_EQ( lsb.csProfile( 127 ), 9 );

   VsiProfileEnablers::WithStorage vsi( chip10 );
   vsi.routingProfileIs( 3, 23 );
   EXPECT_EQ( vsi.routingProfile3(), 23 );
   EXPECT_EQ( vsi.getAllFields(), 23u << 15 );

   FwdFfcTable::WithStorage ffc( chip10, false, 4 );
   ffc.ffcInstructionIs( 2, 0x1fffffff );
   EXPECT_EQ( ffc.ffcInstruction2(), 0x1fffffffu );
   EXPECT_EQ( ffc.ffcInstruction( 3 ), 0u );

   IppeRecycFwdProfileMapping::WithStorage recycle( chip10 );
   recycle.recycFwdTrapCodeIs( 15, 0x1ab );
   recycle.recycFwdStrengthIs( 15, 6 );
   EXPECT_EQ( recycle.recycFwdTrapCode15(), 0x1ab );
   EXPECT_EQ( recycle.recycFwdStrength( 15 ), 6 );
   recycle.recycFwdTrapCodeIs( 0x12 ); // the field of that name is the first of the run
   EXPECT_EQ( recycle.recycFwdTrapCode0(), 0x12 );
   EXPECT_EQ( recycle.recycFwdTrapCode( 0 ), 0x12 );
}

TEST( Field, TheWholeEntryIsMaskedToItsFields ) {
   U8 buf[24];
   std::memset( buf, 0xff, sizeof buf );
   EtppaPrpFesProgramTable fes( chip10, buf, sizeof buf, false, 0 ); // 14:6 and 35:6
   Raw256 expected;
   expected.word[0] = 0x3fu << 14;
   expected.word[1] = 0x3fu << 3;
   EXPECT_EQ( fes.getAllFields(), expected );
   EXPECT_EQ( fes.allFieldsMask(), expected );
   EXPECT_EQ( EtppaPrpFesProgramTable::allFieldsMask( 10, 0 ), expected );

   static_assert( std::is_same_v< decltype( std::declval< IppdFerTrapCfg const & >().getAllFields() ), U32 > );
   static_assert( std::is_same_v< decltype( std::declval< EnablersVectors const & >().getAllFields() ), U64 > );
   static_assert(
      std::is_same_v< decltype( std::declval< AdditionalHeadersMapTable0 const & >().allFieldsMask() ), Raw128 > );
   static_assert( std::is_same_v< decltype( std::declval< CgmSnifTmTable const & >().getAllFields() ), Raw512 > );
   static_assert( std::is_same_v< decltype( FfcInstruction::allFieldsMask( 10, 0 ) ), Raw1024 > );
}

TEST( Field, TheWholeEntryNeedsTheBytesOfItsFieldsOnly ) {
   U8 buf[6] = { 0xff, 0xff, 0xff, 0xff, 0xff, 0xff };
   EtppaPrpFesProgramTable fes( chip10, buf, sizeof buf, false, 0 ); // up to bit 40
   EXPECT_EQ( fes.getAllFields().word[1], 0x3fu << 3 );
}

TEST( Field, StorageIsZeroAndOfTheClassesLargestWidth ) {
   IppbFlpLePd0::WithStorage program( chip11 ); // 6 words here, 8 on another chip
   EXPECT_EQ( program.getAllFields(), Raw256{} );
   program.variantIs( 0 );
   program.orderVecIs( Raw128{ 5 } );
   EXPECT_EQ( program.orderVec(), Raw128{ 5 } );
   AdditionalHeadersMapTable0::WithStorage map( chip10, false, 1 );
   EXPECT_EQ( map.protocolSpecificInformation(), 0u );
}

TEST( StringObj, MakesAnAccessorOfTheNamedClass ) {
   std::shared_ptr< AsicUtils::AsicBase > const object = stringObj( "EgressOutrifMaxValue", chip12, 2 );
   object->stringFieldIs( "cfgRifMaxValue", 0x1234 );
   EXPECT_EQ( object->stringField( "cfgRifMaxValue", 0 ), 0x1234u );
   EXPECT_FALSE( object->isTable() );
   EXPECT_EQ( object->sdkDefinedId(), 31490 );
   EXPECT_NE( dynamic_cast< EgressOutrifMaxValue::WithStorage * >( object.get() ), nullptr );
   EXPECT_TRUE( stringObj( "VttTrapStrengths6", chip16, 1 )->isFieldValid( 0 ) == false );
   EXPECT_EQ( stringObj( "AdditionalHeadersMapTable0", chip10, 0 )->entries(), 32u );
}

} // namespace
