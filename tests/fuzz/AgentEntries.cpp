// What an agent is told: by its control socket, and by databases. Behind it is a whole agent, without a plug-in: what
// one asserts is meant to end the process.
#include "Entries.h"
#include "EntryTools.h"

#include "agent/audit/Auditor.h"
#include "agent/control/AgentCommands.h"
#include "agent/control/JsonRpc.h"
#include "agent/database/EmbeddedDatabase.h"
#include "agent/database/EtcdLayout.h"
#include "agent/database/EtcdMessages.h"
#include "agent/database/LogEntry.h"
#include "inspection/files/Json.h"
#include "inspection/files/ScenarioReading.h"
#include "rex/Log.h"
#include "rex/Trace.h"

#include <cstdlib>
#include <memory>

// Chips that answer late keep an agent waiting: no time passes here.
extern "C" int usleep( useconds_t /* time */ ) {
   return 0;
}

namespace Fuzz {

namespace {

using namespace Live;
using Rex::Value;

Inspection::Scenario theSwitch() {
   static Value const value = Inspection::parseJson( R"({
 "switch": {"slice": {"name": "Linecard3"},
            "faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "state": {"interface/config/global": {"l3Mtu": 2000}}})",
                                                     "switch" );
   return Inspection::scenarioOf( value, "switch" );
}

// Nothing is said, and what was set for the process is as it was, afterwards.
class Quiet {
 public:
   Quiet() {
      Rex::logSinkIs( []( Rex::LogEntry const & ) {} );
      Rex::traceSinkIs( []( Rex::TraceRecord const & ) {} );
   }
   Quiet( Quiet const & ) = delete;
   Quiet & operator=( Quiet const & ) = delete;
   ~Quiet() {
      Rex::traceLevelIs( "*", -1 );
      ::unsetenv( "COLUMNS" ); // which an answer sets in its copy of the process
   }
};

void turn( EventLoop & loop ) {
   constexpr int most = 100;
   for ( int turns = 0; turns < most && loop.turn(); ++turns ) {
   }
}

// An agent with the commands that don't reach beyond it: none writes a file.
class AskedAgent {
 public:
   AskedAgent()
      : database_( loop_ ), agent_( loop_, database_, theSwitch() ),
        auditor_( agent_.sw(), metrics_, { .period = 0 } ) {
      agent_.sw().journal().readerAdd( metrics_ );
      agent_.sw().journal().readerAdd( ring_ );
      addAgentCommands(
         commands_, { .agent = agent_, .ring = ring_, .embedded = &database_, .auditor = &auditor_, .metrics = [this] {
                        return metrics_.text();
                     } } );
      agent_.begin();
      turn( loop_ );
   }
   ~AskedAgent() { agent_.end(); }
   AskedAgent( AskedAgent const & ) = delete;
   AskedAgent & operator=( AskedAgent const & ) = delete;

   // False: nothing more can be asked. What takes long is answered by a copy of the process, which is this one here.
   bool isAsked( std::string const & line ) {
      try {
         Request const request = requestOf( line );
         bool const goesOn = answer( request );
         turn( loop_ );
         return goesOn;
      } catch ( RequestError const & error ) {
         check( errorLine( error.id, error.code(), error.what() ) );
         return true;
      }
   }

 private:
   bool answer( Request const & request ) {
      Value const id = request.id.value_or( Value() );
      bool goesOn = true;
      try {
         Command const & command = commands_.named( request.method );
         Answer const answer = command.answer( Arguments( command, request.params ) );
         if ( auto const * const value = std::get_if< Value >( &answer ) ) {
            check( answerLine( id, *value ) );
         } else {
            goesOn = false;
            std::ostringstream text;
            std::get< LongAnswer >( answer ).write( text );
            check( answerBegin( id ) + text.str() + std::string( answerEnd ) );
         }
      } catch ( ... ) {
         auto const error = commandErrorOf( std::current_exception() );
         if ( error.code() == CommandError::broken ) {
            Rex::assertionFailed( "an agent makes no mistake", std::source_location::current(), error.what() );
         }
         check( errorLine( id, error.code(), error.what() ) );
      }
      return goesOn;
   }
   // An object in a line.
   static void check( std::string const & text ) {
      Rex::sassert( Inspection::parseJson( text, "answer" ).object(), "an answer is an object" );
   }

   Quiet const quiet_;
   EventLoop loop_;
   EmbeddedDatabase database_;
   Metrics metrics_;
   RowRing ring_;
   SliceAgent agent_;
   Auditor auditor_;
   Commands commands_;
};

// A database that tells what it is told.
class Teller final : public Database {
 public:
   std::string name() const override { return "bytes"; }
   void snapshot() override {}
   void since( Position const & ) override {}
   void publish( Report const & report ) override {
      for ( auto const & [path, attributes] : report.published ) {
         textOf( attributes ); // as it would be written
      }
   }
   void stop() override {}
   Follower & hears() { return *follower(); }
};

// An agent that follows it.
class ToldAgent {
 public:
   ToldAgent() : agent_( loop_, database_, theSwitch() ) { agent_.begin(); }
   ~ToldAgent() { agent_.end(); }
   ToldAgent( ToldAgent const & ) = delete;
   ToldAgent & operator=( ToldAgent const & ) = delete;

   void snapshotIs( Snapshot snapshot ) {
      snapshot.position = at( std::to_string( ++snapshots_ ) );
      database_.hears().snapshotIs( std::move( snapshot ) );
      goesOn();
   }
   void transactionsAre( std::vector< Transaction > transactions ) {
      database_.hears().transactionsAre( std::move( transactions ) );
      goesOn();
   }
   static Position at( std::string entry ) { return { "server", "epoch", std::move( entry ) }; }

 private:
   void goesOn() {
      turn( loop_ );
      Inspection::parseJson( Rex::toText( agent_.rejectedTold() ), "rejected" ); // as others read it
   }

   Quiet const quiet_;
   EventLoop loop_;
   Teller database_;
   SliceAgent agent_;
   std::size_t snapshots_ = 0;
};

void stands( Snapshot & snapshot, std::string const & line ) {
   auto const parts = partsOf( line );
   auto & attributes = snapshot.paths[parts.front()];
   if ( parts.size() == 2 ) {
      try {
         attributes = attributesOf( parts[1] );
      } catch ( Rex::ValueError const & error ) {
         snapshot.paths.erase( parts.front() );
         snapshot.unreadable[parts.front()] = error.what();
      }
   } else if ( parts.size() > 2 ) {
      attributes[parts[1]] = parts[2];
   }
}

// As the server would send it.
std::string inRedis( std::vector< std::string > const & entry ) {
   auto const bulk = []( std::string const & text ) {
      return "$" + std::to_string( text.size() ) + "\r\n" + text + "\r\n";
   };
   std::string sent = "*2\r\n" + bulk( entry.empty() ? "" : entry.front() );
   sent += "*" + std::to_string( std::max< std::size_t >( entry.size(), 1 ) - 1 ) + "\r\n";
   for ( std::size_t part = 1; part < entry.size(); ++part ) {
      sent += bulk( entry[part] );
   }
   return sent;
}

struct FreeRedis {
   void operator()( redisReader * reader ) const { ::redisReaderFree( reader ); }
   void operator()( redisReply * reply ) const { ::freeReplyObject( reply ); }
};

Transaction transactionIn( std::vector< std::string > const & entry ) {
   std::unique_ptr< redisReader, FreeRedis > const reader( ::redisReaderCreate() );
   auto const sent = inRedis( entry );
   void * reply = nullptr;
   Rex::sassert( ::redisReaderFeed( reader.get(), sent.data(), sent.size() ) == REDIS_OK &&
                    ::redisReaderGetReply( reader.get(), &reply ) == REDIS_OK && reply,
                 "an entry is sent whole" );
   std::unique_ptr< redisReply, FreeRedis > const kept( static_cast< redisReply * >( reply ) );
   return transactionOf( RedisReply( kept.get() ), ToldAgent::at( "" ) );
}

// What a snapshot does with what was written while it was read.
void write( Transaction const & transaction, Paths & paths ) {
   for ( auto const & event : transaction.changes ) {
      try {
         for ( PathChange const & change : pathChangesOf( event, PathLookup( paths ) ) ) {
            apply( change, paths );
         }
      } catch ( Rex::ValueError const & ) { // NOLINT(bugprone-empty-catch)
      }
   }
}

} // namespace

void control( std::string const & bytes ) {
   AskedAgent agent;
   for ( auto const & line : linesOf( bytes ) ) {
      if ( !agent.isAsked( line ) ) {
         return;
      }
   }
}

void state( std::string const & bytes ) {
   ToldAgent agent;
   Snapshot snapshot;
   for ( auto const & line : linesOf( bytes ) ) {
      if ( line.empty() ) {
         agent.snapshotIs( std::exchange( snapshot, {} ) );
      } else {
         stands( snapshot, line );
      }
   }
   agent.snapshotIs( std::move( snapshot ) );
}

void log( std::string const & bytes ) {
   ToldAgent agent;
   agent.snapshotIs( { .position = {}, .paths = { { "evpn/status", {} } } } );
   Paths paths;
   std::vector< Transaction > transactions;
   for ( auto const & line : linesOf( bytes ) ) {
      transactions.push_back( transactionIn( partsOf( line ) ) );
      write( transactions.back(), paths );
   }
   if ( !transactions.empty() ) { // as databases have it
      agent.transactionsAre( std::move( transactions ) );
   }
   std::map< std::string, std::string > wrong;
   eventsBetween( {}, paths, wrong );
}

void etcd( std::string const & bytes ) {
   EtcdLayout const layout( "", 1 );
   Paths before;
   Paths after;
   auto const take = [&]( EtcdKey const & each, Paths & into ) {
      try {
         into[std::string( layout.pathOf( each.key ) )] = attributesOf( each.value );
      } catch ( Rex::ValueError const & ) { // NOLINT(bugprone-empty-catch)
      }
   };
   for ( auto const & line : linesOf( bytes ) ) {
      auto const reply = EtcdReply::of( line );
      for ( auto const & range : reply.ranges ) {
         std::ranges::for_each( range, [&]( EtcdKey const & each ) { take( each, before ); } );
      }
      for ( auto const & event : reply.events ) {
         take( event.now, after );
         if ( event.before ) {
            take( *event.before, before );
         }
      }
   }
   std::map< std::string, std::string > wrong;
   eventsBetween( before, after, wrong );
}

} // namespace Fuzz
