// One scenario on every kind of chip, and with each toggle flipped alone: what is programmed, and where it differs.
//
//    ChipComparison const it = compareChips( scenario, { .toggles = true } );
//    it.places.at( place )[0];              // the value on the first kind of chip; none where it isn't set there
//    it.flips[0].changes[0].at( place );    // what the first toggle changes on it
#pragma once

#include "inspection/ProgrammedValues.h"

#include <array>

namespace Inspection {

constexpr std::size_t chipCount = Hardware::allChipTypes.size();

template< class T >
using ByChip = std::array< T, chipCount >; // in the order of allChipTypes

// A value as a dump has it; none where the chip lacks the place or keeps what it booted with.
using MaybeValue = std::optional< std::string >;

struct ChipComparison {
   struct Change {
      MaybeValue before;
      MaybeValue after;
      friend bool operator==( Change const &, Change const & ) = default;
   };
   using Changes = std::map< ProgrammedPlace, Change >;

   // A toggle that was flipped alone.
   struct Flip {
      std::string file;
      std::string name;
      bool was;
      ByChip< std::string > failures;
      ByChip< Changes > changes; // none where one of the two runs failed
   };

   std::string name; // of the scenario
   // The last words of the run on a chip; empty where it came to its end.
   ByChip< std::string > failures;
   std::map< ProgrammedPlace, ByChip< MaybeValue > > places;
   std::vector< Flip > flips;

   // The chips on which the run came to its end.
   std::vector< std::size_t > played() const;
   // Whether those have the same value.
   bool isAlike( ByChip< MaybeValue > const & values ) const;
};

struct ComparisonOptions {
   std::vector< std::string > tables = {}; // only these; none: all
   bool toggles = false;                   // flip each
   std::string plugin = {};
};

// InputError where the library can't be loaded. A scenario whose contents don't fit on another chip has failed there.
ChipComparison compareChips( Scenario const & scenario, ComparisonOptions const & options );

} // namespace Inspection
