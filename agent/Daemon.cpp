#include "agent/Daemon.h"

#include "agent/Log.h"
#include "agent/ServiceManager.h"
#include "agent/database/EmbeddedDatabase.h"
#include "agent/database/RedisDatabase.h"

#include <csignal>

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

} // namespace

struct Daemon::Parts {
   explicit Parts( DaemonOptions options )
      : database( databaseAt( options, loop ) ),
        agent( loop, *database, std::move( options.scenario ), std::move( options.version ) ) {
      agent.onlookerAdd( manager );
   }

   EventLoop loop;
   std::unique_ptr< Database > database;
   ServiceManager manager;
   SliceAgent agent;
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
   auto & [loop, database, manager, agent] = *parts_;
   auto const ends = [&] { loop.end( 0 ); };
   auto const terminate = loop.signal( SIGTERM, ends );
   auto const interrupt = loop.signal( SIGINT, ends );
   loop.watchdog( tickPeriod, [&] { database->tick(); } );
   agent.begin();
   int const status = loop.run();
   manager.stops();
   agent.end();
   if ( !agent.refusal().empty() ) {
      say( Level::error, agent.refusal() );
   }
   return status;
}

} // namespace Live
