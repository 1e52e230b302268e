// The database's mounts, the scheduler, the plug-in loader, and the machine that waits for the slice.
#include "agent/Mounter.h"
#include "state/Overlays.h"

#include <gtest/gtest.h>

namespace {

using Stordb::Mount;
using Stordb::MountStatus;

class Reports : public Stordb::Mounter {
 public:
   std::vector< MountStatus::Code > codes;
   std::function< void() > reaction;
   void doMountsComplete( MountStatus status, Corvo::Ptr< Stordb::EntityManager > const & ) override {
      codes.push_back( status.code );
      if ( reaction ) {
         reaction();
      }
   }
};
using Codes = std::vector< MountStatus::Code >;

struct Mounts : testing::Test {
   Corvo::Ptr< Orb::TaskScheduler > scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   Corvo::Ptr< Stordb::Database > database = Corvo::makePtr< Stordb::Database >();
   Corvo::Ptr< Stordb::EntityManager > manager = Corvo::makePtr< Stordb::EntityManager >( database, scheduler );
   Corvo::Ptr< Reports > mounter = Corvo::makePtr< Reports >();
   Corvo::Ptr< Evpn::EvpnStatus > status = Corvo::makePtr< Evpn::EvpnStatus >();

   Mounts() {
      database->entityIs( "evpn/status", status );
      database->pathIs( "vxlan/ecnConfig", "Vxlan::EcnConfig" );
   }
   static Mount request( std::string const & path, std::string const & type, std::string const & mode = "r" ) {
      Mount mount( path, type );
      mount.handleFlags( mode );
      return mount;
   }
   void mount( std::initializer_list< Mount > requests ) {
      auto const group = manager->getMountGroup( mounter );
      for ( auto const & each : requests ) {
         group->doMount( each );
      }
      group->doClose( false, "", 0 );
   }
};

TEST_F( Mounts, CompleteThroughTheScheduler ) {
   mount( { request( "evpn/status", "Evpn::EvpnStatus" ) } );
   EXPECT_EQ( mounter->codes, Codes{} );
   EXPECT_EQ( manager->getEntity( "evpn/status" ), nullptr );
   EXPECT_EQ( scheduler->runUntilIdle(), 1U );
   EXPECT_EQ( mounter->codes, Codes{ MountStatus::Code::success } );
   EXPECT_EQ( manager->getEntity( "evpn/status" ), status );
}

TEST_F( Mounts, OfAKnownPathWithoutAnEntitySucceedAndGiveNull ) {
   mount( { request( "vxlan/ecnConfig", "Vxlan::EcnConfig" ) } );
   scheduler->runUntilIdle();
   EXPECT_EQ( mounter->codes, Codes{ MountStatus::Code::success } );
   EXPECT_EQ( manager->getEntity( "vxlan/ecnConfig" ), nullptr );
}

TEST_F( Mounts, OfAnUnknownPathAreRefused ) {
   mount( { request( "evpn/statu", "Evpn::EvpnStatus" ) } );
   scheduler->runUntilIdle();
   EXPECT_EQ( mounter->codes, Codes{ MountStatus::Code::noSuchPath } );
}

TEST_F( Mounts, OfTheWrongTypeAreRefusedAlsoWhereNothingStands ) {
   mount( { request( "evpn/status", "Vxlan::EcnConfig" ) } );
   mount( { request( "vxlan/ecnConfig", "Evpn::EvpnStatus" ) } );
   scheduler->runUntilIdle();
   EXPECT_EQ( mounter->codes, ( Codes{ MountStatus::Code::wrongType, MountStatus::Code::wrongType } ) );
   EXPECT_EQ( manager->getEntity( "evpn/status" ), nullptr );
}

TEST_F( Mounts, TellTheFirstFailureAndCarryOutTheRest ) {
   mount( { request( "nowhere", "Evpn::EvpnStatus" ),
            request( "evpn/status", "Vxlan::EcnConfig" ),
            request( "evpn/status", "Evpn::EvpnStatus" ) } );
   scheduler->runUntilIdle();
   EXPECT_EQ( mounter->codes, Codes{ MountStatus::Code::noSuchPath } );
   EXPECT_EQ( manager->getEntity( "evpn/status" ), status );
   ASSERT_EQ( manager->requests().size(), 3U );
   EXPECT_EQ( manager->requests()[1].typeName(), "Vxlan::EcnConfig" );
}

TEST_F( Mounts, OfAMounterThatIsGoneAreNotReported ) {
   U32 const before = Corvo::Node::liveCount();
   mount( { request( "evpn/status", "Evpn::EvpnStatus" ) } );
   mounter = nullptr;
   EXPECT_EQ( Corvo::Node::liveCount(), before ); // without the mounter, with the group
   scheduler->runUntilIdle();
   EXPECT_EQ( Corvo::Node::liveCount(), before - 1 );
}

TEST_F( Mounts, ReportToAMounterThatGoesMeanwhile ) {
   mount( { request( "evpn/status", "Evpn::EvpnStatus" ) } );
   mounter->reaction = [&] { mounter = nullptr; };
   scheduler->runUntilIdle();
   EXPECT_FALSE( mounter );
}

TEST_F( Mounts, FlagsFollowTheLettersOfTheMode ) {
   using Flags = Stordb::AllMountFlags;
   EXPECT_EQ( request( "", "", "r" ).flags().val(), U32{ Flags::read } );
   EXPECT_EQ( request( "", "", "wf" ).flags().val(), U32{ Flags::read | Flags::write | Flags::first } );
   EXPECT_EQ( request( "", "", "ri" ).flags().val(), U32{ Flags::read | Flags::immediate } );
   EXPECT_EQ( request( "", "", "rD" ).flags().val(), U32{ Flags::read | Flags::deep } );
   EXPECT_DEATH( request( "", "", "x" ), "Assertion `mode' failed" );
}

TEST_F( Mounts, MayBeWrittenOnlyWithTheModeForIt ) {
   mount( { request( "evpn/status", "Evpn::EvpnStatus", "r" ) } );
   scheduler->runUntilIdle();
   EXPECT_DEATH( status->vxlanEnabledIs( true ), "Evpn::EvpnStatus  is mounted for reading" );
   mount( { request( "evpn/status", "Evpn::EvpnStatus", "w" ) } );
   mount( { request( "evpn/status", "Evpn::EvpnStatus", "r" ) } ); // takes nothing away
   scheduler->runUntilIdle();
   status->vxlanEnabledIs( true );
   EXPECT_TRUE( status->vxlanEnabled() );
}

TEST_F( Mounts, AreOverWithTheirManager ) {
   mount( { request( "evpn/status", "Evpn::EvpnStatus", "r" ) } );
   scheduler->runUntilIdle();
   manager = nullptr;
   EXPECT_FALSE( status->isWriteProtected() );
}

TEST_F( Mounts, PendingOnesGoWithWhatTheSchedulerDrops ) {
   U32 const before = Corvo::Node::liveCount();
   mount( { request( "evpn/status", "Evpn::EvpnStatus" ) } );
   EXPECT_EQ( Corvo::Node::liveCount(), before + 1 );
   scheduler->clear();
   EXPECT_EQ( Corvo::Node::liveCount(), before );
   EXPECT_EQ( mounter->codes, Codes{} );
}

TEST_F( Mounts, AfterCloseEndTheProcess ) {
   auto const group = manager->getMountGroup( mounter );
   group->doClose( false, "", 0 );
   EXPECT_DEATH( group->doMount( request( "evpn/status", "Evpn::EvpnStatus" ) ), "Assertion `isOpen' failed" );
   EXPECT_DEATH( group->doClose( false, "", 0 ), "Assertion `isOpen' failed" );
   scheduler->runUntilIdle(); // a report that is due holds its group
}

TEST_F( Mounts, DatabaseKnowsThePathOfWhatHangsBelow ) {
   auto const dir = Corvo::makePtr< Rex::Dir >();
   auto const input = Corvo::makePtr< Tunnel::Decap::ConfigInput >();
   auto const group = Corvo::makePtr< Tunnel::Decap::DecapGroup >( U16{ 6635 } );
   input->decapGroupIs( group );
   dir->entityIs( "bgp", input );
   EXPECT_EQ( database->pathOf( *group ), "" );
   database->entityIs( "routing/tunneldecap/input/dynamic", dir );
   EXPECT_EQ( database->pathOf( *group ), "routing/tunneldecap/input/dynamic/bgp/decapGroup/6635" );
   database->entityDel( "routing/tunneldecap/input/dynamic" );
   EXPECT_EQ( database->pathOf( *dir ), "" );
   ASSERT_NE( database->typeName( "routing/tunneldecap/input/dynamic" ), nullptr );
}

TEST( CellPath, NamesTheCell ) {
   EXPECT_EQ( Cell::path( "interface/status/subintf/local", 0 ), "cell/0/interface/status/subintf/local" );
}

TEST( TaskScheduler, RunsInTheOrderOfPostingAndWhatTasksPostAfterThem ) {
   auto const scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   std::string ran;
   scheduler->post( [&] {
      ran += "a";
      scheduler->post( [&] { ran += "c"; } );
   } );
   scheduler->post( [&] { ran += "b"; } );
   EXPECT_EQ( scheduler->pending(), 2U );
   EXPECT_TRUE( scheduler->runOne() );
   EXPECT_EQ( ran, "a" );
   EXPECT_EQ( scheduler->runUntilIdle(), 2U );
   EXPECT_EQ( ran, "abc" );
   EXPECT_FALSE( scheduler->runOne() );
}

TEST( TaskScheduler, ATaskThatThrowsIsDoneAndTheNextOneRuns ) {
   auto const scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   bool ran = false;
   scheduler->post( [] { throw std::runtime_error( "task" ); } );
   scheduler->post( [&] { ran = true; } );
   EXPECT_THROW( scheduler->runUntilIdle(), std::runtime_error );
   EXPECT_EQ( scheduler->runUntilIdle(), 1U );
   EXPECT_TRUE( ran );
}

TEST( TaskScheduler, DropsAlsoWhatIsPostedByWhatItDrops ) {
   auto const scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   struct Posting {
      Corvo::Ptr< Orb::TaskScheduler > scheduler;
      ~Posting() {
         scheduler->post( [] { FAIL(); } );
      }
   };
   scheduler->post( [posting = std::make_shared< Posting >( scheduler )] { FAIL(); } );
   scheduler->clear();
   EXPECT_EQ( scheduler->pending(), 0U );
}

TEST( TaskSchedulerDeath, RunsNoTaskFromWithinATask ) {
   auto const scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   scheduler->post( [&] {
      scheduler->post( [] {} );
      scheduler->runOne();
   } );
   EXPECT_DEATH( scheduler->runOne(), "Assertion `isIdle' failed" );
}

struct CountingMounter : DaceFapNi::MounterBase {
   int mounts = 0;
   std::string stages;
   CountingMounter() : MounterBase( "counting" ) {}
   void createPluginStatePhase1() override { stages += "1"; }
   void createPluginStatePhase2() override { stages += "2"; }
   void startPluginRunnabilitySm() override { stages += "3"; }
   void doMounts() override { ++mounts; }
   void doMountsComplete( MountStatus, Corvo::Ptr< Stordb::EntityManager > const & ) override {}
};

struct Runnability : testing::Test {
   Corvo::Ptr< DaceFapNi::SliceSmStateInfo > slice = Corvo::makePtr< DaceFapNi::SliceSmStateInfo >();
   Corvo::Ptr< CountingMounter > mounter = Corvo::makePtr< CountingMounter >();
   Corvo::Ptr< DaceFapNi::MounterRunnabilitySm > sm =
      DaceFapNi::MounterRunnabilitySm::MounterRunnabilitySmIs( slice, mounter.get() );
};

TEST_F( Runnability, MountsOnceWhenTheSliceReachesARunnableState ) {
   sm->hasNotificationActiveIs( true );
   sm->runnableStatesIs( { 31 } );
   sm->runnableStatesIs( { 19 } );
   slice->sliceStateIs( { 7 } );
   EXPECT_EQ( mounter->mounts, 0 );
   slice->sliceStateIs( { 19 } );
   EXPECT_EQ( mounter->mounts, 1 );
   slice->sliceStateIs( { 31 } );
   EXPECT_EQ( mounter->mounts, 1 );
}

TEST_F( Runnability, MountsAtOnceWhereTheSliceIsThereAlready ) {
   slice->sliceStateIs( { 31 } );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( mounter->mounts, 0 );
   sm->runnableStatesIs( { 31 } );
   EXPECT_EQ( mounter->mounts, 1 );
}

TEST_F( Runnability, LooksAtTheSliceAlsoWhenItIsTurnedOnLast ) {
   slice->sliceStateIs( { 19 } );
   sm->runnableStatesIs( { 19 } );
   EXPECT_EQ( mounter->mounts, 0 );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( mounter->mounts, 1 );
}

TEST_F( Runnability, HearsNothingWhenTurnedOffOrGone ) {
   sm->hasNotificationActiveIs( true );
   sm->runnableStatesIs( { 19 } );
   sm->hasNotificationActiveIs( false );
   slice->sliceStateIs( { 19 } );
   EXPECT_EQ( mounter->mounts, 0 );
   sm = nullptr;
   EXPECT_FALSE( slice->publisher()->hasSubscribers() );
}

TEST( MounterBase, RunsItsStagesInOrder ) {
   auto const mounter = Corvo::makePtr< CountingMounter >();
   mounter->init( Corvo::makePtr< Agent::MounterPlugin::MounterContext >( nullptr, nullptr ) );
   EXPECT_EQ( mounter->stages, "123" );
   EXPECT_EQ( mounter->name(), "counting" );
}

TEST( LocalSharedState, AMissingKeyAndAWrongTypeAreBothNull ) {
   auto const shared = Corvo::makePtr< Agent::MounterPlugin::LocalSharedState >();
   shared->readOnlyDb().set( "slice", Corvo::makePtr< DaceFapNi::SliceSmStateInfo >() );
   EXPECT_TRUE( shared->readOnly< DaceFapNi::SliceSmStateInfo >( "slice" ) );
   EXPECT_FALSE( shared->readOnly< DaceFapNi::PhySmStateInfo >( "slice" ) );
   EXPECT_FALSE( shared->readOnly< DaceFapNi::SliceSmStateInfo >( "slices" ) );
   EXPECT_FALSE( shared->writeAllowed< DaceFapNi::SliceSmStateInfo >( "slice" ) );
}

TEST( Loader, EntersPluginsNewestFirstAndReleasesThem ) {
   struct Context {};
   struct NotedPlugin : Plugin::PluginInitCaller< Context > {
      std::string name;
      std::string & notes;
      NotedPlugin( std::string name_, std::string & notes_ ) : name( std::move( name_ ) ), notes( notes_ ) {}
      void operator()( Context * context ) override { notes += context ? "+" + name : "?"; }
      void release() override { notes += "-" + name; }
   };
   std::string notes;
   NotedPlugin a( "a", notes );
   NotedPlugin b( "b", notes );
   Plugin::Loader< Context > loader( "first", "second" );
   loader.registerPlugin( loader.first(), "A", loader.second(), "", "", loader.initCallerAdd( a ) );
   loader.registerPlugin( loader.first(), "B", loader.second(), "", "", loader.initCallerAdd( b ) );
   Context context;
   loader.contextIs( &context );
   loader.initPlugins();
   loader.releasePlugins();
   EXPECT_EQ( notes, "+b+a-b-a" );
   EXPECT_EQ( loader.context(), nullptr );
   ASSERT_EQ( loader.registrations().size(), 2U );
   EXPECT_EQ( loader.registrations()[0].pluginName, "A" );
   EXPECT_EQ( loader.registrations()[0].loaderFirst, "first" );
   EXPECT_EQ( loader.registrations()[0].loaderSecond, "second" );
   loader.contextIs( &context );
   ( *loader.registrations()[0].caller )();
   EXPECT_EQ( notes, "+b+a-b-a+a" );
}

TEST( ChipInit, RunsEveryReadyCallbackInTheOrderOfRegistration ) {
   auto const dir = Corvo::makePtr< DaceFapNi::ChipInitConfigDir >();
   auto const fap = Corvo::makePtr< Hardware::Dace::Cell::FapStatus >( Hardware::Dace::FapId( 0 ) );
   std::string ran;
   for ( auto const * name : { "b", "a", "c", "d" } ) {
      auto const entry = dir->addChipInitConfig( name );
      entry->callbackIs( [&, name, entry = entry.get()]( auto const & status, auto const &, auto const & ) {
         EXPECT_EQ( status, fap );
         ran += name;
         entry->callbackIs( nullptr ); // replaced while it runs
      } );
      entry->readyIs( name != std::string( "c" ) );
   }
   dir->addChipInitConfig( "e" )->readyIs( true ); // no callback yet
   dir->initChip( fap );
   EXPECT_EQ( ran, "bad" );
}

} // namespace
