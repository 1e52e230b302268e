// The verb `compare`: one scenario on every kind of chip, and with each toggle flipped alone: where the programming
// differs.
#include "inspection/NamesAsTyped.h"
#include "inspection/ProgrammedValues.h"
#include "inspection/views/Progress.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <set>

namespace Cli {

using namespace Inspection;

namespace {

using Hardware::ChipType;
using Rex::Value;

constexpr std::size_t chipCount = Hardware::allChipTypes.size();
constexpr std::size_t fewRows = 12;

struct Options {
   std::string scenario;
   std::string plugin;
   std::vector< std::string > tables;
   std::vector< std::string > settings;
   bool toggles = false;
   bool all = false;
   bool json = false;
};

using ByChip = std::array< Programming, chipCount >;
// The values of one place by chip; nothing where the chip lacks the place or keeps what it booted with.
using Row = std::array< std::optional< std::string >, chipCount >;
using Matrix = std::map< ProgrammedPlace, Row >;

U16 coresOf( ChipType chipType ) {
   return Simulator::FapDescription{ .revision = { 0, chipType, 0 } }.coreCount();
}

// The same switch with another kind of chip. The cores follow it, and the major revision: that of a chip with two
// elements of the second context-selection array says so.
Scenario onChip( Scenario const & scenario, ChipType chipType ) {
   Scenario other = scenario;
   bool const hasTwo = chipType == ChipType::BCM88850_A0 || chipType == ChipType::BCM88859_A2;
   for ( auto & fap : other.description.faps ) {
      auto const & revision = fap.revision;
      bool const saysTwo = revision.fapRevMajor() == 8 || revision.fapRevMajor() == 9;
      if ( fap.cores ) {
         bool const hasAll = *fap.cores >= coresOf( revision.chipType() );
         fap.cores = hasAll ? coresOf( chipType ) : std::min( *fap.cores, coresOf( chipType ) );
      }
      U32 const major = saysTwo == hasTwo ? revision.fapRevMajor() : hasTwo ? 8 : 5;
      fap.revision = Hardware::Dace::FapRevision( major, chipType, revision.sdkVersion() );
   }
   return other;
}

// How many runs there are isn't known before the first ones have told which toggles they read.
class Runs {
 public:
   Runs( Scenario const & scenario, std::string const & plugin ) : scenario_( scenario ), plugin_( plugin ) {}

   ByChip play( Toggle::Settings const & toggles, Progress & progress, std::size_t & done, std::size_t all ) const {
      ByChip runs;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         Scenario scenario = onChip( scenario_, Hardware::allChipTypes[chip] );
         scenario.description.toggles = toggles;
         try {
            runs[chip] = programmingOf( scenario, plugin_ );
         } catch ( InputError const & error ) {
            if ( std::string_view( error.what() ).starts_with( "--plugin" ) ) {
               throw;
            }
            runs[chip].failure = error.what(); // the scenario's own contents may not fit on another chip
         }
         progress.stands( ++done, all );
      }
      return runs;
   }

 private:
   Scenario const & scenario_;
   std::string const & plugin_;
};

bool isWanted( Options const & options, std::string const & table ) {
   return options.tables.empty() || std::ranges::find( options.tables, table ) != options.tables.end();
}

Matrix matrixOf( ByChip const & runs, Options const & options ) {
   Matrix matrix;
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      for ( auto const & [place, value] : runs[chip].values ) {
         if ( isWanted( options, place.table ) ) {
            matrix[place][chip] = value;
         }
      }
   }
   return matrix;
}

// The chips on which the run came to its end.
std::vector< std::size_t > played( ByChip const & runs ) {
   std::vector< std::size_t > chips;
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      if ( runs[chip].failure.empty() ) {
         chips.push_back( chip );
      }
   }
   return chips;
}

bool isAlike( Row const & row, std::vector< std::size_t > const & chips ) {
   return std::ranges::all_of( chips, [&]( std::size_t chip ) { return row[chip] == row[chips.front()]; } );
}

std::string chipShort( std::size_t chip ) {
   return std::string( Hardware::chipTypeName( Hardware::allChipTypes[chip] ) ).substr( 3 ); // without "BCM"
}

