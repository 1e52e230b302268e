// MPLS forwarding contexts: how many labels a lookup takes, and whether a label that isn't found falls back to IP.
//
// The microcode chooses a packet's next context by action words, whose low 6 bits name the context. The handlers look
// for the microcode's own words that lead to a context of one-label lookups, and lead them to another one. They start
// from the microcode's list and never from the chip, so turning a setting off restores the list exactly.
#include "L3Sm.h"
#include "Programming.h"
#include "constants/Contexts.h"
#include "constants/MicrocodeActions.h"
#include "rex/Gate.h"
#include "rex/Log.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

using DacePPExport::ctx_fwd1;
using DacePPExport::ctx_fwd2;

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

constexpr auto ucodeProfile = Hardware::Dace::UcodeProfileType::routing;

constexpr U16 targetMask = 0x3f;
U16 withTarget( U16 word, U32 context ) {
   return static_cast< U16 >( ( word & ~targetMask ) | context );
}

// The plug-in's one message to the operator.
REX_LOG_SECTION constexpr Rex::LogMessage multiLabelLookupWithFallbackIp{
   "DACE_MULTI_LABEL_LOOKUP_COUNT_MPLS_FALLBACK_IP_NOT_SUPPORTED",
   "Configurations 'mpls lookup label count 2' and 'mpls lookup fallback ip' cannot co-exist.",
   "Configuration 'mpls lookup fallback ip' doesn't support 2 MPLS label lookup.",
   "Please unconfigure either of the two.",
   Rex::LogMessage::error,
   0 };

// Every conflict is told.
Rex::LogHandle const multiLabelLookupWithFallbackIpLog{ multiLabelLookupWithFallbackIp, Rex::Seconds{ 0 }, 1.0, 0, 0 };

// The two settings exclude each other. Says so in the log if both are on.
bool isConflict( Mpls::RoutingInfo const & info ) {
   bool const conflict = info.mplsLookupLabelCount() == 2 && info.mplsLookupFallbackIp();
   if ( conflict ) {
      Rex::log( multiLabelLookupWithFallbackIpLog );
   }
   return conflict;
}

void doWriteFlpacsAction( Hardware::ChipType chipType,
                          Hardware::Dace::FapId fapId,
                          U8 entryIndex,
                          U32 mplsLookupLabelCount ) {
   trace( 5, "L3Sm::", "doWriteFlpacsAction", ", entryIndex=", entryIndex );
   write< Hardware::IppbFlpacsAction >( Fap( fapId, chipType ), { .entry = entryIndex }, [&]( auto & action ) {
      U16 const word = DacePPExport::IPPB_FLPACS_ACTION_ENTRY( ucodeProfile, chipType, 0, 0, entryIndex );
      if ( mplsLookupLabelCount == 1 ) {
         action.flpacsActionIs( word );
      } else if ( mplsLookupLabelCount == 2 ) {
         action.flpacsActionIs( withTarget( word, ctx_fwd2_value( chipType, ctx_fwd2::mplsTwoLabels ) ) );
      } else {
         Rex::SassertHelper( "false" ) << "Unexpected mplsLookupLabelCount value: " << mplsLookupLabelCount;
      }
   } );
}

} // namespace

void L3Sm::setupMplsFwdContext() {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   U32 const count = in_.mplsRoutingInfo->mplsLookupLabelCount();
   trace( 5, "L3Sm::", "setupMplsFwdContext", ", mplsLookupLabelCount=", count );
   if ( !Rex::gate( !isConflict( *in_.mplsRoutingInfo ), "two labels and the fall-back to IP exclude each other" ) ) {
      return;
   }
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & ) {
      if ( !Rex::gate( ctx_fwd2_exists( fap.chipType, ctx_fwd2::mplsTwoLabels ),
                       "the chip lacks the context of two labels",
                       fap.id.value() ) ) {
         return;
      }
      U32 const entries = Hardware::IppbFlpacsAction::entries( static_cast< U32 >( fap.chipType ), 0 );
      U32 const oneLabel = ctx_fwd2_value( fap.chipType, ctx_fwd2::mplsOneLabel );
      U32 const terminated = ctx_fwd2_value( fap.chipType, ctx_fwd2::mplsOneLabelTerminated );
      for ( U32 entry = 0; entry < entries; ++entry ) {
         U16 const word = DacePPExport::IPPB_FLPACS_ACTION_ENTRY( ucodeProfile, fap.chipType, 0, 0, entry );
         U16 const target = word & targetMask;
         if ( target == oneLabel || target == terminated ) {
            doWriteFlpacsAction( fap.chipType, fap.id, static_cast< U8 >( entry ), count );
         }
      }
   } );
}

