// The rows of a journal, from the short records that it keeps of an event.
#include "simulator/Journal.h"

#include "assert/Assert.h"

namespace Simulator {

namespace {

constexpr std::size_t mostVariants = 8; // of a table

} // namespace

void Journal::chipIs( U16 fap, Hardware::ChipType chipType ) {
   if ( layouts_.size() <= fap ) {
      layouts_.resize( fap + 1u );
   }
   Layouts & layouts = layouts_[fap];
   layouts.assign( Catalogue::tables().size() * mostVariants, nullptr );
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      for ( Catalogue::Layout const & layout : table.layouts ) {
         if ( layout.chipType == static_cast< U8 >( chipType ) ) {
            Rex::sassert( layout.variant < mostVariants, "layout.variant < mostVariants" );
            layouts[table.number * mostVariants + layout.variant] = &layout;
         }
      }
   }
}

void Journal::access( Record const & record, Row & row ) const {
   if ( row.tableNumber != record.table || row.table.empty() ) {
      row.tableNumber = record.table;
      row.table = Catalogue::tables()[record.table].name;
   }
   row.layout = record.fap < layouts_.size() && !layouts_[record.fap].empty()
                   ? layouts_[record.fap][record.table * mostVariants + record.variant]
                   : nullptr;
   row.variant = record.variant;
   row.array = record.array;
   row.entry = record.isRegister ? std::nullopt : std::optional( record.entryOrControl );
   row.scope = record.scope;
   row.core = record.core;
   row.words = { record.words, record.width };
   row.before = { record.words + record.width, record.hasBefore ? record.width : 0u };
}

// A row that was told of a record of the same kind already is filled anew: all that such rows have is written here.
void Journal::tell( Record const & record, Row & row ) const {
   if ( row.kind != record.kind ) {
      row = Row{ .kind = record.kind, .event = record.event };
   }
   row.event = record.event;
   row.seq = record.seq;
   row.cause = *causes_[record.cause];
   row.causeNumber = record.cause;
   row.isOfFap = record.isOfFap;
   row.fap = record.fap;
   if ( record.kind == Kind::publish ) {
      Publication const & publication = *record.publication;
      row.path = publication.path;
      row.attribute = publication.attribute;
      row.key = publication.key;
      row.publishedBefore = &publication.before;
      row.published = &publication.after;
      return;
   }
   if ( record.kind == Kind::fault ) {
      row.reason = reasons_[record.origin];
      access( record, row );
      return;
   }
   if ( row.originNumber != record.origin || row.function.empty() ) {
      Origin const & origin = origins_[record.origin];
      row.function = origin.function;
      row.source = origin.source;
      row.originNumber = record.origin;
   }
   row.changed = record.changed;
   switch ( record.kind ) {
   case Kind::gate:
      row.reason = *record.reason;
      break;
   case Kind::control:
      row.control = record.entryOrControl;
      row.value = record.value;
      row.valueBefore = record.hasBefore ? std::optional( record.valueBefore ) : std::nullopt;
      break;
   case Kind::read:
   case Kind::write:
      access( record, row );
      break;
   case Kind::publish:
   case Kind::fault:
      break;
   }
}

std::vector< Row > Journal::rows() const {
   std::vector< Row > all;
   all.reserve( records_.size() );
   for ( Record const & record : records_ ) {
      tell( record, all.emplace_back( Row{ .kind = record.kind, .event = record.event } ) );
   }
   return all;
}

std::vector< Row > Journal::operations() const {
   auto all = rows();
   std::erase_if( all, []( Row const & row ) { return !row.isOperation(); } );
   return all;
}

} // namespace Simulator
