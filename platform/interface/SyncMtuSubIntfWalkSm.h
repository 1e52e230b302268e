// SyncMtuSubIntfWalkSm: brings an MTU to an interface and all of its subinterfaces.
//
//    auto const walk = syncMtuSubIntfWalkSmFactory( scheduler, intfId, subIntfStatusDir, subIntfStatusLocalDir );
//    walk->syncMtu( syncMtuDataFactory( intfStatus, intfStatusLocal, 9000, true, true, -1 ) );
//    // ... the scheduler runs; attribute 0x18c, syncMtuResult, is announced as 3: synced
//    walk->reset();
//
// States, as syncMtuResult tells them:
//    idle (0)            nothing to do. reset() brings it here from anywhere, and abandons what was under way.
//    walking (1)         syncMtu() brings it here. Called again with equal data it lets the walk go on; with other data
//                        the walk begins anew.
//    restart needed (2)  subinterfaces came or went during the walk, which has ended early.
//    synced (3)          the interface and its subinterfaces have the MTU.
//
// The work is done by tasks of the scheduler, subIntfsPerSlice subinterfaces in each, so that the agent stays
// responsive; nothing is written before syncMtu() returns. Whoever hears of a write may reset, restart or drop the
// walk. A walk that is dropped writes nothing more.
//
// Reference: the subinterfaces belong to another agent, which carries out what this walk asks for. Here the platform
// stands for that agent too, and writes the MTU of the subinterfaces' status and local status on its behalf, although
// both are mounted for reading.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "interface/SubIntfIndex.h"
#include "orb/TaskScheduler.h"
#include "state/Interfaces.h"

#include <optional>

namespace Interface {

// How far a walk has come.
struct SyncMtuResult {
   enum SyncMtuResultType : U8 { idle = 0, walking = 1, restartNeeded = 2, synced = 3 };
   // As a number.
   friend std::ostream & operator<<( std::ostream & out, SyncMtuResultType result ) {
      return out << static_cast< unsigned >( result );
   }
};

} // namespace Interface

template<>
struct Rex::Codec< Interface::SyncMtuResult::SyncMtuResultType > {
   using Type = Interface::SyncMtuResult::SyncMtuResultType;
   static ValueType type() { return Codec< U8 >::type(); }
   static Value toValue( Type result ) { return static_cast< unsigned >( result ); }
   static Type fromValue( Value const & value ) { return static_cast< Type >( Codec< U8 >::fromValue( value ) ); }
};

namespace Interface {

// What a walk is to do. Never changes.
class SyncMtuData : public Corvo::Node {
 public:
   SyncMtuData( Corvo::Ptr< IntfStatus > const & intfStatus,
                Corvo::Ptr< IntfStatusLocal > const & intfStatusLocal,
                unsigned int mtu,
                bool syncIntf,
                bool syncSubIntfs,
                int subIntfLimit );

   Corvo::Ptr< IntfStatus > const intfStatus;           // the interface's own; may be null
   Corvo::Ptr< IntfStatusLocal > const intfStatusLocal; // the interface's own; may be null
   U32 const mtu;                                       // bytes
   bool const syncIntf;                                 // write the interface's own status and local status
   bool const syncSubIntfs;                             // write those of its subinterfaces
   S32 const subIntfLimit;                              // of how many of them, by id; negative: of all

   friend bool operator==( SyncMtuData const & left, SyncMtuData const & right );
};

Corvo::Ptr< SyncMtuData > syncMtuDataFactory( Corvo::Ptr< IntfStatus > const & intfStatus,
                                              Corvo::Ptr< IntfStatusLocal > const & intfStatusLocal,
                                              unsigned int mtu,
                                              bool syncIntf,
                                              bool syncSubIntfs,
                                              int subIntfLimit );

class SyncMtuSubIntfWalkSm : public Rex::Entity {
   REX_ENTITY( SyncMtuSubIntfWalkSm, Rex::Entity );
   REX_ATTRIBUTE( SyncMtuResult::SyncMtuResultType, syncMtuResult, 0x18c, SyncMtuResult::idle );

 public:
   static constexpr std::size_t subIntfsPerSlice = 64;

   // A directory that is null has no subinterfaces.
   SyncMtuSubIntfWalkSm( Corvo::Ptr< Orb::TaskScheduler > const & scheduler,
                         Netka::IntfId intfId,
                         Corvo::Ptr< SubIntfStatusDir const > const & subIntfStatusDir,
                         Corvo::Ptr< SubIntfStatusLocalDir const > const & subIntfStatusLocalDir );
   ~SyncMtuSubIntfWalkSm() override;

   Netka::IntfId intfId() const { return intfId_; }
   // All walks that are alive: one for each interface that this agent serves. The one made last, then each one's
   // elder; null where there is none.
   static SyncMtuSubIntfWalkSm const * newest() { return newest_; }
   SyncMtuSubIntfWalkSm const * older() const { return older_; }

   // The walk that was asked for last, also where it is over or was abandoned.
   struct Asked {
      IntfStatus const * intfStatus = nullptr; // whose; to be compared only: it may be gone by now
      U32 mtu = 0;
      bool isSynced = false; // it came to its end
   };
   // None: it was never asked for one.
   std::optional< Asked > const & asked() const { return asked_; }

   // Starts a walk. Null: throws the null-argument exception.
   void syncMtu( Corvo::Ptr< SyncMtuData > const & data );
   // Abandons the walk.
   void reset();

 private:
   struct Walk;
   class Slice;
   void post();
   void runSlice();
   void finish( SyncMtuResult::SyncMtuResultType result );
   bool isUnderWay( Corvo::Ptr< Walk > const & walk ) const;
   U64 generation() const;
   void writeIntf( SyncMtuData const & data );
   void writeSubIntf( SubIntfStatus & subIntf, U32 mtu );

   Netka::IntfId const intfId_;
   Corvo::Ptr< Orb::TaskScheduler > scheduler_;
   Corvo::Ptr< SubIntfIndex > subIntfs_;
   Corvo::Ptr< SubIntfStatusLocalDir const > subIntfStatusLocalDir_;
   std::optional< Asked > asked_;
   Corvo::Ptr< Walk > walk_;  // what is under way
   Slice * posted_ = nullptr; // the task that is waiting for the scheduler, which owns it; one at most
   SyncMtuSubIntfWalkSm * older_ = nullptr;
   SyncMtuSubIntfWalkSm * younger_ = nullptr;
   static SyncMtuSubIntfWalkSm * newest_;
};

Corvo::Ptr< SyncMtuSubIntfWalkSm >
syncMtuSubIntfWalkSmFactory( Corvo::Ptr< Orb::TaskScheduler > const & scheduler,
                             Netka::IntfId intfId,
                             Corvo::Ptr< SubIntfStatusDir const > const & subIntfStatusDir,
                             Corvo::Ptr< SubIntfStatusLocalDir const > const & subIntfStatusLocalDir );

} // namespace Interface
