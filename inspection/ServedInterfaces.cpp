#include "inspection/ServedInterfaces.h"

#include "interface/L3MtuSm.h"
#include "interface/ManagedIntfStatusDir.h"
#include "interface/SyncMtuSubIntfWalkSm.h"

#include <algorithm>
#include <set>

namespace Inspection {

namespace {

using Interface::SyncMtuSubIntfWalkSm;
using Items = std::vector< Interfaces::Item >;

constexpr std::size_t mostNames = 8; // before the rest is only counted

// "Ethernet2" before "Ethernet10".
struct ByName {
   bool operator()( Netka::IntfId left, Netka::IntfId right ) const {
      auto const & a = left.stringValue();
      auto const & b = right.stringValue();
      return a.size() != b.size() ? a.size() < b.size() : a < b;
   }
};

class Reader {
 public:
   explicit Reader( Simulator::SimulatedSwitch const & sw ) : sw_( sw ) {
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
      Interfaces all;
      auto const slice = entity< DaceFapNi::SliceSmStateInfo >( "shared/sliceSmStateData" );
      isActive_ = slice && slice->smMode() == Hardware::Dace::smModeActive();
      all.isActive = isActive_;

      std::set< Netka::IntfId, ByName > served;
      for ( auto const * walk = SyncMtuSubIntfWalkSm::newest(); walk; walk = walk->older() ) {
         served.insert( walk->intfId() );
      }
      auto const * const managed = Interface::ManagedIntfStatusDir::newest();
      for ( auto const intfId : served ) {
         all.served.push_back( { intfId.stringValue(), "" } );
         if ( !managed || !managed->intfStatusHas( intfId ) ) {
            all.unmanaged.push_back( { intfId.stringValue(), "" } );
         }
         auto const [isSynced, remark] = mtuOf( intfId );
         ( isSynced ? all.synced : all.waiting ).push_back( { intfId.stringValue(), remark } );
      }
      for ( auto const & [intfId, why] : candidates() ) {
         if ( !served.contains( intfId ) ) {
            all.unserved.push_back( { intfId.stringValue(), why } );
         }
      }
      return all;
   }

 private:
   template< class T >
   Corvo::Ptr< T > entity( char const * path ) const {
      return sw_.entity< T >( path );
   }

   // Whether an interface has its MTU; which, or why not.
   std::pair< bool, std::string > mtuOf( Netka::IntfId intfId ) const {
      auto const config = configs_ ? configs_->intfConfig( intfId ) : nullptr;
      auto const status = statuses_ ? statuses_->intfStatus( intfId ) : nullptr;
      U32 const mtu = Interface::L3MtuSm::l3Mtu( config.get(), globalConfig_.get(), capability_.get() );
      std::string const behind = config && status ? whoIsBehind( *status, mtu ) : intfId.stringValue();
      if ( behind.empty() ) {
         return { true, std::to_string( mtu ) };
      }
      return { false,
               !isActive_           ? "(standby)"
               : !config            ? "(no configuration any more)"
               : !status            ? "(no status)"
               : !config->enabled() ? "(not enabled)"
                                    : "(MTU " + std::to_string( mtu ) + " hasn't reached " + behind + ")" };
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
            all[intfId] = "(no port)";
         }
      }
      auto const ports = entity< DaceFapNi::PortStateInfo >( "shared/portStateInfo" );
      if ( !ports ) {
         return all;
      }
      for ( auto const & [portId, port] : ports->portState() ) {
         bool const isConfigured = configs_ && configs_->intfConfigHas( port->intfId() );
         all[port->intfId()] = !isConfigured     ? "(not configured)"
                               : !port->active() ? "(port not active)"
                                                 : "(no change of its port since it was configured)";
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
   Corvo::Ptr< Interface::GlobalIntfConfig > const globalConfig_ =
      entity< Interface::GlobalIntfConfig >( "interface/config/global" );
   Corvo::Ptr< Interface::Hardware::Capability > const capability_ =
      entity< Interface::Hardware::Capability >( "interface/hardware/capability" );
   std::map< Netka::IntfId, SubIntfs > subIntfsOf_;
};

// "  2 with MTU synced: Ethernet1 9000, Ethernet2 1500"
void writeLine( std::ostream & out, std::string const & what, Items const & items ) {
   out << "  " << ( items.empty() ? "none" : std::to_string( items.size() ) ) << ' ' << what;
   for ( std::size_t i = 0; i < std::min( items.size(), mostNames ); ++i ) {
      out << ( i == 0 ? ": " : ", " ) << items[i].name << ( items[i].remark.empty() ? "" : " " ) << items[i].remark;
   }
   if ( items.size() > mostNames ) {
      out << ", ... and " << items.size() - mostNames << " more";
   }
   out << '\n';
}

} // namespace

Interfaces interfacesOf( Simulator::SimulatedSwitch const & sw ) {
   return Reader( sw ).read();
}

void writeInterfaces( std::ostream & out, Interfaces const & interfaces ) {
   if ( interfaces.empty() ) {
      return;
   }
   out << "Interfaces at the end\n";
   writeLine( out, interfaces.isActive ? "served, active" : "served, standby", interfaces.served );
   auto const writeSome = [&]( std::string const & what, Items const & items ) {
      if ( !items.empty() ) {
         writeLine( out, what, items );
      }
   };
   writeSome( "with MTU synced", interfaces.synced );
   writeSome( "with MTU waiting", interfaces.waiting );
   writeSome( "served outside the managed directories", interfaces.unmanaged );
   writeSome( "not served", interfaces.unserved );
   out << '\n';
}

} // namespace Inspection
