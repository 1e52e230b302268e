#include "inspection/SuspiciousInput.h"

#include "chip/FapRevision.h"
#include "rex/Entity.h"

#include <algorithm>

namespace Inspection {

namespace {

template< class T >
Corvo::Ptr< T > entity( Simulator::SimulatedSwitch const & sw, char const * path ) {
   return sw.entity< T >( path );
}

// Paths that the scenario, or an event that has been played, leaves out.
void addMissingPaths( std::vector< std::string > & all, Simulator::SimulatedSwitch const & sw ) {
   for ( auto const & root : Simulator::stateRoots() ) {
      if ( root.kind == Simulator::StateRoot::Kind::state && !sw.state().entity( root.path() ) ) {
         all.push_back( "the state leaves out " + root.path() + " (null)" );
      }
   }
}

// Active ports whose interface lacks a status.
void addPorts( std::vector< std::string > & all, Simulator::SimulatedSwitch const & sw ) {
   auto const ports = entity< DaceFapNi::PortStateInfo >( sw, "shared/portStateInfo" );
   auto const phy = entity< DaceFapNi::PhySmStateInfo >( sw, "shared/phySmStateData" );
   auto const shared = entity< DaceFapNi::PhySmStateSharedStatus >( sw, "shared/phySmStateSharedStatus" );
   auto const locals = entity< Interface::EthPhyIntfStatusLocalDir >( sw, "interface/status/eth/phy/local" );
   if ( phy && !phy->allEthPhyIntfConfigDir() ) {
      all.push_back( "shared/phySmStateData allEthPhyIntfConfigDir is null" );
   }
   if ( shared && !shared->allEthPhyIntfStatusDir() ) {
      all.push_back( "shared/phySmStateSharedStatus allEthPhyIntfStatusDir is null" );
   }
   if ( !ports || !phy || !phy->allEthPhyIntfConfigDir() ) {
      return;
   }
   for ( auto const & [id, port] : ports->portState() ) {
      auto const intfId = port->intfId();
      if ( !port->active() || !phy->allEthPhyIntfConfigDir()->intfConfigHas( intfId ) ) {
         continue;
      }
      auto const lacks = [&]( char const * where ) {
         all.push_back( "port " + std::to_string( id.value ) + " is active and its interface " + intfId.stringValue() +
                        " is configured, but " + where + " has no " + intfId.stringValue() );
      };
      if ( shared && shared->allEthPhyIntfStatusDir() && !shared->allEthPhyIntfStatusDir()->intfStatusHas( intfId ) ) {
         lacks( "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus" );
      }
      if ( locals && !locals->intfStatusLocalHas( intfId ) ) {
         lacks( "interface/status/eth/phy/local/intfStatusLocal" );
      }
   }
}

void addSlice( std::vector< std::string > & all, Simulator::SimulatedSwitch const & sw ) {
   auto const slice = entity< DaceFapNi::SliceSmStateInfo >( sw, "shared/sliceSmStateData" );
   if ( slice && slice->smMode() == Hardware::Dace::smModeNull() ) {
      all.push_back( "shared/sliceSmStateData smMode is 0, which no slice in service has" );
   }
}

// What contradicts the chips, as far as it has been played.
void addContradictions( std::vector< std::string > & all,
                        Scenario const & scenario,
                        Simulator::SimulatedSwitch const & sw ) {
   for ( Warning const & warning : scenario.warnings ) {
      if ( !warning.event || *warning.event <= sw.event() ) {
         all.push_back( warning.place + ": " + warning.text );
      }
   }
}

} // namespace

std::vector< std::string > suspicionsOf( Scenario const & scenario, Simulator::SimulatedSwitch const & sw ) {
   std::vector< std::string > all;
   addPorts( all, sw );
   addSlice( all, sw );
   addContradictions( all, scenario, sw );
   addMissingPaths( all, sw );
   return all;
}

} // namespace Inspection
