#include "ChipView.h"

#include <gtest/gtest.h>

using namespace Test;

namespace {

constexpr char const * lagStatus = "hardware/dace/lag/daceLagStatus";

// A switch whose slice stands in slot 3.
struct SlotSwitch : TestSwitch {
   explicit SlotSwitch( std::vector< ChipType > const & chips = { ChipType::BCM88690_B0 } ) : TestSwitch( chips ) {
      setEntry( "shared/sliceSmStateData", "slotIds", "Linecard1", 3 );
   }
   void mode( char const * slot, int value ) {
      setEntry( lagStatus, "slotLoadBalance", slot, Object{ { "guePktTypeHashMode", value } } );
   }
   U64 profile( U32 variant, U32 array, FapId fap = {} ) const {
      return field( { "VsiProfileEnablers", variant, array, 5 }, "routingProfile3", fap );
   }
   void presetProfiles( U64 value ) {
      for ( FapId const fap : { FapId( 0 ), FapId( 1 ) } ) {
         if ( driver().chip( fap ) ) {
            for ( U32 const array : { 0, 1, 2 } ) {
               fieldIs( { "VsiProfileEnablers", 0, array, 5 }, "routingProfile3", value, fap );
            }
            for ( U32 const array : { 3, 4 } ) {
               fieldIs( { "VsiProfileEnablers", 1, array, 5 }, "routingProfile3", value, fap );
            }
         }
      }
   }
   void expectProfile( U64 value, FapId fap = {} ) const {
      EXPECT_EQ( profile( 0, 1, fap ), value );
      EXPECT_EQ( profile( 0, 2, fap ), value );
      EXPECT_EQ( profile( 1, 3, fap ), value );
   }
};

std::vector< std::string > const programming{ "read VsiProfileEnablers 0/1/5",
                                              "write VsiProfileEnablers 0/1/5",
                                              "read VsiProfileEnablers 0/2/5",
                                              "write VsiProfileEnablers 0/2/5",
                                              "read VsiProfileEnablers 1/3/5",
                                              "write VsiProfileEnablers 1/3/5" };

TEST( SlotLoadBalance, aModeOfTheOwnSlotTerminatesOrSkipsOnEveryFap ) {
   SlotSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88480_B0 } );
   sw.start();
   sw.presetProfiles( 19 );
   sw.mode( "3", 2 );
   for ( FapId const fap : { FapId( 0 ), FapId( 1 ) } ) {
      sw.expectProfile( 0, fap );
      EXPECT_EQ( sw.profile( 0, 0, fap ), 19u );
      EXPECT_EQ( sw.profile( 1, 4, fap ), 19u );
   }
   for ( int const terminating : { 0, 1, 3, 255 } ) {
      sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", 2 );
      sw.expectProfile( 0, FapId( 1 ) );
      sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", terminating );
      for ( FapId const fap : { FapId( 0 ), FapId( 1 ) } ) {
         sw.expectProfile( 23, fap );
         EXPECT_EQ( sw.profile( 0, 0, fap ), 19u );
         EXPECT_EQ( sw.profile( 1, 4, fap ), 19u );
      }
   }
}

TEST( SlotLoadBalance, theOtherProfilesOfTheEntrySurvive ) {
   SlotSwitch sw;
   sw.start();
   for ( auto const & [name, value] : std::map< char const *, U64 >{
            { "routingProfile0", 1 }, { "routingProfile1", 2 }, { "routingProfile2", 30 } } ) {
      sw.fieldIs( { "VsiProfileEnablers", 0, 2, 5 }, name, value );
   }
   sw.mode( "3", 2 );
   sw.mode( "3", 0 );
   EXPECT_EQ( sw.field( { "VsiProfileEnablers", 0, 2, 5 }, "routingProfile0" ), 1u );
   EXPECT_EQ( sw.field( { "VsiProfileEnablers", 0, 2, 5 }, "routingProfile1" ), 2u );
   EXPECT_EQ( sw.field( { "VsiProfileEnablers", 0, 2, 5 }, "routingProfile2" ), 30u );
}

