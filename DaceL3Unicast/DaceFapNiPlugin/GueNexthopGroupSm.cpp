#include "GueNexthopGroupSm.h"

#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiGueNexthopGroupSm" };
Rex::DualTrace const dualTrace{ trace };

constexpr short dgConfigDecapGroup = 0x82;
constexpr short udpDestPortConfigUdpDestPort = 0x102;

constexpr L3::Tunnel::PayloadType mpls{ 1 };
constexpr L3::Tunnel::PayloadType ipv4{ 3 };
constexpr L3::Tunnel::PayloadType ipv6{ 4 };

// Entries of the additional headers, by payload.
constexpr U8 ipv4AhmtIndex = 13;
constexpr U8 ipv6AhmtIndex = 16;
constexpr U8 mplsAhmtIndex = 23;

} // namespace

GueNexthopGroupSm::GueNexthopGroupSm(
   CellStatusPtr const & cellStatus,
   Corvo::Ptr< Tunnel::Decap::Config const > const & dgConfig,
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > const & udpDestPortConfig,
   Corvo::Ptr< DaceSal::SwitchControlSal > const & sal )
   : cellStatus_( cellStatus ), dgConfig_( dgConfig ), udpDestPortConfig_( udpDestPortConfig ), sal_( sal ) {
   dgConfig_.subscribe( dgConfigDispatch, this );
   udpDestPortConfig_.subscribe( udpDestPortConfigDispatch, this );
   handleInitialized();
}

GueNexthopGroupSm::~GueNexthopGroupSm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   dgConfig_.unsubscribe();
   udpDestPortConfig_.unsubscribe();
}

Corvo::Ptr< GueNexthopGroupSm > GueNexthopGroupSm::GueNexthopGroupSmIs(
   CellStatusPtr const & cellStatus,
   Corvo::Ptr< Tunnel::Decap::Config const > const & dgConfig,
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > const & udpDestPortConfig,
   Corvo::Ptr< DaceSal::SwitchControlSal > const & sal ) {
   auto const sm = Corvo::makePtr< GueNexthopGroupSm >( cellStatus, dgConfig, udpDestPortConfig, sal );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< GueNexthopGroupSm >
gueNexthopGroupSmFactory( CellStatusPtr const & cellStatus,
                          Corvo::Ptr< Tunnel::Decap::Config const > const & dgConfig,
                          Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > const & udpDestPortConfig,
                          Corvo::Ptr< DaceSal::SwitchControlSal > const & sal ) {
   return GueNexthopGroupSm::GueNexthopGroupSmIs( cellStatus, dgConfig, udpDestPortConfig, sal );
}

void GueNexthopGroupSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   dgConfig_.activeIs( active, dgConfigDispatch, this );
   udpDestPortConfig_.activeIs( active, udpDestPortConfigDispatch, this );
}

void GueNexthopGroupSm::rexDoZombieReactors( bool zombie ) {
   markAndSweepFlagSet( zombie );
}

void GueNexthopGroupSm::dgConfigDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   auto * const self = slot->owner< GueNexthopGroupSm >();
   if ( attribute == dgConfigDecapGroup && !self->isZombie() ) {
      self->handleDecapGroupDestPortConfig( *static_cast< U16 const * >( key ) );
   }
}

void GueNexthopGroupSm::udpDestPortConfigDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   auto * const self = slot->owner< GueNexthopGroupSm >();
   if ( attribute == udpDestPortConfigUdpDestPort && !self->isZombie() ) {
      self->handleGueDestPortConfig( *static_cast< L3::Tunnel::PayloadType const * >( key ) );
   }
}

void GueNexthopGroupSm::handleInitialized() {
   trace( 0, "GueNexthopGroupSm::", "handleInitialized" );
   for ( auto const & [payloadType, port] : udpDestPortConfig_->udpDestPort() ) {
      handleGueDestPortConfig( payloadType );
   }
   for ( auto const & [dPort, decapGroup] : dgConfig_->decapGroup() ) {
      handleDecapGroupDestPortConfig( dPort );
   }
   if ( gueMplsEncapUdpDestPort_ == 0 ) {
      handleGueMplsEncapUdpDestPort();
   }
   if ( gueIPv4EncapUdpDestPort_ == 0 ) {
      handleGueIPv4EncapUdpDestPort();
   }
   if ( gueIPv6EncapUdpDestPort_ == 0 ) {
      handleGueIPv6EncapUdpDestPort();
   }
}

void GueNexthopGroupSm::handleGueDestPortConfig( L3::Tunnel::PayloadType payloadType ) {
   auto const name = stringValue( payloadType );
   trace(
      8, "GueNexthopGroupSm::", "handleGueDestPortConfig", ": UDP Destination Port change ", "payloadType: ", name );
   if ( payloadType == mpls ) {
      setGueMplsEncapUdpDestPort( true, 0, mpls );
   } else if ( payloadType == ipv4 || payloadType == ipv6 ) {
      setGueIpEncapUdpDestPort( payloadType );
   } else {
      dualTrace( 0, "Invalid PayloadType: ", name, " Port: ", udpDestPortConfig_->udpDestPort( payloadType ) );
   }
}

