// DaceL3UnicastVtiStatusDirSm: what the VXLAN tunnel interfaces (VTIs) ask of this chip family: the UDP ports that
// VXLAN is recognised by, and where traffic to unknown addresses is flooded.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Programming.h"
#include "agent/VtiStatusDirSm.h"
#include "sal/SwitchControlSal.h"

namespace DaceFapNi {

class DaceL3UnicastVtiStatusDirSm : public Ale::VXLAN::VtiStatusDirSm {
 public:
   DaceL3UnicastVtiStatusDirSm( Corvo::String const & name,
                                Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities,
                                CellStatusPtr const & cellStatus,
                                Corvo::Ptr< DaceSal::SwitchControlSal > const & switchControlSal );
   ~DaceL3UnicastVtiStatusDirSm() override;
   // Makes a DaceL3UnicastVtiStatusDirSm and activates it.
   static Corvo::Ptr< DaceL3UnicastVtiStatusDirSm >
   DaceL3UnicastVtiStatusDirSmIs( Corvo::String const & name,
                                  Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                  Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities,
                                  CellStatusPtr const & cellStatus,
                                  Corvo::Ptr< DaceSal::SwitchControlSal > const & switchControlSal );

   Corvo::NodeType const & typeData() const override;
   // A zombie lets the chips go, and does not get them back.
   void rexDoZombieReactors( bool zombie ) override;

   // The chips have one VXLAN port of each kind, whichever VTI asks for it. A port of 0 turns it off.
   void doSetupVxlanDestUdpPort( Netka::IntfId intfId, Netka::UdpPort port ) override;
   void doSetupVxlanDestSecUdpPort( Netka::IntfId intfId, Netka::UdpPort port ) override;
   // Both flags decide by the whole directory; the arguments aren't used.
   void doSetupVtepToVtepBridging( Netka::IntfId intfId, bool enabled ) override;
   void doSetupRemoteVxlanDomain( Netka::IntfId intfId, bool enabled ) override;
   void doCleanup( Netka::IntfId intfId ) override;

   // Writes the flood destination of unknown traffic.
   void doSetupVxlanFloodSet();

 private:
   bool anyVtiFloodsToRemote() const;

   CellStatusPtr cellStatus_;
   Corvo::Ptr< DaceSal::SwitchControlSal > switchControlSal_;
};

// Makes a DaceL3UnicastVtiStatusDirSm and activates it.
Corvo::Ptr< DaceL3UnicastVtiStatusDirSm >
daceL3UnicastVtiStatusDirSmFactory( Corvo::String const & name,
                                    Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                    Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities,
                                    CellStatusPtr const & cellStatus,
                                    Corvo::Ptr< DaceSal::SwitchControlSal > const & switchControlSal );

} // namespace DaceFapNi