TEST( SlotLoadBalance, aForeignSlotIsToldAndDropped ) {
   SlotSwitch sw;
   sw.start();
   Rex::RingTrace::clear();
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.mode( "4", 2 );
   EXPECT_TRUE( sw.rows().empty() );
   EXPECT_EQ( traced.texts,
              ( std::vector< std::string >{ "8 handleGuePktTypeHashModeConfig: slot:4",
                                            "8 handleGuePktTypeHashModeConfig: Skipping notification" } ) );
   EXPECT_EQ( Rex::RingTrace::records().back().text,
              "handleGuePktTypeHashModeConfig: Skiping notification for slot:4" );
   sw.set( std::string( lagStatus ) + "/slotLoadBalance/4", "guePktTypeHashMode", 0 );
   EXPECT_TRUE( sw.rows().empty() );
}

TEST( SlotLoadBalance, aConfigurationThatArrivesLaterActsAtOnce ) {
   SlotSwitch sw;
   sw.start();
   EXPECT_TRUE( sw.operations( "VsiProfileEnablers" ).empty() );
   sw.mode( "3", 0 );
   EXPECT_EQ( sw.operations(), programming );
   EXPECT_EQ( sw.rows()[0].cause, "hardware/dace/lag/daceLagStatus slotLoadBalance" );
   sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", 2 );
   EXPECT_EQ( sw.operations(), programming );
   EXPECT_EQ( sw.rows()[0].cause, "hardware/dace/lag/daceLagStatus/slotLoadBalance/3 guePktTypeHashMode" );
}

TEST( SlotLoadBalance, aConfigurationThatIsThereAtStartIsProgrammedTwice ) {
   SlotSwitch sw;
   sw.mode( "3", 2 );
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.start();
   auto all = programming;
   all.insert( all.end(), programming.begin(), programming.end() );
   auto const made = sw.operations( "VsiProfileEnablers" );
   EXPECT_EQ( made, all );
   sw.expectProfile( 0 );
   EXPECT_EQ( traced.with( "for slot:" ),
              ( std::vector< std::string >{
                 "8 handleInitialized: Initializing for slot:3",
                 "8 handleGuePktTypeHashModeConfig: Programming to skip GUE tunnel termination for slot:3" } ) );
}

TEST( SlotLoadBalance, anotherConfigurationOfTheSlotIsFollowedInItsPlace ) {
   SlotSwitch sw;
   sw.mode( "3", 2 );
   sw.start();
   auto const status = sw.entity< Hardware::DaceLag::Status >( lagStatus );
   auto const first = status->slotLoadBalance( { 3 } );
   sw.mode( "3", 1 ); // a new object
   EXPECT_EQ( sw.operations(), programming );
   sw.expectProfile( 23 );
   // The first one is not heard any more, and nothing holds it.
   sw.change( [&] { first->guePktTypeHashModeIs( 0 ); } );
   EXPECT_TRUE( sw.rows().empty() );
   EXPECT_EQ( first->useCount(), 1u );
   // The same again changes nothing.
   Fru::SlotId const slot{ 3 };
   sw.change( [&] { status->publisher()->publish( 0x106, &slot ); } );
   EXPECT_TRUE( sw.rows().empty() );
   sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", 2 );
   sw.expectProfile( 0 );
}

TEST( SlotLoadBalance, aWithdrawnConfigurationLeavesTheChipAndIsForgotten ) {
   SlotSwitch sw;
   sw.mode( "3", 2 );
   sw.start();
   auto const first = sw.entity< Hardware::DaceLag::Status >( lagStatus )->slotLoadBalance( { 3 } );
   sw.deleteEntry( lagStatus, "slotLoadBalance", "3" );
   EXPECT_TRUE( sw.rows().empty() );
   sw.expectProfile( 0 );
   EXPECT_EQ( first->useCount(), 1u );
   EXPECT_FALSE( first->publisher()->hasSubscribers() );
   sw.mode( "3", 0 );
   EXPECT_EQ( sw.operations(), programming );
   sw.expectProfile( 23 );
}

