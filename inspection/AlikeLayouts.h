// The layouts of a table, put together where they are alike: most tables look the same on every chip, and what differs
// is what a reader wants to see.
#pragma once

#include "generated/Catalogue.h"

#include <string>
#include <vector>

namespace Inspection {

// Layouts whose entries have the same fields at the same places.
struct LayoutGroup {
   std::vector< Catalogue::Layout const * > layouts; // never empty

   Catalogue::Layout const & like() const { return *layouts.front(); }
   // "BCM88690_B0, BCM88800_A0 · variant 1"; "every chip" where it is.
   std::string text( Catalogue::Table const & table ) const;
};

// In the order of chips and variants. `chipType` 0: every chip.
std::vector< LayoutGroup > fieldGroups( Catalogue::Table const & table, U8 chipType = 0 );
// Likewise, by everything but the fields: entries, addresses, blocks.
std::vector< LayoutGroup > geometryGroups( Catalogue::Table const & table, U8 chipType = 0 );

// How a field differs from that of another layout: empty if it doesn't.
std::string difference( Catalogue::Field const & field, Catalogue::Layout const & from );

} // namespace Inspection
