// The verb `coverage`: which tables, fields and values on which chips journals, or scenarios, have written and changed.
#include "inspection/OnChip.h"
#include "inspection/Play.h"
#include "inspection/RandomScenario.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/JournalReader.h"
#include "inspection/files/Json.h"
#include "inspection/files/OutputFile.h"
#include "inspection/views/CoverageText.h"
#include "inspection/views/Progress.h"
#include "inspection/views/ReplayText.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int isMissed = 1;
constexpr U8 wholePercent = 100;

struct CoverageOptions {
   std::vector< std::string > files;
   std::optional< U32 > random;
   std::optional< U32 > seed;
   std::optional< U8 > least;
   std::string plugin;
   std::string page;
   bool everyChip = false;
   bool all = false;
   bool json = false;
};

void play( Coverage & coverage, Scenario const & scenario, CoverageOptions const & options ) {
   if ( !options.everyChip ) {
      cover( coverage, scenario, options.plugin );
      return;
   }
   for ( auto const chipType : Hardware::allChipTypes ) {
      cover( coverage, onChip( scenario, chipType ), options.plugin );
   }
}

// What is odd about the journal is added to the remarks.
void read( Coverage & coverage, std::string const & path, std::vector< std::string > & remarks ) {
   JournalReader journal( path );
   coverage.beginsWith( journal.chipTypes() );
   journal.read( coverage, { .readsToo = false } );
   remarks.insert( remarks.end(), journal.remarks().begin(), journal.remarks().end() );
}

int answer( CoverageOptions const & options ) {
   if ( options.files.empty() && !options.random ) {
      throw InputError( "name a journal or a scenario, or give --random" );
   }
   if ( options.seed && !options.random ) {
      throw InputError( "--seed is for --random" );
   }
   if ( options.least > wholePercent ) {
      throw InputError( "--min " + std::to_string( *options.least ), "expected a percentage, up to 100" );
   }
   OutputFile const page( options.page );
   eachAlone( { options.page }, options.files );
   Coverage coverage;
   std::vector< std::string > remarks;
   Progress progress( "covering" );
   std::size_t const all = options.files.size() + options.random.value_or( 0 );
   std::size_t done = 0;
   // What is wrong with a file is told before anything is played, which is what takes long.
   std::vector< Scenario > scenarios;
   for ( std::string const & file : options.files ) {
      if ( kindOfFile( file ) == FileKind::scenario ) {
         scenarios.push_back( scenarioToPlay( file, {}, options.plugin ) );
      } else {
         read( coverage, file, remarks );
         progress.stands( ++done, all );
      }
   }
   for ( Scenario const & scenario : scenarios ) {
      play( coverage, scenario, options );
      progress.stands( ++done, all );
   }
   for ( U32 number = 0; number < options.random.value_or( 0 ); ++number ) {
      play( coverage, randomScenario( chanceOf( U64{ options.seed.value_or( 1 ) } + number ) ), options );
      progress.stands( ++done, all );
   }
   if ( page.isWanted() ) {
      page.write( coveragePage( coverage ) );
   }
   if ( options.json ) {
      Rex::Value value = coverageValue( coverage );
      if ( !remarks.empty() ) {
         ( *value.object() )["remarks"] = Rex::Value::List( remarks.begin(), remarks.end() );
      }
      std::cout << toJson( value, 3 ) << '\n';
   } else {
      showRemarks( std::cout, remarks, Style::of( std::cout ) );
      showCoverage( std::cout, coverage, options.all, Style::of( std::cout ) );
   }
   return options.least && coverage.pairs().percent() < *options.least ? isMissed : 0;
}

} // namespace

Action defineCoverage( VerbOptions & verb ) {
   auto const options = std::make_shared< CoverageOptions >();
   verb.texts( "JOURNAL", options->files, "journals, and scenarios, which are played" );
   verb.flag( "--every-chip", options->everyChip, "play each scenario on every kind of chip" );
   verb.number( "--random", options->random, "play as many random scenarios, too" );
   verb.number( "--seed", options->seed, "chance begins here; without it, at 1" );
   verb.number( "--min", options->least, "exit with 1 where less is covered: percent of what the plug-in can write" );
   verb.text( "--page", options->page, "write a page, too", "FILE.html" );
   verb.flag( "--all", options->all, "every table" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0; with --min 1 where less is covered." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
