#include "inspection/PassingValues.h"

#include "simulator/ChipContents.h"

namespace Inspection {

namespace {

using Simulator::Row;

std::string valueOf( Catalogue::Field const * field, std::vector< U32 > const & words ) {
   if ( !field ) {
      return words.empty() ? "unset" : std::to_string( words.front() );
   }
   return Simulator::fieldText( words, *field );
}

} // namespace

void PassingValues::eventBegins( U32 event, Rex::Value const & ) {
   event_ = event;
   tracks_.clear();
}

void PassingValues::row( Row const & row ) {
   if ( row.kind == Row::Kind::control ) {
      step( { row.fap, static_cast< U16 >( Catalogue::tables().size() ), 0, 0, row.control, 0 },
            row,
            row.valueBefore ? std::vector< U32 >{ *row.valueBefore } : std::vector< U32 >(),
            { row.value } );
      return;
   }
   if ( row.kind != Row::Kind::write || !row.layout ) {
      return;
   }
   bool const isCore = row.scope == Row::Scope::core;
   U32 const first = isCore ? static_cast< U32 >( row.core ) : 0;
   U32 const last = isCore ? first : static_cast< U32 >( row.layout->selectors.size() ) - 1;
   for ( U32 copy = first; copy <= last; ++copy ) {
      step( { row.fap, row.tableNumber, row.variant, row.array, row.entry.value_or( 0 ), copy },
            row,
            { row.before.begin(), row.before.end() },
            { row.words.begin(), row.words.end() } );
   }
}

void PassingValues::step( Key const & key, Row const & row, std::vector< U32 > before, std::vector< U32 > words ) {
   auto const [known, isNew] = tracks_.try_emplace( key );
   Track & track = known->second;
   if ( isNew ) {
      track.layout = row.layout;
      // Where the copies differed nobody knows what this one held: nothing is claimed then of its first value.
      track.before = before.empty() && row.layout ? words : std::move( before );
   }
   auto const & latest = track.steps.empty() ? track.before : track.steps.back().words;
   if ( latest != words ) {
      track.steps.push_back( { row.seq, kept( row.function ), kept( row.source ), std::move( words ) } );
   }
}

void PassingValues::eventEnds( U32 ) {
   for ( auto const & [key, track] : tracks_ ) {
      if ( track.steps.size() > 1 ) {
         follow( key, track );
      }
   }
   tracks_.clear();
}

// A second copy that goes the same way as the first is told with it.
bool PassingValues::isTold( PassingValue const & it ) const {
   auto const isSamePlace = [&]( PassingValue const & other ) {
      return other.event == it.event && other.fap == it.fap && other.table == it.table && other.variant == it.variant &&
             other.array == it.array && other.entry == it.entry;
   };
   for ( auto other = all_.rbegin(); other != all_.rend() && isSamePlace( *other ); ++other ) {
      if ( other->field == it.field && other->from == it.from && other->through == it.through && other->to == it.to ) {
         return true;
      }
   }
   return false;
}

void PassingValues::follow( Key const & key, Track const & track ) {
   if ( !track.layout ) {
      follow( key, track, nullptr );
      return;
   }
   for ( Catalogue::Field const & field : track.layout->fields ) {
      follow( key, track, &field );
   }
}

void PassingValues::follow( Key const & key, Track const & track, Catalogue::Field const * field ) {
   std::string const from = valueOf( field, track.before );
   std::string const to = valueOf( field, track.steps.back().words );
   for ( std::size_t at = 0; at + 1 < track.steps.size(); ) {
      Step const & set = track.steps[at];
      std::string const through = valueOf( field, set.words );
      std::size_t end = at + 1;
      while ( end < track.steps.size() && valueOf( field, track.steps[end].words ) == through ) {
         ++end;
      }
      at = end;
      if ( through == from || through == to || end == track.steps.size() ) {
         continue;
      }
      Step const & left = track.steps[end];
      PassingValue const found{ .event = event_,
                                .fap = key.fap,
                                .layout = track.layout,
                                .table = track.layout ? Catalogue::tables()[key.table].name : "controls",
                                .variant = key.variant,
                                .array = key.array,
                                .entry = key.entry,
                                .field = field ? field->name : "",
                                .from = from,
                                .through = through,
                                .to = to,
                                .setBy = *set.function,
                                .setAt = *set.source,
                                .leftBy = *left.function,
                                .leftAt = *left.source,
                                .operations = left.seq - set.seq };
      if ( key.copy == 0 || !isTold( found ) ) {
         all_.push_back( found );
      }
   }
}

} // namespace Inspection
