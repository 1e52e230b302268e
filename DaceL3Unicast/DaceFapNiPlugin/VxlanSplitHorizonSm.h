// VxlanSplitHorizonCfgSm: which traffic the split-horizon filters stop.
//
// The chip tags a packet with the orientation (0 to 7) of the interface it came in by and of the one it leaves by. Two
// registers, in the ERPP and ETPP stages, hold a 64-bit matrix of the pairs that are filtered. Both follow from whether
// there is VXLAN, whether EVPN's data centre interconnect (DCI) is on, and whether a VTI bridges from VTEP to VTEP.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Programming.h"
#include "corvo/Watched.h"
#include "rex/Notifiee.h"
#include "state/Overlays.h"

namespace DaceFapNi {

class VxlanSplitHorizonCfgSm : public Corvo::Node {
 public:
   class VtiStatusSm;

   // Subscribes to the inputs, programs the registers, and follows the VTIs that are there, each of which programs them
   // again.
   VxlanSplitHorizonCfgSm( Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                           Corvo::Ptr< Evpn::EvpnStatus const > const & evpnStatus,
                           CellStatusPtr const & cellStatus );
   // Writes nothing: the registers keep their last values.
   ~VxlanSplitHorizonCfgSm() override;
   // Makes a VxlanSplitHorizonCfgSm and activates it.
   static Corvo::Ptr< VxlanSplitHorizonCfgSm >
   VxlanSplitHorizonCfgSmIs( Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                             Corvo::Ptr< Evpn::EvpnStatus const > const & evpnStatus,
                             CellStatusPtr const & cellStatus );

   // Idempotent. Turning on catches up with the VTIs that came and went meanwhile.
   void hasNotificationActiveIs( bool active );
   // Idempotent. Passes the value to the VTIs' reactors.
   virtual void rexDoZombieReactors( bool zombie );

   // Follows the VTI. One that is followed already is kept, and pointed at this status.
   Corvo::Ptr< VtiStatusSm > vtiStatusIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus );
   Corvo::Ptr< VtiStatusSm > vtiStatusDel( Netka::IntfId intfId );
   void vtiStatusDelAll();
   bool vtiStatusHas( Netka::IntfId intfId ) const { return vtiStatus_.has( intfId ); }

   // Computes both matrices from the inputs as they are and writes them to every FAP, whatever the registers hold.
   void reloadSplitHorizonCfg();

 private:
   static void vtiStatusDirDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );
   static void evpnStatusDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );
   void followDirectory();

   Corvo::Watched< Vxlan::VtiStatusDir const > vtiStatusDir_;
   Corvo::Watched< Evpn::EvpnStatus const > evpnStatus_;
   CellStatusPtr const cellStatus_;
   Rex::HashMap2018< Netka::IntfId, Corvo::Ptr< VtiStatusSm > > vtiStatus_;
};

// The reactor of one VTI. As long as it has a parent, it has the registers programmed when it is made, when its VTI's
// bridging changes or another status takes its place, and when its zombie state changes.
class VxlanSplitHorizonCfgSm::VtiStatusSm : public Rex::NotifieeConst {
 public:
   // Programs the registers before it is bound: binding it doesn't program them again.
   VtiStatusSm( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus, VxlanSplitHorizonCfgSm * parent );
   void parentDel() { parent_ = nullptr; }

   void notifierIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus );
   void onAttribute( Rex::AttributeId attribute, void const * ) override;
   void rexDoZombieReactors( bool zombie ) override;

 private:
   void bind( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus );
   void reload();

   VxlanSplitHorizonCfgSm * parent_;
};

// Makes a VxlanSplitHorizonCfgSm and activates it.
Corvo::Ptr< VxlanSplitHorizonCfgSm >
vxlanSplitHorizonCfgSmFactory( Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                               Corvo::Ptr< Evpn::EvpnStatus const > const & evpnStatus,
                               CellStatusPtr const & cellStatus );

} // namespace DaceFapNi
