// The MPLS port of GUE encapsulation, as decap groups come, change and go; and in what order it all starts.
#include "DaceL3Unicast/DaceFapNiPlugin/GueNexthopGroupSm.h"

#include "OverlayTest.h"

using namespace DaceFapNi;
using L3::Tunnel::PayloadType;

namespace {

constexpr PayloadType mplsPayload{ 1 };
constexpr PayloadType ipv4Payload{ 3 };

class GueFallbackTest : public OverlayTest {
 public:
   Corvo::Ptr< Tunnel::Decap::Config > dgConfig = Corvo::makePtr< Tunnel::Decap::Config >();
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > ports = Corvo::makePtr< L3::Tunnel::UdpDestinationPortConfig >();
   Corvo::Ptr< GueNexthopGroupSm > sm;

   void SetUp() override { chipIs( ChipType::BCM88690_B0 ); }
   void running() {
      sm = gueNexthopGroupSmFactory( sw().cellStatus(), dgConfig, ports, sal() );
      writes();
   }
   void decapGroupIs( U16 port, U8 payloadType ) const {
      auto const group = Corvo::makePtr< Tunnel::Decap::DecapGroup >( port );
      group->payloadTypeIs( payloadType );
      dgConfig->decapGroupIs( group );
   }
   // The entry of MPLS: twice the port, and bit 0.
   U64 mplsInfo() const {
      return field( "AdditionalHeadersMapTable0", { .entry = 23 }, "protocolSpecificInformation" );
   }
};

TEST_F( GueFallbackTest, theGroupThatHasThePortGoesAndTheOthersDontTakeOver ) {
   decapGroupIs( 6635, 1 );
   decapGroupIs( 7000, 1 );
   running();
   ASSERT_EQ( sm->gueMplsEncapUdpDestPort(), 7000 );
   dgConfig->decapGroupDel( 7000 );
   EXPECT_EQ( sm->gueMplsEncapUdpDestPort(), 0 );
   EXPECT_EQ( mplsInfo(), 1u );
   EXPECT_EQ( writes().size(), 2u );
}

TEST_F( GueFallbackTest, theGroupThatHasThePortChangesItsPayloadAndThePortStays ) {
   decapGroupIs( 6635, 1 );
   running();
   decapGroupIs( 6635, 3 );
   EXPECT_EQ( sm->gueMplsEncapUdpDestPort(), 6635 );
   EXPECT_EQ( mplsInfo(), 2u * 6635 + 1 );
   EXPECT_EQ( writes(), Strings{} );
   dgConfig->decapGroupDel( 6635 ); // it was its port all the same
   EXPECT_EQ( sm->gueMplsEncapUdpDestPort(), 0 );
   EXPECT_EQ( mplsInfo(), 1u );
}

TEST_F( GueFallbackTest, startGoesThroughTheConfiguredPortsAndThenTheGroups ) {
   ports->udpDestPortIs( ipv4Payload, 6081 );
   decapGroupIs( 6635, 1 );
   sm = gueNexthopGroupSmFactory( sw().cellStatus(), dgConfig, ports, sal() );
   EXPECT_EQ( operations(),
              ( Strings{ "read AdditionalHeadersMapTable0 0/0/13",
                         "write AdditionalHeadersMapTable0 0/0/13",
                         "read AdditionalHeadersMapTable0 1/0/13",
                         "write AdditionalHeadersMapTable0 1/0/13",
                         "read AdditionalHeadersMapTable0 0/0/23",
                         "write AdditionalHeadersMapTable0 0/0/23",
                         "read AdditionalHeadersMapTable0 1/0/23",
                         "write AdditionalHeadersMapTable0 1/0/23",
                         "read AdditionalHeadersMapTable0 0/0/16",
                         "write AdditionalHeadersMapTable0 0/0/16",
                         "read AdditionalHeadersMapTable0 1/0/16",
                         "write AdditionalHeadersMapTable0 1/0/16" } ) );
}

TEST_F( GueFallbackTest, startIsToldFirstAndAtLevelZero ) {
   TraceListener const log( "DaceFapNiGueNexthopGroupSm", 0 );
   running();
   EXPECT_EQ( log.records(), Strings{ "DaceFapNiGueNexthopGroupSm/0 GueNexthopGroupSm::handleInitialized" } );
}

} // namespace
