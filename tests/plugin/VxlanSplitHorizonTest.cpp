#include "DaceL3Unicast/DaceFapNiPlugin/VxlanSplitHorizonSm.h"

#include "OverlayTest.h"
#include "rex/Gate.h"

#include <rapidcheck.h>

using namespace DaceFapNi;
using Netka::IntfId;

namespace {

// The registers by what decides on them.
struct State {
   bool vxlan;
   bool dci;
   bool bridging;
   U64 erpp;
   U64 etpp;
};

constexpr State states[] = {
   { false, false, false, 0x8040201000040c08, 0x80402010f9040c08 },
   { true, false, false, 0x4042201000040c08, 0x4042201039040c08 },
   { true, false, true, 0x6042001000040c08, 0x6042001019040c08 },
   { false, true, false, 0x8c00a2c600040e08, 0x8c00a2c6e9040e08 },
   { true, true, false, 0xcc42a2c600040e08, 0xcc42a2c629040e08 },
   { true, true, true, 0xec4282c600040e08, 0xec4282c609040e08 },
};

// With "CampusVtepToVtepBridgingGen4" off.
constexpr State statesWithoutGen4[] = {
   { false, false, false, 0x8040201000040c08, 0x80402010f9040c08 },
   { true, false, false, 0x4042201000040c08, 0x4042201039040c08 },
   { true, false, true, 0x4042201000040c08, 0x4042201039040c08 },
   { false, true, false, 0x8c00a2c600040e08, 0x8c00a2c6e9040e08 },
   { true, true, false, 0xcc42a2c600040e08, 0xcc42a2c629040e08 },
   { true, true, true, 0xcc42a2c600040e08, 0xcc42a2c629040e08 },
};

// With "DaceVxlanMplsDciMhDchVxlanPfd" off: bit 9 stays clear.
constexpr State statesWithoutPfd[] = {
   { false, false, false, 0x8040201000040c08, 0x80402010f9040c08 },
   { true, false, false, 0x4042201000040c08, 0x4042201039040c08 },
   { true, false, true, 0x6042001000040c08, 0x6042001019040c08 },
   { false, true, false, 0x8c00a2c600040c08, 0x8c00a2c6e9040c08 },
   { true, true, false, 0xcc42a2c600040c08, 0xcc42a2c629040c08 },
   { true, true, true, 0xec4282c600040c08, 0xec4282c609040c08 },
};

// With both off.
constexpr State statesWithoutBoth[] = {
   { false, false, false, 0x8040201000040c08, 0x80402010f9040c08 },
   { true, false, true, 0x4042201000040c08, 0x4042201039040c08 },
   { false, true, false, 0x8c00a2c600040c08, 0x8c00a2c6e9040c08 },
   { true, true, true, 0xcc42a2c600040c08, 0xcc42a2c629040c08 },
};

class VxlanSplitHorizonTest : public OverlayTest {
 public:
   Corvo::Ptr< Vxlan::VtiStatusDir > dir = Corvo::makePtr< Vxlan::VtiStatusDir >();
   Corvo::Ptr< Evpn::EvpnStatus > evpn = Corvo::makePtr< Evpn::EvpnStatus >();
   Corvo::Ptr< VxlanSplitHorizonCfgSm > sm;

   void build() {
      sm = vxlanSplitHorizonCfgSmFactory( dir, evpn, sw().cellStatus() );
      sm->hasNotificationActiveIs( true );
   }
   // Builds it, and forgets what that wrote.
   void running() {
      oneFapOfEachKind();
      build();
      writes();
   }
   Corvo::Ptr< Vxlan::VtiStatus > vtiIs( char const * name ) const {
      auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( IntfId( name ) );
      dir->vtiStatusIs( vti );
      return vti;
   }
   U64 erpp( U16 number = 0 ) const {
      return field( "ErppCfgSplitHorizonFilter", {}, "cfgSplitHorizonFilter", 0, FapId( number ) );
   }
   U64 etpp( U16 number = 0 ) const {
      return field( "EtppCfgSplitHorizonFilter", {}, "cfgSplitHorizonFilter", 0, FapId( number ) );
   }

