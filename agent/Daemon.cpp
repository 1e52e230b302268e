#include "agent/Daemon.h"

#include "agent/RowRing.h"
#include "agent/ServiceManager.h"
#include "agent/SystemLog.h"
#include "agent/TraceFile.h"
#include "agent/audit/Auditor.h"
#include "agent/control/AgentCommands.h"
#include "agent/control/ControlServer.h"
#include "agent/database/Databases.h"
#include "agent/database/EmbeddedDatabase.h"
#include "agent/metrics/AgentMetrics.h"
#include "agent/metrics/MetricsFile.h"
#include "agent/metrics/MetricsServer.h"
#include "agent/recording/RecordCommands.h"
#include "inspection/views/Terminal.h"
#include "simulator/RandomFaults.h"

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace Live {

namespace {

// How often the agent looks after itself where no service manager asks for it: seldom, as an idle agent is to sleep,
// but twice in the time in which all of its chips are looked at.
Rex::Seconds tickPeriod( Rex::Seconds audit ) {
   return audit > 0 ? std::clamp( audit / 2, 1.0, 5.0 ) : 5.0;
}

constexpr char const * keptChips = "chips"; // the name under which the service manager keeps them

std::optional< Simulator::ChipsMapping > newChips( DaemonOptions const & options ) {
   auto const fill = [&options]( Simulator::ChipDriver & chips ) { options.scenario.fillChips( chips ); };
   auto const & description = options.scenario.description;
   if ( !options.chipsFile.empty() ) {
      return Simulator::ChipsMapping::make( options.chipsFile, description, fill );
   }
   auto chips = Simulator::ChipsMapping::makeInMemory( description, fill );
   return ServiceManager::keeps( keptChips, chips.file() ) ? std::optional( std::move( chips ) ) : std::nullopt;
}

std::optional< Simulator::ChipsMapping > leftChips( DaemonOptions const & options ) {
   auto const & description = options.scenario.description;
   if ( !options.chipsFile.empty() ) {
      return Simulator::ChipsMapping::open( options.chipsFile, description );
   }
   auto const kept = ServiceManager::keptFile( keptChips );
   return kept ? std::optional( Simulator::ChipsMapping::of( kept.number(), description ) ) : std::nullopt;
}

// Chips that outlive the agent: those that the one before has left, or new ones. None: nobody keeps them.
std::optional< Simulator::ChipsMapping > chipsOf( DaemonOptions const & options ) {
   if ( options.chipsFile.empty() && !std::getenv( "NOTIFY_SOCKET" ) ) {
      return std::nullopt;
   }
   try {
      if ( auto chips = leftChips( options ) ) {
         return chips;
      }
   } catch ( Simulator::ChipsInUse const & ) {
      throw;
   } catch ( Simulator::ChipsRefused const & refused ) {
      say( Level::warning, std::string( refused.what() ) + "; the chips begin anew" );
   }
   return newChips( options );
}

// Tells what a start finds to change on chips that an agent had before.
class DriftLog final : public AgentOnlooker {
   void startIsStaged( std::vector< Drift > const & drifts ) override {
      constexpr std::size_t mostTold = 20;
      for ( std::size_t index = 0; index < std::min( drifts.size(), mostTold ); ++index ) {
         say( drifts[index].known.empty() ? Level::warning : Level::notice,
              "the start has another value for " + drifts[index].text() );
      }
      if ( drifts.size() > mostTold ) {
         say( Level::warning,
              "and for " + Inspection::counted( drifts.size() - mostTold, "place", "places" ) + " more" );
      }
   }
};

// Where to listen. Nobody has named a place, and the usual one can't be had: told, and the agent does without.
std::string controlOf( DaemonOptions const & options ) {
   if ( !options.socket.empty() ) {
      return options.socket;
   }
   ::mkdir( controlFolder, 0755 ); // which a service manager has made before
   if ( ::access( controlFolder, W_OK ) == 0 ) {
      return controlPath( options.scenario.description.sliceName );
   }
   say( Level::warning,
        "no control socket: " + std::string( controlFolder ) + " can't be written; name another with --socket" );
   return {};
}

} // namespace

// In the order in which they need each other.
struct Daemon::Parts {
   explicit Parts( DaemonOptions const & options )
      : traceFile( options.trace, commands ), begun( EventLoop::clock() ),
        database( databaseAt(
           loop, options.database, options.credentials, options.cell, options.scenario.description.sliceName ) ),
        chips( chipsOf( options ) ),
        agent( loop, *database, options.scenario, options.version, chips ? &*chips : nullptr ),
        counts( agent, metrics ), recorder(
                                     agent.sw(),
                                     agent.scenario(),
                                     { .folder = options.record, .plugin = options.plugin },
                                     [this] { return agent.position(); },
                                     &metrics ),
        auditor( agent.sw(),
                 metrics,
                 { .period = options.audit,
                   .log = []( std::string const & line ) { say( Level::warning, line ); },
                   .mayRepair = [this] { return agent.mayWrite(); } } ),
        tickPeriod( Live::tickPeriod( options.audit ) ), auditedAt( begun ) {
      agent.driftIsHeld( options.isDriftHeld );
      if ( agent.isWarm() ) {
         auto const found = auditor.runs();
         say( Level::notice,
              "the chips are those that " + Inspection::counted( chips->generation() - 1, "agent", "agents" ) +
                 " had before; " + Inspection::counted( found.mismatches, "place was", "places were" ) + " wrong" );
      }
      if ( options.faultSeed ) {
         faults.emplace( *options.faultSeed );
      }
      metrics.is( Metric::buildInfo, 1, { options.version, options.plugin } );
      auto & journal = agent.sw().journal();
      for ( Simulator::RowReader * const reader :
            std::initializer_list< Simulator::RowReader * >{ &metrics, &ring, &recorder } ) {
         journal.readerAdd( *reader );
      }
      agent.onlookerAdd( counts );
      agent.onlookerAdd( manager );
      agent.onlookerAdd( driftLog );
      addAgentCommands( commands,
                        { .agent = agent,
                          .ring = ring,
                          .embedded = dynamic_cast< EmbeddedDatabase * >( database.get() ),
                          .auditor = &auditor,
                          .version = options.version,
                          .plugin = options.plugin,
                          .metrics = [this] { return metrics.text(); },
                          .begun = begun } );
      addRecordCommands( commands, recorder );
      traceFile.read();
      if ( auto const path = controlOf( options ); !path.empty() ) {
         control.emplace(
            loop,
            commands,
            ControlServer::Options{ .path = path,
                                    .changed = [this]( std::string const & name,
                                                       Rex::Value const & given ) { recorder.command( name, given ); },
                                    .log = []( std::string const & line ) { say( Level::warning, line ); } } );
      }
      if ( MetricsServer::isAddress( options.metrics ) ) {
         metricsServer.emplace( loop, options.metrics, metrics );
      } else if ( !options.metrics.empty() ) {
         metricsFile.emplace( options.metrics, metrics );
      }
      if ( !options.record.empty() ) {
         recorder.begin();
      }
   }

   // What is looked after now and then.
   void tick() {
      database->tick();
      recorder.tick();
      auto const now = EventLoop::clock();
      audits( now - std::exchange( auditedAt, now ) );
      if ( faults && agent.isStarted() ) {
         agent.sw().fault( faults->next() );
      }
      if ( auto const trouble = metricsFile ? metricsFile->write() : std::nullopt ) {
         say( Level::warning, *trouble );
      }
   }

   // A slice, and what is due beyond it once others have had their turn.
   void audits( Rex::Seconds time ) {
      if ( agent.mayWrite() && auditor.works( time ) ) {
         loop.soon( [this] { audits( 0 ); } );
      }
   }

   // What can be changed without a new start.
   void rereads() {
      try {
         traceFile.read();
         say( Level::notice, "trace levels are read again" );
      } catch ( Inspection::InputError const & error ) {
         say( Level::warning, error.what() );
      }
   }

   Commands commands;
   TraceFile traceFile;
   Rex::Seconds begun;
   EventLoop loop;
   Metrics metrics;
   RowRing ring;
   std::unique_ptr< Database > database;
   std::optional< Simulator::ChipsMapping > chips;
   SliceAgent agent;
   ServiceManager manager;
   DriftLog driftLog;
   AgentMetrics counts;
   Recorder recorder;
   Auditor auditor;
   Rex::Seconds const tickPeriod;
   Rex::Seconds auditedAt;
   std::optional< Simulator::RandomFaults > faults;
   std::optional< ControlServer > control;
   std::optional< MetricsServer > metricsServer;
   std::optional< MetricsFile > metricsFile;
};

Daemon::Daemon( DaemonOptions const & options ) : parts_( std::make_unique< Parts >( options ) ) {}
Daemon::~Daemon() = default;

int Daemon::run() {
   Parts & it = *parts_;
   auto const ends = [&] { it.loop.end( 0 ); };
   auto const terminate = it.loop.signal( SIGTERM, ends );
   auto const interrupt = it.loop.signal( SIGINT, ends );
   auto const reread = it.loop.signal( SIGHUP, [&] { it.rereads(); } );
   it.loop.watchdog( it.tickPeriod, [&] { it.tick(); } );
   it.agent.begin();
   int const status = it.loop.run();
   it.control.reset();
   it.manager.stops();
   it.agent.end();
   if ( it.metricsFile ) {
      it.metricsFile->write();
   }
   if ( !it.agent.refusal().empty() ) {
      say( Level::error, it.agent.refusal() );
   }
   return status;
}

} // namespace Live
