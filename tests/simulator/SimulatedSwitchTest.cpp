#include "simulator/SimulatedSwitch.h"

#include "simulator/ChipContents.h"

#include <gtest/gtest.h>

using namespace Simulator;
using Hardware::ChipType;
using Hardware::Dace::FapId;
using Object = Rex::Value::Object;

namespace {

SwitchDescription twoFaps() {
   return { .sliceName = "Linecard3",
            .faps = { { .fapId = FapId( 10 ), .cores = 2, .revision = { 8, ChipType::BCM88850_A0, 7 } },
                      { .fapId = FapId( 2 ),
                        .name = "Fap3/2",
                        .ports = { { 1, 10 }, { 2, 11 } },
                        .revision = { 5, ChipType::BCM88690_B0, 7 } } } };
}

// A plug-in that writes down what the agent does with it. It stands for the whole life of the process, as libraries do.
class RecordingPlugin {
 public:
   using Context = Agent::MounterPlugin::MounterContext;
   using Log = std::vector< std::string >;

   class Mounter : public DaceFapNi::MounterBase {
    public:
      Mounter( Log & log, bool mountsAll )
         : DaceFapNi::MounterBase( "recorder" ), log_( log ), mountsAll_( mountsAll ) {}
      void createPluginStatePhase2() override {
         log_.push_back( "phase 2" );
         auto const dir = localSharedState()->writeAllowed< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" );
         auto const entry = dir->addChipInitConfig( "Recorder" );
         entry->callbackIs( [this, shared = localSharedState()]( auto const & fapStatus, auto const &, auto const & ) {
            log_.push_back( "chip init " + fapStatus->fapName() );
            DaceSal::switchControlSalFactory(
               shared->template readOnly< DaceFapNi::AgentSdkState >( "agentSdkState" )->sdkHandle(), nullptr )
               ->switchControlSet( fapStatus->fapId().value(), 64, 7, 0 );
         } );
         entry->readyIs( true );
      }
      void startPluginRunnabilitySm() override {
         log_.push_back( "runnability" );
         auto const slice = localSharedState()->readOnly< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" );
         runnabilitySm_ = DaceFapNi::MounterRunnabilitySm::MounterRunnabilitySmIs( slice, this );
         runnabilitySm_->hasNotificationActiveIs( true );
         runnabilitySm_->runnableStatesIs( DaceFapNi::SliceState{ 31 } );
      }
      void doMounts() override {
         log_.push_back( "mounts" );
         auto const group = entityManager()->getMountGroup( Corvo::Ptr< Stordb::Mounter >( this ) );
         for ( auto const & [path, type] : std::map< std::string, std::string >{
                  { "evpn/status", "Evpn::EvpnStatus" },
                  { "routing/hardware/config", "Routing::Hardware::Config" },
                  { Cell::path( "interface/status/subintf/local", 0 ), "Interface::SubIntfStatusLocalDir" },
                  { "interface/status/eth/vxlan", "Vxlan::VtiStatusDir" } } ) {
            Stordb::Mount mount( path, type );
            mount.handleFlags( "r" );
            group->doMount( mount );
         }
         if ( mountsAll_ ) {
            group->doClose( false, "", 0 );
         }
      }
      void doMountsComplete( Stordb::MountStatus status,
                             Corvo::Ptr< Stordb::EntityManager > const & manager ) override {
         log_.push_back( status == Stordb::mountSuccess() ? "mounted" : "not mounted" );
         evpn_ = Corvo::ptrCast< Evpn::EvpnStatus const >( manager->getEntity( "evpn/status" ) );
         if ( evpn_ ) {
            slot_.dispatchIs( dispatch, this );
            evpn_->publisher()->subscriberAdd( slot_, false );
         }
         control( 65, 1 );
      }
      ~Mounter() override { log_.push_back( "gone" ); }

    private:
      void control( U32 number, U32 value ) const {
         DaceSal::switchControlSalFactory( DaceSal::schanDriver(), nullptr )->switchControlSet( 2, number, value, 0 );
      }
      static void
      dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
         auto * const self = slot->owner< Mounter >();
         self->log_.push_back( "attribute " + std::to_string( attribute ) );
         self->control( 66, self->evpn_->evpnDciEnabled() );
         // Work that is put off belongs to the event that set it off.
         Corvo::Ptr< Mounter > const alive = self;
         self->localSharedState()
            ->writeAllowed< DaceFapNi::TaskScheduler >( "agentScheduler" )
            ->taskScheduler()
            ->post( [alive] { alive->control( 67, alive->evpn_->evpnDciEnabled() ); } );
      }

      Log & log_;
      bool mountsAll_;
      Corvo::Ptr< DaceFapNi::MounterRunnabilitySm > runnabilitySm_;
      Corvo::Ptr< Evpn::EvpnStatus const > evpn_;
      Corvo::Subscriber slot_;
   };

