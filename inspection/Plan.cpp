#include "inspection/Plan.h"

#include "inspection/Play.h"
#include "simulator/StagedDriver.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace Inspection {

namespace {

using Simulator::Row;
using Simulator::StagedDriver;

constexpr U32 none = ~U32{ 0 };

// A write of the event that changed something, or a control: where, by whom, and what was written.
struct Written {
   Catalogue::Layout const * layout; // null: a control
   U32 const * words;
   U32 entryOrControl;
   int array;
   U32 origin;
   U32 cause;
   U16 fap;
   U16 table;
   U8 variant;
   bool isRegister;
};

// Who wrote to a place in the event, and the next who did.
struct Writing {
   U32 written;
   U32 next = none;
};

// A copy of an entry, or a control.
struct Place {
   U32 copy = 0;
   U32 first = none; // of the writings
   U32 last = none;
};

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

class Planner final : public Simulator::RowReader {
 public:
   // `before`: how many events the switch has had.
   Planner( Plan & plan, std::vector< Event > const & events, StagedDriver & staged, U32 before = 0 )
      : plan_( plan ), events_( events ), staged_( staged ), before_( before ) {}

   void eventBegins( U32 number, Rex::Value const & ) override {
      U32 const event = number - before_;
      plan_.events.push_back(
         { .event = event, .what = event == 0 ? "start" : events_[event - 1].text(), .changes = {} } );
      places_.assign( staged_.placeCount(), {} );
      writings_.clear();
      written_.clear();
      words_.forget();
   }

   void row( Row const & row ) override {
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

   void eventEnds( U32 ) override {
      staged_.eachChange( [this]( StagedDriver::ChangeView const & change ) { take( change ); } );
      staged_.commit();
   }

 private:
   void keep( Row const & row ) {
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
                            .isRegister = !row.entry } );
   }

   // What was kept last.
   void wrote( U32 number, U32 copy ) {
      auto const writing = static_cast< U32 >( writings_.size() );
      writings_.push_back( { static_cast< U32 >( written_.size() - 1 ) } );
      Place & place = places_[number];
      ( place.last == none ? place.first : writings_[place.last].next ) = writing;
      place.last = writing;
      place.copy = copy;
   }

   U32 const * wordsOf( Writing const & writing ) const { return written_[writing.written].words; }

   // The last who made a field become another than it was.
   Writing const & setterOf( Catalogue::Field const & field, Place const & place, U32 const * before ) const {
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

   void take( StagedDriver::ChangeView const & change ) {
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
         if ( !isAlone && isOtherCopyOfAChange( row ) ) {
            plan_.events.back().changes.pop_back();
         }
      }
   }

   Row & add( Writing const & by ) {
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

   // Copies that would change alike are one change of all: that of another copy stands close by, mostly right before.
   bool isOtherCopyOfAChange( Row const & row ) {
      constexpr std::size_t close = 64;
      auto & rows = plan_.events.back().changes;
      std::size_t const last = rows.size() - 1; // the row itself
      for ( std::size_t at = last; at > 0 && last - at < close; --at ) {
         Row & other = rows[at - 1];
         if ( other.entry == row.entry && other.array == row.array && other.layout == row.layout &&
              other.fap == row.fap && other.kind == Row::Kind::write && other.core != row.core &&
              other.originNumber == row.originNumber && other.words == row.words && other.before == row.before ) {
            other.scope = Row::Scope::all;
            return true;
         }
      }
      return false;
   }

   Plan & plan_;
   std::vector< Event > const & events_;
   StagedDriver & staged_;
   U32 before_;
   // Of the event under way: what was written where, by whom.
   std::vector< Place > places_; // by the number of what is staged
   std::vector< Writing > writings_;
   std::vector< Written > written_;
   Simulator::UnitStore< U32 > words_;
   struct Part {
      Writing const * by;
      U32 * words;
   };
   std::vector< Part > parts_; // of the change that is looked at
};

// How many entries, or controls, the rows are of.
std::size_t countOf( std::vector< Row > const & rows, Row::Kind kind ) {
   std::vector< std::tuple< U64, U64 > > places;
   places.reserve( rows.size() );
   for ( Row const & row : rows ) {
      if ( row.kind == kind ) {
         U64 const table = U64{ row.fap } << 32 | U64{ row.tableNumber } << 16 | row.variant;
         U64 const place = static_cast< U64 >( row.array ) << 32 | ( row.entry ? *row.entry : row.control );
         places.emplace_back( table, place );
      }
   }
   std::ranges::sort( places );
   return places.size() - std::ranges::unique( places ).size();
}

} // namespace

std::size_t PlannedEvent::entries() const {
   return countOf( changes, Row::Kind::write );
}

std::size_t PlannedEvent::controls() const {
   return countOf( changes, Row::Kind::control );
}

bool Plan::isEmpty() const {
   return std::ranges::all_of( events, []( PlannedEvent const & event ) { return event.changes.empty(); } );
}

Plan planOn( Simulator::SimulatedSwitch & sw, std::string const & name, std::vector< Event > const & events ) {
   Plan plan{ .name = name, .events = {} };
   auto * const under = DaceSal::schanDriver();
   StagedDriver staged( *under );
   DaceSal::schanDriverIs( &staged );
   Planner planner( plan, events, staged, sw.event() );
   sw.journal().readerAdd( planner );
   for ( Event const & event : events ) {
      Rex::below( std::to_string( event.number - 1 ), [&] {
         Rex::below( event.word(),
                     [&] { sw.change( [&] { event.change( sw.state() ); }, event.cause(), valueOf( event ) ); } );
      } );
   }
   sw.journal().readerDel( planner );
   DaceSal::schanDriverIs( under );
   return plan;
}

Plan planOf( Scenario const & scenario, std::string const & plugin, PlanOptions const & options ) {
   Plan plan{ .name = scenario.name.empty() ? scenario.file : scenario.name, .events = {} };
   loadPlugin( plugin );
   auto description = scenario.description;
   description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   description.supervised = Simulator::SwitchDescription::Supervised::never; // what is planned is what the agent does
   Simulator::SimulatedSwitch sw( description );
   scenario.fillChips( sw.driver() );
   Scenario played = scenario;
   played.chips.clear();
   for ( StagedDriver::Change const & change : options.chips ) {
      if ( change.isControl ) {
         sw.driver().control( change.chip, change.control, change.after.front() );
      } else {
         sw.driver().write( change.chip, change.at, change.after );
      }
   }
   StagedDriver staged( sw.driver() );
   DaceSal::schanDriverIs( &staged );
   Planner planner( plan, scenario.events, staged );
   sw.journal().readerAdd( planner );
   for ( auto * const other : options.others ) {
      sw.journal().readerAdd( *other );
   }
   play( played, sw );
   sw.stop();
   return plan;
}

} // namespace Inspection
