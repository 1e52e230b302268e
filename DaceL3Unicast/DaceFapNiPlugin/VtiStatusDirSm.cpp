#include "VtiStatusDirSm.h"

#include "FapGate.h"
#include "Toggles.h"
#include "constants/DestinationId.h"
#include "corvo/NodeType.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Vxlan" };

// Numbered controls of the chip.
constexpr U32 vxlanDefaultVsiControl = 1;
constexpr U32 vxlanDefaultVsi = 0x4000;

// A UDP port of VXLAN: the port itself, and whether packets are matched against it.
struct PortControls {
   U32 port;
   U32 enable;
};
constexpr PortControls destinationPort{ .port = 103, .enable = 97 };
constexpr PortControls securityPort{ .port = 104, .enable = 98 };

// Where unknown traffic goes, with and without a VTI that floods to remote VTEPs.
constexpr U32 remoteFloodDestination = 0x2000;
constexpr U32 localFloodDestination = 0x3000;
constexpr U32 floodForwardingScheme = 4;

// Profiles of unknown destinations that VXLAN's flood set belongs to, in the order of writing.
constexpr int floodProfiles[] = { 18, 10, 2 };

struct Hex {
   U32 value;
   friend std::ostream & operator<<( std::ostream & out, Hex hex ) {
      auto const flags = out.flags();
      out << std::hex << std::showbase << hex.value;
      out.flags( flags );
      return out;
   }
};

// Packets are matched only while the port that they are matched against stands.
void setupPort( DaceSal::SwitchControlSal & sal,
                Fap const & fap,
                PortControls const & controls,
                Netka::UdpPort port,
                std::source_location origin = std::source_location::current() ) {
   if ( port.value != 0 ) {
      sal.switchControlSet( fap.id.value(), controls.port, port.value, 0, origin );
      sal.switchControlSet( fap.id.value(), controls.enable, 1, 0, origin );
   } else {
      sal.switchControlSet( fap.id.value(), controls.enable, 0, 0, origin );
      sal.switchControlSet( fap.id.value(), controls.port, 0, 0, origin );
   }
}

} // namespace

DaceL3UnicastVtiStatusDirSm::DaceL3UnicastVtiStatusDirSm(
   Corvo::String const & name,
   Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
   Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities,
   CellStatusPtr const & cellStatus,
   Corvo::Ptr< DaceSal::SwitchControlSal > const & switchControlSal )
   : VtiStatusDirSm( name, vtiStatusDir, hwCapabilities ), cellStatus_( cellStatus ),
     switchControlSal_( switchControlSal ) {}

DaceL3UnicastVtiStatusDirSm::~DaceL3UnicastVtiStatusDirSm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
}

