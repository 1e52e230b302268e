#include "inspection/Planner.h"

#include "simulator/TableMap.h"

#include <algorithm>

namespace Inspection {

using Simulator::Row;
using Simulator::StagedDriver;

namespace {

// Visits the words that a field lies in, each with the field's bits there.
template< class Visit >
void eachWord( Catalogue::Field const & field, Visit const & visit ) {
   unsigned const end = field.offset + unsigned{ field.width };
   for ( unsigned at = field.offset; at < end; ) {
      unsigned const bits = std::min( 32 - at % 32, end - at );
      visit( at / 32, ( bits == 32 ? ~U32{ 0 } : ( U32{ 1 } << bits ) - 1 ) << at % 32 );
      at += bits;
   }
}

template< class A, class B >
bool isAlike( Catalogue::Field const & field, A const & a, B const & b ) {
   U32 different = 0;
   eachWord( field, [&]( std::size_t word, U32 mask ) { different |= ( a[word] ^ b[word] ) & mask; } );
   return different == 0;
}

} // namespace

void Planner::eventBegins( U32 number, Rex::Value const & ) {
   U32 const event = number - before_;
   plan_.events.push_back(
      { .event = event, .what = event == 0 ? "start" : events_[event - 1].text(), .changes = {} } );
   places_.assign( staged_.placeCount(), {} );
   writings_.clear();
   written_.clear();
   words_.forget();
}

void Planner::row( Row const & row ) {
   if ( !isPlanned( row.fap ) ) {
      return;
   }
   PlannedEvent & event = plan_.events.back();
   event.operations += row.isOperation();
   event.writes += row.kind == Row::Kind::write;
   event.changingWrites += row.isOperation() && row.changed;
   bool const counts = row.kind == Row::Kind::control || ( row.kind == Row::Kind::write && row.changed );
   if ( !counts ) {
      return;
   }
   keep( row );
   DaceSal::ChipId const chip{ row.fap };
   if ( row.kind == Row::Kind::control ) {
      wrote( *staged_.placeOf( chip, row.control ), 0 );
      return;
   }
   bool const isCore = row.scope == Row::Scope::core;
   auto const first = isCore ? static_cast< U32 >( row.core ) : 0;
   auto const end = isCore ? first + 1 : static_cast< U32 >( row.layout->selectors.size() );
   for ( U32 copy = first; copy < end; ++copy ) {
      auto const at =
         Simulator::addressOf( *row.layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), copy );
      wrote( *staged_.placeOf( chip, at ), copy );
   }
}

void Planner::eventEnds( U32 ) {
   plan_.events.back().changes.reserve( staged_.placeCount() );
   staged_.eachChange( [this]( StagedDriver::ChangeView const & change ) {
      if ( isPlanned( change.chip.value ) ) {
         take( change );
      }
   } );
   staged_.commit();
}

void Planner::keep( Row const & row ) {
   plan_.texts.origin( row );
   plan_.texts.cause( row );
   written_.push_back( { .layout = row.layout,
                         .words = words_.keep( row.words ),
                         .entryOrControl = row.kind == Row::Kind::control ? row.control : row.entry.value_or( 0 ),
                         .array = row.array,
                         .origin = row.originNumber,
                         .cause = row.causeNumber,
                         .fap = row.fap,
                         .table = row.tableNumber,
                         .variant = row.variant,
                         .isRegister = !row.entry,
                         .isOfAllCopies = row.scope != Row::Scope::core } );
}

void Planner::wrote( U32 number, U32 copy ) {
   auto const writing = static_cast< U32 >( writings_.size() );
   writings_.push_back( { static_cast< U32 >( written_.size() - 1 ) } );
   Place & place = places_[number];
   ( place.last == none ? place.first : writings_[place.last].next ) = writing;
   place.last = writing;
   place.copy = copy;
}

