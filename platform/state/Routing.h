// Bridging, routing and MPLS: configuration, capabilities and status.
#pragma once

#include "netka/EthAddr.h"
#include "rex/Entity.h"

namespace Bridging {

class Config : public Rex::Entity {
   REX_ENTITY( Config, Rex::Entity );
   REX_ATTRIBUTE( Netka::EthAddr, bridgeMacAddr, 0x102 );
};

class HwCapabilities : public Rex::Entity {
   REX_ENTITY( HwCapabilities, Rex::Entity );
   REX_ATTRIBUTE( U32, maxFrameSizeWithoutL2Encapsulation, 0x102, 9236 ); // bytes
};

} // namespace Bridging

namespace RouterMac {

class HwCapability : public Rex::Entity {
   REX_ENTITY( HwCapability, Rex::Entity );
   REX_ATTRIBUTE( U8, routerMacsPerIntf, 0x102, 1 );
};

} // namespace RouterMac

namespace Routing::Hardware {

class Config : public Rex::Entity {
   REX_ENTITY( Config, Rex::Entity );
   REX_ATTRIBUTE( bool, urpfLooseFailForward, 0x192, false );
   REX_ATTRIBUTE( bool, urpfStrictFailForward, 0x193, false );
};

class RouteStatusGen : public Rex::Entity {
   REX_ENTITY( RouteStatusGen, Rex::Entity );
   REX_MAP( U8, U8, prefixLensInExactMatch, 0x102 ); // prefix length by key
};

class RouteStatus : public RouteStatusGen {
   REX_ENTITY( RouteStatus, RouteStatusGen );
};

// The merged prefix lengths of the exact-match engine.
class PrefixLensInExactMatch : public Rex::Entity {
   REX_ENTITY( PrefixLensInExactMatch, Rex::Entity );
   REX_MAP( U8, U8, prefixLen, 0x102 ); // prefix length by key

 public:
   explicit PrefixLensInExactMatch( Corvo::String instanceName = "" ) : name_( std::move( instanceName ) ) {}
   Corvo::String name() const override { return name_; }

 private:
   Corvo::String const name_;
};

Corvo::Ptr< PrefixLensInExactMatch > prefixLensInExactMatchFactory( Corvo::String const & name );

} // namespace Routing::Hardware

namespace Mpls {

class RoutingInfo : public Rex::Entity {
   REX_ENTITY( RoutingInfo, Rex::Entity );
   REX_ATTRIBUTE( U32, mplsLookupLabelCount, 0x105, 1 ); // labels per lookup, 1 or 2
   REX_ATTRIBUTE( bool, mplsLookupFallbackIp, 0x106, false );
};

// Optional settings of the MPLS parser: 255 means that none is given.
class Config : public Rex::Entity {
   REX_ENTITY( Config, Rex::Entity );
   REX_ATTRIBUTE( U8, parserSetting0, 0x113, 255 );
   REX_ATTRIBUTE( U8, parserSetting1, 0x114, 255 );
   REX_ATTRIBUTE( U8, parserSetting2, 0x115, 255 );
   REX_ATTRIBUTE( U8, parserSetting3, 0x116, 255 );
   REX_ATTRIBUTE( bool, parserSettingsConfigured, 0x117, false );
};

namespace Hardware {

class Capability : public Rex::Entity {
   REX_ENTITY( Capability, Rex::Entity );
   REX_ATTRIBUTE( U8, parserDefault0, 0x102, 4 );
   REX_ATTRIBUTE( U8, parserDefault1, 0x103, 3 );
   REX_ATTRIBUTE( U8, parserDefault2, 0x104, 2 );
   REX_ATTRIBUTE( U8, parserDefault3, 0x105, 1 );
};

} // namespace Hardware
} // namespace Mpls
