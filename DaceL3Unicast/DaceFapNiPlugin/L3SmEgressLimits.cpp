// The recycle path on which packets that are too large are logged, and the limits of the egress.
#include "L3Sm.h"
#include "Programming.h"
#include "Toggles.h"
#include "constants/EgressPortProfiles.h"
#include "constants/WellKnown.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

using namespace Hardware::Dace;
using FapStatus = Hardware::Dace::Cell::FapStatus;

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

// ---- ports

constexpr int mtuPort = 255;
constexpr int recircPortBase = 170; // of core 0; core c has the port c behind it
constexpr int recircPortCoreMax = 171;

int recircPort( int core ) {
   int const fapPortId = recircPortBase + core;
   if ( fapPortId > recircPortCoreMax ) {
      Rex::SassertHelper( "fapPortId <= recircPortCoreMax" )
         << "fapPortId: " << fapPortId << ", out of recircPort range";
   }
   return fapPortId;
}

// Items of the egress port profiles.
constexpr int recycled = 1;
constexpr int recycledForTrap = 2;

// Gives the MTU port the profile of recycled packets in one stage, and the recirculation port of each core, on that
// core alone, the profile of an item.
template< class ContextSelection, class Profile >
void selectContextOfRecycledPackets( FapStatus const & fapStatus,
                                     int itemOfRecircPorts = recycled,
                                     std::source_location origin = std::source_location::current() ) {
   Fap const fap( fapStatus );
   auto contextSelection = accessor< ContextSelection >( fap );
   contextSelection.contextSelectionPerPortProfileIs( Profile::hwValue( fapStatus.revision(), recycled ) );
   writeAll( contextSelection, fap, { .entry = mtuPort }, origin );
   if ( itemOfRecircPorts != recycled ) {
      contextSelection.contextSelectionPerPortProfileIs( Profile::hwValue( fapStatus.revision(), itemOfRecircPorts ) );
   }
   for ( int core = 0; core < fapStatus.cores(); ++core ) {
      contextSelection.doWriteCore( fap.id, 0, core, recircPort( core ), origin );
   }
}

// ---- recycle profiles

constexpr U32 recycleProfiles = 16;
constexpr U8 recycleStrength = 15;
constexpr U16 mtuTrapCode = 5;
constexpr U16 mtuLogTrapCode = 6;
constexpr U32 mtuProfile = 13; // the only one that keeps the code of an MTU failure

} // namespace

void L3Sm::disableIngressTermination( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   write< Hardware::TerminateNetworkHeaders >(
      fap, {}, []( auto & headers ) { headers.itppTerminateNetworkHeadersIs( Raw128{} ); } );
   for ( U8 const variant : { 0, 1 } ) {
      write< Hardware::MappingFwdInfoToEnTerm >(
         fap, { .variant = variant }, []( auto & mapping ) { mapping.enTermUpToParsingOffsetIs( Raw128{} ); } );
   }
}

void L3Sm::initIppeRecycFwdProfileMappingReg( FapStatusPtr const & fapStatus ) {
   modify< Hardware::IppeRecycFwdProfileMapping >( Fap( fapStatus ), {}, []( auto & mapping ) {
      for ( auto const & [profile, trapCode] : jericho2IppeRecycFwdProfileToTrapMap ) {
         mapping.recycFwdTrapCodeIs( profile, trapCode );
         mapping.recycFwdStrengthIs( profile, recycleStrength );
      }
      for ( U32 profile = 0; profile < recycleProfiles; ++profile ) {
         if ( mapping.recycFwdTrapCode( profile ) == mtuTrapCode && profile != mtuProfile ) {
            mapping.recycFwdTrapCodeIs( profile, mtuLogTrapCode );
         }
      }
   } );
}

void L3Sm::initMtuRecycleLog( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   if ( !Rex::gate( Jericho2EgressPortEnc1Profile::exists( fapStatus->revision(), recycled ),
                    "the egress profile of recycled packets doesn't exist on the chip",
                    fapStatus->fapId().value() ) ) {
      trace( 0,
             "L3Sm::",
             "initMtuRecycleLog",
             " Skipping programming of the mtu port because it doesn't exist in the SDK." );
      return;
   }
   // clang-format off
   selectContextOfRecycledPackets< Hardware::EtppEnc1ContextSelectionPortProfile, Jericho2EgressPortEnc1Profile >( *fapStatus );
   selectContextOfRecycledPackets< Hardware::EtppEnc2ContextSelectionPortProfile, Jericho2EgressPortEnc2Profile >( *fapStatus );
   selectContextOfRecycledPackets< Hardware::EtppEnc3ContextSelectionPortProfile, Jericho2EgressPortEnc3Profile >( *fapStatus );
   selectContextOfRecycledPackets< Hardware::EtppEnc4ContextSelectionPortProfile, Jericho2EgressPortEnc4Profile >( *fapStatus );
   selectContextOfRecycledPackets< Hardware::EtppEnc5ContextSelectionPortProfile, Jericho2EgressPortEnc5Profile >( *fapStatus );
   selectContextOfRecycledPackets< Hardware::EtppTrapContextSelectionPortProfile, Jericho2EgressPortTrapProfile >( *fapStatus, recycledForTrap );
   // clang-format on
   constexpr U32 mtuPortControl = 64;
   sal->switchControlSet( fapStatus->fapId().value(), mtuPortControl, mtuPort, 0 );
}

