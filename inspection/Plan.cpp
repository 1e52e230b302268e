#include "inspection/Plan.h"

#include "inspection/Play.h"
#include "simulator/StagedDriver.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <unordered_map>

namespace Inspection {

namespace {

using Simulator::Row;
using Simulator::StagedDriver;
using Words = std::vector< U32 >;

constexpr U32 none = ~U32{ 0 };

// Who wrote to a place in the event: a row of it, and the next who did.
struct Writing {
   U32 row;
   U32 next = none;
};

// A copy of an entry, or a control.
struct Place {
   U32 copy;
   U32 first; // of the writings
   U32 last;
};

// A copy of an entry on its bus; of a control its number, with selectors that no block has.
struct Address {
   U16 chip;
   U32 selectorA;
   U32 selectorB;
   U32 address;
   bool operator==( Address const & ) const = default;
};

struct AddressHash {
   std::size_t operator()( Address const & at ) const {
      U64 const block = U64{ at.chip } << 32 ^ U64 { at.selectorA } << 48 ^ U64 { at.selectorB } << 40;
      return ( block ^ at.address ) * 0x9e3779b97f4a7c15 >> 7;
   }
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
      places_.clear();
      writings_.clear();
      rows_.clear();
      words_.clear();
      firstWords_.clear();
   }

   void row( Row const & row ) override {
      PlannedEvent & event = plan_.events.back();
      event.operations += row.isOperation();
      event.writes += row.kind == Row::Kind::write;
      event.changingWrites += row.isOperation() && row.changed;
      if ( row.kind == Row::Kind::control ) {
         keep( row );
         wrote( atControl( row.fap, row.control ), 0 );
      } else if ( row.kind == Row::Kind::write ) {
         keep( row );
         bool const isCore = row.scope == Row::Scope::core;
         auto const copies = static_cast< U32 >( row.layout->selectors.size() );
         for ( U32 copy = isCore ? static_cast< U32 >( row.core ) : 0; copy < copies; ++copy ) {
            auto const at =
               Simulator::addressOf( *row.layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), copy );
            wrote( { row.fap, at.selectorA, at.selectorB, at.address }, copy );
            if ( isCore ) {
               break;
            }
         }
      }
   }

   void eventEnds( U32 ) override {
      staged_.eachChange( [this]( StagedDriver::Change const & change ) { take( change ); } );
      foldCopies( plan_.events.back().changes );
      staged_.commit();
   }

 private:
   static Address atControl( U16 chip, U32 control ) { return { chip, none, none, control }; }

   void keep( Row const & row ) {
      auto const & origin = plan_.texts.origin( row );
      Row & kept = rows_.emplace_back( row );
      kept.function = origin.function;
      kept.source = origin.source;
      kept.cause = plan_.texts.cause( row );
      kept.changed = true;
      firstWords_.push_back( words_.size() );
      words_.insert( words_.end(), row.words.begin(), row.words.end() );
   }

   // The row that was kept last.
   void wrote( Address const & at, U32 copy ) {
      auto const writing = static_cast< U32 >( writings_.size() );
      writings_.push_back( { static_cast< U32 >( rows_.size() - 1 ) } );
      auto const [place, isNew] = places_.try_emplace( at, Place{ copy, writing, writing } );
      if ( !isNew ) {
         writings_[place->second.last].next = writing;
         place->second.last = writing;
      }
   }

   U32 const * wordsOf( Writing const & writing ) const { return words_.data() + firstWords_[writing.row]; }

   // The last who made a field become another than it was.
   Writing const & setterOf( Catalogue::Field const & field, Place const & place, Words const & begun ) const {
      Writing const * setter = &writings_[place.first];
      U32 const * before = begun.data();
      for ( U32 at = place.first; at != none; at = writings_[at].next ) {
         U32 const * const after = wordsOf( writings_[at] );
         if ( !isAlike( field, before, after ) ) {
            setter = &writings_[at];
         }
         before = after;
      }
      return *setter;
   }

