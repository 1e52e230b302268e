// In-LIF profiles: the RPF mode of a packet and the choice of context, by the profile of the interface it came in on.
#include "L3Sm.h"
#include "SharedFunctions.h"
#include "Toggles.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

// Clears every array element of the register, in both variants, through the setter of its one wide field.
template< class CsFlags >
void clearCsMap( FapStatusPtr const & fapStatus,
                 void ( CsFlags::*csMapIs )( Raw512 const & ),
                 std::source_location origin = std::source_location::current() ) {
   Fap const fap( fapStatus );
   auto csFlags = accessor< CsFlags >( fap );
   for ( U8 const variant : { 0, 1 } ) {
      csFlags.variantIs( variant );
      for ( int const array : csArrays( csFlags, variant ) ) {
         ( csFlags.*csMapIs )( Raw512{} );
         writeAll( csFlags, fap, { .array = array }, origin );
      }
   }
}

// Profiles from 128 on are made of flags: two pairs of bits, either of which asks for a mode, and bit 3, which says
// what mode. Those below keep the chip's value.
constexpr int firstComposedProfile = 128;

U8 rpfMode( int profile ) {
   auto const bit = [profile]( int number ) { return ( profile >> number & 1 ) != 0; };
   bool const hasMode = ( bit( 0 ) && bit( 5 ) ) || ( bit( 2 ) && bit( 6 ) );
   return hasMode ? static_cast< U8 >( bit( 3 ) + 1 ) : 0;
}

// Context selection of the IPPC stage by variant and profile; every other profile has 0.
constexpr struct {
   U8 variant;
   int firstProfile;
   int lastProfile;
   U8 csProfile;
   ToggleReader toggle = always;
} ippcCsProfiles[] = {
   // clang-format off
   { 0, 23, 23, 4 },
   { 1, 10, 15, 1 },
   { 1, 21, 21, 3, toggleJ2SRv6Enabled },
   { 1, 65, 66, 2 },
   // clang-format on
};

U8 ippcCsProfile( U8 variant, int profile ) {
   for ( auto const & row : ippcCsProfiles ) {
      if ( row.variant == variant && row.firstProfile <= profile && profile <= row.lastProfile ) {
         return isOn( row.toggle ) ? row.csProfile : U8{ 0 };
      }
   }
   return 0;
}

// The nibble as a layout sees it: a format has no memory of its own, its image is four bytes.
template< class Layout, class Fill >
U8 nibble( Fap const & fap, Fill fill ) {
   U8 image[4] = {};
   Layout layout( fap.chipType, image, sizeof image, false, 0 );
   fill( layout );
   return image[0];
}

} // namespace

void doWriteVttCsInLifProfLsb( Hardware::ChipType chipType,
                               Hardware::Dace::FapId fapId,
                               U32 inLifProfile,
                               U8 tableVariant,
                               int arrayIndex,
                               U8 csValue,
                               std::source_location origin ) {
   Rex::sassert( inLifProfile < 128, "inLifProfile < 128" );
   modify< Hardware::InLifProfileCsFlagsLsb >(
      Fap( fapId, chipType ),
      { .variant = tableVariant, .array = arrayIndex },
      [&]( auto & csFlags ) {
         csFlags.csProfileIs( inLifProfile, static_cast< U8 >( csFlags.csProfile( inLifProfile ) | csValue ) );
      },
      origin );
}

void L3Sm::clearInLifProfileCsMapMsb( FapStatusPtr const & fapStatus ) {
   clearCsMap( fapStatus, &Hardware::InLifProfileCsFlagsMsb::csInlifProfileMapMsbIs );
}

void L3Sm::clearInLifProfileCsMapLsb( FapStatusPtr const & fapStatus ) {
   clearCsMap( fapStatus, &Hardware::InLifProfileCsFlagsLsb::csInlifProfileMapLsbIs );
}

