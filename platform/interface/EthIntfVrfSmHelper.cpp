#include "interface/EthIntfVrfSmHelper.h"
#include "rex/EntityAttributes.h"

REX_DEFINE( EthIntf::EthIntfVrfSmHelper, "EthIntf::EthIntfVrfSmHelper" );

namespace EthIntf {

EthIntfVrfSmHelper::EthIntfVrfSmHelper( Corvo::Ptr< Stordb::EntityManager > entityManager )
   : entityManager_( std::move( entityManager ) ) {}

Corvo::Ptr< EthIntfVrfSmHelper >
EthIntfVrfSmHelper::EthIntfVrfSmHelperIs( Corvo::Ptr< Stordb::EntityManager > const & entityManager ) {
   auto const helper = Corvo::makePtr< EthIntfVrfSmHelper >( entityManager );
   helper->hasNotificationActiveIs( true );
   return helper;
}

void EthIntfVrfSmHelper::hasNotificationActiveIs( bool active ) {
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
}

void EthIntfVrfSmHelper::doStartSm( Corvo::Ptr< Interface::ManagedIntfStatusDir > const & statusDir,
                                    Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > const & localDir ) {
   statusDir_ = statusDir;
   localDir_ = localDir;
   startedIs( true );
}

Corvo::Ptr< EthIntfVrfSmHelper >
ethIntfVrfSmHelperFactory( Corvo::Ptr< Stordb::EntityManager > const & entityManager ) {
   return EthIntfVrfSmHelper::EthIntfVrfSmHelperIs( entityManager );
}

} // namespace EthIntf
