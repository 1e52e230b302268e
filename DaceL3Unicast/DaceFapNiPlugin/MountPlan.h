// What the plug-in sees of the central state database: the mounts, in the order in which they are requested.
#pragma once

namespace DaceFapNi {

struct MountRow {
   char const * path;
   bool isCell; // the path of the local cell
   char const * type;
   char const * mode;
};

// The type of the route status is registered with a single colon in its first separator, and must be asked for so.
inline constexpr MountRow mountPlan[] = {
   // clang-format off
   // path                                  cell   type                                    mode
   { "hardware/dace/fap/status",            false, "Rex::Dir",                             "r"  },
   { "bridging/config",                     false, "Bridging::Config",                     "r"  },
   { "bridging/hwcapabilities",             false, "Bridging::HwCapabilities",             "r"  },
   { "routerMac/hwCapability",              false, "RouterMac::HwCapability",              "r"  },
   { "interface/status/eth/phy/local",      true,  "Interface::EthPhyIntfStatusLocalDir",  "wf" },
   { "routing/mpls/routingInfo/status",     false, "Mpls::RoutingInfo",                    "r"  },
   { "routing/mpls/config",                 false, "Mpls::Config",                         "r"  },
   { "interface/status/eth/vxlan",          false, "Vxlan::VtiStatusDir",                  "r"  },
   { "vxlan/ecnConfig",                     false, "Vxlan::EcnConfig",                     "r"  },
   { "evpn/status",                         false, "Evpn::EvpnStatus",                     "r"  },
   { "interface/config/global",             false, "Interface::GlobalIntfConfig",          "r"  },
   { "hardware/dace/lag/daceLagStatus",     false, "Hardware::DaceLag::Status",            "r"  },
   { "routing/hardware/route/status",       false, "Routing:Hardware::RouteStatus",        "r"  },
   { "interface/hardware/capability",       false, "Interface::Hardware::Capability",      "r"  },
   { "routing/hardware/mpls/capability",    false, "Mpls::Hardware::Capability",           "r"  },
   { "interface/status/subintf",            false, "Interface::SubIntfStatusDir",          "r"  },
   { "interface/status/subintf/local",      true,  "Interface::SubIntfStatusLocalDir",     "r"  },
   { "l3/tunnel/udpDestinationPortConfig",  false, "L3::Tunnel::UdpDestinationPortConfig", "r"  },
   { "routing/nexthopgroup/input/config",   false, "Rex::Dir",                             "ri" },
   { "routing/tunneldecap/input/cli",       false, "Tunnel::Decap::ConfigInput",           "r"  },
   { "routing/tunneldecap/input/dynamic",   false, "Rex::Dir",                             "rD" },
   { "routing/hardware/config",             false, "Routing::Hardware::Config",            "r"  },
   // clang-format on
};

} // namespace DaceFapNi
