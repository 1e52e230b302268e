// The objects that an agent shares with its plug-ins, by key (LocalSharedState).
#pragma once

#include "agent/ChipInit.h"
#include "netka/IntfId.h"
#include "orb/TaskScheduler.h"
#include "state/CellStatus.h"
#include "state/Interfaces.h"
#include "state/Overlays.h"

namespace Hardware::Dace {

// The mode of a slice: 0 null, 2 active, anything else standby.
struct SmMode {
   U8 value = 0;
   friend auto operator<=>( SmMode, SmMode ) = default;
   friend std::ostream & operator<<( std::ostream & out, SmMode mode ) { return out << unsigned{ mode.value }; }
};
constexpr SmMode smModeNull() {
   return SmMode{ 0 };
}
constexpr SmMode smModeActive() {
   return SmMode{ 2 };
}

// A port of the slice, in the system's numbering.
struct SystemPhyPortId {
   U16 value = 0;
   friend auto operator<=>( SystemPhyPortId, SystemPhyPortId ) = default;
   friend std::ostream & operator<<( std::ostream & out, SystemPhyPortId port ) { return out << port.value; }
};

} // namespace Hardware::Dace

template<>
struct std::hash< Hardware::Dace::SystemPhyPortId > {
   std::size_t operator()( Hardware::Dace::SystemPhyPortId port ) const noexcept { return port.value; }
};

namespace DaceFapNi {

// How far a slice has come up.
struct SliceState {
   U8 value = 0;
   friend auto operator<=>( SliceState, SliceState ) = default;
};

class AgentGlobalState : public Rex::Entity {
   REX_ENTITY( AgentGlobalState, Rex::Entity );
   REX_ATTRIBUTE( Corvo::String, sliceName, 0x102 );
};

class SliceSmStateInfo : public Rex::Entity {
   REX_ENTITY( SliceSmStateInfo, Rex::Entity );
   REX_ATTRIBUTE( SliceState, sliceState, 0x108 );
   REX_ATTRIBUTE( Hardware::Dace::SmMode, smMode, 0x109, Hardware::Dace::smModeActive() );
   REX_ATTRIBUTE( Hardware::Dace::FapRevision, revision, 0x10a );
   REX_MAP( Corvo::String, Fru::SlotId, slotIds, 0x10b ); // by slice name
};

class PhySmStateInfo : public Rex::Entity {
   REX_ENTITY( PhySmStateInfo, Rex::Entity );
   REX_ENTITY_ATTRIBUTE( Interface::AllEthPhyIntfConfigDir, allEthPhyIntfConfigDir, 0x10b );
};

class PhySmStateSharedStatus : public Rex::Entity {
   REX_ENTITY( PhySmStateSharedStatus, Rex::Entity );
   REX_ENTITY_ATTRIBUTE( Interface::AllEthPhyIntfStatusDir, allEthPhyIntfStatusDir, 0x104 );
};

class DriverSetupSmStateInfo : public Rex::Entity {
   REX_ENTITY( DriverSetupSmStateInfo, Rex::Entity );
   REX_ATTRIBUTE( U8, ucodeProfile, 0x103, 2 );
};

class PortState : public Rex::KeyedEntity< Hardware::Dace::SystemPhyPortId > {
   REX_ENTITY( PortState, Rex::KeyedEntity< Hardware::Dace::SystemPhyPortId > );
   REX_KEY( systemPhyPortId );
   REX_ATTRIBUTE( Netka::IntfId, intfId, 0x83 );
   REX_ATTRIBUTE( bool, active, 0x84, false );
   REX_ATTRIBUTE( U32, portGenId, 0x8f, 0 ); // moves when the port has changed
};

class PortStateInfo : public Rex::Entity {
   REX_ENTITY( PortStateInfo, Rex::Entity );
   REX_COLLECTION( PortState, portState, 0x102 );
};

class TaskScheduler : public Rex::Entity {
   REX_ENTITY( TaskScheduler, Rex::Entity );

 public:
   explicit TaskScheduler( Corvo::Ptr< Orb::TaskScheduler > scheduler ) : scheduler_( std::move( scheduler ) ) {}
   Corvo::Ptr< Orb::TaskScheduler > const & taskScheduler() const { return scheduler_; }

 private:
   Corvo::Ptr< Orb::TaskScheduler > scheduler_;
};

} // namespace DaceFapNi
