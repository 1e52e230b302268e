#include "inspection/Changes.h"

#include "simulator/TableMap.h"

namespace Inspection {

namespace {

using Simulator::Chip;
using Simulator::Journal;

void carryOut( Change & change, Chip & chip, Hardware::ChipType chipType ) {
   auto const & row = change.row;
   auto const & table = *Catalogue::table( row.table );
   change.layout = Catalogue::layout( table, static_cast< U8 >( chipType ), row.variant );
   auto const & layout = *change.layout;
   auto const array = static_cast< U32 >( row.array );
   bool const isCore = row.scope == Journal::Scope::core;
   U32 const first = isCore ? static_cast< U32 >( row.core ) : 0;
   U32 const last = isCore ? first : static_cast< U32 >( layout.selectors.size() ) - 1;
   change.before.resize( row.words.size() );
   chip.read( Simulator::addressOf( layout, array, row.entry.value_or( 0 ), first ), change.before );
   for ( U32 copy = first; copy <= last; ++copy ) {
      chip.write( Simulator::addressOf( layout, array, row.entry.value_or( 0 ), copy ), row.words );
   }
}

} // namespace

std::vector< Change >
changesOf( Journal const & journal, Simulator::ChipDriver & chips, Simulator::SwitchDescription const & description ) {
   std::map< U16, Hardware::ChipType > chipTypes;
   for ( auto const & fap : description.faps ) {
      chipTypes[fap.fapId.value()] = fap.revision.chipType();
   }
   std::vector< Change > changes;
   for ( std::size_t index = 0; index < journal.size(); ++index ) {
      Change change{ journal.row( index ), nullptr, {}, {} };
      auto const & row = change.row;
      if ( row.kind == Journal::Kind::read ) {
         continue;
      }
      auto & chip = *chips.chip( DaceSal::ChipId{ row.fap } );
      if ( row.kind == Journal::Kind::control ) {
         if ( auto const known = chip.controls().find( row.control ); known != chip.controls().end() ) {
            change.controlBefore = known->second;
         }
         chip.controlIs( row.control, row.value );
      } else {
         carryOut( change, chip, chipTypes.at( row.fap ) );
      }
      changes.push_back( std::move( change ) );
   }
   return changes;
}

} // namespace Inspection
