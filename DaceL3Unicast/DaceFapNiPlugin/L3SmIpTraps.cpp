// IP traps: how strongly the chip acts on IP packets that fail a header check, in the forward stage and in the VTT
// stages, and three trap registers beside them. Everything here changes the named fields and keeps the rest.
#include "L3Sm.h"
#include "Programming.h"
#include "Toggles.h"
#include "rex/Gate.h"

namespace DaceFapNi {

namespace {

constexpr U8 headerErrorStrength = 7;
constexpr U8 checksumErrorStrength = 3;
constexpr U8 nextHeaderNullFwdStrength = 3; // in the forward stage; in the VTT stages it is a header error
constexpr U8 optionsStrength = 4;

constexpr int looseUrpfTrap = 3;
constexpr int strictUrpfTrap = 4;
constexpr int microBfdTrap = 2;

// 01:00:5e:90:00:01, the address of BFD on the member links of a LAG (RFC 7130).
constexpr U64 microBfdAddr = 0x01005E900001;
constexpr U8 wholeAddress = 48; // bits

} // namespace

void L3Sm::initIpTraps( FapStatusPtr const & fapStatus ) {
   initIpTrapsFwd( fapStatus );
   initIpTrapsVtt( fapStatus );
}

void L3Sm::initIpTrapsFwd( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );

   modify< Hardware::IppbTtl0ActionProfile >( fap, {}, [&]( auto & ttl0 ) {
      ttl0.ttl0FwdStrengthIs( headerErrorStrength ); // that of profile 0
      // Profile 1 has the same layout at another place: it is changed in the place of profile 0 of a scratch register.
      auto scratch = accessor< Hardware::IppbTtl0ActionProfile >( fap );
      scratch.ttl0ActionProfile0Is( ttl0.ttl0ActionProfile1() );
      scratch.ttl0FwdStrengthIs( headerErrorStrength );
      ttl0.ttl0ActionProfile1Is( scratch.ttl0ActionProfile0() );
   } );

   modify< Hardware::IppbIpv4ActionProfilesCfg >( fap, {}, []( auto & ipv4 ) {
      ipv4.actionProfileIpv4VersionErrorFwdIs( headerErrorStrength );
      ipv4.actionProfileIpv4ChecksumErrorFwdIs( checksumErrorStrength );
      ipv4.actionProfileIpv4HeaderLengthErrorFwdIs( headerErrorStrength );
      ipv4.actionProfileIpv4HasOptionsFwdIs( optionsStrength );
   } );

   modify< Hardware::IppbIpv6ActionProfiles0Cfg >( fap, {}, []( auto & ipv6 ) {
      ipv6.actionProfileIpv6NextHeaderNullFwdIs( nextHeaderNullFwdStrength );
      ipv6.actionProfileIpv6VersionErrorFwdIs( headerErrorStrength );
      ipv6.actionProfileIpv6UnspecifiedDestinationFwdIs( headerErrorStrength );
      ipv6.actionProfileIpv6MulticastSourceFwdIs( headerErrorStrength );
      if ( Rex::gate( toggleV6LinkLocalSrcPuntToCpuEnabled(),
                      "the toggle V6LinkLocalSrcPuntToCpu is off: no strength for link-local sources" ) ) {
         ipv6.actionProfileIpv6LinkLocalSourceFwdIs( headerErrorStrength );
      }
   } );
}

void L3Sm::initIpTrapsVtt( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   constexpr U16 ethernetTrapCode = 199;
   constexpr U8 ethernetTrapStrength[] = { 4, 0 }; // by variant

   for ( U8 const variant : { 0, 1 } ) {
      Place const place{ .variant = variant };
      modify< Hardware::VttTrapStrengths3 >( fap, place, []( auto & trap ) {
         trap.ipv4VersionErrorFwdIs( headerErrorStrength );
         trap.ipv4ChecksumErrorFwdIs( checksumErrorStrength );
         trap.ipv4HeaderLengthErrorFwdIs( headerErrorStrength );
      } );
      modify< Hardware::VttTrapStrengths4 >( fap, place, []( auto & trap ) {
         trap.ipv4Ttl0FwdIs( headerErrorStrength );
         trap.ipv4HasOptionsFwdIs( optionsStrength );
      } );
      modify< Hardware::VttTrapStrengths5 >( fap, place, []( auto & trap ) {
         trap.ipv6VersionErrorFwdIs( headerErrorStrength );
         trap.ipv6HopCount0FwdIs( headerErrorStrength );
         trap.ipv6UnspecifiedDestinationFwdIs( headerErrorStrength );
      } );
      modify< Hardware::VttTrapStrengths6 >( fap, place, []( auto & trap ) {
         trap.ipv6MulticastSourceFwdIs( headerErrorStrength );
         trap.ipv6NextHeaderNullFwdIs( headerErrorStrength );
      } );
      modify< Hardware::EthernetTrap >( fap, place, [&]( auto & trap ) {
         trap.eth1CpuTrapCodeIs( ethernetTrapCode );
         trap.eth1CpuTrapStrengthIs( ethernetTrapStrength[variant] );
      } );
   }
}

void L3Sm::initSplitHorizonTrapParamCfgReg( FapStatusPtr const & fapStatus ) {
   modify< Hardware::EtppCfgSplitHorizonTrapParams >(
      Fap( fapStatus ), {}, []( auto & trap ) { trap.cfgSplitHorizonFwdActionStrengthIs( 6 ); } );
}

void L3Sm::initIppdFerTrapCfgReg( FapStatusPtr const & fapStatus ) {
   for ( int const trapIndex : { looseUrpfTrap, strictUrpfTrap } ) {
      modify< Hardware::IppdFerTrapCfg >(
         Fap( fapStatus ), { .array = trapIndex }, []( auto & trap ) { trap.cpuStrengthNIs( 5 ); } );
   }
}

void L3Sm::initIppbProgTrapCfgReg( FapStatusPtr const & fapStatus ) {
   modify< Hardware::IppbProgTrapCfg >( Fap( fapStatus ), { .array = microBfdTrap }, []( auto & trap ) {
      trap.progTrapEnableBmpNIs( 1 );
      trap.progTrapFwdActionStrengthNIs( 7 );
      trap.progTrapFwdActionCodeNIs( 235 );
      trap.progTrapDaNIs( microBfdAddr );
      trap.progTrapDaBitsNIs( wholeAddress );
   } );
}

} // namespace DaceFapNi
