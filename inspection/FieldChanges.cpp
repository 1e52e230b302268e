#include "inspection/FieldChanges.h"

#include "simulator/ChipContents.h"

namespace Inspection {

std::vector< FieldChange > fieldChanges( Simulator::Row const & row ) {
   std::vector< FieldChange > changes;
   auto const now = Simulator::decode( *row.layout, row.words );
   auto const then =
      row.before.empty() ? std::vector< Simulator::DecodedField >() : Simulator::decode( *row.layout, row.before );
   for ( std::size_t field = 0; field < now.size(); ++field ) {
      changes.push_back( { &row.layout->fields[field],
                           then.empty() ? std::nullopt : std::optional( then[field].value ),
                           now[field].value } );
   }
   return changes;
}

} // namespace Inspection
