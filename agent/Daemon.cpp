#include "agent/Daemon.h"

#include "agent/Log.h"
#include "agent/ServiceManager.h"
#include "agent/control/AgentCommands.h"
#include "agent/control/ControlServer.h"
#include "agent/database/EmbeddedDatabase.h"
#include "agent/database/RedisDatabase.h"

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace Live {

namespace {

// How often the agent looks after itself where no service manager asks for it, in seconds.
constexpr Rex::Seconds tickPeriod = 5;

std::unique_ptr< Database > databaseAt( DaemonOptions const & options, EventLoop & loop ) {
   if ( options.database.empty() ) {
      return std::make_unique< EmbeddedDatabase >( loop );
   }
   return std::make_unique< RedisDatabase >(
      loop, RedisAddress::of( options.database ), options.cell, options.scenario.description.sliceName );
}

// Where to listen. Nobody has named a place, and the usual one can't be had: told, and the agent does without.
std::string controlOf( std::string const & named, std::string const & slice ) {
   if ( !named.empty() ) {
      return named;
   }
   ::mkdir( controlFolder, 0755 ); // which a service manager has made before
   if ( ::access( controlFolder, W_OK ) == 0 ) {
      return controlPath( slice );
   }
   say( Level::warning,
        "no control socket: " + std::string( controlFolder ) + " can't be written; name another with --socket" );
   return {};
}

} // namespace

struct Daemon::Parts {
   explicit Parts( DaemonOptions options )
      : database( databaseAt( options, loop ) ),
        agent( loop, *database, std::move( options.scenario ), options.version ) {
      agent.onlookerAdd( manager );
      agent.sw().journal().readerAdd( ring );
      addAgentCommands( commands,
                        { .agent = agent,
                          .ring = ring,
                          .embedded = dynamic_cast< EmbeddedDatabase * >( database.get() ),
                          .version = options.version,
                          .plugin = options.plugin,
                          .begun = EventLoop::clock() } );
      if ( auto path = controlOf( options.socket, agent.scenario().description.sliceName ); !path.empty() ) {
         control.emplace(
            loop, commands, ControlServer::Options{ .path = std::move( path ), .log = []( std::string const & line ) {
                                                      say( Level::notice, line );
                                                   } } );
      }
   }

   EventLoop loop;
   std::unique_ptr< Database > database;
   ServiceManager manager;
   RowRing ring;
   SliceAgent agent;
   Commands commands;
   std::optional< ControlServer > control;
};

Daemon::Daemon( DaemonOptions options ) : parts_( std::make_unique< Parts >( std::move( options ) ) ) {}
Daemon::~Daemon() = default;

EventLoop & Daemon::loop() {
   return parts_->loop;
}
SliceAgent & Daemon::agent() {
   return parts_->agent;
}

int Daemon::run() {
   auto & [loop, database, manager, ring, agent, commands, control] = *parts_;
   auto const ends = [&] { loop.end( 0 ); };
   auto const terminate = loop.signal( SIGTERM, ends );
   auto const interrupt = loop.signal( SIGINT, ends );
   loop.watchdog( tickPeriod, [&] { database->tick(); } );
   agent.begin();
   int const status = loop.run();
   control.reset();
   manager.stops();
   agent.end();
   if ( !agent.refusal().empty() ) {
      say( Level::error, agent.refusal() );
   }
   return status;
}

} // namespace Live
