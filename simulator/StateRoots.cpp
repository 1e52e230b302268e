// The paths that are there from the start, as data.
#include "simulator/StateTree.h"
#include "state/Routing.h"

#include <array>

namespace Simulator {

namespace {

using Corvo::Ptr;
using Home = StateRoot::Home;

template< class T >
Ptr< Rex::Entity > make() {
   return Corvo::makePtr< T >();
}

// A directory whose entries other agents make by name.
template< class T >
Ptr< Rex::Entity > makeDir() {
   return Corvo::makePtr< Rex::Dir >( T::rexType(), []( Corvo::String const & ) { return make< T >(); } );
}

Ptr< Rex::Entity > makeTaskScheduler() {
   return Corvo::makePtr< DaceFapNi::TaskScheduler >( nullptr );
}

constexpr std::array roots{
   StateRoot{ Home::database, "hardware/dace/fap/status", make< Rex::Dir >, StateRoot::Kind::given },
   StateRoot{ Home::database, "bridging/config", make< Bridging::Config > },
   StateRoot{ Home::database, "bridging/hwcapabilities", make< Bridging::HwCapabilities > },
   StateRoot{ Home::database, "routerMac/hwCapability", make< RouterMac::HwCapability > },
   StateRoot{ Home::cell, "interface/status/eth/phy/local", make< Interface::EthPhyIntfStatusLocalDir > },
   StateRoot{ Home::database, "routing/mpls/routingInfo/status", make< Mpls::RoutingInfo > },
   StateRoot{ Home::database, "routing/mpls/config", make< Mpls::Config > },
   StateRoot{ Home::database, "interface/status/eth/vxlan", make< Vxlan::VtiStatusDir > },
   StateRoot{ Home::database, "vxlan/ecnConfig", make< Vxlan::EcnConfig > },
   StateRoot{ Home::database, "evpn/status", make< Evpn::EvpnStatus > },
   StateRoot{ Home::database, "interface/config/global", make< Interface::GlobalIntfConfig > },
   StateRoot{ Home::database, "hardware/dace/lag/daceLagStatus", make< Hardware::DaceLag::Status > },
   StateRoot{ Home::database, "routing/hardware/route/status", make< Routing::Hardware::RouteStatus > },
   StateRoot{ Home::database, "interface/hardware/capability", make< Interface::Hardware::Capability > },
   StateRoot{ Home::database, "routing/hardware/mpls/capability", make< Mpls::Hardware::Capability > },
   StateRoot{ Home::database, "interface/status/subintf", make< Interface::SubIntfStatusDir > },
   StateRoot{ Home::cell, "interface/status/subintf/local", make< Interface::SubIntfStatusLocalDir > },
   StateRoot{ Home::database, "l3/tunnel/udpDestinationPortConfig", make< L3::Tunnel::UdpDestinationPortConfig > },
   StateRoot{ Home::database, "routing/nexthopgroup/input/config", makeDir< L3::Tunnel::UdpDestinationPortConfig > },
   StateRoot{ Home::database, "routing/tunneldecap/input/cli", make< Tunnel::Decap::ConfigInput > },
   StateRoot{ Home::database, "routing/tunneldecap/input/dynamic", makeDir< Tunnel::Decap::ConfigInput > },
   StateRoot{ Home::database, "routing/hardware/config", make< Routing::Hardware::Config > },

   StateRoot{ Home::readOnly, "agentGlobalState", make< DaceFapNi::AgentGlobalState > },
   StateRoot{ Home::readOnly, "sliceSmStateData", make< DaceFapNi::SliceSmStateInfo > },
   StateRoot{ Home::readOnly, "phySmStateData", make< DaceFapNi::PhySmStateInfo > },
   StateRoot{ Home::writeAllowed, "phySmStateSharedStatus", make< DaceFapNi::PhySmStateSharedStatus > },
   StateRoot{ Home::readOnly, "driverSetupSmStateInfo", make< DaceFapNi::DriverSetupSmStateInfo > },
   StateRoot{ Home::readOnly, "portStateInfo", make< DaceFapNi::PortStateInfo > },
   StateRoot{
      Home::writeAllowed, "chipInitConfigDir", make< DaceFapNi::ChipInitConfigDir >, StateRoot::Kind::machinery },
   StateRoot{ Home::readOnly, "agentSdkState", make< DaceFapNi::AgentSdkState >, StateRoot::Kind::machinery },
   StateRoot{ Home::writeAllowed, "agentScheduler", makeTaskScheduler, StateRoot::Kind::machinery },
};

} // namespace

std::span< StateRoot const > stateRoots() {
   return roots;
}

} // namespace Simulator