TEST( SlotLoadBalance, aSliceWithoutASlotStandsInSlotZero ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.setEntry( "shared/sliceSmStateData", "slotIds", "Linecard9", 3 );
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.start();
   EXPECT_EQ( traced.with( "not ready" ),
              ( std::vector< std::string >{ "8 handleInitialized: slot:0 Load Balance Config not ready" } ) );
   sw.setEntry( lagStatus, "slotLoadBalance", "3", Object{ { "guePktTypeHashMode", 2 } } );
   EXPECT_TRUE( sw.rows().empty() );
   sw.setEntry( lagStatus, "slotLoadBalance", "0", Object{ { "guePktTypeHashMode", 2 } } );
   EXPECT_EQ( sw.operations(), programming );
}

TEST( SlotLoadBalance, withoutALagStatusNoSlotIsReady ) {
   SlotSwitch sw;
   sw.deleteEntity( lagStatus );
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.start();
   EXPECT_EQ( traced.with( "not ready" ),
              ( std::vector< std::string >{ "8 handleInitialized: slot:3 Load Balance Config not ready" } ) );
   EXPECT_TRUE( sw.operations( "VsiProfileEnablers" ).empty() );
}

TEST( SlotLoadBalance, anEntryBeforeInitializationWaits ) {
   SlotSwitch sw;
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", nullptr );
   sw.start();
   sw.mode( "3", 2 );
   sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", 1 );
   sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", 2 );
   EXPECT_EQ( sw.journal().operationCount(), 0u );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", Object{} );
   EXPECT_EQ( sw.operations( "VsiProfileEnablers" ), programming );
   sw.expectProfile( 0 );
   sw.set( std::string( lagStatus ) + "/slotLoadBalance/3", "guePktTypeHashMode", 0 );
   sw.expectProfile( 23 );
}

TEST( SlotLoadBalance, aSliceOfAnotherFamilyDoesNotProgram ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.entity< DaceFapNi::SliceSmStateInfo >( "shared/sliceSmStateData" )->revisionIs( { 5, ChipType{ 17 }, 7 } );
   sw.start();
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.setEntry( lagStatus, "slotLoadBalance", "0", Object{ { "guePktTypeHashMode", 2 } } );
   EXPECT_TRUE( sw.operations( "VsiProfileEnablers" ).empty() );
   EXPECT_TRUE( traced.texts.empty() ); // the slot isn't even looked at
}

TEST( SlotLoadBalance, tellsEveryPlaceThatItPrograms ) {
   SlotSwitch sw;
   sw.start();
   Rex::RingTrace::clear();
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.mode( "3", 2 );
   std::vector< std::string > const expected{
      "8 handleGuePktTypeHashModeConfig: slot:3",
      "8 handleGuePktTypeHashModeConfig: Programming to skip GUE tunnel termination for slot:3",
      "8 doProgramGueTunnelTermination",
      "8 doProgramGueTunnelTermination: Programming IPPF_ROUTING_PROFILE_TABLE variant:0 array index:1 entry:23 "
      "value:0 "
      "fapId:0 enableTunnelTerm:false",
      "8 doProgramGueTunnelTermination: Programming IPPF_ROUTING_PROFILE_TABLE variant:0 array index:2 entry:23 "
      "value:0 "
      "fapId:0 enableTunnelTerm:false",
      "8 doProgramGueTunnelTermination: Programming IPPF_ROUTING_PROFILE_TABLE variant:1 array index:3 entry:23 "
      "value:0 "
      "fapId:0 enableTunnelTerm:false" };
   EXPECT_EQ( traced.texts, expected );
   EXPECT_EQ( Rex::RingTrace::records().size(), 4u ); // all but the first of each function
   sw.mode( "3", 5 );
   EXPECT_EQ(
      traced.texts.back(),
      "8 doProgramGueTunnelTermination: Programming IPPF_ROUTING_PROFILE_TABLE variant:1 array index:3 entry:23 "
      "value:23 fapId:0 enableTunnelTerm:true" );
}

TEST( SlotLoadBalance, teardownLeavesNoReactorBehind ) {
   U32 const before = Corvo::Node::liveCount();
   {
      SlotSwitch sw;
      sw.mode( "3", 2 );
      sw.mode( "4", 2 );
      sw.start();
   }
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

} // namespace