void L3Sm::initInLifProfileTable( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );

   auto profiles = accessor< Hardware::IppdInLifProfileTable >( fap );
   for ( int const profile : entriesOf( profiles ) | std::views::drop( firstComposedProfile ) ) {
      U8 const mode = rpfMode( profile );
      if ( profiles.isInLifRpfModeValid() ) {
         profiles.inLifRpfModeIs( mode );
      }
      if ( profiles.isInLifRpfModeIpv4Valid() ) {
         profiles.inLifRpfModeIpv4Is( mode );
      }
      if ( profiles.isInLifRpfModeIpv6Valid() ) {
         profiles.inLifRpfModeIpv6Is( mode );
      }
      writeAll( profiles, fap, { .entry = profile } );
   }

   if ( !Rex::gate( Hardware::IppdInLifProfileMap::chipTypeVariantValid( fap.chipType, 0 ),
                    "the chip has no IppdInLifProfileMap",
                    fap.id.value() ) ) {
      return;
   }
   auto map = accessor< Hardware::IppdInLifProfileMap >( fap );
   for ( int const profile : entriesOf( map ) ) {
      map.mappedInLifProfileIs( static_cast< U8 >( profile & 255 ) );
      writeAll( map, fap, { .entry = profile } );
   }
}

void L3Sm::initIppcInLifProfileCsMapping( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   for ( U8 const variant : { 0, 1 } ) {
      for ( int const profile : entriesOf( accessor< Hardware::IppcInLifProfileCsFlags >( fap, variant ) ) ) {
         modify< Hardware::IppcInLifProfileCsFlags >(
            fap, { .variant = variant, .entry = profile }, [&]( auto & csFlags ) {
               csFlags.csInlifProfileMapIs( ippcCsProfile( variant, profile ) );
            } );
      }
   }
}

void L3Sm::setupVplsVlanAwareCsProfile( FapStatusPtr const & fapStatus ) {
   if ( !Rex::gate( toggleDaceVplsPhase2Enabled(), "the toggle DaceVplsPhase2 is off" ) ) {
      return;
   }
   Fap const fap( fapStatus );
   constexpr U32 vplsInLifProfile = 15;
   bool const usingSdkV6 = fapStatus->revision().sdkVersion() == 6;
   U8 enableValue = 0xb; // what the layout comes to in later SDKs as well
   if ( usingSdkV6 ) {
      enableValue = nibble< Hardware::PweInlifCsProfile >( fap, []( auto & profile ) {
         profile.tagNamespaceIs( 1 );
         profile.nofSdTagsIs( 1 );
         profile.learnNativeAcBugIs( 1 );
      } );
   }
   trace( 0,
          "L3Sm::",
          "setupVplsVlanAwareCsProfile",
          " enableValue = ",
          enableValue,
          " chipType = ",
          fap.chipType,
          " usingSdkV6 = ",
          usingSdkV6 );
   for ( int const array : csArraysOfVariant1( fapStatus->revision() ) ) {
      doWriteVttCsInLifProfLsb( fap.chipType, fap.id, vplsInLifProfile, 1, array, enableValue );
   }
}

void L3Sm::setupAegisSetSecondaryVrfCsProfile( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   constexpr U32 secondaryVrfInLifProfile = 9;
   U8 const enableValue = nibble< Hardware::RoutingVeloroInlifCsProfile >(
      fap, []( auto & profile ) { profile.aegisSetSecondaryVrfModeIs( 1 ); } );
   trace(
      0, "L3Sm::", "setupAegisSetSecondaryVrfCsProfile", " enableValue = ", enableValue, " chipType = ", fap.chipType );
   for ( int const array : csArraysOfVariant1( fapStatus->revision() ) ) {
      doWriteVttCsInLifProfLsb( fap.chipType, fap.id, secondaryVrfInLifProfile, 1, array, enableValue );
   }
}

void L3Sm::setupVxlanUdpEspCsProfile( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   constexpr U32 vxlanInLifProfile = 64;
   U8 const enableValue = nibble< Hardware::RoutingInlifCsProfile >(
      fap, []( auto & profile ) { profile.mplsNamespaceOrAaclOrEspVxlanIs( 1 ); } );
   trace( 0, "L3Sm::", "setupVxlanUdpEspCsProfile", " enableValue = ", enableValue, " chipType = ", fap.chipType );
   doWriteVttCsInLifProfLsb( fap.chipType, fap.id, vxlanInLifProfile, 0, 1, enableValue );
}

} // namespace DaceFapNi
