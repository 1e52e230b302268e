#include "interface/L3MtuSm.h"

namespace Interface {

L3MtuSm * L3MtuSm::newest_ = nullptr;

L3MtuSm::L3MtuSm( Corvo::Ptr< IntfConfig const > const & intfConfig,
                  Corvo::Ptr< GlobalIntfConfig const > const & globalIntfConfig,
                  Corvo::Ptr< EffectiveL3Mtu > const & effectiveL3Mtu,
                  Corvo::Ptr< Hardware::Capability const > const & intfHwCapability )
   : intfConfig_( intfConfig ), globalIntfConfig_( globalIntfConfig ), effectiveL3Mtu_( effectiveL3Mtu ),
     intfHwCapability_( intfHwCapability ), older_( newest_ ) {
   if ( older_ ) {
      older_->younger_ = this;
   }
   newest_ = this;
}

L3MtuSm::~L3MtuSm() {
   ( younger_ ? younger_->older_ : newest_ ) = older_;
   if ( older_ ) {
      older_->younger_ = younger_;
   }
}

Corvo::Ptr< L3MtuSm > L3MtuSm::L3MtuSmIs( Corvo::Ptr< IntfConfig const > const & intfConfig,
                                          Corvo::Ptr< GlobalIntfConfig const > const & globalIntfConfig,
                                          Corvo::Ptr< EffectiveL3Mtu > const & effectiveL3Mtu,
                                          Corvo::Ptr< Hardware::Capability const > const & intfHwCapability ) {
   auto const sm = Corvo::makePtr< L3MtuSm >( intfConfig, globalIntfConfig, effectiveL3Mtu, intfHwCapability );
   sm->hasNotificationActiveIs( true );
   return sm;
}

bool L3MtuSm::builtFrom( Corvo::Ptr< IntfConfig const > const & intfConfig,
                         Corvo::Ptr< GlobalIntfConfig const > const & globalIntfConfig,
                         Corvo::Ptr< EffectiveL3Mtu > const & effectiveL3Mtu,
                         Corvo::Ptr< Hardware::Capability const > const & intfHwCapability ) const {
   return intfConfig_.ptr() == intfConfig && globalIntfConfig_.ptr() == globalIntfConfig &&
          effectiveL3Mtu_ == effectiveL3Mtu && intfHwCapability_ == intfHwCapability;
}

void L3MtuSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   intfConfig_.activeIs( active, intfConfigDispatch, this );
   globalIntfConfig_.activeIs( active, globalIntfConfigDispatch, this );
   if ( active ) {
      handleMtu();
   }
}

U32 L3MtuSm::l3Mtu( IntfConfig const * intfConfig,
                    GlobalIntfConfig const * globalIntfConfig,
                    Hardware::Capability const * intfHwCapability ) {
   U32 mtu = intfConfig ? intfConfig->mtu() : 0;
   if ( mtu == 0 && globalIntfConfig && ( !intfHwCapability || intfHwCapability->globalL3MtuSupported() ) ) {
      mtu = globalIntfConfig->l3Mtu();
   }
   return mtu ? mtu : defaultL3Mtu;
}

void L3MtuSm::handleMtu() {
   effectiveL3Mtu_->mtuIs( l3Mtu( intfConfig_.ptr().get(), globalIntfConfig_.ptr().get(), intfHwCapability_.get() ) );
}

void L3MtuSm::intfConfigDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   if ( attribute == 0x110 /* mtu */ ) {
      slot->owner< L3MtuSm >()->handleMtu();
   }
}

void L3MtuSm::globalIntfConfigDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   if ( attribute == 0x102 /* l3Mtu */ ) {
      slot->owner< L3MtuSm >()->handleMtu();
   }
}

} // namespace Interface