Corvo::Ptr< DaceL3UnicastVtiStatusDirSm > DaceL3UnicastVtiStatusDirSm::DaceL3UnicastVtiStatusDirSmIs(
   Corvo::String const & name,
   Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
   Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities,
   CellStatusPtr const & cellStatus,
   Corvo::Ptr< DaceSal::SwitchControlSal > const & switchControlSal ) {
   auto const sm =
      Corvo::makePtr< DaceL3UnicastVtiStatusDirSm >( name, vtiStatusDir, hwCapabilities, cellStatus, switchControlSal );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< DaceL3UnicastVtiStatusDirSm >
daceL3UnicastVtiStatusDirSmFactory( Corvo::String const & name,
                                    Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                    Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities,
                                    CellStatusPtr const & cellStatus,
                                    Corvo::Ptr< DaceSal::SwitchControlSal > const & switchControlSal ) {
   return DaceL3UnicastVtiStatusDirSm::DaceL3UnicastVtiStatusDirSmIs(
      name, vtiStatusDir, hwCapabilities, cellStatus, switchControlSal );
}

Corvo::NodeType const & DaceL3UnicastVtiStatusDirSm::typeData() const {
   static Corvo::NodeType const type{ "DaceFapNi::DaceL3UnicastVtiStatusDirSm" };
   return type;
}

void DaceL3UnicastVtiStatusDirSm::rexDoZombieReactors( bool zombie ) {
   VtiStatusDirSm::rexDoZombieReactors( zombie );
   if ( zombie ) {
      cellStatus_ = nullptr;
      switchControlSal_ = nullptr;
   }
}

void DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort( Netka::IntfId, Netka::UdpPort port ) {
   constexpr auto name = "doSetupVxlanDestUdpPort";
   trace( 8, "DaceL3UnicastVtiStatusDirSm::", name, " Set vxlan udp port to ", port );
   forEachFap( cellStatus_, [&]( Fap const & fap, auto const & ) {
      switchControlSal_->switchControlSet( fap.id.value(), vxlanDefaultVsiControl, vxlanDefaultVsi, 0 );
      trace( 8, "L3Sm::", name, " vxlan default vsi set to ", Hex{ vxlanDefaultVsi }, " fapId ", fap.id );
      setupPort( *switchControlSal_, fap, destinationPort, port );
      trace( 8, "L3Sm::", name, " protcolSpecificInfo set to ", Hex{ port.value }, " fapId ", fap.id );
   } );
}

void DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort( Netka::IntfId, Netka::UdpPort port ) {
   constexpr auto name = "doSetupVxlanDestSecUdpPort";
   trace( 8, "DaceL3UnicastVtiStatusDirSm::", name, " Set vxlan security udp port to ", port );
   forEachFap( cellStatus_, [&]( Fap const & fap, auto const & ) {
      setupPort( *switchControlSal_, fap, securityPort, port );
      trace( 8, "L3Sm::", name, " protcolSpecificInfo set to ", Hex{ port.value }, " fapId ", fap.id );
   } );
}

bool DaceL3UnicastVtiStatusDirSm::anyVtiFloodsToRemote() const {
   for ( auto const & [intfId, vti] : vtiStatusDir()->vtiStatus() ) {
      if ( vti->remoteVxlanDomain() || ( toggleCampusVtepToVtepBridgingGen4Enabled() && vti->vtepToVtepBridging() ) ) {
         return true;
      }
   }
   return false;
}

void DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet() {
   Hardware::Dace::DestinationId destinationId;
   destinationId.destinationIs( anyVtiFloodsToRemote() ? remoteFloodDestination : localFloodDestination );
   destinationId.fwsIs( floodForwardingScheme );
   trace( 0, "Final destId: ", destinationId );
   forEachFap( cellStatus_, [&]( Fap const & fap, auto const & ) {
      auto profile = accessor< Hardware::UnknownDaProfile >( fap );
      profile.addVsiDestIs( 1 );
      profile.destinationIs( destinationId.encodedDestId( chipTypeToFapType( fap.chipType ) ) );
      for ( int const entry : floodProfiles ) {
         writeAll( profile, fap, { .entry = entry } );
      }
   } );
}

void DaceL3UnicastVtiStatusDirSm::doSetupVtepToVtepBridging( Netka::IntfId, bool ) {
   if ( Rex::gate( toggleCampusVtepToVtepBridgingGen4Enabled(), "the toggle CampusVtepToVtepBridgingGen4 is off" ) ) {
      doSetupVxlanFloodSet();
   }
}

void DaceL3UnicastVtiStatusDirSm::doSetupRemoteVxlanDomain( Netka::IntfId, bool ) {
   doSetupVxlanFloodSet();
}

void DaceL3UnicastVtiStatusDirSm::doCleanup( Netka::IntfId intfId ) {
   constexpr Netka::UdpPort none{ 0 };
   doSetupVxlanDestUdpPort( intfId, none );
   doSetupVxlanDestSecUdpPort( intfId, none );
   doSetupVxlanFloodSet();
}

} // namespace DaceFapNi