void L3Sm::initEtppCfgFwdDoNotTtlDecrement( FapStatusPtr const & fapStatus ) {
   Raw512 everyCodeWithBit2;
   everyCodeWithBit2.word.fill( 0xf0f0f0f0 );
   write< Hardware::EtppCfgFwdDoNotTtlDecrement >(
      Fap( fapStatus ), {}, [&]( auto & reg ) { reg.cfgFwdEgressDoNotTtlDecrementIs( everyCodeWithBit2 ); } );
}

void L3Sm::doSetupVxlanMcastEtppDoubleOutLifSwap( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & ) {
   if ( !Rex::gate( toggleJ2EvpnMcastVxlanMultihomingEnabled(), "the toggle J2EvpnMcastVxlanMultihoming is off" ) ) {
      return;
   }
   Fap const fap( fapStatus );
   int const entry = accessor< Hardware::PpmcDoubleOutLifSwap >( fap ).resultType(); // of a fresh one: 0
   modify< Hardware::EtppaPrpFesProgramTable >( fap, { .entry = entry }, []( auto & program ) {
      program.actionType0Is( 17 );
      program.actionType1Is( 18 );
   } );
}

void L3Sm::doCopyFwdDomainConfigToLifStatsForEtpsArpAc( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & ) {
   if ( !Rex::gate( toggleJ2L2EvpnMplsMultiHomedEnabled(), "the toggle J2L2EvpnMplsMultiHomed is off" ) ) {
      return;
   }
   Fap const fap( fapStatus );
   Place const place{ .entry = EtpsArpAcResultType::hwValue() };
   auto const copyFwdDomain = []( auto & format ) {
      format.lifStatisticsObjectIdConfigIs( format.forwardDomainConfig() );
   };
   modify< Hardware::EtppcEnc1Arr0FormatCfg >( fap, place, copyFwdDomain );
   modify< Hardware::EtppbEnc5Arr0FormatCfg >( fap, place, copyFwdDomain );
}

void L3Sm::initFlpRpfFormatConfig( FapStatusPtr const & fapStatus ) {
   if ( !Rex::gate( toggleUrpfIgnoreDefaultRouteJericho2Enabled(),
                    "the toggle UrpfIgnoreDefaultRouteJericho2 is off" ) ) {
      return;
   }
   for ( int const entry : { 57, 59 } ) {
      modify< Hardware::FlpRpfFormatConfiguration >(
         Fap( fapStatus ), { .entry = entry }, []( auto & format ) { format.defaultConfigIs( 5 ); } );
   }
}

// The register is there on the chips of these major revisions only.
void L3Sm::initLifMcBridgeFallbackAllowReg( FapStatusPtr const & fapStatus ) {
   U32 const major = fapStatus->revision().fapRevMajor();
   if ( !Rex::gate( major == 8 || major == 9,
                    "the register is there on FAP revisions 8 and 9 only",
                    fapStatus->fapId().value() ) ) {
      return;
   }
   modify< Hardware::IppbLifMcBridgeFallbackAllow >(
      Fap( fapStatus ), {}, []( auto & reg ) { reg.lifMcBridgeFallbackAllowIs( Raw256::ones() ); } );
}

void L3Sm::initEgressOutrifMaxValueReg() {
   forEachFap( in_.cellStatus, []( Fap const & fap, FapStatus const & fapStatus ) {
      U16 const limit = ExtendedVlanConstants::numOutRifSupportedByFapRevMajor( fapStatus.revision().fapRevMajor() );
      modify< Hardware::EgressOutrifMaxValue >(
         fap, { .variant = 0 }, [&]( auto & reg ) { reg.cfgOutrifMaxValueIs( limit ); } );
      modify< Hardware::EgressOutrifMaxValue >(
         fap, { .variant = 1 }, [&]( auto & reg ) { reg.outrifMaxValueIs( limit ); } );
      modify< Hardware::EgressOutrifMaxValue >(
         fap, { .variant = 2 }, [&]( auto & reg ) { reg.cfgRifMaxValueIs( limit ); } );
   } );
}

} // namespace DaceFapNi