void L3Sm::setupMplsLookupFbIpFwdContext() {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   if ( !Rex::gate( in_.driverSetupSmStateInfo->ucodeProfile() == static_cast< U8 >( ucodeProfile ),
                    "the microcode profile isn't that of routing" ) ) {
      trace( 5, "L3Sm::", "setupMplsLookupFbIpFwdContext", ": not supported ucode profile, return" );
      return;
   }
   bool const fallback = in_.mplsRoutingInfo->mplsLookupFallbackIp();
   trace( 5, "L3Sm::", "setupMplsLookupFbIpFwdContext", ", mplsLookupFallbackIp=", fallback );
   if ( !Rex::gate( !isConflict( *in_.mplsRoutingInfo ), "two labels and the fall-back to IP exclude each other" ) ) {
      return;
   }
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & ) {
      bool const hasContexts = ctx_fwd1_exists( fap.chipType, ctx_fwd1::mplsLabelOrIp ) &&
                               ctx_fwd1_exists( fap.chipType, ctx_fwd1::mplsTerminatedLabelOrIp );
      if ( !Rex::gate( hasContexts, "the chip lacks the contexts that fall back to IP", fap.id.value() ) ) {
         return;
      }
      U32 const entries = Hardware::IppaVtecsAction::entries( static_cast< U32 >( fap.chipType ), 0 );
      // The contexts of label lookups, each with the one that it becomes with a fallback.
      struct {
         U32 label;
         U32 orIp;
      } const rows[] = {
         { ctx_fwd1_value( fap.chipType, ctx_fwd1::mplsLabel ),
           ctx_fwd1_value( fap.chipType, ctx_fwd1::mplsLabelOrIp ) },
         { ctx_fwd1_value( fap.chipType, ctx_fwd1::mplsTerminatedLabel ),
           ctx_fwd1_value( fap.chipType, ctx_fwd1::mplsTerminatedLabelOrIp ) },
      };
      for ( U32 entry = 0; entry < entries; ++entry ) {
         U16 const word = DacePPExport::IPPA_VTECS_ACTION_ENTRY( ucodeProfile, fap.chipType, 0, 0, entry );
         for ( auto const & row : rows ) {
            if ( ( word & targetMask ) == row.label ) {
               write< Hardware::IppaVtecsAction >( fap, { .entry = static_cast< int >( entry ) }, [&]( auto & action ) {
                  action.vtecsActionIs( withTarget( word, fallback ? row.orIp : row.label ) );
               } );
               break;
            }
         }
      }
   } );
}

// A popped label gets an FHEI instead of an EEI.
void L3Sm::setupMplsPopFheiFormat( FapStatusPtr const & fapStatus ) {
   constexpr Place pop{ .entry = 8 };
   trace( 8, "L3Sm::", "setupMplsPopFheiFormat", " ", fapStatus->fapName() );
   write< Hardware::IppdPphAttributesByEei >( Fap( fapStatus ), pop, [&]( auto & attributes ) {
      attributes.fheiTypeIs( 1 );
      attributes.fheiSizeIs( 1 );
      attributes.createFheiInsteadOfEeiIs( 1 );
      trace( 8, "L3Sm::", "setupMplsPopFheiFormat", " arrayIdx ", pop.array, ", entryIdx ", pop.entry );
   } );
}

} // namespace DaceFapNi
