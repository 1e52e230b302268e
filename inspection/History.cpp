#include "inspection/History.h"

namespace Inspection {

using Simulator::Journal;
using Simulator::Words;

std::optional< Words > History::before( Journal::Row const & row ) const {
   auto const found = known_.find( keyOf( row ) );
   if ( found == known_.end() ) {
      return std::nullopt;
   }
   int const core = row.scope == Journal::Scope::core ? row.core : 0;
   auto const ofCore = found->second.ofCores.find( core );
   return ofCore != found->second.ofCores.end() ? ofCore->second : found->second.common;
}

std::optional< U32 > History::controlBefore( Journal::Row const & row ) const {
   auto const found = controls_.find( { row.fap, row.control } );
   return found == controls_.end() ? std::nullopt : std::optional( found->second );
}

void History::follow( Journal::Row const & row ) {
   if ( row.kind == Journal::Kind::control ) {
      controls_[{ row.fap, row.control }] = row.value;
      return;
   }
   Known & known = known_[keyOf( row )];
   if ( row.scope == Journal::Scope::core ) {
      known.ofCores[row.core] = row.words;
   } else if ( row.kind == Journal::Kind::write ) {
      known.common = row.words;
      known.ofCores.clear();
   } else if ( known.ofCores.contains( 0 ) ) {
      known.ofCores[0] = row.words; // a read takes the first copy
   } else {
      known.common = row.words;
   }
}

std::vector< FieldChange >
fieldChanges( Catalogue::Layout const & layout, std::optional< Words > const & before, Words const & after ) {
   std::vector< FieldChange > changes;
   auto const now = Simulator::decode( layout, after );
   auto const then = before ? Simulator::decode( layout, *before ) : std::vector< Simulator::DecodedField >();
   for ( std::size_t field = 0; field < now.size(); ++field ) {
      changes.push_back(
         { &layout.fields[field], before ? std::optional( then[field].value ) : std::nullopt, now[field].value } );
   }
   return changes;
}

} // namespace Inspection
