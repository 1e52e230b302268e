// The reactor on the load-balance configuration of one slot.
//
// L3Sm keeps one for every slot that the LAG status names, and so hears of each; only the entry of the slot that this
// agent runs on acts. One that L3Sm has dropped, or that outlives it, stays silent.
#pragma once

#include "L3Sm.h"
#include "rex/Notifiee.h"

namespace DaceFapNi {

class L3Sm::NestedSm_SlotLoadBalance : public Rex::NotifieeConst {
 public:
   using Config = Corvo::Ptr< Hardware::Dace::LoadBalanceHwConfig const >;

   // Follows the configuration, and acts on it as it stands.
   NestedSm_SlotLoadBalance( Config const & config, L3Sm * parent );

   Config const & config() const { return config_; }
   // Follows another configuration of the slot, and acts on it. The one that it follows already changes nothing.
   void notifierIs( Config const & config );
   void parentIs( L3Sm * parent ) { parent_ = parent; }
   L3Sm * parent() const { return parent_; }

   void onAttribute( Rex::AttributeId attribute, void const * key ) override;
   // Programs the GUE termination if this is the own slot. Idle until the parent is initialized.
   void handleGuePktTypeHashModeConfig() const;

 private:
   Config config_;
   L3Sm * parent_; // not an owner: the parent owns this
};

} // namespace DaceFapNi
