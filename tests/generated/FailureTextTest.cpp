// What a programming error says. The texts are searched for by engineers: they are exact.
#include "Chips.h"

namespace {

using namespace Hardware;

// The line that an assertion prints, from the function on.
std::string failure( std::string const & function, std::string const & text ) {
   std::string pattern = "generated/DaceFapNiPluginL3UnicastMetaInfo.cpp:[0-9]+: ";
   for ( char c : function + ": Assertion `" + text + "' failed\\." ) {
      if ( c == '(' || c == ')' || c == '*' || c == '{' || c == '}' || c == '|' ) {
         pattern += std::string( "\\" ) + c;
      } else {
         pattern += c;
      }
   }
   return pattern;
}

TEST( FailureTextDeathTest, UnknownChipInAStatic ) {
   EXPECT_DEATH( IppbFlpLePd0::entries( 13, 0 ),
                 failure( "static U32 Hardware::IppbFlpLePd0::entries(U32, U8)", "0" ) );
   EXPECT_DEATH( IppbFlpLePd0::allFieldsMask( 9, 0 ),
                 failure( "static Raw256 Hardware::IppbFlpLePd0::allFieldsMask(U32, U8)", "0" ) );
   EXPECT_DEATH( IppdInLifProfileMap::width( 10, 0 ),
                 failure( "static U16 Hardware::IppdInLifProfileMap::width(U32, U8)", "0" ) );
}

TEST( FailureTextDeathTest, UnknownVariantInAStatic ) {
   EXPECT_DEATH( IppbFlpLePd0::entries( 10, 1 ),
                 failure( "static U32 Hardware::IppbFlpLePd0::entries(U32, U8)", "variant == 0" ) );
   EXPECT_DEATH( FwdFfcTable::entries( 10, 5 ), failure( "static U32 Hardware::FwdFfcTable::entries(U32, U8)", "0" ) );
   EXPECT_DEATH( EgressOutrifMaxValue::regWidth( 10, 3 ),
                 failure( "static U16 Hardware::EgressOutrifMaxValue::regWidth(U32, U8)", "0" ) );
   EXPECT_DEATH( IppbFlpLePd0::hasIdentifier( 10, 2, 0 ),
                 failure( "static bool Hardware::IppbFlpLePd0::hasIdentifier(U32, U8, U32)", "variant == 0" ) );
}

TEST( FailureTextDeathTest, ConstructorWithAPairThatDoesNotExist ) {
   EXPECT_DEATH( IppbFlpLePd0::WithStorage( chip10, false, 1 ),
                 "BCM88690_B0 variant: 1 not in metainfo for IppbFlpLePd0!\n.*Assertion `\"0\" == nullptr' failed\\." );
   EXPECT_DEATH( FwdFfcTable::WithStorage{ chip13 }, "13 variant: 0 not in metainfo for FwdFfcTable!\n" );
   EXPECT_DEATH( IppdInLifProfileMap::WithStorage{ chip11 },
                 "BCM88800_A0 variant: 0 not in metainfo for IppdInLifProfileMap!\n" );
}

TEST( FailureTextDeathTest, AFieldThatAnotherVariantOwns ) {
   EgressOutrifMaxValue::WithStorage rif( chip10, false, 1 );
   EXPECT_DEATH( rif.cfgRifMaxValueIs( 1 ),
                 failure( "void Hardware::EgressOutrifMaxValue::cfgRifMaxValueIs(U32)", "variant_ == 2" ) );
   EXPECT_DEATH( rif.cfgRifMaxValue(),
                 failure( "U32 Hardware::EgressOutrifMaxValue::cfgRifMaxValue() const", "variant_ == 2" ) );
   EXPECT_DEATH( rif.cfgRifMaxValueOffset(),
                 failure( "U16 Hardware::EgressOutrifMaxValue::cfgRifMaxValueOffset() const", "variant_ == 2" ) );
   EXPECT_DEATH(
      rif.cfgRifMaxValueLen(),
      "BCM88690_B0 variant: 1 does not have field CFG_RIF_MAX_VALUE\n.*Assertion `\"0\" == nullptr' failed" );
}

TEST( FailureTextDeathTest, AFieldThatSeveralVariantsOwn ) {
   FwdFfcTable::WithStorage ffc( chip10, false, 0 );
   EXPECT_DEATH( ffc.ffcInstruction2Is( 1 ), failure( "void Hardware::FwdFfcTable::ffcInstruction2Is(U32)", "0" ) );
   EXPECT_DEATH( ffc.ffcInstructionIs( 3, 1 ), failure( "void Hardware::FwdFfcTable::ffcInstruction3Is(U32)", "0" ) );
   FfcInstruction::WithStorage instruction( chip10, false, 2 );
   EXPECT_DEATH( instruction.ffcIndex(), failure( "U8 Hardware::FfcInstruction::ffcIndex() const", "0" ) );
}

TEST( FailureTextDeathTest, AFieldThatAChipLacks ) {
   IppbFlpLePd0::WithStorage program( chip11 );
   EXPECT_DEATH( program.reservedIs( 1 ), failure( "void Hardware::IppbFlpLePd0::reservedIs(const U64&)", "0" ) );
   EXPECT_DEATH( program.reservedOffset(), failure( "U16 Hardware::IppbFlpLePd0::reservedOffset() const", "0" ) );
   EXPECT_DEATH( program.reservedLen(), "BCM88800_A0 variant: 0 does not have field RESERVED\n" );
}

TEST( FailureTextDeathTest, AVariantThatALiveObjectCannotHave ) {
   U8 buf[32] = {};
   IppbFlpLePd0 program( chip10, buf, sizeof buf, false, 0 );
   program.variantIs( 1 );
   EXPECT_DEATH( program.strengthWidthVecIs( 1 ),
                 failure( "void Hardware::IppbFlpLePd0::strengthWidthVecIs(U32)", "variant_ == 0" ) );
   EXPECT_DEATH( program.getAllFields(),
                 failure( "Raw256 Hardware::IppbFlpLePd0::getAllFields() const", "variant_ == 0" ) );
   EXPECT_DEATH( program.width(), failure( "static U16 Hardware::IppbFlpLePd0::width(U32, U8)", "variant == 0" ) );
   EXPECT_DEATH( program.strengthWidthVecLen(), "BCM88690_B0 variant: 1 does not have field STRENGTH_WIDTH_VEC\n" );
   EXPECT_FALSE( program.isStrengthWidthVecValid() );
}

TEST( FailureTextDeathTest, ABufferThatEndsBeforeTheField ) {
   U8 buf[32] = {};
   // A 64-bit field at bit 32 needs twelve bytes.
   IppbFlpLePd0 program( chip10, buf, 11, false, 0 );
   EXPECT_DEATH( program.constStrengthVecIs( 1 ),
                 failure( "void Hardware::IppbFlpLePd0::constStrengthVecIs(const U64&)", "len_ >= 12" ) );
   EXPECT_DEATH( program.constStrengthVec(),
                 failure( "U64 Hardware::IppbFlpLePd0::constStrengthVec() const", "len_ >= 12" ) );
   EXPECT_DEATH( program.memData(), failure( "Raw256 Hardware::IppbFlpLePd0::memData() const", "len_ >= 22" ) );
   IppbFlpLePd0 enough( chip10, buf, 12, false, 0 );
   enough.constStrengthVecIs( 1 );
   EXPECT_EQ( enough.constStrengthVec(), 1u );

   EgressOutrifMaxValue rif( chip10, buf, 2, false, 2 );
   EXPECT_DEATH( rif.cfgRifMaxValueIs( 1 ),
                 failure( "void Hardware::EgressOutrifMaxValue::cfgRifMaxValueIs(U32)", "len_ >= 3" ) );
   // The length comes before the value.
   EXPECT_DEATH( rif.cfgRifMaxValueIs( 0x400000 ), "len_ >= 3" );
}

TEST( FailureTextDeathTest, AWholeEntryAsksForTheBytesOfItsFields ) {
   U8 buf[5] = {};
   EtppaPrpFesProgramTable fes( chip10, buf, sizeof buf, false, 0 );
   EXPECT_DEATH( fes.getAllFields(),
                 failure( "Raw256 Hardware::EtppaPrpFesProgramTable::getAllFields() const", "len_ >= 6" ) );
}

TEST( FailureTextDeathTest, AValueThatIsTooWide ) {
   EgressOutrifMaxValue::WithStorage rif( chip10, false, 2 );
   EXPECT_DEATH( rif.cfgRifMaxValueIs( 0x400000 ),
                 failure( "void Hardware::EgressOutrifMaxValue::cfgRifMaxValueIs(U32)", "value <= 0x3fffff" ) );
   IppdFerTrapCfg::WithStorage cfg( chip10 );
   EXPECT_DEATH( cfg.cpuStrengthNIs( 16 ), "value <= 0xf'" );
   EXPECT_DEATH( cfg.snoopStrengthNIs( 8 ), "value <= 0x7'" );
   EXPECT_DEATH( cfg.cpuSnoopCodeNIs( 512 ), "value <= 0x1ff'" );
   EXPECT_DEATH( cfg.setField64( 84, 0x10 ), "value <= 0xf'" ); // cpuStrengthN
   AdditionalHeadersMapTable0::WithStorage map( chip10 );
   EXPECT_DEATH( map.protocolSpecificInformationIs( U64{ 1 } << 35 ), "value <= 0x7ffffffff'" );
   // Where the width depends on the chip, so does the text.
   Ipv4PcremFwdDestPcrem::WithStorage small( chip15 );
   EXPECT_DEATH( small.vrfIs( 16 ), "value <= 0xf'" );
   Ipv4PcremFwdDestPcrem::WithStorage big( chip10 );
   EXPECT_DEATH( big.vrfIs( 32 ), "value <= 0x1f'" );
   // Wide ones too.
   FwdFfcTable::WithStorage ffc( chip10, false, 1 );
   Raw128 vec;
   vec.word[3] = 1u << 20;
   EXPECT_DEATH( ffc.ffcInstructionsVecIs( vec ),
                 failure( "void Hardware::FwdFfcTable::ffcInstructionsVecIs(const Raw128&)",
                          "value <= 0xfffffffffffffffffffffffffffff" ) );
   // A field that fills its type takes every value.
   IppbFlpLePd0::WithStorage program( chip10 );
   program.strengthWidthVecIs( 0xffffffff );
   EXPECT_EQ( program.strengthWidthVec(), 0xffffffffu );
}

TEST( FailureTextDeathTest, AnIndexPastARun ) {
   FwdFfcTable::WithStorage ffc( chip10, false, 1 );
   EXPECT_DEATH( ffc.ffcInstructionIs( 4, 0 ),
                 "4 out of range for ffcInstructionIs\n.*void Hardware::FwdFfcTable::ffcInstructionIs\\(U32, U32\\): "
                 "Assertion `\"0\" == nullptr' failed" );
   EXPECT_DEATH( ffc.ffcInstruction( 9 ), "9 out of range for ffcInstruction\n" );
   InLifProfileCsFlagsMsb::WithStorage msb( chip10 );
   EXPECT_DEATH( msb.csProfileIs( 128, 0 ), "128 out of range for csProfileIs\n" );
   VsiProfileEnablers::WithStorage vsi( chip10 );
   EXPECT_DEATH( vsi.routingProfileIs( 4, 0 ), "4 out of range for routingProfileIs\n" );
   IppeRecycFwdProfileMapping::WithStorage recycle( chip10 );
   EXPECT_DEATH( recycle.recycFwdStrengthIs( 16, 0 ), "16 out of range for recycFwdStrengthIs\n" );
}

TEST( FailureTextDeathTest, AFieldByNumber ) {
   IppbFlpLePd0::WithStorage program( chip11 );
   EXPECT_DEATH( program.setField64( 9999, 1 ),
                 failure( "virtual void Hardware::IppbFlpLePd0::setField64(U32, U64)", "false" ) );
   // Another class's field, and a wide one.
   EXPECT_DEATH( program.setField64( 63, 1 ), "Assertion `false' failed" );
   IppbFlpLePd0 const & asked = program;
   EXPECT_DEATH( asked.fieldWidth( 63 ),
                 failure( "virtual U16 Hardware::IppbFlpLePd0::fieldWidth(U32) const", "false" ) );
   // `reserved`, which this chip lacks.
   EXPECT_DEATH( asked.fieldOffset( 631 ),
                 failure( "virtual U16 Hardware::IppbFlpLePd0::fieldOffset(U32) const", "false" ) );
}

TEST( FailureTextDeathTest, AFieldByName ) {
   IppbFlpLePd0::WithStorage program( chip10 );
   EXPECT_DEATH( program.stringFieldIs( "noSuchField", 1 ), "fieldName not found or is const\\.\n" );
   EXPECT_DEATH( program.stringFieldIs( "memData", 1 ), "fieldName not found or is const\\.\n" ); // a wide one
   EXPECT_DEATH( program.stringField( "noSuchField", 0 ), "fieldName not found\\.\n" );
   FfcInstruction::WithStorage ffc( chip10 );
   EXPECT_DEATH( ffc.stringFieldIs( "resultType", 1 ), "fieldName not found or is const\\.\n" );
   EXPECT_EQ( ffc.stringField( "resultType", 0 ), 0u );
}

TEST( FailureTextDeathTest, AClassByName ) {
   EXPECT_DEATH(
      stringObj( "NoSuchTable", chip10, 0 ),
      "invalid name given: NoSuchTable\n.*Assertion `\"objMapIter != objMap.end\\(\\)\" == nullptr' failed" );
}

TEST( FailureTextDeathTest, AnAddressOutOfRange ) {
   std::string const function =
      "static bool Hardware::IppbFlpLePd0::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16)";
   EXPECT_DEATH( addressOf< IppbFlpLePd0 >( 10, 0, 0, 64, 0 ), failure( function, "tableEntry < 64" ) );
   EXPECT_DEATH( addressOf< IppbFlpLePd0 >( 10, 0, 0, 0, 1 ), failure( function, "arrayIndex == 0" ) );
   EXPECT_DEATH( addressOf< IppbFlpLePd0 >( 10, 0, 2, 0, 0 ),
                 failure( function, "hasIdentifier( chipType, variant, identifier )" ) );
   EXPECT_DEATH( addressOf< FfcInstruction >( 10, 0, 0, 4294967295u, 0 ), "tableEntry < 4294967295" );
   EXPECT_DEATH( addressOf< FwdKbrTable >( 10, 0, 0, 0, 18 ), "arrayIndex < 18" );
   EXPECT_DEATH( addressOf< EnablersVectors >( 10, 0, 0, 0, 3 ), "arrayIndex < 3" );

   EXPECT_DEATH( addressOf< EgressOutrifMaxValue >( 10, 0, 0, 1, 0 ), "tableEntry == 0" );
   EXPECT_DEATH( addressOf< EgressOutrifMaxValue >( 10, 0, 0, 0, 1 ), "arrayIndex < 1" );
   EXPECT_DEATH( addressOf< IppdFerTrapCfg >( 10, 0, 0, 0, 8 ), "arrayIndex < 8" );
   EXPECT_DEATH( addressOf< EgressOutrifMaxValue >( 10, 0, 3, 0, 0 ),
                 "hasIdentifier\\( chipType, variant, identifier \\)" );
   EXPECT_DEATH( addressOf< EgressOutrifMaxValue >( 11, 0, 2, 0, 0 ),
                 "hasIdentifier\\( chipType, variant, identifier \\)" );
}

TEST( FailureTextDeathTest, AnArrayIndexBesideTheElements ) {
   EXPECT_DEATH( addressOf< EnablersVectors >( 10, 1, 0, 0, 5 ), "arrayIndex < 5" );
   EXPECT_DEATH( addressOf< EnablersVectors >( 10, 1, 0, 0, 2 ), "arrayIndex >= 3" );
   EXPECT_DEATH( addressOf< InLifProfileCsFlagsLsb >( 12, 1, 0, 0, 0 ), "arrayIndex >= 3" );
   EXPECT_DEATH( addressOf< InLifProfileCsFlagsLsb >( 12, 1, 0, 0, 5 ), "arrayIndex < 5" );
   EXPECT_DEATH( addressOf< InLifProfileCsFlagsLsb >( 10, 1, 0, 0, 3 ), "arrayIndex < 1" );
   EXPECT_DEATH( addressOf< InLifProfileCsFlagsLsb >( 12, 0, 0, 0, 3 ), "arrayIndex < 3" );
}

TEST( FailureTextDeathTest, ATagThatIsNotThere ) {
   U8 buf[80] = {};
   EXPECT_DEATH( FfcInstruction( chip10, buf, sizeof buf, true, 0 ),
                 failure( "void Hardware::FfcInstruction::handleBuf(ChipType, U8*, U16, bool, U8)",
                          "({ U8 n = 0; getBuf( buf_, len_, (U8 *)&n, sizeof( U8 ), 2, 27 ); ( n == 1 ); })" ) );
   EXPECT_DEATH( FfcInstruction( chip10, buf, sizeof buf, true, 2 ), "sizeof\\( U8 \\), 4, 25 \\); \\( n == 8 \\)" );
   EXPECT_DEATH( PpmcDoubleOutLifSwap( chip16, buf, sizeof buf, true, 0 ), "6, 79 \\); \\( n == 8 \\)" );
   EXPECT_DEATH( PrivateHostReducedVrf::WithStorage( chip10, true ), "6, 77 \\); \\( n == 10 \\)" );
}

TEST( FailureTextDeathTest, ABufferThatEndsBeforeTheTag ) {
   U8 buf[40] = {};
   EXPECT_DEATH( FfcInstruction( chip10, buf, 3, false, 0 ),
                 failure( "void Hardware::FfcInstruction::handleBuf(ChipType, U8*, U16, bool, U8)", "len_ >= 4" ) );
   EXPECT_DEATH( PpmcDoubleOutLifSwap( chip10, buf, 11, false, 0 ), "len_ >= 22" );
   EXPECT_DEATH( Ipv4PcremFwdDestPcrem( chip10, buf, 37, false, 0 ), "len_ >= 38" );
}

TEST( FailureTextDeathTest, WhatAKindOfTableDoesNotHave ) {
   EgressOutrifMaxValue::WithStorage rif( chip10 );
   AsicUtils::AsicBase const & reg = rif;
   EXPECT_DEATH( reg.entries(), "AsicBase.*Assertion `false && \"entries invalid for this class\"' failed" );
   EXPECT_DEATH( reg.tableVariantCount(), "AsicBase.*Assertion `false' failed" );
   EXPECT_DEATH( reg.entrySpans(), "AsicBase.*Assertion `false' failed" );
   IppbFlpLePd0::WithStorage program( chip10 );
   AsicUtils::BcmAsicBase const & memory = program;
   EXPECT_DEATH( memory.maxIdentifier(),
                 "AsicBase.*Assertion `false && \"maxIdentifier invalid for this class\"' failed" );
   EXPECT_DEATH( memory.hasInstance( 0 ), "AsicBase.*Assertion `false' failed" );
   EXPECT_DEATH( memory.compareTo( nullptr, 0 ), "AsicBase.*Assertion `0' failed" );
   U32 n = 0;
   U8 b = 0;
   EXPECT_DEATH( memory.hasMultipleMem(), "BcmAsicBase.*Assertion `0' failed" );
   EXPECT_DEATH( memory.groupId( 0 ), "BcmAsicBase.*Assertion `0' failed" );
   EXPECT_DEATH( memory.numGroups(), "BcmAsicBase.*Assertion `0' failed" );
   EXPECT_DEATH( memory.groupInfo( 0, n, n, b ), "BcmAsicBase.*Assertion `0' failed" );
   EXPECT_DEATH( memory.memInfo( 0, 0, n, n, n, n, n ), "BcmAsicBase.*Assertion `0' failed" );
}

} // namespace
