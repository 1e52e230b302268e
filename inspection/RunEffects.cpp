#include "inspection/RunEffects.h"

#include "inspection/EventRows.h"
#include "inspection/FieldChanges.h"

namespace Inspection {

using Simulator::Row;

void RunEffects::eventBegins( U32 event, Rex::Value const & what ) {
   under_ = { .event = event, .what = eventText( what ) };
   changes_.clear();
}

void RunEffects::became( EffectPlace place, std::string const & before, std::string const & after, Row const & row ) {
   auto const [at, isNew] = changes_.try_emplace( std::move( place ), Effect{ before, {}, {}, {} } );
   Effect & effect = at->second;
   effect.to = after;
   effect.function = row.function;
   effect.source = row.source;
}

void RunEffects::row( Row const & row ) {
   if ( row.isOperation() ) {
      ++under_.operations;
      under_.writes += row.kind != Row::Kind::read;
      auto const add = [&]( U64 more ) { under_.hash = ( under_.hash ^ more ) * 0x9e3779b97f4a7c15 >> 1; };
      add( std::hash< std::string_view >()( row.function ) );
      add( U64{ row.fap } << 48 | U64{ row.tableNumber } << 32 | row.entry.value_or( row.control ) );
      add( static_cast< U64 >( row.array ) << 8 | row.variant );
      for ( U32 const word : row.words ) {
         add( word );
      }
   }
   if ( row.kind == Row::Kind::publish ) {
      std::string const key = row.key ? "[" + std::string( *row.key ) + "]" : "";
      became( { 0, "published", 0, 0, 0, 0, std::string( row.path ) + " " + std::string( row.attribute ) + key },
              Rex::toText( *row.publishedBefore ),
              Rex::toText( *row.published ),
              row );
   } else if ( row.kind == Row::Kind::control && row.changed ) {
      became( { row.fap, "controls", 0, 0, row.control, 0, "" },
              row.valueBefore ? std::to_string( *row.valueBefore ) : "",
              std::to_string( row.value ),
              row );
   } else if ( row.kind == Row::Kind::write && row.changed && row.layout ) {
      U32 const copy = row.scope == Row::Scope::core ? static_cast< U32 >( row.core ) + 1 : 0;
      for ( FieldChange const & change : fieldChanges( row ) ) {
         if ( change.isChange() ) {
            became( { row.fap,
                      std::string( row.table ),
                      row.variant,
                      row.array,
                      row.entry.value_or( 0 ),
                      copy,
                      change.field->name },
                    change.before.value_or( "" ),
                    change.after,
                    row );
         }
      }
   }
}

void RunEffects::eventEnds( U32 ) {
   for ( auto & [place, effect] : changes_ ) {
      if ( effect.from != effect.to ) {
         under_.changes.emplace( place, std::move( effect ) );
      }
   }
   events_.push_back( std::move( under_ ) );
   changes_.clear();
}

} // namespace Inspection
