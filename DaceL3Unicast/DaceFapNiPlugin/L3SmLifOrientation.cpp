// LIF orientation: split horizon is decided in the egress from the orientations of the interfaces in and out, and from
// a filter for packets that would leave by the interface they came in on.
#include "L3Sm.h"
#include "Programming.h"
#include "SharedFunctions.h"
#include "Toggles.h"

#include <map>
#include <set>

namespace DaceFapNi {

namespace {

// A run of profiles with one value.
struct ProfileRow {
   int first;
   int last;
   U8 value;
   ToggleReader toggle = always;
};

// clang-format off
constexpr ProfileRow inLifOrientations[] = {
   { 24, 24, 2 },
   { 25, 25, 2 },
   { 26, 26, 3 },
   { 27, 27, 0 },
   { 28, 28, 3 },
   { 29, 29, 2 },
   { 31, 35, 1 },
   { 36, 36, 4, toggleDaceEvpnDualEncapDciAaMhEnabled },
   { 64, 66, 6 },
   { 67, 67, 7 },
   { 68, 68, 6 },
   { 69, 69, 5 },
   { 70, 70, 4 },
   { 71, 71, 2, toggleCampusVtepToVtepBridgingGen4Enabled },
   { 72, 79, 6, toggleJ2EvpnMcastVxlanMultihomingEnabled },
   { 10, 10, 0 },
   { 11, 11, 4 },
   { 12, 12, 5 },
   { 13, 13, 6 },
   { 14, 14, 7 },
};

constexpr ProfileRow inLifSameIfFilters[] = {
   { 24, 24, 1 },
   { 25, 25, 2 },
   { 27, 27, 2 },
   { 29, 29, 1 },
   { 30, 30, 3 },
   { 34, 35, 1 },
};

// In both egress stages.
constexpr ProfileRow outLifOrientations[] = {
   { 2, 2, 1 },
   { 3, 3, 2 },
   { 4, 4, 3 },
};

// In the second egress stage only: the first has no entries for most of these.
constexpr ProfileRow outLifOrientationsOfEtpp[] = {
   { 56, 56, 6 },
   { 57, 57, 7 },
   { 61, 61, 5, toggleCampusVtepToVtepBridgingGen4Enabled },
   { 21, 21, 0 },
   { 22, 22, 4 },
   { 23, 23, 5 },
   { 24, 24, 6 },
   { 25, 25, 7 },
};
// clang-format on

constexpr int sameIfOutLifProfile = 1;

using ProfileMap = std::map< int, U8 >;

void addRows( ProfileMap & map, std::span< ProfileRow const > rows ) {
   for ( auto const & row : rows ) {
      if ( isOn( row.toggle ) ) {
         for ( int profile = row.first; profile <= row.last; ++profile ) {
            map[profile] = row.value;
         }
      }
   }
}

} // namespace

void setOrientationForOutLifProfile( unsigned int outLifProfile, Raw256 & mapping, U64 orientation ) {
   unsigned const bit = 3 * outLifProfile;
   mapping.word64Is( bit >> 6, mapping.word64( bit >> 6 ) | orientation << ( bit & 63 ) );
}

void L3Sm::initInlifOrientationMapTable( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   ProfileMap orientations;
   addRows( orientations, inLifOrientations );
   ProfileMap sameIfFilters;
   addRows( sameIfFilters, inLifSameIfFilters );
   std::set< int > profiles;
   for ( auto const * map : { &orientations, &sameIfFilters } ) {
      for ( auto const & [profile, value] : *map ) {
         profiles.insert( profile );
      }
   }

   for ( int const profile : profiles ) {
      Place const place{ .entry = profile };
      auto erpp = accessor< Hardware::ErppInlifOrientationMap >( fap );
      auto etpp = accessor< Hardware::EtppInlifOrientationMap >( fap );
      readAny( erpp, fap, place );
      readAny( etpp, fap, place );
      if ( auto const orientation = orientations.find( profile ); orientation != orientations.end() ) {
         erpp.inlifOrientationIs( orientation->second );
         etpp.inlifOrientationMappingIs( orientation->second );
      }
      if ( auto const filter = sameIfFilters.find( profile ); filter != sameIfFilters.end() ) {
         erpp.inlifSameIfFilterIs( filter->second );
      }
      writeAll( erpp, fap, place );
      writeAll( etpp, fap, place );
   }
}

void L3Sm::initOutlifOrientationMap( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   ProfileMap orientations;
   addRows( orientations, outLifOrientations );

   for ( auto const & [profile, orientation] : orientations ) {
      modify< Hardware::ErppCfgMappingOutLifProfile >(
         fap, { .entry = profile }, [value = orientation]( auto & map ) { map.outlifOrientationIs( value ); } );
   }
   modify< Hardware::ErppCfgMappingOutLifProfile >(
      fap, { .entry = sameIfOutLifProfile }, []( auto & map ) { map.outlifSameIfIs( 1 ); } );

   addRows( orientations, outLifOrientationsOfEtpp );
   // The mapping starts from what the read returns, not from what the register holds.
   auto etpp = accessor< Hardware::EtppOutlifOrientationMap >( fap );
   Raw256 mapping( readAny( etpp, fap, {} ) );
   for ( auto const & [profile, orientation] : orientations ) {
      setOrientationForOutLifProfile( static_cast< unsigned >( profile ), mapping, orientation );
      etpp.outlifOrientationMappingIs( mapping );
      writeAll( etpp, fap, {} );
   }
}

} // namespace DaceFapNi
