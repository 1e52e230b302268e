#include "assert/Assert.h"
#include "inspection/FailureReport.h"
#include "inspection/Interruption.h"
#include "inspection/LastSteps.h"
#include "inspection/Play.h"
#include "inspection/RunSummaryValue.h"
#include "inspection/Version.h"
#include "inspection/files/ChipsWriter.h"
#include "inspection/files/JournalWriter.h"
#include "inspection/files/OutputFile.h"
#include "inspection/files/SavedScenario.h"
#include "inspection/report/Report.h"
#include "inspection/views/InterfacesText.h"
#include "inspection/views/Pager.h"
#include "inspection/views/RunSummaryText.h"
#include "l3sm/RunEvents.h"
#include "l3sm/RunLog.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/Tracing.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

struct RunOptions {
   std::string scenario;
   std::string chips;
   std::string journal;
   std::string state;
   std::string save;
   std::string report;
   std::string events;
   std::optional< U16 > fap;
   std::string trace;
   std::string traceOut;
   std::string ring;
   std::vector< std::string > toggles;
   std::string plugin;
   bool unchanged = false;
   bool interfaces = false;
   bool quiet = false;
   bool json = false;
};

// What is to be done where the process fails, as long as it lives.
class AtFailure {
 public:
   explicit AtFailure( std::function< void() > what ) : hook_( Rex::atFailure( std::move( what ) ) ) {}
   AtFailure( AtFailure const & ) = delete;
   AtFailure & operator=( AtFailure const & ) = delete;
   ~AtFailure() { Rex::failureHookDel( hook_ ); }

 private:
   int hook_;
};

// A run with what was asked for of it.
class Run {
 public:
   Run( RunOptions const & options, Scenario scenario )
      : options_( options ), scenario_( std::move( scenario ) ), chips_( options.chips ), state_( options.state ),
        save_( options.save ), journal_( options.journal ), report_( options.report ), ring_( options.ring ),
        summary_( wantedOf( options.events, options.fap, options.json, scenario_ ) ) {
      bool const isFollowed = !options.quiet || journal_.isWanted() || report_.isWanted();
      using enum Simulator::SwitchDescription::Journalled;
      scenario_.description.journalled = isFollowed ? streamed : none;
      isFollowed_ = isFollowed;
   }

   int play( Tracing & tracing ) {
      // The hooks run from the last to the first: the journal's, which a switch has, before these.
      AtFailure const lastWords( [this] { tellFailure(); } );
      AtFailure const files( [this] { failed(); } );
      Interruption const interruption;
      sw_.emplace( scenario_.description );
      auto & journal = sw_->journal();
      std::optional< JournalWriter > writer;
      if ( journal_.isWanted() ) {
         std::string const plugin = options_.plugin.empty() ? pluginBeside() : options_.plugin;
         writer.emplace( journal_.path(),
                         JournalWriter::Begin{ valueOf( scenario_, Parts::withoutEvents ),
                                               libraryId( plugin ).value_or( std::string() ) } );
         journal.readerAdd( *writer );
      }
      std::optional< ReportFile > page;
      if ( report_.isWanted() ) {
         journal.readerAdd( page.emplace( report_, valueOf( scenario_, Parts::withoutEvents ) ) );
      }
      summary_.whenOver( [this]( EventRows const & rows ) { eventIsOver( rows ); } );
      journal.readerAdd( summary_ );

      Onlooker onlooker{ .stops = [&] { return interruption.signal() != 0; } };
      if ( !options_.quiet ) {
         onlooker.before = [this]( Event const & event ) { summary_.nextReaches( reachOf( sw_->state(), event ) ); };
      }
      bool const isComplete = Inspection::play( scenario_, *sw_, onlooker );
      using enum Simulator::Ending::Kind;
      journal.ends( isComplete ? complete : interrupted );
      tracing.flush();
      log_.end();
      writeFiles();
      tell();
      return interruption.status( 0 );
   }

 private:
   void writeFiles() {
      chips_.stream( [this]( std::ostream & out ) { writeChipsOf( *sw_, out ); } );
      if ( state_.isWanted() ) {
         state_.write( toJson( sw_->state().value(), 2 ) + "\n" );
      }
      if ( save_.isWanted() ) {
         std::ostringstream text;
         writeScenario( text, savedScenario( scenario_, *sw_ ) );
         save_.write( text.str() );
      }
      if ( ring_.isWanted() ) {
         std::string text;
         for ( auto const & step : lastSteps() ) {
            text += step + "\n";
         }
         ring_.write( text );
      }
   }

   bool isEvents() const { return !options_.events.empty(); }

   void eventIsOver( EventRows const & rows ) {
      if ( options_.quiet || options_.events != "all" ) {
         return;
      }
      if ( options_.json ) {
         events_.push_back( eventValue( rows ) );
      } else {
         Lines lines( std::cout, Lines::Long::whole );
         writeEvent( lines, rows, { .isFull = true, .unchanged = options_.unchanged } );
      }
   }