   struct PluginObject : Agent::MounterPlugin::PluginBase< Context > {
      void init( Context * context ) override {
         mounter = Corvo::makePtr< Mounter >( log, mountsAll );
         mounter->init( context );
      }
      void release() override { mounter = nullptr; }
      PluginBaseInitCaller caller{ this };
      Corvo::Ptr< Mounter > mounter;
      Log log;
      bool mountsAll = true;
   };

   static PluginObject & get() {
      static auto * const plugin = [] {
         auto * made = new PluginObject;
         DaceFapNi::defaultPluginLoader().initCallerAdd( made->caller );
         return made;
      }();
      return *plugin;
   }
};

std::vector< std::string > causes( SimulatedSwitch const & sw ) {
   std::vector< std::string > all;
   for ( auto const & row : sw.journal().operations() ) {
      all.push_back( std::to_string( row.event ) + " control " + std::to_string( row.control ) + ": " +
                     std::string( row.cause ) );
   }
   return all;
}

using Strings = std::vector< std::string >;

TEST( SimulatedSwitch, bootsItsChipsAndPublishesItsFapsByNumber ) {
   SimulatedSwitch const sw( twoFaps() );

   EXPECT_EQ( contentsOf( sw.chip( FapId( 2 ) ), ChipType::BCM88690_B0 ).tables.count( "IppdFerTrapCfg" ), 1u );
   EXPECT_EQ( contentsOf( sw.chip( FapId( 10 ) ), ChipType::BCM88850_A0 ).tables.count( "IppdFerTrapCfg" ), 1u );

   Strings names;
   for ( auto const & [fapId, fap] : sw.cellStatus()->fapStatus() ) {
      names.push_back( fap->fapName() );
   }
   EXPECT_EQ( names, ( Strings{ "Fap3/2", "Fap10" } ) );
   auto const fap = sw.entity< Hardware::Dace::Cell::FapStatus >( "hardware/dace/fap/status/Linecard3/fapStatus/2" );
   ASSERT_TRUE( fap );
   EXPECT_EQ( fap->ports( 2 ).value, 11 );
   EXPECT_EQ( sw.entity< DaceFapNi::SliceSmStateInfo >( "shared/sliceSmStateData" )->revision(),
              ( Hardware::Dace::FapRevision{ 8, ChipType::BCM88850_A0, 7 } ) );
}

TEST( SimulatedSwitch, entersThePluginThenInitialisesChipsThenMounts ) {
   auto & plugin = RecordingPlugin::get();
   SimulatedSwitch sw( twoFaps() );
   sw.start();
   EXPECT_EQ( plugin.log,
              ( Strings{ "phase 2", "runnability", "chip init Fap3/2", "chip init Fap10", "mounts", "mounted" } ) );
   EXPECT_EQ( sw.event(), 0u );
}

TEST( SimulatedSwitch, tellsTheCauseOfEachOperation ) {
   RecordingPlugin::get();
   SimulatedSwitch sw( twoFaps() );
   sw.start();
   sw.set( "evpn/status", "evpnDciEnabled", true );
   EXPECT_EQ( causes( sw ),
              ( Strings{ "0 control 64: chip-init",
                         "0 control 64: chip-init",
                         "0 control 65: start",
                         "1 control 66: evpn/status evpnDciEnabled",
                         "1 control 67: evpn/status evpnDciEnabled" } ) );
   EXPECT_EQ( sw.journal().operations()[0].fap, 2 );
   EXPECT_EQ( sw.journal().operations()[1].fap, 10 );
}

TEST( SimulatedSwitch, countsAChangeThatIsNoneAsAnEventAndARefusedOneNot ) {
   RecordingPlugin::get();
   SimulatedSwitch sw( twoFaps() );
   sw.start();
   sw.set( "evpn/status", "evpnDciEnabled", false );
   EXPECT_EQ( sw.event(), 1u );
   EXPECT_THROW( sw.set( "evpn/status", "evpnDciEnabled", 3 ), Rex::ValueError );
   EXPECT_EQ( sw.event(), 1u );
}

TEST( SimulatedSwitch, writesAsAnotherAgentToWhatIsMountedForReading ) {
   RecordingPlugin::get();
   SimulatedSwitch sw( twoFaps() );
   sw.start();
   sw.setEntry( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Object{ { "remoteVxlanDomain", true } } );
   sw.set( "interface/status/eth/vxlan/vtiStatus/Vxlan1", "udpPort", 4789 );
   auto const vti = sw.entity< Vxlan::VtiStatus >( "interface/status/eth/vxlan/vtiStatus/Vxlan1" );
   EXPECT_TRUE( vti->remoteVxlanDomain() );
   EXPECT_EQ( vti->udpPort(), 4789 );
   EXPECT_DEATH( vti->udpPortIs( 1 ), "Vxlan::VtiStatus Vxlan1 is mounted for reading" );
   sw.change( [&] { vti->udpPortIs( 1 ); } );
   EXPECT_EQ( vti->udpPort(), 1 );
}

