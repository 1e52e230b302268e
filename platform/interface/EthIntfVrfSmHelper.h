// The helper through which an agent hands the interfaces that it serves to the VRF machinery.
//
//    auto const helper = EthIntf::ethIntfVrfSmHelperFactory( entityManager );
//    helper->routerMacsPerIntfIs( routerMacHwCapability->routerMacsPerIntf() );
//    helper->doStartSm( managedIntfStatusDir, managedIntfStatusLocalDir );   // once the directories are filled
//
// Reference: the machinery behind it belongs to other agents. What stands here is its door: it takes the directories,
// keeps them for as long as it lives, and tells who listens that it was started.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "interface/ManagedIntfStatusDir.h"
#include "stordb/Stordb.h"

namespace EthIntf {

class EthIntfVrfSmHelper : public Rex::Entity {
   REX_ENTITY( EthIntfVrfSmHelper, Rex::Entity );
   REX_ATTRIBUTE( U8, routerMacsPerIntf, 0x102, 1 ); // router MAC addresses that the hardware holds for an interface
   REX_ATTRIBUTE( bool, started, 0x103, false );     // announced when doStartSm has the directories

 public:
   explicit EthIntfVrfSmHelper( Corvo::Ptr< Stordb::EntityManager > entityManager );
   // Makes a helper and activates it.
   static Corvo::Ptr< EthIntfVrfSmHelper >
   EthIntfVrfSmHelperIs( Corvo::Ptr< Stordb::EntityManager > const & entityManager );

   // Idempotent.
   void hasNotificationActiveIs( bool active );
   // Starts the machinery on the interfaces of these directories, which it follows from then on. Started again, it
   // changes over to the directories given then.
   void doStartSm( Corvo::Ptr< Interface::ManagedIntfStatusDir > const & statusDir,
                   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > const & localDir );

   Corvo::Ptr< Stordb::EntityManager > const & entityManager() const { return entityManager_; }
   Corvo::Ptr< Interface::ManagedIntfStatusDir > const & managedIntfStatusDir() const { return statusDir_; }
   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > const & managedIntfStatusLocalDir() const { return localDir_; }

 private:
   Corvo::Ptr< Stordb::EntityManager > entityManager_;
   Corvo::Ptr< Interface::ManagedIntfStatusDir > statusDir_;
   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > localDir_;
};

// Makes a helper and activates it.
Corvo::Ptr< EthIntfVrfSmHelper > ethIntfVrfSmHelperFactory( Corvo::Ptr< Stordb::EntityManager > const & entityManager );

} // namespace EthIntf
