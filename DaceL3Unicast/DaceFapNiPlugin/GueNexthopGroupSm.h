// GueNexthopGroupSm: the UDP destination ports of GUE encapsulation.
//
// The chip has one entry of additional headers for each kind of payload; this machine keeps the ports of three of them
// equal to what is configured. IPv4 and IPv6 take theirs from the nexthop groups' configuration. MPLS does so too, and
// where that names none, the port of the first decap group that carries MPLS.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Programming.h"
#include "corvo/Watched.h"
#include "sal/SwitchControlSal.h"
#include "state/Overlays.h"

namespace DaceFapNi {

class GueNexthopGroupSm : public Corvo::Node {
 public:
   // Subscribes to the inputs, and runs handleInitialized.
   GueNexthopGroupSm( CellStatusPtr const & cellStatus,
                      Corvo::Ptr< Tunnel::Decap::Config const > const & dgConfig,
                      Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > const & udpDestPortConfig,
                      Corvo::Ptr< DaceSal::SwitchControlSal > const & sal );
   ~GueNexthopGroupSm() override;
   // Makes a GueNexthopGroupSm and activates it.
   static Corvo::Ptr< GueNexthopGroupSm >
   GueNexthopGroupSmIs( CellStatusPtr const & cellStatus,
                        Corvo::Ptr< Tunnel::Decap::Config const > const & dgConfig,
                        Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > const & udpDestPortConfig,
                        Corvo::Ptr< DaceSal::SwitchControlSal > const & sal );

   // Idempotent.
   void hasNotificationActiveIs( bool active );
   virtual void rexDoZombieReactors( bool zombie );

   // The ports last programmed, 0 at the start. The setters only set.
   U16 gueMplsEncapUdpDestPort() const { return gueMplsEncapUdpDestPort_; }
   U16 gueIPv4EncapUdpDestPort() const { return gueIPv4EncapUdpDestPort_; }
   U16 gueIPv6EncapUdpDestPort() const { return gueIPv6EncapUdpDestPort_; }
   void gueMplsEncapUdpDestPortIs( U16 port ) { gueMplsEncapUdpDestPort_ = port; }
   void gueIPv4EncapUdpDestPortIs( U16 port ) { gueIPv4EncapUdpDestPort_ = port; }
   void gueIPv6EncapUdpDestPortIs( U16 port ) { gueIPv6EncapUdpDestPort_ = port; }

   // Takes both inputs over, then writes each entry whose port has stayed 0: nothing else writes those.
   void handleInitialized();
   // The nexthop groups' port of the payload changed.
   void handleGueDestPortConfig( L3::Tunnel::PayloadType payloadType );
   // The decap group of the port came, changed or went.
   void handleDecapGroupDestPortConfig( U16 dPort );

 private:
   static void dgConfigDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );
   static void udpDestPortConfigDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   void setGueIpEncapUdpDestPort( L3::Tunnel::PayloadType payloadType );
   void setGueMplsEncapUdpDestPort( bool isNhgConfig, U16 dPort, L3::Tunnel::PayloadType payloadType );
   // Returns whether the port was this one's to deal with.
   bool setGueMplsEncapUdpDestPortViaDecapGroup( U16 dPort );

   // Program the entry of the payload with its port.
   void handleGueIPv4EncapUdpDestPort();
   void handleGueIPv6EncapUdpDestPort();
   void handleGueMplsEncapUdpDestPort();
   void doWriteAdditionalHeaderMapTable0( U16 dPort, U8 ahmtIndex );

   CellStatusPtr const cellStatus_;
   Corvo::Watched< Tunnel::Decap::Config const > dgConfig_;
   Corvo::Watched< L3::Tunnel::UdpDestinationPortConfig const > udpDestPortConfig_;
   Corvo::Ptr< DaceSal::SwitchControlSal > const sal_;
   U16 gueMplsEncapUdpDestPort_ = 0;
   U16 gueIPv4EncapUdpDestPort_ = 0;
   U16 gueIPv6EncapUdpDestPort_ = 0;
};

// Makes a GueNexthopGroupSm and activates it.
Corvo::Ptr< GueNexthopGroupSm >
gueNexthopGroupSmFactory( CellStatusPtr const & cellStatus,
                          Corvo::Ptr< Tunnel::Decap::Config const > const & dgConfig,
                          Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > const & udpDestPortConfig,
                          Corvo::Ptr< DaceSal::SwitchControlSal > const & sal );

} // namespace DaceFapNi
