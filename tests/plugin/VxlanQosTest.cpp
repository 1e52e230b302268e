#include "DaceL3Unicast/DaceFapNiPlugin/VxlanQosSm.h"

#include "OverlayTest.h"

#include <rapidcheck.h>

using namespace DaceFapNi;

namespace {

constexpr char cam[] = "EtppcEncapsulation2ContextSelectionCam";
constexpr int entries = 68;

// The programs of each chip, in the order of the chips' numbers: 2 x context + 1.
struct Programs {
   U64 bridge;
   U64 bridgeQos;
   U64 ipv6Bridge;
   U64 ipv6BridgeQos;
   U64 nop; // the context that the first encapsulation leaves when it does nothing
};
constexpr Programs programsOf[] = {
   // clang-format off
   { 63,  55, 125,  91, 10 }, // BCM88690_B0
   { 33,  63, 111, 113,  4 }, // BCM88800_A0
   { 55,  97,  25, 103, 37 }, // BCM88850_A0
   { 81,  41,  29, 101,  1 }, // BCM88859_A2
   { 57, 127,  43,  77,  5 }, // BCM88480_A0
   { 53,  81, 125,  35, 57 }, // BCM88480_B0
   // clang-format on
};

class VxlanQosTest : public OverlayTest {
 public:
   Corvo::Ptr< Vxlan::EcnConfig > ecnConfig = Corvo::makePtr< Vxlan::EcnConfig >();
   Corvo::Ptr< VxlanQosSm > sm;

   void SetUp() override { oneFapOfEachKind(); }
   void build() {
      sm = vxlanQosSmFactory( ecnConfig, sw().cellStatus() );
      sm->hasNotificationActiveIs( true );
   }
   U64 program( U16 number, int entry ) const {
      return field( cam, { .entry = entry }, "program", 0, FapId( number ) );
   }

