#include "simulator/SwitchDescription.h"

namespace Simulator {

using Corvo::makePtr;
using Hardware::Dace::FapPortId;
using Hardware::Dace::Cell::CellStatus;
using Hardware::Dace::Cell::FapStatus;

U16 FapDescription::copies() const {
   bool const hasTwo =
      revision.chipType() == Hardware::ChipType::BCM88690_B0 || revision.chipType() == Hardware::ChipType::BCM88850_A0;
   return hasTwo ? 2 : 1;
}

U16 FapDescription::coreCount() const {
   return cores.value_or( copies() );
}

namespace {

Corvo::Ptr< CellStatus > tellCell( SwitchDescription const & description, StateTree & state ) {
   auto const cell = makePtr< CellStatus >();
   for ( auto const & fap : description.faps ) {
      auto const status = makePtr< FapStatus >( fap.fapId );
      status->fapNameIs( fap.name );
      status->revisionIs( fap.revision );
      status->coresIs( fap.coreCount() );
      for ( auto const & [systemPort, fapPort] : fap.ports ) {
         status->portsIs( systemPort, FapPortId{ fapPort } );
      }
      cell->fapStatusIs( status );
   }
   Corvo::ptrCast< Rex::Dir >( state.entity( "hardware/dace/fap/status" ) )->entityIs( description.sliceName, cell );
   return cell;
}

} // namespace

Corvo::Ptr< CellStatus > tell( SwitchDescription const & description, StateTree & state ) {
   auto const global = makePtr< DaceFapNi::AgentGlobalState >();
   global->sliceNameIs( description.sliceName );
   state.rootIs( "shared/agentGlobalState", global );

   auto const slice = makePtr< DaceFapNi::SliceSmStateInfo >();
   if ( !description.faps.empty() ) {
      slice->revisionIs( description.faps.front().revision );
   }
   state.rootIs( "shared/sliceSmStateData", slice );

   auto const phy = makePtr< DaceFapNi::PhySmStateInfo >();
   phy->allEthPhyIntfConfigDirIs( makePtr< Interface::AllEthPhyIntfConfigDir >() );
   state.rootIs( "shared/phySmStateData", phy );

   auto const phyShared = makePtr< DaceFapNi::PhySmStateSharedStatus >();
   phyShared->allEthPhyIntfStatusDirIs( makePtr< Interface::AllEthPhyIntfStatusDir >() );
   state.rootIs( "shared/phySmStateSharedStatus", phyShared );

   return tellCell( description, state );
}

} // namespace Simulator
