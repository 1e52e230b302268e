#include "DaceL3Unicast/DaceFapNiPlugin/VtiStatusDirSm.h"

#include "OverlayTest.h"

#include <rapidcheck.h>

using namespace DaceFapNi;
using Netka::IntfId;

namespace {

// What an unknown-destination profile holds: scheme 4, and the destination; the VSI is added.
char const * const remoteFlood = "0x00282000";
char const * const localFlood = "0x00283000";

class VtiStatusDirTest : public OverlayTest {
 public:
   Corvo::Ptr< Vxlan::VtiStatusDir > dir = Corvo::makePtr< Vxlan::VtiStatusDir >();
   Corvo::Ptr< DaceL3UnicastVtiStatusDirSm > sm;

   void running() {
      oneFapOfEachKind();
      sm = daceL3UnicastVtiStatusDirSmFactory(
         "vtiStatusDirSm", dir, Corvo::makePtr< Bridging::HwCapabilities >(), sw().cellStatus(), sal() );
      sm->hasNotificationActiveIs( true );
      sm->initializedIs( true );
   }
   void runningWithoutGen4() {
      toggleIs( "Dace.json", "CampusVtepToVtepBridgingGen4", false );
      running();
   }
   Corvo::Ptr< Vxlan::VtiStatus > vtiIs( char const * name ) const {
      auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( IntfId( name ) );
      dir->vtiStatusIs( vti );
      return vti;
   }
};

Strings flood( std::string const & fap, std::string const & words ) {
   return { fap + " UnknownDaProfile 0/0/18 = " + words,
            fap + " UnknownDaProfile 0/0/10 = " + words,
            fap + " UnknownDaProfile 0/0/2 = " + words };
}

Strings floodOnEveryFap( char const * words ) {
   Strings all;
   for ( int fap = 0; fap < 6; ++fap ) {
      all = all + flood( std::to_string( fap ), words );
   }
   return all;
}

TEST_F( VtiStatusDirTest, writesNothingWithoutAVti ) {
   running();
   EXPECT_EQ( writes(), Strings{} );
}

TEST_F( VtiStatusDirTest, floodsLocallyWithoutAVti ) {
   running();
   sm->doSetupVxlanFloodSet();
   EXPECT_EQ( writes(), floodOnEveryFap( localFlood ) );
   EXPECT_EQ( field( "UnknownDaProfile", { .entry = 10 }, "destination", 0, FapId( 4 ) ), 0x83000u );
   EXPECT_EQ( field( "UnknownDaProfile", { .entry = 10 }, "addVsiDest", 0, FapId( 4 ) ), 1u );
}

TEST_F( VtiStatusDirTest, aNewVtiSetsItsPortsThenTheFloodDestinationForEachOfItsFlags ) {
   running();
   vtiIs( "Vxlan1" );
   Strings const fap3 = {
      "3 control 1 = 16384", "3 control 97 = 0", "3 control 103 = 0", "3 control 98 = 0", "3 control 104 = 0" };
   EXPECT_EQ( writes( 3 ), fap3 + flood( "3", localFlood ) + flood( "3", localFlood ) );
}

TEST_F( VtiStatusDirTest, destinationPortIsSetBeforeItIsEnabled ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   writes();
   vti->udpPortIs( 4789 );
   Strings all;
   for ( std::string const fap : { "0", "1", "2", "3", "4", "5" } ) {
      all = all + Strings{ fap + " control 1 = 16384", fap + " control 103 = 4789", fap + " control 97 = 1" };
   }
   EXPECT_EQ( writes(), all );
}

TEST_F( VtiStatusDirTest, destinationPortIsDisabledBeforeItIsTakenBack ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   vti->udpPortIs( 4789 );
   writes();
   vti->udpPortIs( 0 );
   EXPECT_EQ( writes( 5 ), ( Strings{ "5 control 1 = 16384", "5 control 97 = 0", "5 control 103 = 0" } ) );
}

TEST_F( VtiStatusDirTest, securityPortGoesTheSameWayWithoutADefaultVsi ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   writes();
   vti->secUdpPortIs( 4790 );
   EXPECT_EQ( writes( 0 ), ( Strings{ "0 control 104 = 4790", "0 control 98 = 1" } ) );
   vti->secUdpPortIs( 0 );
   EXPECT_EQ( writes( 0 ), ( Strings{ "0 control 98 = 0", "0 control 104 = 0" } ) );
}

TEST_F( VtiStatusDirTest, eachChangeOfAFlagRewritesTheFloodDestination ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   writes();
   vti->remoteVxlanDomainIs( true );
   EXPECT_EQ( writes(), floodOnEveryFap( remoteFlood ) );
   vti->vtepToVtepBridgingIs( true ); // the value stays the same
   EXPECT_EQ( writes(), floodOnEveryFap( remoteFlood ) );
   vti->remoteVxlanDomainIs( false );
   EXPECT_EQ( writes(), floodOnEveryFap( remoteFlood ) );
   vti->vtepToVtepBridgingIs( false );
   EXPECT_EQ( writes(), floodOnEveryFap( localFlood ) );
}

TEST_F( VtiStatusDirTest, anyVtiWithAFlagDecides ) {
   running();
   vtiIs( "Vxlan1" );
   vtiIs( "Vxlan2" )->remoteVxlanDomainIs( true );
   writes();
   vtiIs( "Vxlan3" );
   EXPECT_EQ( writes( 1 ).back(), std::string( "1 UnknownDaProfile 0/0/2 = " ) + remoteFlood );
   dir->vtiStatusDel( IntfId( "Vxlan2" ) );
   EXPECT_EQ( writes( 1 ).back(), std::string( "1 UnknownDaProfile 0/0/2 = " ) + localFlood );
}

TEST_F( VtiStatusDirTest, withTheToggleOffVtepToVtepBridgingDoesNotReachTheFloodDestination ) {
   runningWithoutGen4();
   auto const vti = vtiIs( "Vxlan1" );
   writes();
   vti->vtepToVtepBridgingIs( true );
   EXPECT_EQ( writes(), Strings{} );
   sm->doSetupVxlanFloodSet();
   EXPECT_EQ( writes(), floodOnEveryFap( localFlood ) );
   vti->remoteVxlanDomainIs( true );
   EXPECT_EQ( writes(), floodOnEveryFap( remoteFlood ) );
}

TEST_F( VtiStatusDirTest, withTheToggleOffANewVtiWritesTheFloodDestinationOnce ) {
   runningWithoutGen4();
   vtiIs( "Vxlan1" );
   EXPECT_EQ( writes( 2 ).size(), 5u + 3u );
}

TEST_F( VtiStatusDirTest, cleanupTurnsBothPortsOffAndLeavesTheDefaultVsi ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   vti->udpPortIs( 4789 );
   vti->secUdpPortIs( 4790 );
   vti->remoteVxlanDomainIs( true );
   writes();
   dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_EQ(
      writes( 2 ),
      ( Strings{
         "2 control 1 = 16384", "2 control 97 = 0", "2 control 103 = 0", "2 control 98 = 0", "2 control 104 = 0" } ) +
         flood( "2", localFlood ) );
   EXPECT_EQ( controls( FapId( 2 ) ),
              ( std::map< U32, U32 >{ { 1, 0x4000 }, { 97, 0 }, { 98, 0 }, { 103, 0 }, { 104, 0 } } ) );
}

// The chip has one port of each kind: a VTI that goes takes them along, whoever is left.
TEST_F( VtiStatusDirTest, cleanupOfOneTurnsBothPortsOffThoughOthersRemain ) {
   running();
   for ( char const * name : { "Vxlan1", "Vxlan2" } ) {
      auto const vti = vtiIs( name );
      vti->udpPortIs( 4789 );
      vti->secUdpPortIs( 4790 );
   }
   dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_EQ( controls( FapId( 0 ) ),
              ( std::map< U32, U32 >{ { 1, 0x4000 }, { 97, 0 }, { 98, 0 }, { 103, 0 }, { 104, 0 } } ) );
}

TEST_F( VtiStatusDirTest, tracesWhatItDoes ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   {
      TraceListener const log( "DaceFapNiL3Vxlan", 9 );
      vti->udpPortIs( 4789 );
      EXPECT_EQ( log.records().size(), 1u + 6 * 2 );
      EXPECT_EQ(
         firstRecords( log, 5 ),
         ( Strings{
            "DaceFapNiL3Vxlan/8 DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort Set vxlan udp port to 4789",
            "DaceFapNiL3Vxlan/8 L3Sm::doSetupVxlanDestUdpPort vxlan default vsi set to 0x4000 fapId 0",
            "DaceFapNiL3Vxlan/8 L3Sm::doSetupVxlanDestUdpPort protcolSpecificInfo set to 0x12b5 fapId 0",
            "DaceFapNiL3Vxlan/8 L3Sm::doSetupVxlanDestUdpPort vxlan default vsi set to 0x4000 fapId 1",
            "DaceFapNiL3Vxlan/8 L3Sm::doSetupVxlanDestUdpPort protcolSpecificInfo set to 0x12b5 fapId 1" } ) );
   }
   {
      TraceListener const log( "DaceFapNiL3Vxlan", 9 );
      vti->secUdpPortIs( 4790 );
      EXPECT_EQ( firstRecords( log, 2 ),
                 ( Strings{ "DaceFapNiL3Vxlan/8 DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort Set vxlan "
                            "security udp port to 4790",
                            "DaceFapNiL3Vxlan/8 L3Sm::doSetupVxlanDestSecUdpPort protcolSpecificInfo set to 0x12b6 "
                            "fapId 0" } ) );
   }
   TraceListener const log( "DaceFapNiL3Vxlan", 0 );
   vti->remoteVxlanDomainIs( true );
   EXPECT_EQ( log.records(),
              Strings{ "DaceFapNiL3Vxlan/0 Final destId: destination 0x2000 word2 0 fws 4 lastByte 0" } );
}

TEST_F( VtiStatusDirTest, leavesTheChipsAsTheyAreWhenItGoes ) {
   running();
   auto const vti = vtiIs( "Vxlan1" );
   vti->udpPortIs( 4789 );
   writes();
   sm = nullptr;
   vti->udpPortIs( 1 );
   dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_EQ( writes(), Strings{} );
}

// Whatever VTIs came, changed and went: the flood destination is that of the directory, and beside the three profiles
// the chips hold what they held.
TEST_F( VtiStatusDirTest, floodsByTheDirectoryAndTouchesNothingElse ) {
   running();
   EXPECT_TRUE( rc::check( [&] {
      auto const steps = *rc::gen::container< std::vector< std::tuple< int, int, bool > > >(
         rc::gen::tuple( rc::gen::inRange( 0, 4 ), rc::gen::inRange( 1, 4 ), rc::gen::arbitrary< bool >() ) );
      vtiIs( "Vxlan1" ); // so that the profiles are written in each case
      for ( auto const & [kind, vxlan, value] : steps ) {
         IntfId const intfId( "Vxlan" + std::to_string( vxlan ) );
         auto const vti = dir->vtiStatus( intfId );
         if ( kind == 0 ) {
            vtiIs( intfId.stringValue().c_str() );
         } else if ( vti && kind == 1 ) {
            dir->vtiStatusDel( intfId );
         } else if ( vti && kind == 2 ) {
            vti->remoteVxlanDomainIs( value );
         } else if ( vti && kind == 3 ) {
            vti->vtepToVtepBridgingIs( value );
         }
      }
      bool remote = false;
      for ( int const vxlan : { 1, 2, 3 } ) {
         auto const vti = dir->vtiStatus( IntfId( "Vxlan" + std::to_string( vxlan ) ) );
         remote = remote || ( vti && ( vti->remoteVxlanDomain() || vti->vtepToVtepBridging() ) );
      }
      for ( U16 number = 0; number < fapCount; ++number ) {
         for ( int const entry : { 2, 10, 18 } ) {
            RC_ASSERT( field( "UnknownDaProfile", { .entry = entry }, "destination", 0, FapId( number ) ) ==
                       ( remote ? 0x82000u : 0x83000u ) );
         }
      }
   } ) );
   EXPECT_EQ(
      changedPlacesOfAll(),
      ( std::set< std::string >{ "UnknownDaProfile 0/0/10", "UnknownDaProfile 0/0/18", "UnknownDaProfile 0/0/2" } ) );
}

} // namespace