void GueNexthopGroupSm::setGueIpEncapUdpDestPort( L3::Tunnel::PayloadType payloadType ) {
   trace( 8, "GueNexthopGroupSm::", "setGueIpEncapUdpDestPort", ": payloadType is ", stringValue( payloadType ) );
   U16 const port = udpDestPortConfig_->udpDestPort( payloadType ); // 0 if there is none
   if ( payloadType == ipv4 && port != gueIPv4EncapUdpDestPort_ ) {
      gueIPv4EncapUdpDestPortIs( port );
      handleGueIPv4EncapUdpDestPort();
   } else if ( payloadType == ipv6 && port != gueIPv6EncapUdpDestPort_ ) {
      gueIPv6EncapUdpDestPortIs( port );
      handleGueIPv6EncapUdpDestPort();
   }
}

void GueNexthopGroupSm::handleDecapGroupDestPortConfig( U16 dPort ) {
   trace(
      8, "GueNexthopGroupSm::", "handleDecapGroupDestPortConfig", ": UDP Destination Port change ", "dPort: ", dPort );
   setGueMplsEncapUdpDestPort( false, dPort, {} );
}

void GueNexthopGroupSm::setGueMplsEncapUdpDestPort( bool isNhgConfig, U16 dPort, L3::Tunnel::PayloadType payloadType ) {
   trace( 8, "GueNexthopGroupSm::", "setGueMplsEncapUdpDestPort", ": isNhgConfig is ", isNhgConfig );
   if ( udpDestPortConfig_->udpDestPortHas( mpls ) ) {
      bool const isNexthopGroups = isNhgConfig && payloadType == mpls;
      if ( !Rex::gate( isNexthopGroups, "decap groups don't count while the nexthop groups name a port" ) ) {
         return;
      }
      U16 const port = udpDestPortConfig_->udpDestPort( payloadType );
      if ( port != gueMplsEncapUdpDestPort_ ) {
         gueMplsEncapUdpDestPortIs( port );
         handleGueMplsEncapUdpDestPort();
      }
      return;
   }
   if ( !isNhgConfig ) {
      setGueMplsEncapUdpDestPortViaDecapGroup( dPort );
      return;
   }
   // The nexthop groups' port has just gone: fall back.
   for ( auto const & [groupPort, decapGroup] : dgConfig_->decapGroup() ) {
      if ( setGueMplsEncapUdpDestPortViaDecapGroup( groupPort ) ) {
         return;
      }
   }
   if ( gueMplsEncapUdpDestPort_ != 0 ) {
      gueMplsEncapUdpDestPortIs( 0 );
      handleGueMplsEncapUdpDestPort();
   }
}

bool GueNexthopGroupSm::setGueMplsEncapUdpDestPortViaDecapGroup( U16 dPort ) {
   constexpr auto name = "setGueMplsEncapUdpDestPortViaDecapGroup";
   if ( auto const decapGroup = dgConfig_->decapGroup( dPort ) ) {
      if ( decapGroup->payloadType() != mpls.value ) {
         return false;
      }
      trace( 8, "GueNexthopGroupSm::", name, ": Set port number via dg" );
      if ( dPort != gueMplsEncapUdpDestPort_ ) {
         gueMplsEncapUdpDestPortIs( dPort );
         handleGueMplsEncapUdpDestPort();
      }
      return true;
   }
   if ( dPort != gueMplsEncapUdpDestPort_ ) {
      return false;
   }
   trace( 8, "GueNexthopGroupSm::", name, ": Reset port to 0 via dg" );
   if ( gueMplsEncapUdpDestPort_ != 0 ) {
      gueMplsEncapUdpDestPortIs( 0 );
      handleGueMplsEncapUdpDestPort();
   }
   return true;
}

void GueNexthopGroupSm::handleGueIPv4EncapUdpDestPort() {
   trace( 8,
          "GueNexthopGroupSm::",
          "handleGueIPv4EncapUdpDestPort",
          ": Setting GUE IPv4 Encap UDP destination port to ",
          gueIPv4EncapUdpDestPort_ );
   doWriteAdditionalHeaderMapTable0( gueIPv4EncapUdpDestPort_, ipv4AhmtIndex );
}

void GueNexthopGroupSm::handleGueIPv6EncapUdpDestPort() {
   trace( 8,
          "GueNexthopGroupSm::",
          "handleGueIPv6EncapUdpDestPort",
          ": Setting GUE IPv6 Encap UDP destination port to ",
          gueIPv6EncapUdpDestPort_ );
   doWriteAdditionalHeaderMapTable0( gueIPv6EncapUdpDestPort_, ipv6AhmtIndex );
}

void GueNexthopGroupSm::handleGueMplsEncapUdpDestPort() {
   trace( 8,
          "GueNexthopGroupSm::",
          "handleGueMplsEncapUdpDestPort",
          ": Setting GUE MPLS Encap UDP destination port to ",
          gueMplsEncapUdpDestPort_ );
   doWriteAdditionalHeaderMapTable0( gueMplsEncapUdpDestPort_, mplsAhmtIndex );
}

void GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0( U16 dPort, U8 ahmtIndex ) {
   U64 const portAndSet = U64{ dPort } << 1 | 1; // bit 0 stands beside a port of 0 as well
   forEachFap( cellStatus_, [&]( Fap const & fap, auto const & ) {
      auto header = accessor< Hardware::AdditionalHeadersMapTable0 >( fap );
      Place const place{ .entry = ahmtIndex };
      U32 const variants = header.tableVariantCount();
      for ( U8 variant = 0; variant < variants; ++variant ) {
         header.variantIs( variant );
         readAny( header, fap, place );
         trace( 8, "GueNexthopGroupSm::", "doWriteAdditionalHeaderMapTable0", " protcolSpecificInfo: ", portAndSet );
         header.protocolSpecificInformationIs( portAndSet );
         writeAll( header, fap, place );
      }
   } );
}

} // namespace DaceFapNi
