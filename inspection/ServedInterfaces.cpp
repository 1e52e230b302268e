#include "inspection/ServedInterfaces.h"

#include "interface/L3MtuSm.h"
#include "interface/ManagedIntfStatusDir.h"
#include "interface/SyncMtuSubIntfWalkSm.h"

#include <algorithm>

namespace Inspection {

namespace {

using Interface::L3MtuSm;
using Interface::SyncMtuSubIntfWalkSm;
using One = Interfaces::One;

// "Ethernet2" before "Ethernet10".
struct ByName {
   bool operator()( Netka::IntfId left, Netka::IntfId right ) const {
      auto const & a = left.stringValue();
      auto const & b = right.stringValue();
      return a.size() != b.size() ? a.size() < b.size() : a < b;
   }
};

std::string textOf( Netka::EthAddr const & addr ) {
   return addr.stringValue();
}

class SwitchReader {
 public:
   explicit SwitchReader( Simulator::SimulatedSwitch const & sw ) : sw_( sw ) {
      if ( auto const shared = entity< DaceFapNi::PhySmStateInfo >( "shared/phySmStateData" ) ) {
         configs_ = shared->allEthPhyIntfConfigDir();
      }
      if ( auto const shared = entity< DaceFapNi::PhySmStateSharedStatus >( "shared/phySmStateSharedStatus" ) ) {
         statuses_ = shared->allEthPhyIntfStatusDir();
      }
      if ( subIntfs_ ) {
         for ( auto const & [subIntfId, subIntf] : subIntfs_->intfStatus() ) {
            subIntfsOf_[subIntf->parentIntfId()].push_back( subIntf );
         }
      }
   }

   Interfaces read() {
      Interfaces interfaces;
      auto const slice = entity< DaceFapNi::SliceSmStateInfo >( "shared/sliceSmStateData" );
      isActive_ = slice && slice->smMode() == Hardware::Dace::smModeActive();
      interfaces.isActive = isActive_;

      std::map< Netka::IntfId, L3MtuSm const * > mtus;
      for ( auto const * sm = L3MtuSm::newest(); sm; sm = sm->older() ) {
         if ( sm->intfConfig() ) {
            mtus.emplace( sm->intfConfig()->intfId(), sm );
         }
      }
      std::map< Netka::IntfId, One, ByName > all;
      for ( auto const & [intfId, why] : candidates() ) {
         all[intfId].why = why;
      }
      for ( auto const * walk = SyncMtuSubIntfWalkSm::newest(); walk; walk = walk->older() ) {
         One & one = all[walk->intfId()];
         one.isServed = true;
         auto const mtu = mtus.find( walk->intfId() );
         serve( one, *walk, mtu == mtus.end() ? nullptr : mtu->second );
      }
      auto const * const managed = Interface::ManagedIntfStatusDir::newest();
      for ( auto & [intfId, one] : all ) {
         one.name = intfId.stringValue();
         one.isManaged = managed && managed->intfStatusHas( intfId );
         if ( auto const status = statuses_ ? statuses_->intfStatus( intfId ) : nullptr ) {
            one.status = { status->mtu(),
                           status->maxMtu(),
                           textOf( status->addr() ),
                           textOf( status->routedAddr() ),
                           textOf( status->burnedInAddr() ) };
         }
         interfaces.all.push_back( std::move( one ) );
      }
      return interfaces;
   }

 private:
   template< class T >
   Corvo::Ptr< T > entity( char const * path ) const {
      return sw_.entity< T >( path );
   }

   // What the machines of a served interface know of it.
   void serve( One & one, SyncMtuSubIntfWalkSm const & walk, L3MtuSm const * sm ) const {
      auto const intfId = walk.intfId();
      auto const * const config = sm ? sm->intfConfig() : nullptr;
      auto const there = configs_ ? configs_->intfConfig( intfId ) : nullptr;
      auto const status = statuses_ ? statuses_->intfStatus( intfId ) : nullptr;
      auto const & asked = walk.asked();
      one.mtu = sm ? sm->effectiveL3Mtu() : 0;
      if ( !there ) {
         one.note = "its configuration was removed; what it had is still followed";
      } else if ( config && config != there.get() ) {
         one.note = "its configuration was replaced; the one from before is still followed";
      }
      bool const isOfThis = asked && status && asked->intfStatus == status.get();
      std::string const behind = isOfThis ? whoIsBehind( *status, one.mtu ) : intfId.stringValue();
      one.isSynced = asked && asked->isSynced && asked->mtu == one.mtu && behind.empty();
      std::string const mtu = "MTU " + std::to_string( one.mtu );
      one.why = one.isSynced                   ? ""
                : !isActive_                   ? "standby"
                : config && !config->enabled() ? "not enabled"
                : !asked && !status            ? "no status"
                : !asked                       ? "had no status when it began to be served"
                : !isOfThis && asked->isSynced
                   ? mtu + " went to its status from before, which " + ( status ? "was replaced" : "is gone" )
                   : mtu + " hasn't reached " + behind;
   }

