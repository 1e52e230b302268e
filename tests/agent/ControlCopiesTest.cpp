// Long answers of an agent: a copy of the process has the work, the agent goes on.
#include "ControlWorld.h"
#include "assert/Assert.h"
#include "inspection/files/InputError.h"

#include <algorithm>
#include <dirent.h>
#include <sys/wait.h>

namespace {

using namespace Live;
using Rex::Value;

constexpr std::size_t manyNumbers = 5'000'000; // some 50 MB

std::string errorOf( ControlClient & client, std::string const & command ) {
   try {
      client.call( command );
   } catch ( CommandError const & error ) {
      return error.what();
   } catch ( Inspection::InputError const & error ) {
      return error.what();
   }
   return "no error";
}

TEST( ControlCopies, AnswerAtLengthWhileTheAgentGoesOn ) {
   ControlWorld world;
   world.addLong( "numbers", []( std::ostream & out ) {
      out << "[1000000000";
      for ( std::size_t number = 1; number < manyNumbers; ++number ) {
         out << ",\n" << 1000000000 + number; // lines of a file, which the answer has none of
      }
      out << "]\n";
   } );
   world.serve();
   std::size_t numbers = 0;
   std::size_t bytes = 0;
   std::size_t others = 0;
   world.during( [&] {
      std::atomic< bool > isOver = false;
      std::thread other( [&] {
         auto client = world.client();
         while ( !isOver ) {
            client.call( "echo", Value::List{ "a" } );
            ++others;
         }
      } );
      auto const answer = world.client().call( "numbers" );
      isOver = true;
      other.join();
      bytes = answer.text().size();
      answer.eachMember(
         [&]( std::string_view text ) { numbers += text == std::to_string( 1000000000 + numbers ) ? 1 : 0; } );
   } );
   EXPECT_EQ( numbers, manyNumbers );
   EXPECT_GT( bytes, 50'000'000 );
   EXPECT_GT( others, 100 );
   // How long the longest of them takes is measured by bench/ControlBench; here: no turn is most of the work.
   EXPECT_LT( world.longestTurn, world.allTurns / 2 ) << "of the processor, in " << world.turns << " turns";
}

TEST( ControlCopies, TellOfTheMomentOfTheCall ) {
   ControlWorld world;
   world.number = 1;
   std::filesystem::path const isAsked = world.folder / "asked";
   std::filesystem::path const isSet = world.folder / "set";
   world.addLong( "number", [&]( std::ostream & out ) {
      std::ofstream( isAsked ) << "";
      soon( [&] { return std::filesystem::exists( isSet ); } );
      out << *world.number;
   } );
   world.serve();
   world.during( [&] {
      auto asks = world.raw();
      asks.send( request( "number" ) + "\n" );
      EXPECT_TRUE( soon( [&] { return std::filesystem::exists( isAsked ); } ) );
      EXPECT_EQ( *world.client().call( "set", Value::List{ 2 } ).value().integer(), 2 );
      std::ofstream( isSet ) << "";
      EXPECT_EQ( asks.line(), R"({"jsonrpc": "2.0", "id": 1, "result": 1})" );
      EXPECT_EQ( asks.ask( request( "number" ) ), R"({"jsonrpc": "2.0", "id": 1, "result": 2})" );
   } );
}

TEST( ControlCopies, LeaveTheAgentsFilesAndBuffersAlone ) {
   ControlWorld world;
   auto const log = world.folder.file( "log", "" );
   std::ofstream file( log );
   file << "the agent's, not yet written";
   world.addLong( "files", []( std::ostream & out ) {
      std::size_t open = 0;
      DIR * const folder = ::opendir( "/proc/self/fd" );
      while ( auto const * const entry = ::readdir( folder ) ) {
         open += entry->d_name[0] != '.' ? 1 : 0;
      }
      out << open - 1; // that of the folder itself
   } );
   world.serve();
   world.during( [&] {
      EXPECT_EQ( *world.client().call( "files" ).value().integer(), 3 + 1 ); // nowhere three times, the client's
   } );
   EXPECT_EQ( world.folder.text( "log" ), "" );
}

TEST( ControlCopies, TellWhyThereIsNoAnswer ) {
   ControlWorld world;
   auto const hook = Rex::atFailure( [&] { std::ofstream( world.folder / "hook" ) << "ran"; } );
   world.addLong( "refuses", []( std::ostream & out ) {
      out << "[1, 2";
      throw Inspection::InputError( "--fap 7", "the switch has no such FAP" );
   } );
   world.addLong( "asserts", []( std::ostream & ) { Rex::sassert( false, "cellStatus" ); } );
   world.addLong( "throws", []( std::ostream & ) { throw std::runtime_error( "out of luck" ); } );
   world.addLong( "dies", []( std::ostream & ) { ::raise( SIGKILL ); } );
   world.serve();
   world.during( [&] {
      auto client = world.client();
      EXPECT_EQ( errorOf( client, "refuses" ), "--fap 7: the switch has no such FAP" );
      EXPECT_EQ( errorOf( client, "asserts" ), "the agent would fail: cellStatus" );
      EXPECT_EQ( errorOf( client, "throws" ), "out of luck" );
      EXPECT_EQ( errorOf( client, "dies" ), "the answer was ended by signal 9" );
      EXPECT_EQ( *client.call( "echo", Value::List{ "a" } ).value().text(), "a" ); // it goes on
   } );
   EXPECT_FALSE( std::filesystem::exists( world.folder / "hook" ) );
   Rex::failureHookDel( hook );
}

TEST( ControlCopies, EndWhereTheyTakeTooLong ) {
   ControlWorld world;
   world.options.copies.time = 0.2;
   world.addLong( "sleeps", []( std::ostream & ) { ::sleep( 100 ); } );
   world.addLong( "begins", []( std::ostream & out ) {
      out << '[' << std::string( 100'000, ' ' );
      ::sleep( 100 );
   } );
   world.serve();
   world.during( [&] {
      auto client = world.client();
      EXPECT_EQ( errorOf( client, "sleeps" ), "the answer takes longer than 0 s" );
      EXPECT_EQ( *client.call( "echo", Value::List{ "a" } ).value().text(), "a" );
      EXPECT_EQ( errorOf( client, "begins" ), world.options.path + ": has ended in the middle of its answer" );
   } );
   ASSERT_EQ( world.log.size(), 1 );
   EXPECT_NE( world.log[0].find( "its answer broke off: the answer takes longer" ), std::string::npos ) << world.log[0];
}

TEST( ControlCopies, EndWhereTheClientReadsNothing ) {
   ControlWorld world;
   world.options.copies.patience = 1;
   world.addLong( "much", []( std::ostream & out ) { out << '"' << std::string( 10'000'000, 'x' ) << '"'; } );
   world.serve();
   world.during( [&] {
      auto stuck = world.raw();
      stuck.send( request( "much" ) + "\n" );
      EXPECT_TRUE( stuck.endsUnread() );
   } );
   ASSERT_EQ( world.log.size(), 1 );
   EXPECT_NE( world.log[0].find( "its answer broke off: the client reads nothing" ), std::string::npos )
      << world.log[0];
}

// Copies that have left a file there, and not taken it away.
std::ptrdiff_t runningIn( std::string const & folder ) {
   return std::ranges::count_if( std::filesystem::directory_iterator( folder ),
                                 []( auto const & entry ) { return entry.path().extension() == ".runs"; } );
}

TEST( ControlCopies, EndWhereTheClientLeaves ) {
   ControlWorld world;
   std::string const folder = world.folder / "";
   world.addLong( "sleeps", [=]( std::ostream & ) {
      std::ofstream( folder + std::to_string( ::getpid() ) + ".runs" ) << "";
      ::sleep( 100 );
   } );
   world.addLong( "one", []( std::ostream & out ) { out << 1; } );
   world.serve();
   std::vector< RawClient > clients;
   for ( int client = 0; client < 8; ++client ) { // more than run at once
      clients.push_back( world.raw() );
      clients.back().send( request( "sleeps" ) + "\n" );
   }
   ASSERT_TRUE( world.turnsUntil( [&] { return runningIn( folder ) == 4; } ) );
   clients.clear();
   EXPECT_TRUE( world.turnsUntil( [&] { return world.server->clients() == 0; } ) );
   world.during( [&] { EXPECT_EQ( *world.client().call( "one" ).value().integer(), 1 ); } );
   EXPECT_EQ( runningIn( folder ), 4 );
}

TEST( ControlCopies, RunFourAtOnceAndTheOthersInTurn ) {
   ControlWorld world;
   std::string const folder = world.folder / "";
   std::filesystem::path const goOn = folder + "go-on";
   world.addLong( "waits", [=]( std::ostream & out ) {
      auto const mine = folder + std::to_string( ::getpid() ) + ".runs";
      std::ofstream( mine ) << "";
      soon( [&] { return std::filesystem::exists( goOn ); } );
      out << runningIn( folder );
      std::filesystem::remove( mine );
   } );
   world.serve();
   // A process each: a copy of this one would wait for ever for what a thread of it held just then.
   std::vector< pid_t > clients;
   for ( int client = 0; client < 12; ++client ) {
      clients.push_back( ::fork() );
      if ( clients.back() == 0 ) {
         ::_exit( static_cast< int >( *world.client().call( "waits" ).value().integer() ) );
      }
   }
   EXPECT_TRUE( world.turnsUntil( [&] { return runningIn( folder ) >= 4; } ) );
   for ( int turns = 0; turns < 50; ++turns ) {
      world.loop.turn( 0.002 );
   }
   std::ofstream( goOn ) << "";
   int most = 0;
   int answers = 0;
   world.during( [&] {
      for ( pid_t const client : clients ) {
         int status = 0;
         ::waitpid( client, &status, 0 );
         answers += WIFEXITED( status ) ? 1 : 0;
         most = std::max( most, WIFEXITED( status ) ? WEXITSTATUS( status ) : 0 );
      }
   } );
   EXPECT_EQ( answers, 12 );
   EXPECT_EQ( most, 4 );
}

TEST( ControlCopies, EndWithTheAgent ) {
   pid_t copy = 0;
   {
      ControlWorld world;
      auto const file = world.folder / "copy";
      world.addLong( "sleeps", [=]( std::ostream & ) {
         std::ofstream( file ) << ::getpid() << std::endl;
         ::sleep( 100 );
      } );
      world.serve();
      auto client = world.raw();
      client.send( request( "sleeps" ) + "\n" );
      ASSERT_TRUE( world.turnsUntil( [&] { return !world.folder.text( "copy" ).empty(); } ) );
      copy = std::stoi( world.folder.text( "copy" ) );
      EXPECT_EQ( ::kill( copy, 0 ), 0 );
   }
   EXPECT_EQ( ::kill( copy, 0 ), -1 );
}

} // namespace
