#include "DaceL3Unicast/DaceFapNiPlugin/GueNexthopGroupSm.h"

#include "ObservedL3Sm.h"
#include "OverlayTest.h"

#include <rapidcheck.h>

using namespace DaceFapNi;
using L3::Tunnel::PayloadType;

namespace {

constexpr PayloadType mpls{ 1 };
constexpr PayloadType ethernet{ 2 };
constexpr PayloadType ipv4{ 3 };
constexpr PayloadType ipv6{ 4 };

// Entries of the additional headers.
constexpr int ipv4Entry = 13;
constexpr int ipv6Entry = 16;
constexpr int mplsEntry = 23;

class GueNexthopGroupTest : public OverlayTest {
 public:
   Corvo::Ptr< Tunnel::Decap::Config > dgConfig = Corvo::makePtr< Tunnel::Decap::Config >();
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > ports = Corvo::makePtr< L3::Tunnel::UdpDestinationPortConfig >();
   Corvo::Ptr< GueNexthopGroupSm > sm;

   void SetUp() override { oneFapOfEachKind(); }
   void build() {
      sm = gueNexthopGroupSmFactory( sw().cellStatus(), dgConfig, ports, sal() );
      sm->hasNotificationActiveIs( true );
   }
   // Builds it, and forgets what that wrote.
   void running() {
      build();
      writes();
   }
   void decapGroupIs( U16 port, U8 payloadType ) const {
      auto const group = Corvo::makePtr< Tunnel::Decap::DecapGroup >( port );
      group->payloadTypeIs( payloadType );
      dgConfig->decapGroupIs( group );
   }
   U64 info( int entry, U16 number = 0, U8 variant = 0 ) const {
      return field( "AdditionalHeadersMapTable0",
                    { .variant = variant, .entry = entry },
                    "protocolSpecificInformation",
                    0,
                    FapId( number ) );
   }
   // The entries written since the last call, as "<fap> <variant>/0/<entry>".
   Strings written() {
      Strings all;
      std::string const table = "AdditionalHeadersMapTable0 ";
      for ( auto row : writes() ) {
         row.erase( row.find( " = " ) );
         EXPECT_EQ( row.find( table ), 2u ) << row;
         all.push_back( row.erase( 2, table.size() ) );
      }
      return all;
   }
};

// What writing one entry once comes to.
Strings everywhere( int entry ) {
   Strings all;
   for ( int fap = 0; fap < 6; ++fap ) {
      all.push_back( std::to_string( fap ) + " 0/0/" + std::to_string( entry ) );
      all.push_back( std::to_string( fap ) + " 1/0/" + std::to_string( entry ) );
   }
   return all;
}

TEST_F( GueNexthopGroupTest, takesTheDecapGroupsBeforeThePortsAndLeavesThemSo ) {
   Strings looks;
   auto const groups = Corvo::makePtr< ::Test::Watchful< Tunnel::Decap::Config > >();
   groups->looked = [&] { looks.emplace_back( "groups" ); };
   dgConfig = groups;
   auto const tunnels = Corvo::makePtr< ::Test::Watchful< L3::Tunnel::UdpDestinationPortConfig > >();
   tunnels->looked = [&] { looks.emplace_back( "ports" ); };
   ports = tunnels;
   Strings const inOrder{ "groups", "ports" };
   sm = Corvo::makePtr< GueNexthopGroupSm >( sw().cellStatus(), dgConfig, ports, sal() );
   EXPECT_EQ( std::exchange( looks, {} ), inOrder );
   sm = nullptr;
   EXPECT_EQ( looks, inOrder );
}

TEST_F( GueNexthopGroupTest, startWithoutConfigurationWritesAPortOf0ToMplsIpv4AndIpv6 ) {
   build();
   EXPECT_EQ( written(), everywhere( mplsEntry ) + everywhere( ipv4Entry ) + everywhere( ipv6Entry ) );
   for ( U16 fap = 0; fap < fapCount; ++fap ) {
      for ( U8 const variant : { 0, 1 } ) {
         EXPECT_EQ( info( mplsEntry, fap, variant ), 1u );
         EXPECT_EQ( info( ipv4Entry, fap, variant ), 1u );
         EXPECT_EQ( info( ipv6Entry, fap, variant ), 1u );
      }
   }
}

TEST_F( GueNexthopGroupTest, startTakesConfiguredPortsInTheOrderOfThePayloadsAndWritesEachOnce ) {
   ports->udpDestPortIs( ipv6, 6082 );
   ports->udpDestPortIs( ipv4, 6081 );
   ports->udpDestPortIs( mpls, 6635 );
   decapGroupIs( 7000, 1 );
   build();
   EXPECT_EQ( written(), everywhere( mplsEntry ) + everywhere( ipv4Entry ) + everywhere( ipv6Entry ) );
   EXPECT_EQ( info( mplsEntry ), 0x33d7u ); // 6635
   EXPECT_EQ( info( ipv4Entry ), 0x2f83u ); // 6081
   EXPECT_EQ( info( ipv6Entry ), 0x2f85u ); // 6082
}

TEST_F( GueNexthopGroupTest, startTakesTheMplsPortOfADecapGroup ) {
   decapGroupIs( 6635, 1 );
   build();
   EXPECT_EQ( written(), everywhere( mplsEntry ) + everywhere( ipv4Entry ) + everywhere( ipv6Entry ) );
   EXPECT_EQ( info( mplsEntry ), 0x33d7u );
   EXPECT_EQ( info( ipv4Entry ), 1u );
}

TEST_F( GueNexthopGroupTest, aConfiguredMplsPortOf0IsWrittenAtStartAsOneThatStayed0 ) {
   ports->udpDestPortIs( mpls, 0 );
   decapGroupIs( 6635, 1 );
   build();
   EXPECT_EQ( written(), everywhere( mplsEntry ) + everywhere( ipv4Entry ) + everywhere( ipv6Entry ) );
   EXPECT_EQ( info( mplsEntry ), 1u ); // the decap group doesn't count
}

TEST_F( GueNexthopGroupTest, ipPortsFollowTheConfiguration ) {
   running();
   ports->udpDestPortIs( ipv4, 65535 );
   EXPECT_EQ( written(), everywhere( ipv4Entry ) );
   EXPECT_EQ( info( ipv4Entry, 5, 1 ), 0x1ffffu );
   ports->udpDestPortIs( ipv6, 1 );
   EXPECT_EQ( written(), everywhere( ipv6Entry ) );
   EXPECT_EQ( info( ipv6Entry ), 3u );
   ports->udpDestPortDel( ipv4 );
   EXPECT_EQ( written(), everywhere( ipv4Entry ) );
   EXPECT_EQ( info( ipv4Entry ), 1u );
   EXPECT_EQ( info( ipv6Entry ), 3u );
}

TEST_F( GueNexthopGroupTest, theSamePortTwiceIsWrittenOnce ) {
   running();
   ports->udpDestPortIs( ipv4, 6081 );
   ports->udpDestPortIs( mpls, 6635 );
   written();
   sm->handleGueDestPortConfig( ipv4 );
   sm->handleGueDestPortConfig( mpls );
   ports->udpDestPortDel( mpls );
   EXPECT_EQ( written(), everywhere( mplsEntry ) );
   sm->handleGueDestPortConfig( mpls );
   EXPECT_EQ( written(), Strings{} );
}

TEST_F( GueNexthopGroupTest, decapGroupMovesTheMplsPortAndTakesItAlong ) {
   running();
   decapGroupIs( 6635, 1 );
   EXPECT_EQ( written(), everywhere( mplsEntry ) );
   EXPECT_EQ( info( mplsEntry, 3, 1 ), 0x33d7u );
   dgConfig->decapGroupDel( 6635 );
   EXPECT_EQ( written(), everywhere( mplsEntry ) );
   EXPECT_EQ( info( mplsEntry, 3, 1 ), 1u );
   EXPECT_EQ( sm->gueMplsEncapUdpDestPort(), 0 );
}

TEST_F( GueNexthopGroupTest, theLatestDecapGroupHasThePort ) {
   running();
   decapGroupIs( 6635, 1 );
   decapGroupIs( 7000, 1 );
   EXPECT_EQ( info( mplsEntry ), 0x36b1u ); // 7000
   written();
   dgConfig->decapGroupDel( 6635 );
   EXPECT_EQ( written(), Strings{} );
}

TEST_F( GueNexthopGroupTest, decapGroupOfAnotherPayloadIsPassedOver ) {
   ports->udpDestPortIs( mpls, 5000 );
   decapGroupIs( 6081, 3 );
   decapGroupIs( 6635, 1 );
   running();
   decapGroupIs( 6082, 4 );
   EXPECT_EQ( written(), Strings{} );
   ports->udpDestPortDel( mpls );
   EXPECT_EQ( written(), everywhere( mplsEntry ) );
   EXPECT_EQ( info( mplsEntry ), 0x33d7u );
   dgConfig->decapGroupDel( 6081 );
   EXPECT_EQ( written(), Strings{} );
}

TEST_F( GueNexthopGroupTest, decapGroupsDontCountWhileTheConfigurationNamesAnMplsPort ) {
   ports->udpDestPortIs( mpls, 5000 );
   running();
   decapGroupIs( 6635, 1 );
   dgConfig->decapGroupDel( 6635 );
   decapGroupIs( 5000, 1 );
   dgConfig->decapGroupDel( 5000 );
   EXPECT_EQ( written(), Strings{} );
   EXPECT_EQ( info( mplsEntry ), 0x2711u ); // 5000
}

TEST_F( GueNexthopGroupTest, withoutAnMplsPortTheFirstMplsDecapGroupCounts ) {
   ports->udpDestPortIs( mpls, 5000 );
   decapGroupIs( 7000, 1 );
   decapGroupIs( 6635, 1 );
   running();
   ports->udpDestPortDel( mpls );
   EXPECT_EQ( written(), everywhere( mplsEntry ) );
   EXPECT_EQ( info( mplsEntry ), 0x36b1u );
}

TEST_F( GueNexthopGroupTest, withoutAnMplsPortAndAnMplsDecapGroupThePortIs0 ) {
   ports->udpDestPortIs( mpls, 5000 );
   decapGroupIs( 6081, 3 );
   running();
   ports->udpDestPortDel( mpls );
   EXPECT_EQ( written(), everywhere( mplsEntry ) );
   EXPECT_EQ( info( mplsEntry ), 1u );
}

TEST_F( GueNexthopGroupTest, fallingBackToADecapGroupWithTheSamePortWritesNothing ) {
   ports->udpDestPortIs( mpls, 6635 );
   decapGroupIs( 6635, 1 );
   decapGroupIs( 7000, 1 );
   running();
   ports->udpDestPortDel( mpls );
   EXPECT_EQ( written(), Strings{} );
   EXPECT_EQ( info( mplsEntry ), 0x33d7u );
}

TEST_F( GueNexthopGroupTest, anotherPayloadIsTracedAndIgnored ) {
   running();
   TraceListener const log( "DaceFapNiGueNexthopGroupSm", 0 );
   Rex::RingTrace::clear();
   ports->udpDestPortIs( ethernet, 4000 );
   ports->udpDestPortDel( ethernet );
   EXPECT_EQ( written(), Strings{} );
   EXPECT_EQ( log.records(),
              ( Strings{ "DaceFapNiGueNexthopGroupSm/0 Invalid PayloadType: ethernet Port: 4000",
                         "DaceFapNiGueNexthopGroupSm/0 Invalid PayloadType: ethernet Port: 0" } ) );
   ASSERT_EQ( Rex::RingTrace::records().size(), 2u );
   EXPECT_EQ( Rex::RingTrace::records()[0].text, "Invalid PayloadType: ethernet Port: 4000" );
}

TEST_F( GueNexthopGroupTest, tracesWhatItDoes ) {
   std::string const at8 = "DaceFapNiGueNexthopGroupSm/8 GueNexthopGroupSm::";
   running();
   {
      TraceListener const log( "DaceFapNiGueNexthopGroupSm", 9 );
      decapGroupIs( 6635, 1 );
      EXPECT_EQ( log.records().size(), 4u + 12u );
      EXPECT_EQ( firstRecords( log, 5 ),
                 ( Strings{ at8 + "handleDecapGroupDestPortConfig: UDP Destination Port change dPort: 6635",
                            at8 + "setGueMplsEncapUdpDestPort: isNhgConfig is false",
                            at8 + "setGueMplsEncapUdpDestPortViaDecapGroup: Set port number via dg",
                            at8 + "handleGueMplsEncapUdpDestPort: Setting GUE MPLS Encap UDP destination port to 6635",
                            at8 + "doWriteAdditionalHeaderMapTable0 protcolSpecificInfo: 13271" } ) );
   }
   {
      TraceListener const log( "DaceFapNiGueNexthopGroupSm", 9 );
      dgConfig->decapGroupDel( 6635 );
      EXPECT_EQ( log.records().at( 2 ), at8 + "setGueMplsEncapUdpDestPortViaDecapGroup: Reset port to 0 via dg" );
   }
   {
      TraceListener const log( "DaceFapNiGueNexthopGroupSm", 9 );
      ports->udpDestPortIs( ipv4, 6081 );
      EXPECT_EQ(
         firstRecords( log, 3 ),
         ( Strings{ at8 + "handleGueDestPortConfig: UDP Destination Port change payloadType: ipv4",
                    at8 + "setGueIpEncapUdpDestPort: payloadType is ipv4",
                    at8 + "handleGueIPv4EncapUdpDestPort: Setting GUE IPv4 Encap UDP destination port to 6081" } ) );
   }
   TraceListener const log( "DaceFapNiGueNexthopGroupSm", 9 );
   ports->udpDestPortIs( ipv6, 6082 );
   EXPECT_EQ( log.records().at( 2 ),
              at8 + "handleGueIPv6EncapUdpDestPort: Setting GUE IPv6 Encap UDP destination port to 6082" );
}

TEST_F( GueNexthopGroupTest, aZombieReactsToNothing ) {
   running();
   sm->rexDoZombieReactors( true );
   ports->udpDestPortIs( ipv4, 6081 );
   decapGroupIs( 6635, 1 );
   EXPECT_EQ( written(), Strings{} );
   sm->rexDoZombieReactors( false );
   ports->udpDestPortIs( ipv6, 6081 );
   EXPECT_EQ( written(), everywhere( ipv6Entry ) );
}

TEST_F( GueNexthopGroupTest, hearsNothingWhileItsNotificationsAreOff ) {
   running();
   sm->hasNotificationActiveIs( false );
   ports->udpDestPortIs( ipv4, 6081 );
   decapGroupIs( 6635, 1 );
   EXPECT_EQ( written(), Strings{} );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( written(), Strings{} );
   ports->udpDestPortIs( ipv4, 6082 );
   EXPECT_EQ( written(), everywhere( ipv4Entry ) );
}

TEST_F( GueNexthopGroupTest, leavesTheChipsAsTheyAreWhenItGoes ) {
   ports->udpDestPortIs( ipv4, 6081 );
   running();
   sm = nullptr;
   ports->udpDestPortDel( ipv4 );
   EXPECT_EQ( written(), Strings{} );
   EXPECT_EQ( info( ipv4Entry ), 0x2f83u );
}

TEST_F( GueNexthopGroupTest, anInputThatIsNotMountedEndsTheProcess ) {
   EXPECT_DEATH( gueNexthopGroupSmFactory( sw().cellStatus(), dgConfig, nullptr, sal() ), "ptr != nullptr" );
   EXPECT_DEATH( gueNexthopGroupSmFactory( sw().cellStatus(), nullptr, ports, sal() ), "ptr != nullptr" );
}

// Whatever happened: IP ports are those of the configuration, the MPLS port is, while there is one, and nothing else on
// the chips was touched.
TEST_F( GueNexthopGroupTest, programsThePortsAndNothingElse ) {
   EXPECT_TRUE( rc::check( [&] {
      dgConfig = Corvo::makePtr< Tunnel::Decap::Config >();
      ports = Corvo::makePtr< L3::Tunnel::UdpDestinationPortConfig >();
      build();
      auto const steps = *rc::gen::container< std::vector< std::tuple< int, U8, U16 > > >(
         rc::gen::tuple( rc::gen::inRange( 0, 4 ), rc::gen::inRange< U8 >( 0, 6 ), rc::gen::inRange< U16 >( 0, 4 ) ) );
      for ( auto const & [kind, payload, number] : steps ) {
         U16 const port = static_cast< U16 >( number * 21845 ); // 0, 21845, 43690, 65535
         switch ( kind ) {
         case 0:
            ports->udpDestPortIs( { payload }, port );
            break;
         case 1:
            ports->udpDestPortDel( { payload } );
            break;
         case 2:
            decapGroupIs( port, payload );
            break;
         case 3:
            dgConfig->decapGroupDel( port );
            break;
         }
      }
      for ( U16 fap = 0; fap < fapCount; ++fap ) {
         for ( U8 const variant : { 0, 1 } ) {
            RC_ASSERT( info( ipv4Entry, fap, variant ) == 2u * ports->udpDestPort( ipv4 ) + 1 );
            RC_ASSERT( info( ipv6Entry, fap, variant ) == 2u * ports->udpDestPort( ipv6 ) + 1 );
            if ( ports->udpDestPortHas( mpls ) ) {
               RC_ASSERT( info( mplsEntry, fap, variant ) == 2u * ports->udpDestPort( mpls ) + 1 );
            }
            RC_ASSERT( info( mplsEntry, fap, variant ) == 2u * sm->gueMplsEncapUdpDestPort() + 1 );
         }
      }
   } ) );
   EXPECT_EQ( changedPlacesOfAll(),
              ( std::set< std::string >{ "AdditionalHeadersMapTable0 0/0/13",
                                         "AdditionalHeadersMapTable0 0/0/16",
                                         "AdditionalHeadersMapTable0 0/0/23",
                                         "AdditionalHeadersMapTable0 1/0/13",
                                         "AdditionalHeadersMapTable0 1/0/16",
                                         "AdditionalHeadersMapTable0 1/0/23" } ) );
   for ( U16 number = 0; number < fapCount; ++number ) {
      for ( U8 const variant : { 0, 1 } ) {
         for ( int const entry : { ipv4Entry, ipv6Entry, mplsEntry } ) {
            // The port lies in bits 30 to 64 of the entry; what is beside it is the boot image's.
            auto const now =
               words( "AdditionalHeadersMapTable0", { .variant = variant, .entry = entry }, 0, FapId( number ) );
            auto const then = before( FapId( number ) )
                                 .tables.at( "AdditionalHeadersMapTable0" )
                                 .at( variant )
                                 .at( 0 )
                                 .at( static_cast< U32 >( entry ) )
                                 .copies[0];
            EXPECT_EQ( now[0] & 0x3fffffff, then[0] & 0x3fffffff );
            EXPECT_EQ( now[2] & ~1u, then[2] & ~1u );
         }
      }
   }
}

} // namespace
