// How a mounter comes up: what it registers, declares and asks for, and what ends it.
#include "MountedSwitch.h"
#include "rex/Trace.h"

#include <gtest/gtest.h>

namespace {

using namespace Test;
using DaceFapNi::ChipInitConfig;
using DaceFapNi::ChipInitConfigDir;
using DaceFapNi::SliceState;

TEST( MounterStart, declaresSliceState31AndThen19Runnable ) {
   MountedSwitch agent;
   agent.init();
   EXPECT_EQ( agent.mounter->pluginRunnabilitySm()->runnableStates(), ( std::vector< SliceState >{ { 31 }, { 19 } } ) );
}

TEST( MounterStart, closesItsGroupWithoutBlockingLabelOrTimeout ) {
   MountedSwitch agent;
   agent.start();
   EXPECT_EQ( agent.sw.entityManager()->closings(), ( std::vector< Stordb::MountClosing >{ { false, "", 0 } } ) );
}

// A directory that tells of its entries while they are being filled.
struct TellingDir : ChipInitConfigDir {
   Corvo::Ptr< ChipInitConfig > addChipInitConfig( Corvo::String const & name ) override {
      entry = ChipInitConfigDir::addChipInitConfig( name );
      slot.dispatchIs( dispatch, this );
      entry->publisher()->subscriberAdd( slot, false );
      return entry;
   }
   static void dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
      auto & self = *slot->owner< TellingDir >();
      self.callbackWhenReady = static_cast< bool >( self.entry->callback() );
   }
   Corvo::Ptr< ChipInitConfig > entry;
   Corvo::Subscriber slot;
   std::optional< bool > callbackWhenReady;
};

struct FullDir : ChipInitConfigDir {
   Corvo::Ptr< ChipInitConfig > addChipInitConfig( Corvo::String const & ) override { return nullptr; }
};

TEST( MounterStart, theChipInitCallbackIsThereWhenItIsSaidToBeReady ) {
   MountedSwitch agent;
   auto const dir = Corvo::makePtr< TellingDir >();
   agent.sw.context()->localSharedState()->writeAllowedDb().set( "chipInitConfigDir", dir );
   agent.init();
   EXPECT_EQ( dir->callbackWhenReady, true );
}

TEST( MounterStartDeath, aDirectoryThatTakesNoEntry ) {
   MountedSwitch agent;
   agent.sw.context()->localSharedState()->writeAllowedDb().set( "chipInitConfigDir", Corvo::makePtr< FullDir >() );
   EXPECT_DEATH( agent.init(), "Assertion `chipInitCfg' failed" );
}

// The plug-in stores its new mounter, and so drops the one before, and then starts it.
TEST( MounterStart, aSecondInitDropsTheFirstMounterBeforeItStartsTheNewOne ) {
   Simulator::SimulatedSwitch sw( oneFap() );
   sw.start();
   auto const input = sw.entity< Routing::Hardware::Config >( "routing/hardware/config" );
   ASSERT_TRUE( input->publisher()->hasSubscribers() );
   std::optional< bool > firstRuns;
   Rex::traceLevelIs( "L3SmMounterDaceFapNi", 8 );
   Rex::traceSinkIs( [&]( Rex::TraceRecord const & record ) {
      if ( record.text == "L3SmMounter::createPluginStatePhase2" ) {
         firstRuns = input->publisher()->hasSubscribers();
      }
   } );
   DaceFapNi::defaultPluginLoader().initPlugins();
   Rex::traceSinkIs( {} );
   Rex::traceLevelIs( "L3SmMounterDaceFapNi", -1 );
   EXPECT_EQ( firstRuns, false );
}

// ---- What ends it

void startWithout( std::vector< char const * > const & paths ) {
   MountedSwitch agent;
   for ( char const * path : paths ) {
      agent.sw.deleteEntity( path );
   }
   agent.start();
}

// What is missing is told by its type, so that it is this pointer that was looked at and not one made from it.
constexpr char const * noSdksState =
   "Assertion `ptr != nullptr' failed\\.[[:space:]]+no const DaceFapNi::AgentSdkState";
constexpr char const * noScheduler = "Assertion `ptr != nullptr' failed\\.[[:space:]]+no DaceFapNi::TaskScheduler";

// No further than to the chips: the mounts would end it with the same text.
void initChipsWithoutTheSdksState() {
   auto description = oneFap();
   description.toggles = served();
   MountedSwitch agent( description );
   agent.sw.deleteEntity( "shared/agentSdkState" );
   agent.init();
   agent.initChips();
}

TEST( MounterStartDeath, withoutTheSdksStateNoChipIsInitialised ) {
   EXPECT_DEATH( initChipsWithoutTheSdksState(), noSdksState );
}

TEST( MounterStartDeath, withoutTheSdksStateTheMountsDontComplete ) {
   EXPECT_DEATH( startWithout( { "shared/agentSdkState" } ), noSdksState ); // chips aren't served
}

TEST( MounterStartDeath, withoutTheSchedulerTheMountsDontComplete ) {
   EXPECT_DEATH( startWithout( { "shared/agentScheduler" } ), noScheduler );
}

// Of several that are missing, the one that is looked at first tells.
TEST( MounterStartDeath, whatIsMissingIsToldInTheOrderOfTheSteps ) {
   struct {
      char const * path;
      char const * text;
   } const steps[] = {
      { "hardware/dace/fap/status", "Assertion `cellStatus' failed" },
      { "shared/phySmStateSharedStatus", "Assertion `phySmStateSharedStatus' failed" },
      { "shared/phySmStateData", "Assertion `phySmState' failed" },
      { "shared/portStateInfo", "Assertion `portStateInfo' failed" },
      { "shared/agentSdkState", noSdksState },
   };
   for ( std::size_t first = 0; first < std::size( steps ); ++first ) {
      std::vector< char const * > missing;
      for ( std::size_t step = first; step < std::size( steps ); ++step ) {
         missing.push_back( steps[step].path );
      }
      EXPECT_DEATH( startWithout( missing ), steps[first].text );
   }
}

void completeInModeNull( char const * missing ) {
   MountedSwitch agent;
   if ( missing ) {
      agent.sw.deleteEntity( missing );
   }
   agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )->smModeIs( { 0 } );
   agent.start();
}

// The mode is looked at behind the driver handle and ahead of the scheduler.
TEST( MounterStartDeath, theSlicesModeIsLookedAtBetweenDriverAndScheduler ) {
   char const * const mode = "Assertion `sliceSmState\\(\\)->smMode\\(\\) != Hardware::Dace::smModeNull\\(\\)' failed";
   EXPECT_DEATH( completeInModeNull( nullptr ), mode );
   EXPECT_DEATH( completeInModeNull( "shared/agentScheduler" ), mode );
   EXPECT_DEATH( completeInModeNull( "shared/agentSdkState" ), noSdksState );
}

} // namespace
