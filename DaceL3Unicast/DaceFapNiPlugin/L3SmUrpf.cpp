// uRPF: what the forwarding stage does with a packet whose source check fails, and whether a context learns.
#include "L3Sm.h"
#include "Programming.h"
#include "SharedFunctions.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
Rex::DualTrace const dualTrace{ trace };

constexpr U32 looseTrapIndex = 3;
constexpr U32 strictTrapIndex = 4;

// A failed check either snoops and forwards, or goes to the CPU.
constexpr U8 trapStrength = 5;

} // namespace

void L3Sm::handleLooseUrpfFailFwdConfig() {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   bool const enable = in_.routingHwConfig->urpfLooseFailForward();
   trace( 5, "handleLooseUrpfFailFwdConfig", ": ", " Setting Loose mode uRPF fail fwd : ", enable );
   handleUrpfFailFwdConfig( looseTrapIndex, enable );
}

void L3Sm::handleStrictUrpfFailFwdConfig() {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   bool const enable = in_.routingHwConfig->urpfStrictFailForward();
   trace( 5, "handleStrictUrpfFailFwdConfig", ": ", " Setting Strict mode uRPF fail fwd : ", enable );
   handleUrpfFailFwdConfig( strictTrapIndex, enable );
}

void L3Sm::handleUrpfFailFwdConfig( U32 trapIndex, bool enable ) {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & ) {
      modify< Hardware::IppdFerTrapCfg >( fap, { .array = static_cast< int >( trapIndex ) }, [&]( auto & trap ) {
         trace( 5,
                "handleUrpfFailFwdConfig",
                ": ",
                enable ? " Enabling uRPF fail fwd for fap " : " Disabling uRPF fail fwd for fap ",
                fap.id,
                " chipType ",
                fap.chipType,
                " trapIndex ",
                trapIndex );
         if ( enable ) {
            trap.snoopStrengthNIs( trapStrength );
            trap.cpuStrengthNIs( 0 );
         } else {
            trap.cpuStrengthNIs( trapStrength );
            trap.snoopStrengthNIs( 0 );
         }
      } );
   } );
}

void setLearningForUrpfOrFlpa( std::vector< DacePPExport::ctx_fwd1 > const & contexts,
                               Hardware::ChipType chipType,
                               Hardware::Dace::FapId fapId,
                               bool enable,
                               bool flpa,
                               std::source_location origin ) {
   std::vector< U8 > chipContexts;
   for ( auto const context : contexts ) {
      U8 const number = static_cast< U8 >( ctx_fwd1_value( chipType, context ) );
      if ( Rex::gate( ctx_fwd1_exists( chipType, context ), "the chip lacks the context", fapId.value(), origin ) ) {
         chipContexts.push_back( number );
      } else {
         dualTrace( 4, "setLearningForUrpfOrFlpa", " fwd1Context does not exist, try changing the name: ", number );
      }
   }
   Fap const fap( fapId, chipType );
   for ( U8 const number : chipContexts ) {
      trace( 4, "setLearningForUrpfOrFlpa", " Setting the learning for fwdContext: ", number, " as: ", enable );
      modify< Hardware::FlpaInitContextEnablers >(
         fap,
         { .entry = number },
         [&]( auto & init ) {
            init.contextLearnAllowedEnableIs( enable );
            init.learningFixedKeyEnableIs( enable );
         },
         origin );
      modify< Hardware::FlpaResContextEnablers >(
         fap,
         { .entry = number },
         [&]( auto & res ) {
            res.learnInfoResolutionEnableIs( enable );
            if ( flpa ) {
               res.fwdUpdateEnableIs( !enable );
            }
         },
         origin );
   }
}

} // namespace DaceFapNi
