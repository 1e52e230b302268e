// The verb `check`: plays a scenario and verifies what the plug-in can verify on the chips afterwards.
#include "inspection/NamesAsTyped.h"
#include "inspection/Play.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/views/Progress.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"
#include "rex/Assert.h"
#include "rex/Operations.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;
using Simulator::Row;
using Simulator::SimulatedSwitch;

// The operations of this type whose names begin so look at a chip and complain by assertion.
constexpr char const * type = "DaceFapNi::L3Sm";
constexpr std::string_view verifying = "verify";

struct Options {
   std::string scenario;
   std::string chips;
   std::string plugin;
   std::vector< std::string > toggles;
   bool json = false;
};

struct Verdict {
   enum class Kind { fine, fault, notServed };

   U16 fap;
   std::string operation;
   Kind kind;
   std::size_t reads = 0;
   std::string table; // of a fault, and where it is
   std::string place;
   std::string what;
};

std::vector< std::string > verifications() {
   std::vector< std::string > names;
   for ( std::string const & name : Rex::Operations::names( type ) ) {
      if ( name.starts_with( verifying ) ) {
         names.push_back( name );
      }
   }
   return names;
}

bool wasInitialised( SimulatedSwitch const & sw, U16 fap ) {
   return std::ranges::any_of( sw.journal().operations(), [&]( Simulator::Row const & row ) {
      return row.fap == fap && row.cause == "chip-init";
   } );
}

// Where the last operation was made, a part of the text on each line.
void tellPlace( std::ostream & out, Simulator::Journal const & journal, std::size_t before ) {
   out << journal.operationCount() - before << '\n';
   if ( journal.operationCount() > before ) {
      auto const row = journal.operations().back();
      if ( row.kind != Simulator::Row::Kind::control ) {
         std::string place = "array " + std::to_string( row.array );
         place += row.entry ? " entry " + std::to_string( *row.entry ) : "";
         out << row.table << '\n' << place << '\n';
      }
   }
   out.flush();
}

Verdict verify( SimulatedSwitch & sw, Hardware::Dace::Cell::FapStatus const & status, std::string const & name ) {
   Verdict verdict{ .fap = status.fapId().value(),
                    .operation = name,
                    .kind = Verdict::Kind::fine,
                    .table = {},
                    .place = {},
                    .what = {} };
   if ( !wasInitialised( sw, verdict.fap ) ) {
      verdict.kind = Verdict::Kind::notServed;
      return verdict;
   }
   Child const child = inChild( [&]( std::ostream & out ) {
      std::size_t const before = sw.journal().operationCount();
      Rex::atFailure( [&] { tellPlace( out, sw.journal(), before ); } );
      ( *Rex::Operations::find( type, name ) )( &status );
      tellPlace( out, sw.journal(), before );
   } );
   std::istringstream told( child.output );
   told >> verdict.reads >> std::ws;
   std::getline( told, verdict.table );
   std::getline( told, verdict.place );
   if ( !child.isFine ) {
      verdict.kind = Verdict::Kind::fault;
      verdict.what = child.errors.substr( 0, child.errors.find_last_not_of( '\n' ) + 1 );
      std::ranges::replace( verdict.what, '\n', ' ' );
   }
   return verdict;
}

void fill( SimulatedSwitch & sw, Scenario const & scenario, std::string const & path, ChipsFile const & chips ) {
   for ( auto const & [fap, contents] : chips ) {
      auto * const chip = sw.driver().chip( DaceSal::ChipId{ fap } );
      auto const place = "/faps/" + std::to_string( fap );
      if ( !chip ) {
         throw InputError( path + ": " + place, "the scenario's switch has no such FAP" );
      }
      if ( auto const chipType = scenario.fap( fap ).revision.chipType(); chipType != contents.chipType ) {
         throw InputError( path + ": " + place + "/chipType",
                           std::string( "in the scenario the FAP is a " ) + Hardware::chipTypeName( chipType ) );
      }
      try {
         apply( contents.contents.tables, *chip, contents.chipType, place + "/tables" );
      } catch ( Simulator::ContentsError const & error ) {
         throw InputError( path, error.what() );
      }
   }
}

char const * kindText( Verdict::Kind kind ) {
   return kind == Verdict::Kind::fine ? "fine" : kind == Verdict::Kind::fault ? "fault" : "not served";
}

void showVerdicts( std::ostream & out, std::vector< Verdict > const & verdicts, Style const & style ) {
   Columns columns;
   for ( Verdict const & it : verdicts ) {
      std::vector< std::string > cells{ "FAP " + std::to_string( it.fap ), it.operation };
      switch ( it.kind ) {
      case Verdict::Kind::fine:
         cells.push_back( style.after( "fine" ) );
         cells.push_back( counted( it.reads, "entry", "entries" ) + " read" );
         break;
      case Verdict::Kind::fault:
         cells.push_back( style.before( "fault" ) );
         cells.push_back( it.table + " " + style.place( it.place ) );
         break;
      case Verdict::Kind::notServed:
         cells.push_back( style.faint( "not served" ) );
         cells.push_back( style.faint( "chip initialisation has done nothing here" ) );
         break;
      }
      columns.row( cells );
   }
   columns.print( out );
   for ( Verdict const & it : verdicts ) {
      if ( it.kind == Verdict::Kind::fault ) {
         out << '\n' << "FAP " << it.fap << ": " << it.what << '\n';
      }
   }
}

Value verdictsValue( std::vector< Verdict > const & verdicts ) {
   Value::List list;
   for ( Verdict const & it : verdicts ) {
      Value::Object one;
      one["fap"] = it.fap;
      one["operation"] = it.operation;
      one["verdict"] = kindText( it.kind );
      one["reads"] = it.reads;
      if ( it.kind == Verdict::Kind::fault ) {
         one["table"] = it.table;
         one["place"] = it.place;
         one["what"] = it.what;
      }
      list.emplace_back( std::move( one ) );
   }
   return list;
}

int answer( Options const & options ) {
   Scenario scenario = options.scenario.empty() ? builtInScenario() : readScenario( options.scenario );
   for ( auto const & toggle : options.toggles ) {
      toggleIs( scenario.description.toggles, toggle );
   }
   ChipsFile const chips = options.chips.empty() ? ChipsFile() : readChips( options.chips );
   loadPlugin( options.plugin );
   SimulatedSwitch sw( scenario.description );
   play( scenario, sw );
   fill( sw, scenario, options.chips, chips );

   std::vector< Verdict > verdicts;
   auto const names = verifications();
   std::size_t const all = names.size() * scenario.description.faps.size();
   Progress progress( "verifying" );
   for ( std::string const & name : names ) {
      for ( auto const & [fapId, status] : sw.cellStatus()->fapStatus() ) {
         progress.stands( verdicts.size(), all );
         verdicts.push_back( verify( sw, *status, name ) );
      }
   }
   if ( options.json ) {
      Value::Object value;
      value["verifications"] = verdictsValue( verdicts );
      std::cout << toJson( value, 2 ) << '\n';
   } else if ( verdicts.empty() ) {
      std::cout << "the plug-in offers no verification\n";
   } else {
      showVerdicts( std::cout, verdicts, Style::of( std::cout ) );
   }
   return std::ranges::any_of( verdicts, []( auto const & it ) { return it.kind == Verdict::Kind::fault; } ) ? 1 : 0;
}

} // namespace

Action defineCheck( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.text( "--chips", options->chips, "verify with these contents on the chips", "FILE" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 fine, 1 a fault was found." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
