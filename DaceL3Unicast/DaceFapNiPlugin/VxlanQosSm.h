// VxlanQosSm: whether DSCP and ECN are rewritten on bridged VXLAN traffic.
//
// The chip chooses the program of its second encapsulation by a TCAM-like table. This machine moves the entries of the
// VXLAN bridging contexts between a plain program and one that propagates QoS. It keeps no state: the table is the
// state.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Programming.h"
#include "corvo/Watched.h"
#include "state/Overlays.h"

namespace DaceFapNi {

class VxlanQosSm : public Corvo::Node {
 public:
   // Subscribes to the configuration. Programs nothing: the table stays as it is until the first change.
   VxlanQosSm( Corvo::Ptr< Vxlan::EcnConfig const > const & vxlanEcnConfig, CellStatusPtr const & cellStatus );
   ~VxlanQosSm() override;
   // Makes a VxlanQosSm and activates it.
   static Corvo::Ptr< VxlanQosSm > VxlanQosSmIs( Corvo::Ptr< Vxlan::EcnConfig const > const & vxlanEcnConfig,
                                                 CellStatusPtr const & cellStatus );

   // Idempotent.
   void hasNotificationActiveIs( bool active );
   virtual void rexDoZombieReactors( bool zombie );

   // Turning on touches entries for packets that the first encapsulation left alone; turning off takes back every
   // program that propagates QoS.
   void handleBridgedQosPropagationEnabled();

   // Whether the entry is for packets that the first encapsulation left alone.
   static bool isCurrentContextNop( Hardware::EtppcEncapsulation2ContextSelectionCam::WithStorage & entry,
                                    Hardware::Dace::FapRevision const & revision );

 private:
   static void vxlanEcnConfigDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< Vxlan::EcnConfig const > vxlanEcnConfig_;
   CellStatusPtr const cellStatus_;
};

// Makes a VxlanQosSm and activates it.
Corvo::Ptr< VxlanQosSm > vxlanQosSmFactory( Corvo::Ptr< Vxlan::EcnConfig const > const & vxlanEcnConfig,
                                            CellStatusPtr const & cellStatus );

} // namespace DaceFapNi
