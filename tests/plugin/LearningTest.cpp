#include "ChipFixture.h"
#include "SharedFunctions.h"

using namespace DaceFapNi;
using DacePPExport::ctx_fwd1;

namespace {

constexpr char init[] = "FlpaInitContextEnablers";
constexpr char res[] = "FlpaResContextEnablers";

class LearningTest : public ChipFixture {
 public:
   // learning allowed, fixed key, learn resolution, forwarding update
   using State = std::array< U64, 4 >;
   State state( int entry ) const {
      return { field( init, { .entry = entry }, "contextLearnAllowedEnable" ),
               field( init, { .entry = entry }, "learningFixedKeyEnable" ),
               field( res, { .entry = entry }, "learnInfoResolutionEnable" ),
               field( res, { .entry = entry }, "fwdUpdateEnable" ) };
   }
   void stateIs( int entry, State const & value ) {
      fieldIs( init, { .entry = entry }, "contextLearnAllowedEnable", value[0] );
      fieldIs( init, { .entry = entry }, "learningFixedKeyEnable", value[1] );
      fieldIs( res, { .entry = entry }, "learnInfoResolutionEnable", value[2] );
      fieldIs( res, { .entry = entry }, "fwdUpdateEnable", value[3] );
   }
};

constexpr ChipType b0 = ChipType::BCM88690_B0; // context 36 has the number 45, 38 the number 12

TEST_F( LearningTest, goesOnAndOff ) {
   chipIs( b0 );
   stateIs( 12, { 0, 0, 0, 1 } );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 38 } }, b0, FapId( 0 ), true, false );
   EXPECT_EQ( state( 12 ), ( State{ 1, 1, 1, 1 } ) );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 38 } }, b0, FapId( 0 ), false, false );
   EXPECT_EQ( state( 12 ), ( State{ 0, 0, 0, 1 } ) );
}

TEST_F( LearningTest, turnsTheForwardingUpdateTheOtherWayForRouteLookups ) {
   chipIs( b0 );
   stateIs( 45, { 0, 0, 0, 1 } );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 36 } }, b0, FapId( 0 ), true, true );
   EXPECT_EQ( state( 45 ), ( State{ 1, 1, 1, 0 } ) );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 36 } }, b0, FapId( 0 ), false, true );
   EXPECT_EQ( state( 45 ), ( State{ 0, 0, 0, 1 } ) );
}

TEST_F( LearningTest, leavesTheForwardingUpdateAloneOtherwise ) {
   chipIs( b0 );
   for ( U64 const chips : { 0u, 1u } ) {
      stateIs( 45, { 1, 1, 1, chips } );
      setLearningForUrpfOrFlpa( { ctx_fwd1{ 36 } }, b0, FapId( 0 ), false, false );
      EXPECT_EQ( state( 45 ), ( State{ 0, 0, 0, chips } ) );
   }
}

TEST_F( LearningTest, keepsTheOtherEnablersOfTheContext ) {
   chipIs( b0 );
   wordsAre( init, { .entry = 45 }, { 0xffffffff, 0xffffffff, 0xffffffff } );
   wordsAre( res, { .entry = 45 }, { 0xffffffff, 0xffffffff } );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 36 } }, b0, FapId( 0 ), false, false );
   auto const bit = [&]( char const * table, char const * name ) { return layout( table, {} ).field( name )->offset; };
   Words expectedInit( 3, 0xffffffff );
   for ( char const * const name : { "contextLearnAllowedEnable", "learningFixedKeyEnable" } ) {
      expectedInit[bit( init, name ) / 32u] &= ~( 1u << bit( init, name ) % 32 );
   }
   Words expectedRes( 2, 0xffffffff );
   expectedRes[bit( res, "learnInfoResolutionEnable" ) / 32u] &=
      ~( 1u << bit( res, "learnInfoResolutionEnable" ) % 32 );
   EXPECT_EQ( words( init, { .entry = 45 } ), expectedInit );
   EXPECT_EQ( words( res, { .entry = 45 } ), expectedRes );
}

TEST_F( LearningTest, goesContextByContextInTheOrderOfTheList ) {
   chipIs( b0 );
   TraceListener const traces( "DaceFapNiL3Sm", 4 );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 38 }, ctx_fwd1{ 36 } }, b0, FapId( 0 ), true, false );
   EXPECT_EQ( operations(),
              ( std::vector< std::string >{ "read FlpaInitContextEnablers 0/0/12",
                                            "write FlpaInitContextEnablers 0/0/12",
                                            "read FlpaResContextEnablers 0/0/12",
                                            "write FlpaResContextEnablers 0/0/12",
                                            "read FlpaInitContextEnablers 0/0/45",
                                            "write FlpaInitContextEnablers 0/0/45",
                                            "read FlpaResContextEnablers 0/0/45",
                                            "write FlpaResContextEnablers 0/0/45" } ) );
   EXPECT_EQ( traces.records(),
              ( std::vector< std::string >{
                 "DaceFapNiL3Sm/4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 12 as: true",
                 "DaceFapNiL3Sm/4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 45 as: true" } ) );
}

TEST_F( LearningTest, reportsContextsThatTheChipLacksAndSkipsThem ) {
   // BCM88480_A0 lacks 37, 39 and 51; it has 38 as number 4.
   chipIs( ChipType::BCM88480_A0 );
   TraceListener const traces( "DaceFapNiL3Sm", 4 );
   Rex::RingTrace::clear();
   setLearningForUrpfOrFlpa(
      { ctx_fwd1{ 39 }, ctx_fwd1{ 38 }, ctx_fwd1{ 37 } }, ChipType::BCM88480_A0, FapId( 0 ), true, false );
   EXPECT_EQ( operations().size(), 4u );
   EXPECT_EQ( operations().front(), "read FlpaInitContextEnablers 0/0/4" );
   std::string const lacks = "setLearningForUrpfOrFlpa fwd1Context does not exist, try changing the name: 0";
   EXPECT_EQ( traces.records(),
              ( std::vector< std::string >{
                 "DaceFapNiL3Sm/4 " + lacks,
                 "DaceFapNiL3Sm/4 " + lacks,
                 "DaceFapNiL3Sm/4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 4 as: true" } ) );
   ASSERT_EQ( Rex::RingTrace::records().size(), 2u );
   EXPECT_EQ( Rex::RingTrace::records()[0].text, lacks );
}

TEST_F( LearningTest, writesNothingWhereNoContextExists ) {
   chipIs( ChipType::BCM88480_A0 );
   setLearningForUrpfOrFlpa( { ctx_fwd1{ 37 }, ctx_fwd1{ 51 } }, ChipType::BCM88480_A0, FapId( 0 ), true, true );
   setLearningForUrpfOrFlpa( {}, ChipType::BCM88480_A0, FapId( 0 ), true, true );
   EXPECT_TRUE( operations().empty() );
}

} // namespace