   // Whether an entry is for the NOP context: profile 0 on the chips that profile the context.
   bool isNop( U16 number, int entry ) const {
      Place const place{ .entry = entry };
      return hasProfile( number ) ? field( cam, place, "currentContextProfile", 0, FapId( number ) ) == 0
                                  : field( cam, place, "currentContext", 0, FapId( number ) ) == programsOf[number].nop;
   }
   static bool hasProfile( U16 number ) { return number == 2 || number == 3; } // BCM88850_A0, BCM88859_A2
   // The entries of a FAP that have each of the four programs.
   std::map< U64, std::vector< int > > entriesByProgram( U16 number ) const {
      auto const & programs = programsOf[number];
      std::map< U64, std::vector< int > > all;
      for ( int entry = 0; entry < entries; ++entry ) {
         U64 const it = program( number, entry );
         if ( it == programs.bridge || it == programs.bridgeQos || it == programs.ipv6Bridge ||
              it == programs.ipv6BridgeQos ) {
            all[it].push_back( entry );
         }
      }
      return all;
   }
   // The entries written since the last call, on one FAP.
   std::vector< int > written( U16 number ) {
      std::vector< int > all;
      for ( auto const & row : writes( number ) ) {
         int entry = -1;
         EXPECT_EQ( std::sscanf( row.c_str(), "%*d EtppcEncapsulation2ContextSelectionCam 0/0/%d", &entry ), 1 ) << row;
         all.push_back( entry );
      }
      return all;
   }
};

TEST_F( VxlanQosTest, bootImageHasEveryProgramWithAndWithoutTheNopContextOnEveryChip ) {
   for ( U16 number = 0; number < fapCount; ++number ) {
      auto const & programs = programsOf[number];
      EXPECT_EQ( entriesByProgram( number ),
                 ( std::map< U64, std::vector< int > >{ { programs.bridge, { 5, 6, 40, 67 } },
                                                        { programs.ipv6Bridge, { 11, 12, 41 } },
                                                        { programs.bridgeQos, { 19, 20 } },
                                                        { programs.ipv6BridgeQos, { 27, 28 } } } ) );
      for ( auto const & [entry, afterNop] : std::map< int, bool >{ { 5, true },
                                                                    { 6, false },
                                                                    { 11, true },
                                                                    { 12, false },
                                                                    { 19, true },
                                                                    { 20, false },
                                                                    { 27, true },
                                                                    { 28, false } } ) {
         EXPECT_EQ( isNop( number, entry ), afterNop );
      }
   }
}

TEST_F( VxlanQosTest, startLeavesTheTableAsItIs ) {
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   build();
   EXPECT_TRUE( rows().empty() );
}

TEST_F( VxlanQosTest, turningOnMovesThePlainProgramsOfTheNopContextOnly ) {
   build();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   for ( U16 number = 0; number < fapCount; ++number ) {
      auto const & programs = programsOf[number];
      EXPECT_EQ( entriesByProgram( number ),
                 ( std::map< U64, std::vector< int > >{ { programs.bridge, { 6 } },
                                                        { programs.ipv6Bridge, { 12 } },
                                                        { programs.bridgeQos, { 5, 19, 20, 40, 67 } },
                                                        { programs.ipv6BridgeQos, { 11, 27, 28, 41 } } } ) );
   }
   EXPECT_EQ( written( 3 ), ( std::vector< int >{ 5, 11, 40, 41, 67 } ) );
}

TEST_F( VxlanQosTest, turningOffTakesBackEveryQosProgram ) {
   build();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   writes();
   ecnConfig->dscpEcnRewriteBridgedIs( false );
   for ( U16 number = 0; number < fapCount; ++number ) {
      auto const & programs = programsOf[number];
      EXPECT_EQ( entriesByProgram( number ),
                 ( std::map< U64, std::vector< int > >{ { programs.bridge, { 5, 6, 19, 20, 40, 67 } },
                                                        { programs.ipv6Bridge, { 11, 12, 27, 28, 41 } } } ) );
   }
   EXPECT_EQ( written( 0 ), ( std::vector< int >{ 5, 11, 19, 20, 27, 28, 40, 41, 67 } ) );
}

TEST_F( VxlanQosTest, walksEveryEntryOfEveryFapInOrder ) {
   build();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   std::vector< std::pair< int, int > > reads;
   for ( auto const & row : rows() ) {
      if ( row.kind == Simulator::Row::Kind::read ) {
         reads.emplace_back( row.fap, static_cast< int >( *row.entry ) );
      }
   }
   ASSERT_EQ( reads.size(), 6u * 68u );
   EXPECT_TRUE( std::ranges::is_sorted( reads ) );
   EXPECT_EQ( operations()[5], "read EtppcEncapsulation2ContextSelectionCam 0/0/5" );
   EXPECT_EQ( operations()[6], "write EtppcEncapsulation2ContextSelectionCam 0/0/5" );
}

TEST_F( VxlanQosTest, theSameValueAgainWritesNothing ) {
   build();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   writes();
   sm->handleBridgedQosPropagationEnabled();
   EXPECT_EQ( writes(), Strings{} );
   ecnConfig->dscpEcnRewriteBridgedIs( false );
   writes();
   sm->handleBridgedQosPropagationEnabled();
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanQosTest, nopIsProfile0OnChipsThatHaveOneAndTheContextElsewhere ) {
   for ( U16 number = 0; number < fapCount; ++number ) {
      bool const byProfile = hasProfile( number );
      EXPECT_EQ( layout( cam, {}, FapId( number ) ).field( "currentContextProfile" ) != nullptr, byProfile );
      EXPECT_EQ( layout( cam, {}, FapId( number ) ).field( "currentContext" ) != nullptr, !byProfile );
      auto const * const name = byProfile ? "currentContextProfile" : "currentContext";
      U64 const nop = byProfile ? 0 : programsOf[number].nop;
      fieldIs( cam, { .entry = 5 }, name, nop ^ 1, FapId( number ) );
      fieldIs( cam, { .entry = 6 }, name, nop, FapId( number ) );
   }
   build();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   for ( U16 number = 0; number < fapCount; ++number ) {
      EXPECT_EQ( program( number, 5 ), programsOf[number].bridge );
      EXPECT_EQ( program( number, 6 ), programsOf[number].bridgeQos );
   }
}

TEST_F( VxlanQosTest, theRevisionTellsWhetherTheChipProfilesTheContext ) {
   for ( auto const & [number, major] : std::map< U16, U32 >{ { 2, 8 }, { 3, 9 } } ) {
      Hardware::EtppcEncapsulation2ContextSelectionCam::WithStorage entry( chipType( FapId( number ) ) );
      Hardware::Dace::FapRevision const revision( major, chipType( FapId( number ) ), 7 );
      EXPECT_TRUE( VxlanQosSm::isCurrentContextNop( entry, revision ) );
      entry.currentContextProfileIs( 1 );
      EXPECT_FALSE( VxlanQosSm::isCurrentContextNop( entry, revision ) );
   }
   Hardware::EtppcEncapsulation2ContextSelectionCam::WithStorage entry( ChipType::BCM88690_B0 );
   Hardware::Dace::FapRevision const revision( 5, ChipType::BCM88690_B0, 7 );
   EXPECT_FALSE( VxlanQosSm::isCurrentContextNop( entry, revision ) );
   entry.currentContextIs( 10 );
   EXPECT_TRUE( VxlanQosSm::isCurrentContextNop( entry, revision ) );
}

TEST_F( VxlanQosTest, aZombieReactsToNothing ) {
   build();
   sm->rexDoZombieReactors( true );
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   EXPECT_TRUE( rows().empty() );
}

TEST_F( VxlanQosTest, hearsNothingWhileItsNotificationsAreOff ) {
   build();
   sm->hasNotificationActiveIs( false );
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   sm->hasNotificationActiveIs( true );
   EXPECT_TRUE( rows().empty() );
   ecnConfig->dscpEcnRewriteBridgedIs( false );
   EXPECT_EQ( written( 1 ), ( std::vector< int >{ 19, 20, 27, 28 } ) );
}

TEST_F( VxlanQosTest, leavesTheChipsAsTheyAreWhenItGoes ) {
   build();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   writes();
   sm = nullptr;
   ecnConfig->dscpEcnRewriteBridgedIs( false );
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanQosTest, tracesWhatItDoes ) {
   build();
   TraceListener const log( "DaceFapNiL3Vxlan", 9 );
   Rex::RingTrace::clear();
   ecnConfig->dscpEcnRewriteBridgedIs( true );
   EXPECT_EQ( log.records().size(), 1u + 6u );
   EXPECT_EQ( firstRecords( log, 2 ),
              ( Strings{ "DaceFapNiL3Vxlan/8 VxlanQosSm::handleBridgedQosPropagationEnabled "
                         "dscpEcnRewriteBridgedtrue",
                         "DaceFapNiL3Vxlan/8 VxlanQosSm::handleBridgedQosPropagationEnabled update ENCAP2 program "
                         "for VXLAN bridging on fap Fap0" } ) );
   ASSERT_EQ( Rex::RingTrace::records().size(), 1u );
   EXPECT_EQ( Rex::RingTrace::records()[0].text,
              "VxlanQosSm::handleBridgedQosPropagationEnabled dscpEcnRewriteBridgedtrue" );
}

// Of any table: only programs change, each as its own counterpart; after turning off there is no QoS program left, and
// turning on and off again changes nothing more.
TEST_F( VxlanQosTest, movesOnlyProgramsAndOnlyToTheirCounterparts ) {
   build();
   EXPECT_TRUE( rc::check( [&] {
      U16 const number = *rc::gen::inRange< U16 >( 0, fapCount );
      auto const & programs = programsOf[number];
      auto const & camLayout = layout( cam, {}, FapId( number ) );
      auto const & programField = *camLayout.field( "program" );
      std::map< int, Words > then;
      for ( int entry = 0; entry < entries; ++entry ) {
         auto words = *rc::gen::container< Words >( 2, rc::gen::arbitrary< U32 >() );
         auto const program = *rc::gen::element(
            programs.bridge, programs.bridgeQos, programs.ipv6Bridge, programs.ipv6BridgeQos, programs.bridge ^ 1 );
         Simulator::fieldBitsIs( words, programField, program );
         sw().chip( FapId( number ) ).fill( Simulator::addressOf( camLayout, 0, static_cast< U32 >( entry ) ), words );
         then[entry] = words;
      }
      ecnConfig->dscpEcnRewriteBridgedIs( false );
      sm->handleBridgedQosPropagationEnabled();
      std::map< U64, U64 > const plain{ { programs.bridgeQos, programs.bridge },
                                        { programs.ipv6BridgeQos, programs.ipv6Bridge } };
      for ( auto & [entry, words] : then ) {
         U64 const program = Simulator::fieldBits( words, programField );
         Simulator::fieldBitsIs( words, programField, plain.contains( program ) ? plain.at( program ) : program );
         RC_ASSERT( this->words( cam, { .entry = entry }, 0, FapId( number ) ) == words );
      }
      ecnConfig->dscpEcnRewriteBridgedIs( true );
      ecnConfig->dscpEcnRewriteBridgedIs( false );
      for ( auto const & [entry, words] : then ) {
         RC_ASSERT( this->words( cam, { .entry = entry }, 0, FapId( number ) ) == words );
      }
   } ) );
}

} // namespace