Planner::Writing const &
Planner::setterOf( Catalogue::Field const & field, Place const & place, U32 const * before ) const {
   Writing const * setter = &writings_[place.first];
   for ( U32 at = place.first; at != none; at = writings_[at].next ) {
      U32 const * const after = wordsOf( writings_[at] );
      if ( !isAlike( field, before, after ) ) {
         setter = &writings_[at];
      }
      before = after;
   }
   return *setter;
}

void Planner::take( StagedDriver::ChangeView const & change ) {
   Place const & place = places_[change.place];
   if ( change.isControl ) {
      Row & row = add( writings_[place.last] );
      row.value = change.after.front();
      row.valueBefore = change.before.empty() ? std::nullopt : std::optional( change.before.front() );
      return;
   }
   // For each writing that counts, the words as they would be with its fields alone.
   parts_.clear();
   for ( auto const & field : written_[writings_[place.first].written].layout->fields ) {
      if ( isAlike( field, change.before, change.after ) ) {
         continue;
      }
      Writing const * const by =
         place.first == place.last ? &writings_[place.first] : &setterOf( field, place, change.before.data() );
      auto part = std::ranges::find( parts_, by, &Part::by );
      if ( part == parts_.end() ) {
         U32 * const words = plan_.words.room( change.before.size() );
         std::ranges::copy( change.before, words );
         part = parts_.insert( part, { by, words } );
      }
      eachWord( field, [&]( std::size_t word, U32 mask ) {
         part->words[word] = ( part->words[word] & ~mask ) | ( change.after[word] & mask );
      } );
   }
   U32 const * const before = parts_.empty() ? nullptr : plan_.words.keep( change.before );
   for ( auto const & [by, words] : parts_ ) {
      Row & row = add( *by );
      row.words = { words, change.before.size() };
      row.before = { before, change.before.size() };
      row.core = static_cast< int >( place.copy );
      bool const isAlone = row.layout->selectors.size() == 1;
      row.scope = isAlone ? Row::Scope::all : Row::Scope::core;
      auto & changes = plan_.events.back().changes;
      Written & written = written_[by->written];
      if ( !isAlone && isOtherCopyOfAChange( row, written ) ) {
         changes.pop_back();
      } else {
         written.change = static_cast< U32 >( changes.size() - 1 );
      }
   }
}

Row & Planner::add( Writing const & by ) {
   Written const & written = written_[by.written];
   auto const & origin = plan_.texts.origin( written.origin );
   Row & row = plan_.events.back().changes.emplace_back(
      Row{ .kind = written.layout ? Row::Kind::write : Row::Kind::control, .event = plan_.events.back().event } );
   row.function = origin.function;
   row.source = origin.source;
   row.cause = plan_.texts.cause( written.cause );
   row.originNumber = written.origin;
   row.causeNumber = written.cause;
   row.fap = written.fap;
   row.changed = true;
   if ( !written.layout ) {
      row.control = written.entryOrControl;
      return row;
   }
   row.table = Catalogue::tables()[written.table].name;
   row.tableNumber = written.table;
   row.layout = written.layout;
   row.variant = written.variant;
   row.array = written.array;
   row.entry = written.isRegister ? std::nullopt : std::optional( written.entryOrControl );
   return row;
}

bool Planner::isOtherCopyOfAChange( Row const & row, Written const & written ) {
   constexpr std::size_t close = 64;
   auto & rows = plan_.events.back().changes;
   auto const isOther = [&]( Row & other ) {
      bool const is = other.entry == row.entry && other.array == row.array && other.layout == row.layout &&
                      other.fap == row.fap && other.kind == Row::Kind::write && other.core != row.core &&
                      other.originNumber == row.originNumber && other.words == row.words && other.before == row.before;
      other.scope = is ? Row::Scope::all : other.scope;
      return is;
   };
   if ( written.isOfAllCopies ) {
      return written.change != none && isOther( rows[written.change] );
   }
   std::size_t const last = rows.size() - 1; // the row itself
   for ( std::size_t at = last; at > 0 && last - at < close; --at ) {
      if ( isOther( rows[at - 1] ) ) {
         return true;
      }
   }
   return false;
}

} // namespace Inspection