// "0x5", or "0x4 of 0xf4".
std::string valueText( std::optional< std::string > const & value ) {
   if ( !value ) {
      return "·";
   }
   auto const slash = value->find( '/' );
   if ( slash != std::string::npos ) {
      return readable( value->substr( 0, slash ) ) + " of " + readable( value->substr( slash + 1 ) );
   }
   return value->starts_with( "0x" ) ? readable( *value ) : *value;
}

std::vector< std::string > heading( Style const & style, std::vector< std::string > cells ) {
   for ( auto & cell : cells ) {
      cell = style.strong( cell );
   }
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      cells.push_back( style.strong( chipShort( chip ) ) );
   }
   return cells;
}

// Chips that are programmed alike get the same letter.
std::array< char, chipCount > letters( std::vector< Row const * > const & rows,
                                       std::vector< std::size_t > const & chips ) {
   std::array< char, chipCount > all{};
   char next = 'a';
   for ( std::size_t const chip : chips ) {
      for ( std::size_t const other : chips ) {
         if ( !all[other] || all[chip] ) {
            continue;
         }
         if ( std::ranges::all_of( rows, [&]( Row const * row ) { return ( *row )[chip] == ( *row )[other]; } ) ) {
            all[chip] = all[other];
         }
      }
      if ( !all[chip] ) {
         all[chip] = next++;
      }
   }
   return all;
}

void showMatrix(
   std::ostream & out, Matrix const & matrix, ByChip const & runs, Options const & options, Style const & style ) {
   auto const chips = played( runs );
   std::map< std::string, std::vector< Row const * > > byTable;
   for ( auto const & [place, row] : matrix ) {
      byTable[place.table].push_back( &row );
   }
   Columns summary;
   summary.row( heading( style, { "table" } ) );
   std::set< std::string > differing;
   for ( auto const & [table, rows] : byTable ) {
      bool const alike = std::ranges::all_of( rows, [&]( Row const * row ) { return isAlike( *row, chips ); } );
      auto const of = letters( rows, chips );
      std::vector< std::string > cells{ alike ? table : style.differs( table ) };
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         auto const count =
            std::ranges::count_if( rows, [&]( Row const * row ) { return ( *row )[chip].has_value(); } );
         cells.push_back( std::to_string( count ) +
                          ( alike ? "  " : " " + style.differs( std::string( 1, of[chip] ) ) ) );
      }
      summary.row( cells );
      if ( !alike ) {
         differing.insert( table );
      }
   }
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      summary.rightAlign( chip + 1 );
   }
   out << "Values set, by table; chips with the same letter are programmed alike\n\n";
   summary.print( out );
   out << '\n'
       << counted( differing.size(), "table differs", "tables differ" ) << " between chips, "
       << byTable.size() - differing.size() << " alike on all\n";

   for ( std::string const & table : differing ) {
      out << '\n' << style.strong( table ) << '\n';
      Columns columns;
      columns.row( heading( style, { "FAP", "", "" } ) );
      std::size_t rows = 0;
      for ( auto const & [place, row] : matrix ) {
         if ( place.table != table || isAlike( row, chips ) ) {
            continue;
         }
         if ( ++rows > fewRows && !options.all ) {
            continue;
         }
         std::vector< std::string > cells{ std::to_string( place.fap ), style.place( place.place ), place.field };
         for ( auto const & value : row ) {
            cells.push_back( value ? valueText( value ) : style.faint( "·" ) );
         }
         columns.row( cells );
      }
      columns.print( out, 2 );
      if ( rows > fewRows && !options.all ) {
         out << "  and " << rows - fewRows << " more rows; --all shows them\n";
      }
   }
}

void showFailures( std::ostream & out, ByChip const & runs, Style const & style ) {
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      if ( !runs[chip].failure.empty() ) {
         out << style.before( Hardware::chipTypeName( Hardware::allChipTypes[chip] ) )
             << " didn't come to its end: " << runs[chip].failure.substr( 0, runs[chip].failure.find( '\n' ) ) << '\n';
      }
   }
}

// What a toggle that was flipped alone changes: by place, on each chip the value before and after.
struct Flip {
   std::string file;
   std::string name;
   bool was;
   ByChip runs;
};