   // Puts the switch from state to state, whatever it was in before, and looks at every chip.
   void expectStates( std::span< State const > expected ) {
      running();
      IntfId const vxlan1( "Vxlan1" );
      for ( auto const & state : expected ) {
         evpn->evpnDciEnabledIs( state.dci );
         if ( !state.vxlan ) {
            dir->vtiStatusDel( vxlan1 );
         } else if ( !dir->vtiStatusHas( vxlan1 ) ) {
            vtiIs( "Vxlan1" );
         }
         if ( state.vxlan ) {
            dir->vtiStatus( vxlan1 )->vtepToVtepBridgingIs( state.bridging );
         }
         for ( U16 number = 0; number < fapCount; ++number ) {
            EXPECT_EQ( erpp( number ), state.erpp ) << state.vxlan << state.dci << state.bridging;
            EXPECT_EQ( etpp( number ), state.etpp ) << state.vxlan << state.dci << state.bridging;
         }
      }
   }
};

// One reload, as the journal shows it.
Strings reload( char const * erpp, char const * etpp ) {
   Strings all;
   for ( std::string const fap : { "0", "1", "2", "3", "4", "5" } ) {
      all.push_back( fap + " EtppCfgSplitHorizonFilter 0/0 = " + etpp );
      all.push_back( fap + " ErppCfgSplitHorizonFilter 0/0 = " + erpp );
   }
   return all;
}

Strings const nothing = reload( "0x8040201000040c08", "0x80402010f9040c08" );
Strings const vxlan = reload( "0x4042201000040c08", "0x4042201039040c08" );
Strings const vxlanBridging = reload( "0x6042001000040c08", "0x6042001019040c08" );
Strings const vxlanDci = reload( "0xcc42a2c600040e08", "0xcc42a2c629040e08" );

Strings twice( Strings const & one ) {
   Strings two = one;
   two.insert( two.end(), one.begin(), one.end() );
   return two;
}

TEST_F( VxlanSplitHorizonTest, registersFollowVxlanDciAndBridging ) {
   expectStates( states );
}

TEST_F( VxlanSplitHorizonTest, bridgingHasNoEffectWithoutItsToggle ) {
   toggleIs( "Dace.json", "CampusVtepToVtepBridgingGen4", false );
   expectStates( statesWithoutGen4 );
}

TEST_F( VxlanSplitHorizonTest, oneToOneStaysOpenWithoutItsToggle ) {
   toggleIs( "DaceToggles.json", "DaceVxlanMplsDciMhDchVxlanPfd", false );
   expectStates( statesWithoutPfd );
}

TEST_F( VxlanSplitHorizonTest, theTogglesAreIndependent ) {
   toggleIs( "Dace.json", "CampusVtepToVtepBridgingGen4", false );
   toggleIs( "DaceToggles.json", "DaceVxlanMplsDciMhDchVxlanPfd", false );
   expectStates( statesWithoutBoth );
}

TEST_F( VxlanSplitHorizonTest, startReloadsOnceAndThenForEachVti ) {
   oneFapOfEachKind();
   vtiIs( "Vxlan1" );
   sm = vxlanSplitHorizonCfgSmFactory( dir, evpn, sw().cellStatus() );
   EXPECT_EQ( writes(), twice( vxlan ) );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( writes(), Strings{} );
   EXPECT_TRUE( sm->vtiStatusHas( IntfId( "Vxlan1" ) ) );
}

TEST_F( VxlanSplitHorizonTest, startWithoutAVtiReloadsOnce ) {
   oneFapOfEachKind();
   sm = vxlanSplitHorizonCfgSmFactory( dir, evpn, sw().cellStatus() );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( writes(), nothing );
}

TEST_F( VxlanSplitHorizonTest, aNewVtiReloadsOnceEtppFirstOnEachFap ) {
   running();
   vtiIs( "Vxlan1" );
   EXPECT_EQ( writes(), vxlan );
   vtiIs( "Vxlan2" ); // the value stays the same
   EXPECT_EQ( writes(), vxlan );
}

TEST_F( VxlanSplitHorizonTest, anotherObjectForTheSameVtiReloadsOnceAndIsFollowed ) {
   running();
   auto const old = vtiIs( "Vxlan1" );
   writes();
   auto const other = vtiIs( "Vxlan1" );
   EXPECT_EQ( writes(), vxlan );
   old->vtepToVtepBridgingIs( true );
   EXPECT_EQ( writes(), Strings{} );
   other->vtepToVtepBridgingIs( true );
   EXPECT_EQ( writes(), vxlanBridging );
}

TEST_F( VxlanSplitHorizonTest, aVtiThatGoesReloadsOnceByTheDirectoryAsItStands ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   vti->vtepToVtepBridgingIs( true );
   vtiIs( "Vxlan2" );
   writes();
   dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_EQ( writes(), vxlan );
   dir->vtiStatusDel( IntfId( "Vxlan2" ) );
   EXPECT_EQ( writes(), nothing );
   vti->vtepToVtepBridgingIs( false );
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanSplitHorizonTest, bridgingOfAnyVtiCounts ) {
   running();
   vtiIs( "Vxlan1" );
   vtiIs( "Vxlan2" )->vtepToVtepBridgingIs( true );
   writes();
   dir->vtiStatus( IntfId( "Vxlan1" ) )->vtepToVtepBridgingIs( true );
   EXPECT_EQ( writes(), vxlanBridging );
   dir->vtiStatus( IntfId( "Vxlan2" ) )->vtepToVtepBridgingIs( false );
   EXPECT_EQ( writes(), vxlanBridging );
   dir->vtiStatus( IntfId( "Vxlan1" ) )->vtepToVtepBridgingIs( false );
   EXPECT_EQ( writes(), vxlan );
}

TEST_F( VxlanSplitHorizonTest, otherAttributesDontReload ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   writes();
   vti->udpPortIs( 4789 );
   vti->secUdpPortIs( 4790 );
   vti->remoteVxlanDomainIs( true );
   dir->decapRouteAllIs( true );
   evpn->vxlanEnabledIs( true );
   evpn->mplsEnabledIs( true );
   EXPECT_EQ( writes(), Strings{} );
   evpn->evpnDciEnabledIs( true );
   EXPECT_EQ( writes(), vxlanDci );
}

TEST_F( VxlanSplitHorizonTest, removingAllReactorsReloadsForEach ) {
   running();
   vtiIs( "Vxlan1" );
   vtiIs( "Vxlan2" );
   writes();
   sm->vtiStatusDelAll();
   EXPECT_EQ( writes(), twice( vxlan ) ); // the directory still has both
   EXPECT_FALSE( sm->vtiStatusHas( IntfId( "Vxlan1" ) ) );
   EXPECT_FALSE( sm->vtiStatusDel( IntfId( "Vxlan1" ) ) );
}

TEST_F( VxlanSplitHorizonTest, aVtiThatIsNoneThrows ) {
   running();
   EXPECT_THROW( sm->vtiStatusIs( nullptr ), Rex::MutatorArgNullPointerException );
}

TEST_F( VxlanSplitHorizonTest, becomingAZombieReloadsForEachVtiAndThenNoAttributeDoes ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   writes();
   sm->rexDoZombieReactors( true );
   EXPECT_EQ( writes(), vxlan );
   sm->rexDoZombieReactors( true );
   evpn->evpnDciEnabledIs( true );
   vti->vtepToVtepBridgingIs( true );
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanSplitHorizonTest, wakingFromZombieReloadsForEachVtiAsWell ) {
   running();
   vtiIs( "Vxlan1" );
   auto const vti = vtiIs( "Vxlan2" );
   sm->rexDoZombieReactors( true );
   writes();
   sm->rexDoZombieReactors( false );
   EXPECT_EQ( writes(), twice( vxlan ) );
   vti->vtepToVtepBridgingIs( true ); // and hears again
   EXPECT_FALSE( writes().empty() );
}

// Why a register hasn't the bits that somebody expects.
TEST_F( VxlanSplitHorizonTest, tellsWhichTogglesKeepBitsAway ) {
   struct Gates : Rex::GateListener {
      std::set< std::string > reasons;
      Rex::GateListener * before = Rex::gateListener();
      Gates() { Rex::gateListenerIs( this ); }
      ~Gates() override { Rex::gateListenerIs( before ); }
      void gateClosed( Rex::ClosedGate const & gate ) override { reasons.emplace( gate.reason ); }
   };
   toggleIs( "Dace.json", "CampusVtepToVtepBridgingGen4", false );
   toggleIs( "DaceToggles.json", "DaceVxlanMplsDciMhDchVxlanPfd", false );
   running();
   Gates const gates;
   vtiIs( "Vxlan1" )->vtepToVtepBridgingIs( true );
   EXPECT_EQ( gates.reasons, std::set< std::string >{ "the toggle CampusVtepToVtepBridgingGen4 is off" } );
   evpn->evpnDciEnabledIs( true );
   EXPECT_EQ( gates.reasons,
              ( std::set< std::string >{ "the toggle CampusVtepToVtepBridgingGen4 is off",
                                         "the toggle DaceVxlanMplsDciMhDchVxlanPfd is off" } ) );
}

TEST_F( VxlanSplitHorizonTest, aReactorIsAZombieBeforeItReloads ) {
   running();
   auto const reactor = sm->vtiStatusIs( vtiIs( "Vxlan1" ) );
   bool whenTold = false;
   TraceListener const log( "DaceFapNiL3Vxlan", 9, [&] { whenTold = reactor->isZombie(); } );
   reactor->rexDoZombieReactors( true );
   EXPECT_TRUE( whenTold );
}

TEST_F( VxlanSplitHorizonTest, aRemovedVtiIsSilentThoughItWasAZombie ) {
   running();
   auto const reactor = sm->vtiStatusIs( vtiIs( "Vxlan1" ) );
   reactor->markAndSweepFlagSet( true ); // with its notifications on
   sm->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_FALSE( reactor->hasNotificationActive() );
   writes();
   reactor->rexDoZombieReactors( false ); // nobody is there to reload
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanSplitHorizonTest, reloadsForAnotherVtiWhereThereIsOneAndTheReactorIsAwake ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   auto const other = Corvo::makePtr< Vxlan::VtiStatus >( IntfId( "Vxlan1" ) );
   auto const reactor = sm->vtiStatusIs( vti );
   writes();
   reactor->notifierIs( other );
   EXPECT_EQ( writes(), vxlan );
   reactor->notifierIs( nullptr );
   EXPECT_EQ( writes(), Strings{} );
   reactor->rexDoZombieReactors( true );
   writes();
   reactor->notifierIs( vti );
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanSplitHorizonTest, doesNotReloadForAVtiThatIsAZombieAlready ) {
   running();
   auto const reactor = sm->vtiStatusIs( vtiIs( "Vxlan1" ) );
   writes();
   reactor->rexDoZombieReactors( true );
   EXPECT_EQ( writes(), vxlan );
   reactor->rexDoZombieReactors( true );
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VxlanSplitHorizonTest, catchesUpWithTheDirectoryWhenItsNotificationsAreTurnedOn ) {
   running();
   vtiIs( "Vxlan1" );
   sm->hasNotificationActiveIs( false );
   writes();
   dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   vtiIs( "Vxlan2" )->vtepToVtepBridgingIs( true );
   EXPECT_EQ( writes(), Strings{} );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( writes(), twice( vxlanBridging ) ); // one goes, one comes
   dir->vtiStatus( IntfId( "Vxlan2" ) )->vtepToVtepBridgingIs( false );
   EXPECT_EQ( writes(), vxlan );
}

TEST_F( VxlanSplitHorizonTest, leavesTheChipsAsTheyAreWhenItGoes ) {
   oneFapOfEachKind();
   auto const nodes = Corvo::Node::liveCount();
   build();
   auto vti = vtiIs( "Vxlan1" );
   sm->hasNotificationActiveIs( false );
   writes();
   vti->vtepToVtepBridgingIs( true ); // nobody listens any more
   sm = nullptr;
   EXPECT_EQ( writes(), Strings{} );
   EXPECT_EQ( erpp(), 0x4042201000040c08u );
   dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   vti = nullptr;
   EXPECT_EQ( Corvo::Node::liveCount(), nodes );
}

TEST_F( VxlanSplitHorizonTest, anInputThatIsNotMountedEndsTheProcess ) {
   oneFapOfEachKind();
   EXPECT_DEATH( vxlanSplitHorizonCfgSmFactory( nullptr, evpn, sw().cellStatus() ), "ptr != nullptr" );
   EXPECT_DEATH( vxlanSplitHorizonCfgSmFactory( dir, nullptr, sw().cellStatus() ), "ptr != nullptr" );
}

TEST_F( VxlanSplitHorizonTest, tracesWhatItDoes ) {
   running();
   TraceListener const log( "DaceFapNiL3Vxlan", 9 );
   Rex::RingTrace::clear();
   evpn->evpnDciEnabledIs( true );
   EXPECT_EQ( log.records().size(), 3u + 6u );
   EXPECT_EQ(
      firstRecords( log, 4 ),
      ( Strings{
         "DaceFapNiL3Vxlan/9 VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg VXLAN configured: false DCI configured: "
         "true",
         "DaceFapNiL3Vxlan/9 VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg new ERPP register value: "
         "10088242136597401096",
         "DaceFapNiL3Vxlan/9 VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg new ETPP register value: "
         "10088242140506492424",
         "DaceFapNiL3Vxlan/9 VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg program split horizon registers on fap "
         "Fap0" } ) );
   ASSERT_EQ( Rex::RingTrace::records().size(), 1u );
   EXPECT_EQ( Rex::RingTrace::records()[0].text,
              "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg VXLAN configured: false DCI configured: true" );
}

// Whatever happened, in whatever order: the registers are those of the state, ETPP filters all that ERPP does, and
// nothing else on the chips was touched.
TEST_F( VxlanSplitHorizonTest, registersAreThoseOfTheStateAndNothingElseIsTouched ) {
   running();
   EXPECT_TRUE( rc::check( [&] {
      auto const steps = *rc::gen::container< std::vector< std::tuple< int, int, bool > > >(
         rc::gen::tuple( rc::gen::inRange( 0, 4 ), rc::gen::inRange( 1, 4 ), rc::gen::arbitrary< bool >() ) );
      for ( auto const & [kind, which, value] : steps ) {
         IntfId const intfId( "Vxlan" + std::to_string( which ) );
         if ( kind == 0 ) {
            vtiIs( intfId.stringValue().c_str() );
         } else if ( kind == 1 ) {
            dir->vtiStatusDel( intfId );
         } else if ( kind == 2 ) {
            evpn->evpnDciEnabledIs( value );
         } else if ( auto const vti = dir->vtiStatus( intfId ) ) {
            vti->vtepToVtepBridgingIs( value );
         }
      }
      bool configured = false;
      bool bridging = false;
      for ( int const which : { 1, 2, 3 } ) {
         if ( auto const vti = dir->vtiStatus( IntfId( "Vxlan" + std::to_string( which ) ) ) ) {
            configured = true;
            bridging = bridging || vti->vtepToVtepBridging();
         }
      }
      auto const state = std::ranges::find_if( states, [&]( State const & each ) {
         return each.vxlan == configured && each.dci == evpn->evpnDciEnabled() && each.bridging == bridging;
      } );
      for ( U16 number = 0; number < fapCount; ++number ) {
         RC_ASSERT( erpp( number ) == state->erpp );
         RC_ASSERT( etpp( number ) == state->etpp );
         RC_ASSERT( ( etpp( number ) & erpp( number ) ) == erpp( number ) );
      }
   } ) );
   EXPECT_EQ( changedPlacesOfAll(),
              ( std::set< std::string >{ "ErppCfgSplitHorizonFilter 0/0/0", "EtppCfgSplitHorizonFilter 0/0/0" } ) );
}

} // namespace
