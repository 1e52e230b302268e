// L3MtuSm: keeps the effective L3 MTU of one interface.
//
//    auto const effectiveL3Mtu = Corvo::makePtr< Interface::EffectiveL3Mtu >();
//    auto const sm = L3MtuSm::L3MtuSmIs( intfConfig, globalIntfConfig, effectiveL3Mtu, intfHwCapability );
//    effectiveL3Mtu->mtu();     // right from here on, for as long as notifications are active
//
// The interface's own MTU holds if one is configured; else the global L3 MTU, if the hardware has one; else the
// default. A null input contributes nothing. Configurations are followed; what the hardware can do doesn't change.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Watched.h"
#include "state/Interfaces.h"

namespace Interface {

class L3MtuSm : public Corvo::Node {
 public:
   static constexpr U32 defaultL3Mtu = 1500; // bytes

   // The L3 MTU that holds for an interface under these inputs.
   static U32 l3Mtu( IntfConfig const * intfConfig,
                     GlobalIntfConfig const * globalIntfConfig,
                     Hardware::Capability const * intfHwCapability );

   L3MtuSm( Corvo::Ptr< IntfConfig const > const & intfConfig,
            Corvo::Ptr< GlobalIntfConfig const > const & globalIntfConfig,
            Corvo::Ptr< EffectiveL3Mtu > const & effectiveL3Mtu,
            Corvo::Ptr< Hardware::Capability const > const & intfHwCapability );
   ~L3MtuSm() override;
   // Makes a state machine and activates it, upon which the effective L3 MTU is right.
   static Corvo::Ptr< L3MtuSm > L3MtuSmIs( Corvo::Ptr< IntfConfig const > const & intfConfig,
                                           Corvo::Ptr< GlobalIntfConfig const > const & globalIntfConfig,
                                           Corvo::Ptr< EffectiveL3Mtu > const & effectiveL3Mtu,
                                           Corvo::Ptr< Hardware::Capability const > const & intfHwCapability );
   bool builtFrom( Corvo::Ptr< IntfConfig const > const & intfConfig,
                   Corvo::Ptr< GlobalIntfConfig const > const & globalIntfConfig,
                   Corvo::Ptr< EffectiveL3Mtu > const & effectiveL3Mtu,
                   Corvo::Ptr< Hardware::Capability const > const & intfHwCapability ) const;

   // All that are alive: one for each interface that this agent serves. The one made last, then each one's elder; null
   // where there is none.
   static L3MtuSm const * newest() { return newest_; }
   L3MtuSm const * older() const { return older_; }
   // The configuration that it follows, which may be another than the directory has by now; null if it was given none.
   IntfConfig const * intfConfig() const { return intfConfig_.ptr().get(); }
   U32 effectiveL3Mtu() const { return effectiveL3Mtu_->mtu(); }

   // Idempotent. Turning on brings the effective L3 MTU up to date.
   void hasNotificationActiveIs( bool active );

 private:
   void handleMtu();
   static void intfConfigDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );
   static void globalIntfConfigDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< IntfConfig const > intfConfig_;
   Corvo::Watched< GlobalIntfConfig const > globalIntfConfig_;
   Corvo::Ptr< EffectiveL3Mtu > effectiveL3Mtu_;
   Corvo::Ptr< Hardware::Capability const > intfHwCapability_;
   L3MtuSm * older_ = nullptr;
   L3MtuSm * younger_ = nullptr;
   static L3MtuSm * newest_;
};

} // namespace Interface