   void tell() {
      if ( options_.quiet ) {
         return;
      }
      if ( options_.json ) {
         auto value = runSummaryValue( scenario_, summary_, interfacesOf( *sw_ ) );
         if ( options_.events == "all" ) {
            ( *value.object() )["events"] = std::move( events_ );
         }
         std::cout << toJson( value, 3 ) << '\n';
         return;
      }
      Lines lines( std::cout, isEvents() ? Lines::Long::whole : Lines::Long::shortened );
      if ( !isEvents() ) {
         writeRunSummary( lines,
                          scenario_,
                          summary_,
                          interfacesOf( *sw_ ),
                          { .eachInterface = options_.interfaces, .unchanged = options_.unchanged } );
         return;
      }
      for ( auto const * rows : summary_.shown() ) {
         writeEvent( lines, *rows, { .isFull = true, .unchanged = options_.unchanged } );
      }
      if ( options_.interfaces ) {
         writeEachInterface( lines, interfacesOf( *sw_ ) );
      }
      writeEnding( lines, summary_, scenario_.events.size() );
   }

   // What there is, once the journal is complete.
   void failed() {
      Pager::letThrough();
      if ( !sw_ ) {
         return;
      }
      try {
         writeFiles();
         tell();
      } catch ( std::exception const & error ) {
         std::cerr << "l3sm: " << error.what() << '\n';
      }
      std::cout.flush();
   }

   void tellFailure() {
      if ( !sw_ ) {
         return;
      }
      auto lines = lastStepsBeforeFailure();
      std::ranges::copy( failureReportOf( scenario_, *sw_, summary_, isFollowed_ ).lines(),
                         std::back_inserter( lines ) );
      for ( auto const & line : lines ) {
         std::cerr << printable( line ) << '\n';
      }
      std::cerr.flush();
   }

   RunOptions const & options_;
   Scenario scenario_;
   OutputFile const chips_;
   OutputFile const state_;
   OutputFile const save_;
   OutputFile const journal_;
   OutputFile const report_;
   OutputFile const ring_;
   bool isFollowed_ = true; // operations are
   RunSummary summary_;
   RunLog log_{ [this] { return sw_ ? sw_->journal().event() : 0; } };
   Rex::Value::List events_;
   std::optional< Simulator::SimulatedSwitch > sw_; // goes first: it hands over to what stands above
};

int run( RunOptions const & options ) {
   if ( options.quiet && options.json ) {
      throw InputError( "--quiet prints nothing and --json does; give one of them" );
   }
   Scenario scenario = scenarioToPlay( options.scenario, options.toggles, options.plugin );
   std::vector const written{
      options.chips, options.state, options.save, options.journal, options.report, options.traceOut, options.ring };
   eachAlone( written, { options.scenario } );
   if ( !options.quiet && std::ranges::find( written, "-" ) != written.end() ) {
      throw InputError( "standard output", "would take the summary, too; give --quiet" );
   }
   Tracing tracing( options.trace, options.traceOut ); // outlives the switch, whose end is traced, too
   Run it( options, std::move( scenario ) );
   tracing.start();
   return it.play( tracing );
}

} // namespace

Action defineRun( VerbOptions & verb ) {
   auto const options = std::make_shared< RunOptions >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.text(
      "--event", options->events, "what happened in these events, in full; 0 is the start", "N[,...]|all|last" );
   verb.number( "--fap", options->fap, "what happened to this FAP only" );
   verb.flag( "--unchanged", options->unchanged, "fields that a write left as they were, too" );
   verb.flag( "--interfaces", options->interfaces, "every interface, with its MTU and addresses" );
   verb.text( "--chips", options->chips, "write the contents of the chips at the end", "FILE" );
   verb.text( "--journal",
              options->journal,
              "write everything that happened, one JSON object a line; compressed where the name ends in .zst",
              "FILE" );
   verb.text( "--state", options->state, "write the state tree at the end", "FILE" );
   verb.text( "--save", options->save, "write a scenario that begins where this run ends", "FILE" );
   verb.text( "--report", options->report, "write a page that shows the run in a browser", "FILE.html" );
   verb.text(
      "--trace", options->trace, "trace facilities up to a level; `*` for every facility", "FACILITY/LEVEL[,...]" );
   verb.text( "--trace-out", options->traceOut, "write the traces there instead of to standard error", "FILE" );
   verb.text(
      "--ring", options->ring, "write what the ring buffer holds at the end: the last steps, without --trace", "FILE" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--quiet", options->quiet, "print no summary" );
   verb.flag( "--json", options->json, "the summary, for programs" );
   return [options] { return run( *options ); };
}

} // namespace Cli
