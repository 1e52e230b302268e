#include "inspection/Plan.h"

#include "inspection/Play.h"
#include "simulator/StagedDriver.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <tuple>

namespace Inspection {

namespace {

using Simulator::Row;
using Simulator::StagedDriver;
using Words = std::vector< U32 >;

// Who wrote to a place in the event, in order.
struct Writing {
   std::string_view function;
   std::string_view source;
   std::string_view cause;
   Words words;
};

// A copy of an entry, or a control, as the journal's rows name it.
struct Place {
   Row like; // without its words
   U32 copy = 0;
   std::vector< Writing > writings;
};

using Address = std::tuple< U16, U32, U32, U32 >; // chip, selectors, address; a control: no selectors

// The bits of the fields that a writing has set to what the place ends as, and nobody after it has touched.
class Attribution {
 public:
   Attribution( Place const & place, StagedDriver::Change const & change ) : place_( place ), change_( change ) {}

   // For each writing that counts, the words as they would be with its fields alone.
   std::vector< std::pair< Writing const *, Words > > parts() const {
      std::vector< std::pair< Writing const *, Words > > parts;
      for ( auto const & field : place_.like.layout->fields ) {
         if ( isAlike( field, change_.before, change_.after ) ) {
            continue;
         }
         Writing const * const by = lastSetter( field );
         auto part = std::ranges::find( parts, by, &std::pair< Writing const *, Words >::first );
         if ( part == parts.end() ) {
            part = parts.insert( part, { by, change_.before } );
         }
         copy( field, change_.after, part->second );
      }
      return parts;
   }

 private:
   static bool bit( Words const & words, unsigned at ) { return words[at / 32] >> at % 32 & 1; }

   static bool isAlike( Catalogue::Field const & field, Words const & a, Words const & b ) {
      for ( unsigned at = field.offset; at < field.offset + unsigned{ field.width }; ++at ) {
         if ( bit( a, at ) != bit( b, at ) ) {
            return false;
         }
      }
      return true;
   }

   static void copy( Catalogue::Field const & field, Words const & from, Words & to ) {
      for ( unsigned at = field.offset; at < field.offset + unsigned{ field.width }; ++at ) {
         to[at / 32] = ( to[at / 32] & ~( U32{ 1 } << at % 32 ) ) | U32{ bit( from, at ) } << at % 32;
      }
   }

   Writing const * lastSetter( Catalogue::Field const & field ) const {
      Words const * before = &change_.before;
      Writing const * setter = &place_.writings.front();
      for ( Writing const & writing : place_.writings ) {
         if ( !isAlike( field, *before, writing.words ) ) {
            setter = &writing;
         }
         before = &writing.words;
      }
      return setter;
   }

   Place const & place_;
   StagedDriver::Change const & change_;
};

class Planner final : public Simulator::RowReader {
 public:
   Planner( Plan & plan, Scenario const & scenario, StagedDriver & staged )
      : plan_( plan ), scenario_( scenario ), staged_( staged ) {}

   void eventBegins( U32 event, Rex::Value const & ) override {
      plan_.events.push_back(
         { .event = event, .what = event == 0 ? "start" : scenario_.events[event - 1].text(), .changes = {} } );
      places_.clear();
   }

   void row( Row const & row ) override {
      PlannedEvent & event = plan_.events.back();
      event.operations += row.isOperation();
      event.writes += row.kind == Row::Kind::write;
      event.changingWrites += row.isOperation() && row.changed;
      if ( row.kind == Row::Kind::control ) {
         wrote( { row.fap, 0, 0, row.control }, row, 0, {} );
      } else if ( row.kind == Row::Kind::write ) {
         bool const isCore = row.scope == Row::Scope::core;
         auto const copies = static_cast< U32 >( row.layout->selectors.size() );
         for ( U32 copy = isCore ? static_cast< U32 >( row.core ) : 0; copy < copies; ++copy ) {
            auto const at =
               Simulator::addressOf( *row.layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), copy );
            wrote(
               { row.fap, at.selectorA, at.selectorB, at.address }, row, copy, { row.words.begin(), row.words.end() } );
            if ( isCore ) {
               break;
            }
         }
      }
   }

   void eventEnds( U32 ) override {
      for ( StagedDriver::Change const & change : staged_.changes() ) {
         take( change );
      }
      foldCopies( plan_.events.back().changes );
      staged_.commit();
   }

 private:
   std::string_view kept( std::string_view text ) {
      if ( plan_.texts.empty() || plan_.texts.back() != text ) {
         plan_.texts.emplace_back( text );
      }
      return plan_.texts.back();
   }

   void wrote( Address const & at, Row const & row, U32 copy, Words words ) {
      Place & place = places_[at];
      if ( place.writings.empty() ) {
         place.like = row;
         place.like.words = place.like.before = {};
         place.copy = copy;
      }
      place.writings.push_back( { kept( row.function ), kept( row.source ), kept( row.cause ), std::move( words ) } );
   }

   void take( StagedDriver::Change const & change ) {
      if ( change.isControl ) {
         Place const & place = places_.at( { change.chip.value, 0, 0, change.control } );
         Row & row = add( place, place.writings.back() );
         row.value = change.after.front();
         row.valueBefore = change.before.empty() ? std::nullopt : std::optional( change.before.front() );
         return;
      }
      Place const & place =
         places_.at( { change.chip.value, change.at.selectorA, change.at.selectorB, change.at.address } );
      for ( auto const & [writing, words] : Attribution( place, change ).parts() ) {
         Row & row = add( place, *writing );
         row.words = plan_.words.emplace_back( words );
         row.before = plan_.words.emplace_back( change.before );
         row.scope = Row::Scope::core;
         row.core = static_cast< int >( place.copy );
      }
   }

   Row & add( Place const & place, Writing const & by ) {
      Row & row = plan_.events.back().changes.emplace_back( place.like );
      row.function = by.function;
      row.source = by.source;
      row.cause = by.cause;
      row.changed = true;
      return row;
   }

   // Copies that would change alike are one change of all.
   static void foldCopies( std::vector< Row > & rows ) {
      std::vector< Row > folded;
      for ( Row const & row : rows ) {
         auto const isOtherCopy = [&]( Row const & other ) {
            return row.kind == Row::Kind::write && other.kind == Row::Kind::write && other.fap == row.fap &&
                   other.layout == row.layout && other.array == row.array && other.entry == row.entry &&
                   other.core != row.core && other.source == row.source && other.words == row.words &&
                   other.before == row.before;
         };
         // They stand close together, mostly side by side.
         auto const near = folded.size() > 64 ? folded.end() - 64 : folded.begin();
         auto const other = std::find_if( near, folded.end(), isOtherCopy );
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
   Scenario const & scenario_;
   StagedDriver & staged_;
   std::map< Address, Place > places_; // of the event under way
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
   Planner planner( plan, scenario, staged );
   sw.journal().readerAdd( planner );
   for ( auto * const other : options.others ) {
      sw.journal().readerAdd( *other );
   }
   play( played, sw );
   sw.stop();
   return plan;
}

} // namespace Inspection