using Change = std::pair< std::optional< std::string >, std::optional< std::string > >;

std::map< ProgrammedPlace, Change >
changesOf( Programming const & before, Programming const & after, Options const & options ) {
   std::map< ProgrammedPlace, Change > changes;
   for ( auto const & [place, value] : before.values ) {
      changes[place].first = value;
   }
   for ( auto const & [place, value] : after.values ) {
      changes[place].second = value;
   }
   std::erase_if( changes, [&]( auto const & it ) {
      return it.second.first == it.second.second || !isWanted( options, it.first.table );
   } );
   return changes;
}

char const * stateText( bool on ) {
   return on ? "on" : "off";
}

void showFlips( std::ostream & out,
                ByChip const & base,
                std::vector< Flip > const & flips,
                Options const & options,
                Style const & style ) {
   out << "\nValues that each toggle changes when it is flipped alone\n\n";
   Columns summary;
   summary.row( heading( style, { "toggle", "" } ) );
   for ( Flip const & flip : flips ) {
      std::vector< std::string > cells{ flip.file + ":" + flip.name,
                                        std::string( stateText( flip.was ) ) + " → " + stateText( !flip.was ) };
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         bool const failed = !flip.runs[chip].failure.empty() || !base[chip].failure.empty();
         auto const count = changesOf( base[chip], flip.runs[chip], options ).size();
         cells.push_back( failed       ? style.before( "failed" )
                          : count == 0 ? style.faint( "·" )
                                       : std::to_string( count ) );
      }
      summary.row( cells );
   }
   for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
      summary.rightAlign( chip + 2 );
   }
   summary.print( out );

   for ( Flip const & flip : flips ) {
      std::map< std::string, std::string > failures; // last words, and the chips that said them
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         std::string const & failure = flip.runs[chip].failure;
         if ( !failure.empty() ) {
            failures[failure.substr( 0, failure.find( '\n' ) )] += " " + chipShort( chip );
         }
      }
      for ( auto const & [failure, chips] : failures ) {
         out << '\n'
             << style.strong( flip.file + ":" + flip.name ) << " " << stateText( flip.was ) << " → "
             << stateText( !flip.was ) << style.faint( "  on" + chips ) << '\n'
             << "  " << style.before( "didn't come to its end" ) << ": " << failure << '\n';
      }
      // Chips on which the toggle changes the same are told together.
      std::vector< std::pair< std::map< ProgrammedPlace, Change >, std::string > > groups;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         if ( !flip.runs[chip].failure.empty() || !base[chip].failure.empty() ) {
            continue;
         }
         auto changes = changesOf( base[chip], flip.runs[chip], options );
         auto found = std::ranges::find_if( groups, [&]( auto const & group ) { return group.first == changes; } );
         if ( found == groups.end() ) {
            groups.emplace_back( std::move( changes ), chipShort( chip ) );
         } else {
            found->second += " " + chipShort( chip );
         }
      }
      for ( auto const & [changes, chips] : groups ) {
         if ( changes.empty() ) {
            continue;
         }
         out << '\n'
             << style.strong( flip.file + ":" + flip.name ) << " " << stateText( flip.was ) << " → "
             << stateText( !flip.was ) << style.faint( "  on " + chips ) << '\n';
         Columns columns;
         std::size_t rows = 0;
         for ( auto const & [place, change] : changes ) {
            if ( ++rows > fewRows && !options.all ) {
               continue;
            }
            columns.row( { "FAP " + std::to_string( place.fap ),
                           place.table,
                           style.place( place.place ),
                           place.field,
                           style.before( valueText( change.first ) ) + style.faint( " → " ) +
                              style.after( valueText( change.second ) ) } );
         }
         columns.print( out, 2 );
         if ( rows > fewRows && !options.all ) {
            out << "  and " << rows - fewRows << " more; --all shows them\n";
         }
      }
   }
}

Value placeValue( ProgrammedPlace const & place ) {
   Value::Object value;
   value["fap"] = place.fap;
   value["table"] = place.table;
   value["place"] = place.place;
   value["field"] = place.field;
   return value;
}

