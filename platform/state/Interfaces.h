// Interface configuration and status, physical interfaces and subinterfaces.
#pragma once

#include "netka/EthAddr.h"
#include "netka/IntfId.h"
#include "rex/Entity.h"

namespace Interface {

class IntfConfig : public Rex::KeyedEntity< Netka::IntfId > {
   REX_ENTITY( IntfConfig, Rex::KeyedEntity< Netka::IntfId > );
   REX_KEY( intfId );
   REX_ATTRIBUTE( bool, enabled, 0x10f, true );
   REX_ATTRIBUTE( U32, mtu, 0x110, 0 ); // bytes; 0: not configured. A change reaches its readers as effective L3 MTU
};

class EthPhyIntfConfig : public IntfConfig {
   REX_ENTITY( EthPhyIntfConfig, IntfConfig );
   REX_ATTRIBUTE( Netka::EthAddr, addr, 0x182 ); // all zeros: not configured
};

class AllEthPhyIntfConfigDir : public Rex::Entity {
   REX_ENTITY( AllEthPhyIntfConfigDir, Rex::Entity );
   REX_COLLECTION( EthPhyIntfConfig, intfConfig, 0x102 );
};

class IntfStatus : public Rex::KeyedEntity< Netka::IntfId > {
   REX_ENTITY( IntfStatus, Rex::KeyedEntity< Netka::IntfId > );
   REX_KEY( intfId );
   REX_ATTRIBUTE( U32, maxMtu, 0x103, 0 ); // bytes
   REX_ATTRIBUTE( U32, mtu, 0x104, 0 );    // bytes, as synchronised
};

class EthIntfStatus : public IntfStatus {
   REX_ENTITY( EthIntfStatus, IntfStatus );
   REX_ATTRIBUTE( U8, forwardingModel, 0x106, 0 );
   REX_ATTRIBUTE( Netka::EthAddr, burnedInAddr, 0x108 ); // the hardware's own
   REX_ATTRIBUTE( Netka::EthAddr, addr, 0x109 );
   REX_ATTRIBUTE( Netka::EthAddr, routedAddr, 0x10a );
};

class EthPhyIntfStatus : public EthIntfStatus {
   REX_ENTITY( EthPhyIntfStatus, EthIntfStatus );
};

class AllEthPhyIntfStatusDir : public Rex::Entity {
   REX_ENTITY( AllEthPhyIntfStatusDir, Rex::Entity );
   REX_COLLECTION( EthPhyIntfStatus, intfStatus, 0x102 );
};

class IntfStatusLocal : public Rex::KeyedEntity< Netka::IntfId > {
   REX_ENTITY( IntfStatusLocal, Rex::KeyedEntity< Netka::IntfId > );
   REX_KEY( intfId );
   REX_ATTRIBUTE( U32, mtu, 0x102, 0 ); // bytes, as synchronised
};

class EthIntfStatusLocal : public IntfStatusLocal {
   REX_ENTITY( EthIntfStatusLocal, IntfStatusLocal );
};

class EthPhyIntfStatusLocal : public EthIntfStatusLocal {
   REX_ENTITY( EthPhyIntfStatusLocal, EthIntfStatusLocal );
};

class EthPhyIntfStatusLocalDir : public Rex::Entity {
   REX_ENTITY( EthPhyIntfStatusLocalDir, Rex::Entity );
   REX_COLLECTION( EthPhyIntfStatusLocal, intfStatusLocal, 0x102 );
};

class SubIntfStatus : public IntfStatus {
   REX_ENTITY( SubIntfStatus, IntfStatus );
   REX_ATTRIBUTE( Netka::IntfId, parentIntfId, 0x105 );
};

class SubIntfStatusDir : public Rex::Entity {
   REX_ENTITY( SubIntfStatusDir, Rex::Entity );
   REX_COLLECTION( SubIntfStatus, intfStatus, 0x102 );
};

class SubIntfStatusLocal : public IntfStatusLocal {
   REX_ENTITY( SubIntfStatusLocal, IntfStatusLocal );
};

class SubIntfStatusLocalDir : public Rex::Entity {
   REX_ENTITY( SubIntfStatusLocalDir, Rex::Entity );
   REX_COLLECTION( SubIntfStatusLocal, intfStatusLocal, 0x102 );
};

class GlobalIntfConfig : public Rex::Entity {
   REX_ENTITY( GlobalIntfConfig, Rex::Entity );
   REX_ATTRIBUTE( U32, l3Mtu, 0x102, 1500 ); // bytes, for interfaces without an MTU of their own
};

// The L3 MTU that holds for an interface, in bytes.
class EffectiveL3Mtu : public Rex::Entity {
   REX_ENTITY( EffectiveL3Mtu, Rex::Entity );
   REX_ATTRIBUTE( U32, mtu, 0x82, 0 );
};

namespace Hardware {

class Capability : public Rex::Entity {
   REX_ENTITY( Capability, Rex::Entity );
   REX_ATTRIBUTE( bool, globalL3MtuSupported, 0x102, true );
};

} // namespace Hardware
} // namespace Interface
