// The slots of the virtual operations: other libraries call by them. The two destructors come first.
#include "DaceL3Unicast/DaceFapNiPlugin/L3SmMounter.h"
#include "DaceL3Unicast/DaceFapNiPlugin/RexIpIntfConfigFilter.h"

#include <cstring>
#include <gtest/gtest.h>

using namespace DaceFapNi;

namespace {

// The slot that a pointer to a virtual member function names, counted from 0: one more than its offset in bytes.
template< class Operation >
std::size_t slot( Operation operation ) {
   std::uintptr_t word = 0;
   std::memcpy( &word, &operation, sizeof word );
   EXPECT_EQ( word % sizeof( void * ), 1u ) << "not virtual";
   return word / sizeof( void * );
}

using Slots = std::vector< std::size_t >;

// 2, 3, 4, ...: all that a class has behind its destructors.
Slots inARow( std::size_t count ) {
   Slots slots;
   for ( std::size_t i = 0; i < count; ++i ) {
      slots.push_back( 2 + i );
   }
   return slots;
}

template< class... Operations >
Slots slots( Operations... operations ) {
   return { slot( operations )... };
}

TEST( VirtualTable, ofTheMounterHasItsStagesInOrder ) {
   Slots const all = slots( &L3SmMounter::lastUserGone,
                            &L3SmMounter::publisher,
                            &L3SmMounter::typeData,
                            &L3SmMounter::handleParent,
                            &L3SmMounter::doStordbMountsComplete,
                            &L3SmMounter::doMountsComplete,
                            &L3SmMounter::handleMountStatus,
                            &L3SmMounter::createPluginStatePhase1,
                            &L3SmMounter::createPluginStatePhase2,
                            &L3SmMounter::startPluginRunnabilitySm,
                            &L3SmMounter::doMounts,
                            &L3SmMounter::doInitialMounts,
                            &L3SmMounter::doCleanup );
   EXPECT_TRUE( std::ranges::is_sorted( all ) );
   EXPECT_EQ( all[0], 2u );
   // The platform's entities have operations of their own behind typeData; from the mounter's on there is no other.
   for ( std::size_t i = 5; i < all.size(); ++i ) {
      EXPECT_EQ( all[i], all[i - 1] + 1 ) << i;
   }
}

TEST( VirtualTable, ofThePluginObjectHasInitBehindItsDestructors ) {
   EXPECT_EQ( slot( &Agent::MounterPlugin::PluginBase< Agent::MounterPlugin::MounterContext >::init ), 2u );
}

TEST( VirtualTable, ofTheMachinesHasZombiesBehindTheTypesData ) {
   EXPECT_EQ( slots( &L3Sm::lastUserGone, &L3Sm::publisher, &L3Sm::typeData, &L3Sm::rexDoZombieReactors ),
              inARow( 4 ) );
   EXPECT_EQ(
      slots( &L3IntfSm::lastUserGone, &L3IntfSm::publisher, &L3IntfSm::typeData, &L3IntfSm::rexDoZombieReactors ),
      inARow( 4 ) );
}

template< class Reactor >
Slots reactorSlots() {
   return slots( &Reactor::lastUserGone,
                 &Reactor::publisher,
                 &Reactor::typeData,
                 &Reactor::isRegisteredNotifieeIs,
                 &Reactor::onZeroReferences,
                 &Reactor::onAttribute,
                 &Reactor::rexDoZombieReactors );
}

TEST( VirtualTable, ofTheReactorsIsThatOfTheNotifiee ) {
   using Filter = L3IntfSm::RexIpIntfConfigFilter;
   EXPECT_EQ( reactorSlots< L3IntfSm::NestedSm_PortState >(), inARow( 7 ) );
   EXPECT_EQ( reactorSlots< Filter >(), inARow( 7 ) );
   EXPECT_EQ( reactorSlots< Filter::RexIntfConfig >(), inARow( 7 ) );
   EXPECT_EQ( reactorSlots< Filter::RexIntfStatus >(), inARow( 7 ) );
   EXPECT_EQ( reactorSlots< Filter::RexEffectiveL3Mtu >(), inARow( 7 ) );
   EXPECT_EQ( reactorSlots< Filter::RexSyncMtuSubIntfSm >(), inARow( 7 ) );
}

TEST( VirtualTable, ofTheFfcModifierIsThatOfItsFrame ) {
   EXPECT_EQ( slots( &RemFfcModifierSm::lastUserGone,
                     &RemFfcModifierSm::publisher,
                     &RemFfcModifierSm::typeData,
                     &RemFfcModifierSm::getFfcInstruction,
                     &RemFfcModifierSm::getBaseFieldOffsetForHeader,
                     &RemFfcModifierSm::getBaseKeyOffsetForHeader,
                     &RemFfcModifierSm::getBaseFieldOffsetForLiterally,
                     &RemFfcModifierSm::getBaseKeyOffsetForLiterally,
                     &RemFfcModifierSm::isFfcLiterally,
                     &RemFfcModifierSm::isFfcRelativeHeader,
                     &RemFfcModifierSm::isAppDbIdInteresting,
                     &RemFfcModifierSm::getFfcBitMap,
                     &RemFfcModifierSm::getVtt2Context,
                     &RemFfcModifierSm::getVtt3Context,
                     &RemFfcModifierSm::getFwd2Context,
                     &RemFfcModifierSm::writeFfcInstructionForStage ),
              inARow( 16 ) );
}

TEST( VirtualTable, ofTheVtiDirectorysMachineIsThatOfItsBase ) {
   using Sm = DaceL3UnicastVtiStatusDirSm;
   EXPECT_EQ( slots( &Sm::lastUserGone,
                     &Sm::publisher,
                     &Sm::typeData,
                     &Sm::rexDoZombieReactors,
                     &Sm::doSetupVxlanDestUdpPort,
                     &Sm::doSetupVxlanSrcUdpPortRange,
                     &Sm::doSetupVxlanDestSecUdpPort,
                     &Sm::doHandleVxlanVtepToSecProfile,
                     &Sm::doSetupVxlanSecSrcPortRange,
                     &Sm::doHandleVxlanVrfToSbdVlan,
                     &Sm::doSetupVtepToVtepBridging,
                     &Sm::doSetupRemoteVxlanDomain,
                     &Sm::doSetupVxlanSrcAddr,
                     &Sm::doSetupVxlanSrcAddrV6,
                     &Sm::doSetupMlagVtepAddr,
                     &Sm::doSetupMlagVtepAddr6,
                     &Sm::doSetupMcastGrpDecap,
                     &Sm::doSetupMcastGrpDecap6,
                     &Sm::doSetupVxlanVarpVtepAddr,
                     &Sm::doSetupVxlanVarpVtepAddr6,
                     &Sm::doSetupVxlanVtepAddrMask,
                     &Sm::doSetupVxlanSharedRouterMac,
                     &Sm::doUpdateOperStatus,
                     &Sm::doSetupVxlanNdMcastSnooping,
                     &Sm::doSetupVtepForSourcePruning,
                     &Sm::doSetupVtepSourcePruningAll,
                     &Sm::doSetupVxlanFloodTraffic,
                     &Sm::doSetupDecapFilterNonDefaultVrf,
                     &Sm::doCleanup,
                     &Sm::doInitialize,
                     &Sm::handleInitialized ),
              inARow( 31 ) );
}

// A memory and a register: what one of them lacks fails in the base, at the same slot.
template< class Table >
Slots accessorSlots() {
   return slots( &Table::setField64,
                 &Table::stringField,
                 &Table::stringFieldIs,
                 &Table::fieldWidth,
                 &Table::fieldOffset,
                 &Table::isFieldValid,
                 static_cast< U16 ( Table::* )() const >( &Table::width ),
                 static_cast< U32 ( Table::* )() const >( &Table::entries ),
                 static_cast< U32 ( Table::* )() const >( &Table::maxIdentifier ),
                 static_cast< U16 ( Table::* )() const >( &Table::fieldCount ),
                 &Table::isTable );
}

TEST( VirtualTable, ofTheAccessorsBase ) {
   using Base = AsicUtils::AsicBase;
   EXPECT_EQ( accessorSlots< Base >(), inARow( 11 ) );
   EXPECT_EQ( slot( static_cast< S32 ( Base::* )() const >( &Base::sdkDefinedId ) ), 14u );
   EXPECT_EQ( slot( static_cast< U32 ( Base::* )() const >( &Base::instanceCount ) ), 15u );
   EXPECT_EQ( slot( static_cast< bool ( Base::* )( U32 ) const >( &Base::hasInstance ) ), 16u );
   EXPECT_EQ( slot( static_cast< bool ( Base::* )( U32 ) const >( &Base::hasIdentifier ) ), 17u );
}

} // namespace
