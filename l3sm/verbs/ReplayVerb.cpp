// The verb `replay`: applies the writes of a journal to a fresh switch, and compares.
#include "inspection/ChipDifferences.h"
#include "inspection/KeptRows.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/files/OutputFile.h"
#include "inspection/files/Scenario.h"
#include "inspection/views/Progress.h"
#include "l3sm/verbs/Verbs.h"
#include "simulator/BootImage.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;
using Simulator::Row;
using Simulator::Words;

struct Options {
   std::string journal;
   std::string chips;
   std::string scenario;
   std::string out;
   bool json = false;
};

// A read of the journal that the switch answers differently.
struct OtherRead {
   Simulator::Row const * row;
   Words here;
};

class Replayer {
 public:
   void chipIs( U16 fap, Hardware::ChipType chipType ) {
      auto const [known, isNew] = chipTypes_.emplace( fap, chipType );
      if ( isNew ) {
         Simulator::boot( driver.chipIs( DaceSal::ChipId{ fap },
                                         Hardware::chipTypeName( chipType ),
                                         Simulator::addressMap( chipType ) ),
                          chipType );
      } else if ( known->second != chipType ) {
         throw InputError( "FAP " + std::to_string( fap ) + " is a " + Hardware::chipTypeName( known->second ) +
                           " in one file and a " + Hardware::chipTypeName( chipType ) + " in another" );
      }
   }

   bool hasChip( U16 fap ) const { return chipTypes_.contains( fap ); }

   void apply( KeptRows const & journal ) {
      Progress progress( "replaying" );
      for ( Simulator::Row const & row : journal.all() ) {
         progress.stands( row.seq, journal.all().size() );
         if ( !row.isOperation() ) {
            continue;
         }
         auto & chip = *driver.chip( DaceSal::ChipId{ row.fap } );
         if ( row.kind == Simulator::Row::Kind::control ) {
            chip.controlIs( row.control, row.value );
            ++controls;
            continue;
         }
         auto const & layout = *Catalogue::layout(
            *Catalogue::table( row.table ), static_cast< U8 >( chipTypes_.at( row.fap ) ), row.variant );
         auto const at = [&]( U32 copy ) {
            return Simulator::addressOf( layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ), copy );
         };
         auto const place = std::tuple( row.fap, row.table, row.variant, row.array, row.entry );
         if ( row.kind == Simulator::Row::Kind::read ) {
            ++reads;
            auto const words = chip.entry( at( 0 ) ).words();
            bool const isOther = !std::ranges::equal( words, row.words );
            if ( isOther && !written.contains( place ) ) {
               // Nothing has been written there: the run began with it.
               begunWith.push_back( { &row, Words( words.begin(), words.end() ) } );
               chip.fill( at( 0 ), row.words );
            } else if ( isOther ) {
               otherReads.push_back( { &row, Words( words.begin(), words.end() ) } );
            }
            continue;
         }
         written.insert( place );
         ++writes;
         bool const isCore = row.scope == Simulator::Row::Scope::core;
         U32 const first = isCore ? static_cast< U32 >( row.core ) : 0;
         U32 const last = isCore ? first : static_cast< U32 >( layout.selectors.size() ) - 1;
         for ( U32 copy = first; copy <= last; ++copy ) {
            chip.write( at( copy ), row.words );
         }
      }
   }

   ChipsFile contents() const {
      ChipsFile chips;
      for ( auto const & [fap, chipType] : chipTypes_ ) {
         chips[fap] = { chipType, contentsOf( *driver.chip( DaceSal::ChipId{ fap } ), chipType ) };
      }
      return chips;
   }

   Simulator::ChipDriver driver;
   std::size_t reads = 0;
   std::size_t writes = 0;
   std::size_t controls = 0;
   std::vector< OtherRead > begunWith;  // what stood there before the run, other than in the boot image
   std::vector< OtherRead > otherReads; // what the journal's own writes don't explain

 private:
   std::set< std::tuple< U16, std::string_view, U8, int, std::optional< U32 > > > written;
   std::map< U16, Hardware::ChipType > chipTypes_;
};

// What kind of chip each FAP is: the scenario, the file to compare with and the journal may say.
void makeChips( Replayer & replayer, KeptRows const & journal, Scenario const * scenario, ChipsFile const & chips ) {
   if ( scenario ) {
      for ( auto const & fap : scenario->description.faps ) {
         replayer.chipIs( fap.fapId.value(), fap.revision.chipType() );
      }
   }
   for ( auto const & [fap, contents] : chips ) {
      replayer.chipIs( fap, contents.chipType );
   }
   for ( std::size_t index = 0; index < journal.all().size(); ++index ) {
      Simulator::Row const & row = journal.all()[index];
      if ( row.layout ) {
         replayer.chipIs( row.fap, Hardware::ChipType{ row.layout->chipType } );
      } else if ( row.isOperation() && !replayer.hasChip( row.fap ) ) {
         throw InputError( "nothing says what kind of chip FAP " + std::to_string( row.fap ) +
                           " is; give --chips or --scenario" );
      }
   }
   if ( scenario ) {
      scenario->fillChips( replayer.driver );
   }
}

