// GUE tunnel termination: routing of VSI profile 23 follows the GUE hash mode in the load-balance configuration of the
// slot that this agent runs on.
#include "L3SmSlotLoadBalance.h"

#include "FapGate.h"
#include "Programming.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
Rex::DualTrace const dualTrace{ trace };

constexpr Rex::AttributeId guePktTypeHashModeAttribute = 0x124;
constexpr U8 skipGueTermination = 2; // the hash mode under which GUE tunnels are left alone

// IPPF_ROUTING_PROFILE_TABLE holds four VSI profiles to an entry, each the number of a vector of routing enablers.
constexpr U8 gueVsiProfile = 23;
constexpr int gueEntry = gueVsiProfile / 4;
constexpr U32 gueElement = gueVsiProfile % 4;

// Where the profile is looked at for terminated tunnels. The other elements keep what the static programming wrote.
constexpr struct {
   U8 variant;
   int array;
} terminationTables[] = {
   { 0, 1 },
   { 0, 2 },
   { 1, 3 },
};

void doProgramGueTunnelTermination( CellStatusPtr const & cellStatus, bool enableTunnelTerm ) {
   trace( 8, "doProgramGueTunnelTermination" );
   U8 const value = enableTunnelTerm ? gueVsiProfile : 0; // profile N has the vector N
   forEachFap( cellStatus, [&]( Fap const & fap, auto const & ) {
      for ( auto const & table : terminationTables ) {
         dualTrace( 8,
                    "doProgramGueTunnelTermination",
                    ": Programming IPPF_ROUTING_PROFILE_TABLE",
                    " variant:",
                    table.variant,
                    " array index:",
                    table.array,
                    " entry:",
                    gueVsiProfile,
                    " value:",
                    value,
                    " fapId:",
                    fap.id,
                    " enableTunnelTerm:",
                    enableTunnelTerm );
         modify< Hardware::VsiProfileEnablers >(
            fap, { .variant = table.variant, .array = table.array, .entry = gueEntry }, [&]( auto & enablers ) {
               enablers.routingProfileIs( gueElement, value );
            } );
      }
   } );
}

} // namespace

L3Sm::NestedSm_SlotLoadBalance::NestedSm_SlotLoadBalance( Config const & config, L3Sm * parent )
   : config_( config ), parent_( parent ) {
   notifierEntityIs( config );
   isRegisteredNotifieeIs( true );
   handleGuePktTypeHashModeConfig();
}

void L3Sm::NestedSm_SlotLoadBalance::notifierIs( Config const & config ) {
   if ( config_ != config ) {
      config_ = config;
      notifierEntityIs( config );
      handleGuePktTypeHashModeConfig();
   }
   isRegisteredNotifieeIs( true );
}

void L3Sm::NestedSm_SlotLoadBalance::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == guePktTypeHashModeAttribute && !isZombie() ) {
      handleGuePktTypeHashModeConfig();
   }
}

void L3Sm::NestedSm_SlotLoadBalance::handleGuePktTypeHashModeConfig() const {
   if ( !parent_ || !Rex::gate( parent_->initialized_, notInitialized ) ) {
      return;
   }
   if ( !Rex::gate( chipTypeToFapType( parent_->in_.sliceSmState->revision().chipType() ) != fapType4,
                    "FAP type 4 has no GUE tunnel termination" ) ) {
      return;
   }
   Fru::SlotId const slot = config_->slotId();
   trace( 8, "handleGuePktTypeHashModeConfig", ": slot:", slot );
   if ( !Rex::gate( slot == parent_->mySlotId(), "the configuration is that of another slot" ) ) {
      dualTrace( 8, "handleGuePktTypeHashModeConfig", ": Skipping notification" );
      Rex::ringTrace( 8, "handleGuePktTypeHashModeConfig", ": Skiping notification for slot:", slot );
      return;
   }
   // The text names one of the two modes, whichever it is.
   dualTrace( 8, "handleGuePktTypeHashModeConfig", ": Programming to skip GUE tunnel termination for slot:", slot );
   parent_->doSetupSlotGueLoadBalance();
}

Fru::SlotId L3Sm::mySlotId() const {
   return in_.sliceSmState->slotIds( in_.sliceName ); // slot 0 if the slice has none
}

Corvo::Ptr< L3Sm::NestedSm_SlotLoadBalance >
L3Sm::slotLoadBalanceIs( Corvo::Ptr< Hardware::Dace::LoadBalanceHwConfig const > const & config ) {
   if ( !config ) {
      Rex::throwMutatorArgNullPointerException( "DaceFapNi::L3Sm", "slotLoadBalance" );
   }
   Fru::SlotId const slot = config->slotId();
   if ( auto const entry = slotLoadBalance_.get( slot ) ) {
      entry->notifierIs( config );
      return entry;
   }
   auto const entry = Corvo::makePtr< NestedSm_SlotLoadBalance >( config, this );
   slotLoadBalance_.set( slot, entry );
   entry->hasNotificationActiveIs( true );
   return entry;
}

// The chip keeps what the configuration made of it.
Corvo::Ptr< L3Sm::NestedSm_SlotLoadBalance > L3Sm::slotLoadBalanceDel( Fru::SlotId slot ) {
   auto const entry = slotLoadBalance_.del( slot );
   if ( entry ) {
      entry->hasNotificationActiveIs( false );
      entry->rexDoZombieReactors( true );
   }
   return entry;
}

void L3Sm::slotLoadBalanceDelAll() {
   for ( auto const & [slot, entry] : slotLoadBalance_ ) {
      slotLoadBalanceDel( slot );
   }
}

void L3Sm::doSetupSlotGueLoadBalance() const {
   Fru::SlotId const slot = mySlotId();
   Rex::sassert( in_.daceLagStatus->slotLoadBalanceHas( slot ), "daceLagStatus()->slotLoadBalanceHas( mySlotId )" );
   U8 const mode = in_.daceLagStatus->slotLoadBalance( slot )->guePktTypeHashMode();
   doProgramGueTunnelTermination( in_.cellStatus, mode != skipGueTermination );
}

} // namespace DaceFapNi
