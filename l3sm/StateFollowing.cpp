#include "l3sm/StateFollowing.h"

#include "inspection/files/Json.h"
#include "inspection/views/Pager.h"
#include "inspection/views/Terminal.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <ctime>
#include <iostream>

namespace Cli {

using namespace Inspection;
using namespace Live;

namespace {

// Whether an event touches what stands at a path, or below it.
bool touches( Event const & event, std::string const & path ) {
   std::string const place =
      event.path + ( event.attribute ? "/" + *event.attribute : "" ) + ( event.key ? "/" + *event.key : "" );
   return path.empty() || Rex::isAtOrBelow( place, path ) || Rex::isAtOrBelow( path, place );
}

// The time of day here, to the millisecond; now, where the database doesn't tell when it was.
std::string timeOf( double written ) {
   if ( written == 0 ) {
      using namespace std::chrono;
      written = duration< double >( system_clock::now().time_since_epoch() ).count();
   }
   auto const seconds = static_cast< std::time_t >( written );
   std::tm parts{};
   ::localtime_r( &seconds, &parts );
   std::array< char, 16 > text{};
   std::strftime( text.data(), text.size(), "%H:%M:%S", &parts );
   auto const milliseconds = std::to_string( std::lround( ( written - static_cast< double >( seconds ) ) * 1000 ) );
   return std::string( text.data() ) + "." + std::string( 3 - std::min< std::size_t >( milliseconds.size(), 3 ), '0' ) +
          milliseconds;
}

void show( Transaction const & transaction, std::string const & path, bool json ) {
   for ( Event const & event : transaction.changes ) {
      if ( touches( event, path ) ) {
         json ? std::cout << toJson( Rex::Value::Object{ { "entry", transaction.position.entry },
                                                         { "change", Inspection::valueOf( event ) } },
                                     0 )
              : std::cout << timeOf( transaction.written ) << "  " << event.text();
         std::cout << '\n';
      }
   }
   for ( auto const & text : transaction.unreadable ) {
      std::cerr << "l3sm: " << printable( text ) << '\n';
   }
   std::cout.flush();
}

std::string saidOf( AwaitedAgent const & agent, Position const & place ) {
   if ( agent.isReady() ) {
      return "has applied it";
   }
   if ( agent.phase.empty() ) {
      return agent.isThere ? "has told nothing yet" : "no agent serves this slice";
   }
   std::string text = agent.phase + ( agent.reason.empty() ? "" : " (" + printable( agent.reason ) + ")" );
   text += agent.hasCaughtUp
              ? ""
              : ", at " + ( agent.applied.empty() ? "no entry" : printable( agent.applied ) ) + " of " + place.entry;
   return text + ( agent.isThere ? "" : "; it has ended without saying so" );
}

Rex::Value valueOf( std::vector< AwaitedAgent > const & agents, Position const & place ) {
   Rex::Value::List list;
   for ( AwaitedAgent const & agent : agents ) {
      list.push_back( Rex::Value::Object{ { "slice", agent.slice },
                                          { "ready", agent.isReady() },
                                          { "serves", agent.isThere },
                                          { "phase", agent.phase },
                                          { "reason", agent.reason },
                                          { "applied", agent.applied } } );
   }
   return Rex::Value::Object{ { "entry", place.entry }, { "agents", std::move( list ) } };
}

void show( std::vector< AwaitedAgent > const & agents, Position const & place ) {
   Columns columns;
   for ( AwaitedAgent const & agent : agents ) {
      columns.row( { printable( agent.slice ), saidOf( agent, place ) } );
   }
   columns.print( std::cout );
   if ( agents.empty() ) {
      std::cout << "no agent follows this database\n";
   }
}

} // namespace

int watchState( StateStore & store, std::string const & path, bool json ) {
   constexpr int signalled = 128; // as shells tell it
   Pager::letThrough();
   int came = 0;
   auto const interrupted = store.loop().signal( SIGINT, [&] { came = SIGINT; } );
   auto const terminated = store.loop().signal( SIGTERM, [&] { came = SIGTERM; } );
   auto const watch = store.watch(
      { .is = [&]( Transaction const & transaction ) { show( transaction, path, json ); },
        .begins =
           []( std::string const & why ) { std::cerr << "l3sm: " << printable( why ) << "; going on with it\n"; } } );
   while ( came == 0 && std::cout ) {
      watch->turn();
   }
   return came == 0 ? 0 : signalled + came;
}

int waitForAgents( StateStore & store, std::vector< std::string > const & slices, U32 timeout, bool json ) {
   using Clock = std::chrono::steady_clock;
   constexpr Rex::Seconds pause = 0.02;
   auto const place = store.place();
   auto const end = Clock::now() + std::chrono::seconds( timeout );
   auto agents = store.agents( slices, place );
   auto const areReady = [&] { return !agents.empty() && std::ranges::all_of( agents, &AwaitedAgent::isReady ); };
   while ( !areReady() && Clock::now() < end ) {
      store.loop().turn( pause );
      agents = store.agents( slices, place );
   }
   if ( json ) {
      std::cout << toJson( valueOf( agents, place ), 2 ) << '\n';
   } else {
      show( agents, place );
   }
   return areReady() ? 0 : 1;
}

} // namespace Cli
