// VtiStatusDirSm: follows the VXLAN tunnel interfaces (VTIs) and tells a chip family's class what to set up.
//
//    class MyVtiStatusDirSm : public Ale::VXLAN::VtiStatusDirSm {
//       void doSetupVxlanDestUdpPort( Netka::IntfId intfId, Netka::UdpPort port ) override;   // programs the chips
//    };
//    sm->hasNotificationActiveIs( true );
//    sm->initializedIs( true );                // now it looks at the directory, and not before
//
// Life of a VTI: when it appears, doInitialize, which runs the four set-ups of its attributes, defaults included; when
// one attribute changes, the set-up of that attribute; when another object takes its place, doInitialize again; when it
// goes, doCleanup. An operation that the chip family doesn't override traces what it would do.
//
// A set-up may do anything: remove the VTI (its other set-ups don't run then), add others, drop the machine.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Watched.h"
#include "netka/EthAddr.h"
#include "netka/IpGenAddr.h"
#include "state/Overlays.h"
#include "state/Routing.h"

namespace L3 {

struct VrfName {
   Corvo::String value;
   friend std::ostream & operator<<( std::ostream & out, VrfName const & vrf ) { return out << vrf.value; }
};

} // namespace L3

namespace Ale::VXLAN {

class VtiStatusDirSm : public Corvo::Node {
 public:
   VtiStatusDirSm( Corvo::String const & name,
                   Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                   Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities );
   ~VtiStatusDirSm() override;

   Corvo::String const & name() const { return name_; }
   Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir() const { return vtiStatusDir_.ptr(); }
   Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities() const { return hwCapabilities_; }

   // Starts the work: looks at every VTI of the directory. It is no part of construction, as a chip family's set-ups
   // can't run before its object is whole.
   bool initialized() const { return initialized_; }
   void initializedIs( bool initialized );

   // Idempotent. Turning on catches up with the VTIs that came and went meanwhile.
   void hasNotificationActiveIs( bool active );
   // Idempotent. Passes the value to the reactors of the VTIs; a zombie's set-ups stay silent.
   virtual void rexDoZombieReactors( bool zombie );

   // What a VTI asks for. A port of 0: none is configured.
   virtual void doSetupVxlanDestUdpPort( Netka::IntfId intfId, Netka::UdpPort port );
   virtual void doSetupVxlanSrcUdpPortRange( Netka::IntfId intfId, Netka::UdpPort first, U16 count );
   virtual void doSetupVxlanDestSecUdpPort( Netka::IntfId intfId, Netka::UdpPort port );
   virtual void doHandleVxlanVtepToSecProfile( Netka::IntfId intfId, Netka::IpGenAddr const & vtep );
   virtual void doSetupVxlanSecSrcPortRange( Netka::IntfId intfId, Netka::UdpPort first, U16 count );
   virtual void doHandleVxlanVrfToSbdVlan( Netka::IntfId intfId, L3::VrfName vrfName );
   virtual void doSetupVtepToVtepBridging( Netka::IntfId intfId, bool enabled );
   virtual void doSetupRemoteVxlanDomain( Netka::IntfId intfId, bool enabled );
   virtual void doSetupVxlanSrcAddr( Netka::IntfId intfId, Netka::IpGenAddr const & addr );
   virtual void doSetupVxlanSrcAddrV6( Netka::IntfId intfId, Netka::IpGenAddr const & addr );
   virtual void doSetupMlagVtepAddr( Netka::IntfId intfId, Netka::IpGenAddr const & addr );
   virtual void doSetupMlagVtepAddr6( Netka::IntfId intfId, Netka::IpGenAddr const & addr );
   virtual void doSetupMcastGrpDecap( Netka::IntfId intfId, Netka::IpGenAddr const & group );
   virtual void doSetupMcastGrpDecap6( Netka::IntfId intfId, Netka::IpGenAddr const & group );
   virtual void doSetupVxlanVarpVtepAddr( Netka::IntfId intfId, Netka::IpGenAddr const & addr );
   virtual void doSetupVxlanVarpVtepAddr6( Netka::IntfId intfId, Netka::IpGenAddr const & addr );
   virtual void doSetupVxlanVtepAddrMask( Netka::IntfId intfId, Netka::IpGenAddr const & mask );
   virtual void doSetupVxlanSharedRouterMac( Netka::IntfId intfId, Netka::EthAddr const & mac );
   virtual void doUpdateOperStatus( Netka::IntfId intfId );
   virtual void doSetupVxlanNdMcastSnooping( Netka::IntfId intfId, bool enabled );
   virtual void doSetupVtepForSourcePruning( Netka::IntfId intfId, Netka::IpGenAddr const & vtep );
   virtual void doSetupVtepSourcePruningAll( Netka::IntfId intfId, bool enabled );
   virtual void doSetupVxlanFloodTraffic( Netka::IntfId intfId );
   virtual void doSetupDecapFilterNonDefaultVrf( Netka::IntfId intfId, bool enabled );
   virtual void doCleanup( Netka::IntfId intfId );
   // Runs the set-ups of the VTI's attributes: destination port, security port, VTEP-to-VTEP bridging, remote domain.
   virtual void doInitialize( Netka::IntfId intfId );
   // Brings the followed VTIs in line with the directory.
   virtual void handleInitialized();

 private:
   class VtiStatusSm;
   struct SetupRow;
   static SetupRow const setupRows[];

   void vtiStatusIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus );
   void vtiStatusDel( Netka::IntfId intfId );
   static void vtiStatusDirDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::String const name_;
   Corvo::Watched< Vxlan::VtiStatusDir const > vtiStatusDir_;
   Corvo::Ptr< Bridging::HwCapabilities const > const hwCapabilities_;
   Rex::HashMap2018< Netka::IntfId, Corvo::Ptr< VtiStatusSm > > vtiStatus_;
   bool initialized_ = false;
};

} // namespace Ale::VXLAN