   // The first of an interface and its subinterfaces that has another MTU.
   std::string whoIsBehind( Interface::IntfStatus const & status, U32 mtu ) const {
      auto const local = locals_ ? locals_->intfStatusLocal( status.intfId() ) : nullptr;
      if ( status.mtu() != mtu || ( local && local->mtu() != mtu ) ) {
         return status.intfId().stringValue();
      }
      auto const found = subIntfsOf_.find( status.intfId() );
      for ( auto const & subIntf : found == subIntfsOf_.end() ? SubIntfs{} : found->second ) {
         auto const subLocal = subLocals_ ? subLocals_->intfStatusLocal( subIntf->intfId() ) : nullptr;
         if ( subIntf->mtu() != mtu || ( subLocal && subLocal->mtu() != mtu ) ) {
            return subIntf->intfId().stringValue();
         }
      }
      return {};
   }

   // The interfaces that are configured or belong to a port, each with what keeps it out of service, if it isn't in.
   std::map< Netka::IntfId, std::string, ByName > candidates() const {
      std::map< Netka::IntfId, std::string, ByName > all;
      if ( configs_ ) {
         for ( auto const & [intfId, config] : configs_->intfConfig() ) {
            all[intfId] = "no port";
         }
      }
      auto const ports = entity< DaceFapNi::PortStateInfo >( "shared/portStateInfo" );
      if ( !ports ) {
         return all;
      }
      for ( auto const & [portId, port] : ports->portState() ) {
         bool const isConfigured = configs_ && configs_->intfConfigHas( port->intfId() );
         all[port->intfId()] = !isConfigured     ? "not configured"
                               : !port->active() ? "port not active"
                                                 : "no change of its port since it was configured";
      }
      return all;
   }

   using SubIntfs = std::vector< Corvo::Ptr< Interface::SubIntfStatus > >;

   Simulator::SimulatedSwitch const & sw_;
   bool isActive_ = false;
   Corvo::Ptr< Interface::AllEthPhyIntfConfigDir > configs_;
   Corvo::Ptr< Interface::AllEthPhyIntfStatusDir > statuses_;
   Corvo::Ptr< Interface::EthPhyIntfStatusLocalDir > const locals_ =
      entity< Interface::EthPhyIntfStatusLocalDir >( "interface/status/eth/phy/local" );
   Corvo::Ptr< Interface::SubIntfStatusDir > const subIntfs_ =
      entity< Interface::SubIntfStatusDir >( "interface/status/subintf" );
   Corvo::Ptr< Interface::SubIntfStatusLocalDir > const subLocals_ =
      entity< Interface::SubIntfStatusLocalDir >( "interface/status/subintf/local" );
   std::map< Netka::IntfId, SubIntfs > subIntfsOf_;
};

std::vector< One const * > whichAre( Interfaces const & interfaces, bool served ) {
   std::vector< One const * > which;
   for ( One const & one : interfaces.all ) {
      if ( one.isServed == served ) {
         which.push_back( &one );
      }
   }
   return which;
}

} // namespace

std::vector< One const * > Interfaces::served() const {
   return whichAre( *this, true );
}

std::vector< One const * > Interfaces::unserved() const {
   return whichAre( *this, false );
}

Interfaces interfacesOf( Simulator::SimulatedSwitch const & sw ) {
   return SwitchReader( sw ).read();
}

Rex::Value interfacesValue( Interfaces const & interfaces ) {
   Rex::Value::List list;
   for ( One const & one : interfaces.all ) {
      Rex::Value::Object value{
         { "name", one.name }, { "served", one.isServed }, { "managed", one.isManaged }, { "synced", one.isSynced } };
      if ( one.isServed ) {
         value["l3Mtu"] = one.mtu;
      }
      if ( !one.why.empty() ) {
         value["why"] = one.why;
      }
      if ( !one.note.empty() ) {
         value["note"] = one.note;
      }
      if ( one.status ) {
         value["status"] = Rex::Value::Object{ { "mtu", one.status->mtu },
                                               { "maxMtu", one.status->maxMtu },
                                               { "addr", one.status->addr },
                                               { "routedAddr", one.status->routedAddr },
                                               { "burnedInAddr", one.status->burnedInAddr } };
      }
      list.emplace_back( std::move( value ) );
   }
   return Rex::Value::Object{ { "mode", interfaces.isActive ? "active" : "standby" }, { "interfaces", list } };
}

} // namespace Inspection