Value orNull( std::optional< std::string > const & value ) {
   return value ? Value( *value ) : Value();
}

Value matrixValue( Matrix const & matrix, std::vector< std::size_t > const & chips ) {
   Value::List list;
   for ( auto const & [place, row] : matrix ) {
      Value one = placeValue( place );
      Value::Object values;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         values[Hardware::chipTypeName( Hardware::allChipTypes[chip] )] = orNull( row[chip] );
      }
      one.object()->emplace( "values", values );
      one.object()->emplace( "alike", isAlike( row, chips ) );
      list.push_back( std::move( one ) );
   }
   return list;
}

Value flipsValue( ByChip const & base, std::vector< Flip > const & flips, Options const & options ) {
   Value::List list;
   for ( Flip const & flip : flips ) {
      Value::Object chips;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         Value::List changes;
         for ( auto const & [place, change] : changesOf( base[chip], flip.runs[chip], options ) ) {
            Value one = placeValue( place );
            one.object()->emplace( "before", orNull( change.first ) );
            one.object()->emplace( "after", orNull( change.second ) );
            changes.push_back( std::move( one ) );
         }
         Value::Object of;
         of["failure"] = flip.runs[chip].failure.empty() ? Value() : Value( flip.runs[chip].failure );
         of["changes"] = changes;
         chips[Hardware::chipTypeName( Hardware::allChipTypes[chip] )] = of;
      }
      Value::Object one;
      one["file"] = flip.file;
      one["name"] = flip.name;
      one["from"] = flip.was;
      one["chips"] = chips;
      list.emplace_back( std::move( one ) );
   }
   return list;
}

int answer( Options const & options ) {
   for ( std::string const & table : options.tables ) {
      if ( table != "controls" ) {
         tableNamed( table );
      }
   }
   Scenario scenario = options.scenario.empty() ? builtInScenario() : readScenario( options.scenario );
   for ( auto const & toggle : options.settings ) {
      toggleIs( scenario.description.toggles, toggle );
   }
   Toggle::Settings const toggles = scenario.description.toggles;
   Runs const runs( scenario, options.plugin );
   Progress progress( "playing" );
   std::size_t done = 0;
   ByChip const base = runs.play( toggles, progress, done, chipCount );

   std::vector< Flip > flips;
   if ( options.toggles ) {
      std::map< std::pair< std::string, std::string >, bool > known;
      for ( Programming const & run : base ) {
         for ( auto const & reading : run.toggles ) {
            known[{ reading.file, reading.name }] = reading.state;
         }
      }
      for ( auto const & [toggle, state] : known ) {
         Toggle::Settings flipped = toggles;
         flipped[toggle.first][toggle.second] = !state;
         flips.push_back( { toggle.first,
                            toggle.second,
                            state,
                            runs.play( flipped, progress, done, chipCount * ( known.size() + 1 ) ) } );
      }
   }

   Matrix const matrix = matrixOf( base, options );
   if ( options.json ) {
      Value::Object value;
      value["places"] = matrixValue( matrix, played( base ) );
      Value::Object failures;
      for ( std::size_t chip = 0; chip < chipCount; ++chip ) {
         if ( !base[chip].failure.empty() ) {
            failures[Hardware::chipTypeName( Hardware::allChipTypes[chip] )] = base[chip].failure;
         }
      }
      value["failures"] = failures;
      if ( options.toggles ) {
         value["toggles"] = flipsValue( base, flips, options );
      }
      std::cout << toJson( value, 2 ) << '\n';
      return 0;
   }
   Style const style = Style::of( std::cout );
   std::cout << style.title( scenario.name ) << "\n\n";
   showFailures( std::cout, base, style );
   showMatrix( std::cout, matrix, base, options, style );
   if ( options.toggles ) {
      showFlips( std::cout, base, flips, options, style );
   }
   return 0;
}

} // namespace

Action defineCompare( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.flag( "--toggles", options->toggles, "play it with each toggle flipped alone, too" );
   verb.texts( "--table", options->tables, "only these tables; `controls` for the driver's controls" );
   verb.flag( "--all", options->all, "every row of tables that differ" );
   verb.repeated(
      "--toggle", options->settings, "set a toggle for all runs; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
