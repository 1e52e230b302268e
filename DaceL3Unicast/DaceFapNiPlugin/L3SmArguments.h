// What an L3Sm is built from: its inputs, in the order of their attributes. Two L3Sm with equal arguments are the same.
#pragma once

#include "agent/SharedObjects.h"
#include "sal/SwitchControlSal.h"
#include "state/CellStatus.h"
#include "state/Interfaces.h"
#include "state/Overlays.h"
#include "state/Routing.h"
#include "stordb/Stordb.h"

namespace DaceFapNi {

struct L3SmArguments {
   Corvo::Ptr< Hardware::Dace::Cell::CellStatus const > cellStatus;
   Corvo::Ptr< Bridging::Config const > bridgingConfig;
   Corvo::Ptr< Bridging::HwCapabilities const > hwCapabilities;
   Corvo::Ptr< PhySmStateSharedStatus > phySmStateSharedStatus;
   Corvo::Ptr< PhySmStateInfo const > phySmState;
   Corvo::Ptr< Interface::EthPhyIntfStatusLocalDir > ethPhyIntfStatusLocalDir;
   Corvo::Ptr< Orb::TaskScheduler > scheduler;
   Corvo::Ptr< Stordb::EntityManager > entityManager;
   Corvo::Ptr< Mpls::RoutingInfo const > mplsRoutingInfo;
   Corvo::Ptr< Mpls::Config const > mplsConfig;
   Corvo::Ptr< Vxlan::VtiStatusDir > vtiStatusDir;
   Corvo::Ptr< DaceSal::SwitchControlSal > switchControlSal;
   Corvo::Ptr< Interface::GlobalIntfConfig const > globalIntfConfig;
   Corvo::Ptr< SliceSmStateInfo const > sliceSmState;
   Corvo::Ptr< PortStateInfo const > portStateInfo;
   Corvo::Ptr< Tunnel::Decap::Config const > dgConfig;
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const > udpDestPortConfig;
   Corvo::Ptr< Evpn::EvpnStatus const > evpnStatus;
   Corvo::String sliceName;
   Corvo::Ptr< Hardware::DaceLag::Status const > daceLagStatus;
   Corvo::Ptr< RouterMac::HwCapability const > routerMacHwCapability;
   Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch const > mergedPrefixLensInExactMatchV4;
   Corvo::Ptr< Interface::Hardware::Capability const > intfHwCapability;
   Corvo::Ptr< Mpls::Hardware::Capability const > mplsHwCapability;
   Corvo::Ptr< Interface::SubIntfStatusDir const > subIntfStatusDir;
   Corvo::Ptr< Interface::SubIntfStatusLocalDir const > subIntfStatusLocalDir;
   Corvo::Ptr< Vxlan::EcnConfig const > vxlanEcnConfig;
   Corvo::Ptr< Routing::Hardware::Config const > routingHwConfig;
   Corvo::Ptr< DriverSetupSmStateInfo const > driverSetupSmStateInfo;

   friend bool operator==( L3SmArguments const &, L3SmArguments const & ) = default;
};

} // namespace DaceFapNi