void showReads( std::ostream & out, std::vector< OtherRead > const & all, char const * said, Style const & style ) {
   if ( all.empty() ) {
      return;
   }
   constexpr std::size_t shown = 5;
   out << '\n' << counted( all.size(), "read", "reads" ) << ' ' << said << '\n';
   Columns columns;
   for ( std::size_t index = 0; index < std::min( shown, all.size() ); ++index ) {
      auto const & [row, here] = all[index];
      auto const & layout = *row->layout;
      std::string const head = row->table.data();
      std::string const place = placeText(
         *Catalogue::table( row->table ), layout, static_cast< U32 >( row->array ), row->entry.value_or( 0 ) );
      auto const journalled = Simulator::decode( layout, row->words );
      auto const replayed = Simulator::decode( layout, here );
      for ( std::size_t field = 0; field < journalled.size(); ++field ) {
         if ( !( journalled[field] == replayed[field] ) ) {
            columns.row( { style.faint( "#" + std::to_string( row->seq ) ),
                           "FAP " + std::to_string( row->fap ),
                           head,
                           style.place( place ),
                           journalled[field].name,
                           style.after( readable( journalled[field].value ) ) + style.faint( ", not " ) +
                              style.before( readable( replayed[field].value ) ) } );
         }
      }
   }
   columns.print( out, 2 );
   if ( all.size() > shown ) {
      out << "  and " << all.size() - shown << " more\n";
   }
}

int answer( Options const & options ) {
   OutputFile const out( options.out );
   auto const journal = rowsOf( options.journal );
   std::optional< Scenario > const scenario =
      options.scenario.empty() ? std::nullopt : std::optional( readScenario( options.scenario ) );
   ChipsFile const chips = options.chips.empty() ? ChipsFile() : readChips( options.chips );
   Replayer replayer;
   makeChips( replayer, journal, scenario ? &*scenario : nullptr, chips );
   replayer.apply( journal );

   ChipsFile const contents = replayer.contents();
   bool const isCompared = !options.chips.empty();
   auto const differences = isCompared ? differencesOf( chips, contents ) : std::vector< Difference >();
   if ( out.isWanted() ) {
      std::ostringstream text;
      writeChips( text, contents );
      out.write( text.str() );
   }
   if ( options.json ) {
      auto const numbers = []( std::vector< OtherRead > const & all ) {
         Value::List list;
         for ( auto const & other : all ) {
            list.emplace_back( other.row->seq );
         }
         return list;
      };
      Value::Object value;
      value["writes"] = replayer.writes;
      value["controls"] = replayer.controls;
      value["reads"] = replayer.reads;
      value["begunWith"] = numbers( replayer.begunWith );
      value["otherReads"] = numbers( replayer.otherReads );
      value["differences"] = isCompared ? Value( differencesValue( differences ) ) : Value();
      std::cout << toJson( value, 2 ) << '\n';
   } else {
      Style const style = Style::of( std::cout );
      std::cout << counted( replayer.writes, "write", "writes" ) << " and "
                << counted( replayer.controls, "control", "controls" ) << " applied, "
                << counted( replayer.reads, "read", "reads" ) << " compared, on "
                << counted( contents.size(), "fresh chip", "fresh chips" ) << '\n';
      showReads( std::cout, replayer.begunWith, "told that the run began with other contents", style );
      showReads( std::cout, replayer.otherReads, "gave something that nothing in the journal explains", style );
      if ( isCompared ) {
         std::cout << '\n';
         showDifferences( std::cout, differences, options.chips, "the replay", style );
      }
   }
   return differences.empty() && replayer.otherReads.empty() ? 0 : 1;
}

} // namespace

Action defineReplay( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.required( "JOURNAL", options->journal, "a file that `l3sm run --journal` wrote" );
   verb.text( "--chips", options->chips, "compare with this file of `l3sm run --chips`", "FILE" );
   verb.text( "--scenario", options->scenario, "begin with the chip contents of this scenario", "FILE" );
   verb.text( "--out", options->out, "write the contents of the chips", "FILE" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer(
      "A place that is read before it is written began with what was read. Exit status: 0 alike, 1 a later read or the "
      "contents differ." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
