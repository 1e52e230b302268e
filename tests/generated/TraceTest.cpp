// What the accessors trace, word for word.
#include "Chips.h"

#include "rex/Trace.h"

namespace {

using namespace Hardware;
using Texts = std::vector< std::string >;

class TraceTest : public testing::Test {
 protected:
   TraceTest() {
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
         facility = record.facility;
         level = record.level;
         texts.push_back( record.text );
      } );
   }
   ~TraceTest() override {
      Rex::traceLevelIs( "AsicUtilsDaceFapNiPluginL3UnicastMetaInfo", -1 );
      Rex::traceSinkIs( {} );
   }
   static void levelIs( int highest ) { Rex::traceLevelIs( "AsicUtilsDaceFapNiPluginL3UnicastMetaInfo", highest ); }
   Texts taken() { return std::exchange( texts, {} ); }

   std::string facility;
   int level = -1;
   Texts texts;
};

TEST_F( TraceTest, AnAccessTellsItsSignatureChipAndVariant ) {
   IppbFlpLePd0::WithStorage program( chip12 );
   levelIs( 8 );
   program.strengthWidthVecIs( 3 );
   EXPECT_EQ( taken(), Texts{ "void Hardware::IppbFlpLePd0::strengthWidthVecIs(U32) chipType: 12 variant: 0" } );
   EXPECT_EQ( facility, "AsicUtilsDaceFapNiPluginL3UnicastMetaInfo" );
   EXPECT_EQ( level, 8 );
   EXPECT_EQ( program.strengthWidthVec(), 3u );
   EXPECT_EQ( taken(), Texts{ "U32 Hardware::IppbFlpLePd0::strengthWidthVec() const chipType: 12 variant: 0" } );
   program.constStrengthVecIs( 4 );
   EXPECT_EQ( taken(), Texts{ "void Hardware::IppbFlpLePd0::constStrengthVecIs(const U64&) chipType: 12 variant: 0" } );
   program.memData();
   EXPECT_EQ( taken(), Texts{ "Raw256 Hardware::IppbFlpLePd0::memData() const chipType: 12 variant: 0" } );
   program.isReservedValid();
   EXPECT_EQ( taken(), Texts{ "bool Hardware::IppbFlpLePd0::isReservedValid() const chipType: 12 variant: 0" } );
   program.orderVecLen();
   program.orderVecOffset();
   EXPECT_EQ( taken(),
              ( Texts{ "U16 Hardware::IppbFlpLePd0::orderVecLen() const chipType: 12 variant: 0",
                       "U16 Hardware::IppbFlpLePd0::orderVecOffset() const chipType: 12 variant: 0" } ) );
   program.getAllFields();
   EXPECT_EQ( taken(), Texts{ "Raw256 Hardware::IppbFlpLePd0::getAllFields() const chipType: 12 variant: 0" } );
}

TEST_F( TraceTest, AStaticTellsWhatItWasAsked ) {
   levelIs( 8 );
   IppbFlpLePd0::entries( 11, 0 );
   EXPECT_EQ( taken(), Texts{ "static U32 Hardware::IppbFlpLePd0::entries(U32, U8) chipType: 11 variant: 0" } );
   addressOf< IppbFlpLePd0 >( 13, 4, 0, 0, 0 );
   EXPECT_EQ( taken(),
              Texts{ "static bool Hardware::IppbFlpLePd0::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16) "
                     "chipType: 13 variant: 4" } );
   IppbFlpLePd0::isIppbFlpLePd0( chip10, nullptr, 0, 0 );
   EXPECT_EQ( taken(),
              Texts{ "static bool Hardware::IppbFlpLePd0::isIppbFlpLePd0(ChipType, const U8*, U16, U8) chipType: 10 "
                     "variant: 0" } );
}

TEST_F( TraceTest, AConstructorTellsTheClassAndThePair ) {
   levelIs( 8 );
   EgressOutrifMaxValue::WithStorage rif( chip10, false, 2 );
   EXPECT_EQ( taken(), Texts{ "EgressOutrifMaxValue chipType: BCM88690_B0 variant: 2" } );
}

TEST_F( TraceTest, AnIndexedAccessTellsBothAccessors ) {
   FwdFfcTable::WithStorage ffc( chip10, false, 1 );
   levelIs( 8 );
   ffc.ffcInstructionIs( 2, 1 );
   EXPECT_EQ( taken(),
              ( Texts{ "void Hardware::FwdFfcTable::ffcInstructionIs(U32, U32) chipType: 10 variant: 1",
                       "void Hardware::FwdFfcTable::ffcInstruction2Is(U32) chipType: 10 variant: 1" } ) );
}

TEST_F( TraceTest, AnAddressForAVariantThatIsNotThereIsToldAtLevelZero ) {
   levelIs( 0 );
   EXPECT_FALSE( ( addressOf< IppbFlpLePd0 >( 10, 3, 0, 0, 0 ).found ) );
   EXPECT_EQ( level, 0 );
   EXPECT_EQ( taken(),
              Texts{ "static bool Hardware::IppbFlpLePd0::getSchanAddress(U32, U8, U32&, U32&, U32&, U16, U32, U16) "
                     "chipType: 10 variant: 3 failed." } );
   addressOf< IppbFlpLePd0 >( 13, 0, 0, 0, 0 ); // a chip that is not there is not
   EXPECT_EQ( taken(), Texts{} );
}

TEST_F( TraceTest, NothingIsToldBelowTheLevel ) {
   levelIs( 7 );
   IppbFlpLePd0::WithStorage program( chip12 );
   program.strengthWidthVecIs( 3 );
   IppbFlpLePd0::entries( 11, 0 );
   EXPECT_EQ( taken(), Texts{} );
}

TEST_F( TraceTest, ATraceComesBeforeTheFailure ) {
   IppdFerTrapCfg::WithStorage cfg( chip10 );
   EXPECT_DEATH(
      {
         Rex::traceSinkIs( {} );
         levelIs( 8 );
         cfg.cpuStrengthNIs( 16 );
      },
      "void Hardware::IppdFerTrapCfg::cpuStrengthNIs\\(U8\\) chipType: 10 variant: 0\n(.|\n)*value <= 0xf" );
}

} // namespace