   void take( StagedDriver::Change const & change ) {
      if ( change.isControl ) {
         Place const & place = places_.at( atControl( change.chip.value, change.control ) );
         Row & row = add( writings_[place.last] );
         row.value = change.after.front();
         row.valueBefore = change.before.empty() ? std::nullopt : std::optional( change.before.front() );
         return;
      }
      Place const & place =
         places_.at( { change.chip.value, change.at.selectorA, change.at.selectorB, change.at.address } );
      // For each writing that counts, the words as they would be with its fields alone.
      std::vector< std::pair< Writing const *, Words > > parts;
      for ( auto const & field : rows_[writings_[place.first].row].layout->fields ) {
         if ( isAlike( field, change.before, change.after ) ) {
            continue;
         }
         Writing const * const by = &setterOf( field, place, change.before );
         auto part = std::ranges::find( parts, by, &std::pair< Writing const *, Words >::first );
         if ( part == parts.end() ) {
            part = parts.insert( part, { by, change.before } );
         }
         eachWord( field, [&]( std::size_t word, U32 mask ) {
            part->second[word] = ( part->second[word] & ~mask ) | ( change.after[word] & mask );
         } );
      }
      for ( auto & [writing, words] : parts ) {
         Row & row = add( *writing );
         row.words = plan_.words.emplace_back( std::move( words ) );
         row.before = plan_.words.emplace_back( change.before );
         row.scope = Row::Scope::core;
         row.core = static_cast< int >( place.copy );
      }
   }

   Row & add( Writing const & by ) { return plan_.events.back().changes.emplace_back( rows_[by.row] ); }

   // Copies that would change alike are one change of all.
   static void foldCopies( std::vector< Row > & rows ) {
      std::vector< Row > folded;
      for ( Row const & row : rows ) {
         auto const isOtherCopy = [&]( Row const & other ) {
            return other.entry == row.entry && other.array == row.array && other.layout == row.layout &&
                   other.fap == row.fap && row.kind == Row::Kind::write && other.kind == Row::Kind::write &&
                   other.core != row.core && other.source == row.source && other.words == row.words &&
                   other.before == row.before;
         };
         // They stand close together, mostly side by side.
         auto const near = folded.size() > 64 ? folded.end() - 64 : folded.begin();
         bool const isAlone = row.kind == Row::Kind::control || row.layout->selectors.size() == 1;
         auto const other = isAlone ? folded.end() : std::find_if( near, folded.end(), isOtherCopy );
         if ( other != folded.end() ) {
            other->scope = Row::Scope::all;
         } else {
            folded.push_back( row );
            if ( row.kind == Row::Kind::write && row.layout->selectors.size() == 1 ) {
               folded.back().scope = Row::Scope::all;
            }
         }
      }
      rows = std::move( folded );
   }

   Plan & plan_;
   std::vector< Event > const & events_;
   StagedDriver & staged_;
   U32 before_;
   // Of the event under way: what was written where, by whom.
   std::unordered_map< Address, Place, AddressHash > places_;
   std::vector< Writing > writings_;
   std::vector< Row > rows_;
   Words words_;
   std::vector< std::size_t > firstWords_; // of each row, in words_
};

std::size_t countOf( std::vector< Row > const & rows, Row::Kind kind ) {
   std::set< std::tuple< U16, U16, U8, int, std::optional< U32 >, U32 > > places;
   for ( Row const & row : rows ) {
      if ( row.kind == kind ) {
         places.emplace( row.fap, row.tableNumber, row.variant, row.array, row.entry, row.control );
      }
   }
   return places.size();
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
   StagedDriver staged( *DaceSal::schanDriver() );
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
   DaceSal::schanDriverIs( &sw.driver() );
   return plan;
}

Plan planOf( Scenario const & scenario, std::string const & plugin, PlanOptions const & options ) {
   Plan plan{ .name = scenario.name.empty() ? scenario.file : scenario.name, .events = {} };
   loadPlugin( plugin );
   auto description = scenario.description;
   description.journalled = Simulator::SwitchDescription::Journalled::streamed;
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
