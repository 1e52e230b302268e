// What a write did to the fields of its entry.
//
//    for ( FieldChange const & change : fieldChanges( row ) ) { … change.field->name, change.before, change.after … }
#pragma once

#include "simulator/Row.h"

#include <string>

namespace Inspection {

struct FieldChange {
   Catalogue::Field const * field;
   std::optional< std::string > before; // as a dump has it; none where nobody knows what stood there
   std::string after;
   bool isChange() const { return !before || *before != after; }
};

// Every field, in the order of the catalogue.
std::vector< FieldChange > fieldChanges( Simulator::Row const & row );

} // namespace Inspection
