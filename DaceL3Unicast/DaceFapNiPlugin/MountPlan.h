// What the plug-in sees of the central state database: the mounts, in the order in which they are requested.
#pragma once

#include "stordb/Stordb.h"

namespace DaceFapNi {

// What is mounted, by the name under which it is used. The number is the row.
enum class Mounted : U8 {
   fapStatusDir,
   bridgingConfig,
   hwCapabilities,
   routerMacHwCapability,
   episLocalDir,
   mplsRoutingInfo,
   mplsConfig,
   vtiStatusDir,
   vxlanEcnConfig,
   evpnStatus,
   globalIntfConfig,
   daceLagStatus,
   routeStatus,
   intfHwCapability,
   mplsHwCapability,
   subIntfStatusDir,
   subIntfStatusLocalDir,
   udpDestPortConfig,
   nexthopGroupConfigInput,
   decapInputCli,
   decapInputDynamic,
   routingHwConfig,
};

struct MountRow {
   Mounted mounted;
   char const * path;
   bool isCell; // the path of the local cell
   char const * type;
   char const * mode;
};

// The type of the route status is registered with a single colon in its first separator, and must be asked for so.
inline constexpr MountRow mountPlan[] = {
   // clang-format off
   //                                  path                                   cell   type                                    mode
   { Mounted::fapStatusDir,            "hardware/dace/fap/status",            false, "Rex::Dir",                             "r"  },
   { Mounted::bridgingConfig,          "bridging/config",                     false, "Bridging::Config",                     "r"  },
   { Mounted::hwCapabilities,          "bridging/hwcapabilities",             false, "Bridging::HwCapabilities",             "r"  },
   { Mounted::routerMacHwCapability,   "routerMac/hwCapability",              false, "RouterMac::HwCapability",              "r"  },
   { Mounted::episLocalDir,            "interface/status/eth/phy/local",      true,  "Interface::EthPhyIntfStatusLocalDir",  "wf" },
   { Mounted::mplsRoutingInfo,         "routing/mpls/routingInfo/status",     false, "Mpls::RoutingInfo",                    "r"  },
   { Mounted::mplsConfig,              "routing/mpls/config",                 false, "Mpls::Config",                         "r"  },
   { Mounted::vtiStatusDir,            "interface/status/eth/vxlan",          false, "Vxlan::VtiStatusDir",                  "r"  },
   { Mounted::vxlanEcnConfig,          "vxlan/ecnConfig",                     false, "Vxlan::EcnConfig",                     "r"  },
   { Mounted::evpnStatus,              "evpn/status",                         false, "Evpn::EvpnStatus",                     "r"  },
   { Mounted::globalIntfConfig,        "interface/config/global",             false, "Interface::GlobalIntfConfig",          "r"  },
   { Mounted::daceLagStatus,           "hardware/dace/lag/daceLagStatus",     false, "Hardware::DaceLag::Status",            "r"  },
   { Mounted::routeStatus,             "routing/hardware/route/status",       false, "Routing:Hardware::RouteStatus",        "r"  },
   { Mounted::intfHwCapability,        "interface/hardware/capability",       false, "Interface::Hardware::Capability",      "r"  },
   { Mounted::mplsHwCapability,        "routing/hardware/mpls/capability",    false, "Mpls::Hardware::Capability",           "r"  },
   { Mounted::subIntfStatusDir,        "interface/status/subintf",            false, "Interface::SubIntfStatusDir",          "r"  },
   { Mounted::subIntfStatusLocalDir,   "interface/status/subintf/local",      true,  "Interface::SubIntfStatusLocalDir",     "r"  },
   { Mounted::udpDestPortConfig,       "l3/tunnel/udpDestinationPortConfig",  false, "L3::Tunnel::UdpDestinationPortConfig", "r"  },
   { Mounted::nexthopGroupConfigInput, "routing/nexthopgroup/input/config",   false, "Rex::Dir",                             "ri" },
   { Mounted::decapInputCli,           "routing/tunneldecap/input/cli",       false, "Tunnel::Decap::ConfigInput",           "r"  },
   { Mounted::decapInputDynamic,       "routing/tunneldecap/input/dynamic",   false, "Rex::Dir",                             "rD" },
   { Mounted::routingHwConfig,         "routing/hardware/config",             false, "Routing::Hardware::Config",            "r"  },
   // clang-format on
};

static_assert( [] {
   U8 number = 0;
   for ( auto const & row : mountPlan ) {
      if ( row.mounted != Mounted{ number++ } ) {
         return false;
      }
   }
   return true;
}() );

inline Corvo::String pathOf( MountRow const & row ) {
   return row.isCell ? Cell::path( row.path, 0 ) : Corvo::String( row.path );
}

} // namespace DaceFapNi
