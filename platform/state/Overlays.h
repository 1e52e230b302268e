// VXLAN, EVPN, GUE and tunnel decapsulation: configuration and status.
#pragma once

#include "netka/IntfId.h"
#include "rex/Entity.h"

namespace Vxlan {

class VtiStatus : public Rex::KeyedEntity< Netka::IntfId > {
   REX_ENTITY( VtiStatus, Rex::KeyedEntity< Netka::IntfId > );
   REX_KEY( intfId );
   REX_ATTRIBUTE( U16, udpPort, 0x202, 0 );
   REX_ATTRIBUTE( U16, secUdpPort, 0x203, 0 );
   REX_ATTRIBUTE( bool, remoteVxlanDomain, 0x231, false );
   REX_ATTRIBUTE( bool, vtepToVtepBridging, 0x232, false );
};

class VtiStatusDir : public Rex::Entity {
   REX_ENTITY( VtiStatusDir, Rex::Entity );
   REX_COLLECTION( VtiStatus, vtiStatus, 0x182 );
   REX_ATTRIBUTE( bool, decapRouteAll, 0x187, false );
};

class EcnConfig : public Rex::Entity {
   REX_ENTITY( EcnConfig, Rex::Entity );
   REX_ATTRIBUTE( bool, dscpEcnRewriteBridged, 0x104, false );
};

} // namespace Vxlan

namespace Evpn {

class EvpnStatus : public Rex::Entity {
   REX_ENTITY( EvpnStatus, Rex::Entity );
   REX_ATTRIBUTE( bool, vxlanEnabled, 0x102, false ); // the encapsulation
   REX_ATTRIBUTE( bool, mplsEnabled, 0x103, false );
   REX_ATTRIBUTE( bool, evpnDciEnabled, 0x106, false );
};

} // namespace Evpn

namespace L3::Tunnel {

// What a tunnel carries: 1 MPLS, 3 IPv4, 4 IPv6; others exist that no tunnel here carries.
struct PayloadType {
   U8 value = 0;
   friend auto operator<=>( PayloadType, PayloadType ) = default;
};
Corvo::String stringValue( PayloadType payloadType );

class UdpDestinationPortConfig : public Rex::Entity {
   REX_ENTITY( UdpDestinationPortConfig, Rex::Entity );
   REX_MAP( PayloadType, U16, udpDestPort, 0x102 );

 public:
   explicit UdpDestinationPortConfig( Corvo::String instanceName = "" ) : name_( std::move( instanceName ) ) {}
   Corvo::String name() const override { return name_; }

 private:
   Corvo::String const name_;
};

} // namespace L3::Tunnel

namespace Tunnel::Decap {

class DecapGroup : public Rex::KeyedEntity< U16 > {
   REX_ENTITY( DecapGroup, Rex::KeyedEntity< U16 > );
   REX_KEY( udpPort );
   REX_ATTRIBUTE( U8, payloadType, 0x103, 0 ); // as L3::Tunnel::PayloadType numbers it
};

class ConfigInput : public Rex::Entity {
   REX_ENTITY( ConfigInput, Rex::Entity );
   REX_COLLECTION( DecapGroup, decapGroup, 0x102 );
};

// All inputs merged.
class Config : public Rex::Entity {
   REX_ENTITY( Config, Rex::Entity );
   REX_COLLECTION( DecapGroup, decapGroup, 0x82 );
};

} // namespace Tunnel::Decap

namespace Fru {

// The slot of a card.
struct SlotId {
   U32 value = 0;
   friend auto operator<=>( SlotId, SlotId ) = default;
   friend std::ostream & operator<<( std::ostream & out, SlotId slot ) { return out << slot.value; }
};

} // namespace Fru

template<>
struct std::hash< Fru::SlotId > {
   std::size_t operator()( Fru::SlotId slot ) const noexcept { return slot.value; }
};

namespace Hardware::Dace {

class LoadBalanceHwConfig : public Rex::KeyedEntity< Fru::SlotId > {
   REX_ENTITY( LoadBalanceHwConfig, Rex::KeyedEntity< Fru::SlotId > );
   REX_KEY( slotId );
   REX_ATTRIBUTE( U8, guePktTypeHashMode, 0x124, 0 ); // 2: skip GUE tunnel termination
};

} // namespace Hardware::Dace

namespace Hardware::DaceLag {

class Status : public Rex::Entity {
   REX_ENTITY( Status, Rex::Entity );
   REX_COLLECTION( ::Hardware::Dace::LoadBalanceHwConfig, slotLoadBalance, 0x106 );
};

} // namespace Hardware::DaceLag