TEST( SimulatedSwitch, leavesAPathOut ) {
   auto & plugin = RecordingPlugin::get();
   SimulatedSwitch sw( twoFaps() );
   sw.deleteEntity( "evpn/status" );
   sw.deleteEntity( "shared/portStateInfo" );
   sw.start();
   EXPECT_EQ( plugin.log.back(), "mounted" ); // the path is known all the same
   EXPECT_FALSE( sw.entityManager()->getEntity( "evpn/status" ) );
   EXPECT_FALSE( sw.context()->localSharedState()->readOnlyDb().has( "portStateInfo" ) );
   EXPECT_TRUE( sw.state().value().object()->at( "evpn/status" ).isNull() );
}

TEST( SimulatedSwitch, waitsWithTheMountsForASliceThatIsHeldBack ) {
   auto & plugin = RecordingPlugin::get();
   SimulatedSwitch sw( twoFaps() );
   sw.set( "shared/sliceSmStateData", "sliceState", 4 );
   sw.start();
   EXPECT_EQ( plugin.log.back(), "chip init Fap10" );
   sw.set( "shared/sliceSmStateData", "sliceState", 31 );
   EXPECT_EQ( plugin.log.back(), "mounted" );
}

TEST( SimulatedSwitch, leavesNoNodeBehind ) {
   auto & plugin = RecordingPlugin::get();
   auto const before = Corvo::Node::liveCount();
   {
      SimulatedSwitch sw( twoFaps() );
      sw.start();
      sw.set( "evpn/status", "evpnDciEnabled", true );
   }
   EXPECT_EQ( Corvo::Node::liveCount(), before );
   EXPECT_EQ( plugin.log.back(), "gone" );
   EXPECT_EQ( DaceSal::schanDriver(), nullptr );
   EXPECT_EQ( DaceSal::operationListener(), nullptr );
}

TEST( SimulatedSwitch, leavesNoNodeBehindThatWaitsForItsMounts ) {
   auto & plugin = RecordingPlugin::get();
   auto const before = Corvo::Node::liveCount();
   {
      plugin.mountsAll = false;
      SimulatedSwitch sw( twoFaps() );
      sw.start();
      EXPECT_EQ( plugin.log.back(), "mounts" );
      sw.scheduler()->post( [group = sw.entityManager()->getMountGroup( plugin.mounter )] {} );
   }
   EXPECT_EQ( Corvo::Node::liveCount(), before );
   plugin.mountsAll = true;
}

TEST( SimulatedSwitch, makesRoomForAnotherOneInTheSameProcess ) {
   auto & plugin = RecordingPlugin::get();
   {
      SimulatedSwitch sw( twoFaps() );
      EXPECT_THROW( SimulatedSwitch{ twoFaps() }, std::logic_error );
      sw.start();
   }
   plugin.log.clear();
   SimulatedSwitch sw( twoFaps() );
   sw.start();
   sw.set( "evpn/status", "evpnDciEnabled", true );
   EXPECT_EQ( plugin.log.back(), "attribute 262" );
   EXPECT_EQ( sw.chip( FapId( 2 ) ).controls().at( 66 ), 1u );
}

TEST( SimulatedSwitch, refusesTwoFapsOfOneNumber ) {
   auto description = twoFaps();
   description.faps[0].fapId = FapId( 2 );
   EXPECT_THROW( SimulatedSwitch{ description }, std::logic_error );
   EXPECT_EQ( DaceSal::schanDriver(), nullptr );
}

TEST( SimulatedSwitch, saysWhichLibraryItCannotLoad ) {
   SimulatedSwitch sw( twoFaps() );
   try {
      sw.start( "/no/such/library.so" );
      FAIL();
   } catch ( LibraryError const & error ) {
      EXPECT_NE( std::string( error.what() ).find( "/no/such/library.so" ), std::string::npos );
   }
}

TEST( SimulatedSwitch, setsTheTogglesOfTheProcess ) {
   auto description = twoFaps();
   description.toggles["Dace.json"]["ArmOrderedSwTable"] = false;
   SimulatedSwitch const sw( description );
   EXPECT_FALSE( getToggleState( "ArmOrderedSwTable", "Dace.json", true ) );
   EXPECT_TRUE( getToggleState( "J2DaceL3Ni", "DaceToggles.json", true ) );
}

} // namespace
