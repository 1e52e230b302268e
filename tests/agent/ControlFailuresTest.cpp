// What keeps agents and their clients apart: files, rights, and somebody who doesn't speak as an agent does.
#include "BuildFolder.h"
#include "ControlWorld.h"
#include "FewFiles.h"
#include "agent/control/MemoryFile.h"
#include "inspection/files/InputError.h"

#include <future>
#include <sys/syscall.h>

static std::atomic< bool > isSlowToWatch = false;

// The agent takes its time between a copy and the file by which it watches it.
extern "C" int pidfd_open( pid_t process, unsigned flags ) noexcept {
   if ( isSlowToWatch ) {
      ::usleep( 100'000 );
   }
   return static_cast< int >( ::syscall( SYS_pidfd_open, process, flags ) );
}

namespace {

using namespace Live;
using Rex::Value;

std::string failureOf( std::function< void() > const & what ) {
   try {
      what();
   } catch ( Inspection::InputError const & error ) {
      return error.what();
   } catch ( CommandError const & error ) {
      return std::to_string( error.code() ) + " " + error.what();
   }
   return "nothing has failed";
}

// Listens where an agent would, and answers as the test wants.
class NoAgent {
 public:
   explicit NoAgent( std::function< void( int client ) > const & serves )
      : listening_( listenAt( path() ) ), over_( std::async( std::launch::async, [this, serves] {
           pollfd it{ listening_.number(), POLLIN, 0 };
           ::poll( &it, 1, 10'000 );
           Descriptor const client( ::accept4( listening_.number(), nullptr, nullptr, SOCK_CLOEXEC ) );
           serves( client.number() );
        } ) ) {}

   // Answers with a line whatever it is asked.
   static NoAgent saying( std::string const & line ) {
      return NoAgent( [line]( int client ) {
         readsLine( client );
         ::send( client, line.data(), line.size(), MSG_NOSIGNAL );
      } );
   }
   // How long it was.
   static std::size_t readsLine( int client ) {
      std::vector< char > some( 1 << 16 );
      std::size_t size = 0;
      for ( ;; ) {
         auto const got = ::recv( client, some.data(), some.size(), 0 );
         if ( got <= 0 ) {
            return size;
         }
         size += static_cast< std::size_t >( got );
         if ( some[static_cast< std::size_t >( got ) - 1] == '\n' ) {
            return size;
         }
      }
   }
   std::string path() const { return folder_ / "a.ctl"; }
   ControlClient client() const { return ControlClient( { .path = path(), .timeout = 10, .name = "it" } ); }

 private:
   Folder const folder_;
   Descriptor listening_;
   std::future< void > over_;
};

// ---- connecting

TEST( ControlFailures, ofAClientWithoutTheRightToConnectNameWhoHasIt ) {
   ControlWorld world;
   world.serve();
   std::filesystem::permissions( world.folder / ".", std::filesystem::perms( 0711 ) );
   std::filesystem::permissions( world.options.path, std::filesystem::perms::none );
   auto const before = ::geteuid();
   if ( before == 0 ) { // to whom permissions are nothing
      ASSERT_EQ( ::seteuid( 54321 ), 0 );
   }
   auto const failure = failureOf( [&] { connectTo( world.options.path ); } );
   ASSERT_EQ( ::seteuid( before ), 0 );
   EXPECT_EQ( failure,
              world.options.path + ": no permission to connect; the agent's owner, its group and root have it" );
}

TEST( ControlFailures, ofAnAgentThatTakesNoCallsSayThatManyWait ) {
   Folder const folder;
   auto const path = folder / "a.ctl";
   auto const listening = listenAt( path );
   std::vector< Descriptor > waiting;
   auto const failure = failureOf( [&] {
      while ( waiting.size() < 1000 ) {
         waiting.push_back( connectTo( path ) );
      }
   } );
   EXPECT_EQ( failure, path + ": the agent doesn't take calls; too many wait already" );
   EXPECT_GE( waiting.size(), 16u );
   EXPECT_EQ( failureOf( [&] { listenAt( path ); } ),
              path + ": another agent listens there; end it, or name another socket with --socket" )
      << "it is there all the same";
}

TEST( ControlFailures, ofAPathThatLeadsNowhereAreToldAsTheyAre ) {
   Folder const folder;
   auto const path = folder.file( "file", "" ) + "/a.ctl";
   EXPECT_EQ( failureOf( [&] { connectTo( path ); } ), path + ": can't be connected to: Not a directory" );
   EXPECT_EQ( failureOf( [&] { listenAt( path ); } ), path + ": can't be listened on: Not a directory" );
}

TEST( ControlFailures, ofAProcessWithoutRoomForFilesAreTold ) {
   Folder const folder;
   auto const path = folder / "a.ctl";
   FewFiles const none;
   EXPECT_EQ( failureOf( [&] { connectTo( path ); } ), "no socket: Too many open files" );
   EXPECT_EQ( failureOf( [&] { listenAt( path ); } ), "no socket: Too many open files" );
   EXPECT_EQ( failureOf( [] { MemoryFile( "rows" ); } ), "no room in memory for a file: Too many open files" );
}

TEST( ControlFailures, toSeeWhoHasConnectedMakeHimNobody ) {
   EXPECT_EQ( peerOf( -1 ).text(), "process 0 of user 4294967295" );
}

// ---- asking

TEST( ControlFailures, ofWhatIsNoAgentAreTold ) {
   for ( std::string const line : { "hello\n", "[]\n", "7\n", "{\"jsonrpc\": \"2.0\"}\n", "{\"result\": }\n", "\n" } ) {
      auto const it = NoAgent::saying( line );
      auto client = it.client();
      EXPECT_EQ( failureOf( [&] { client.call( "list" ); } ), "it: has answered something that is no JSON-RPC" )
         << line;
   }
   auto const it = NoAgent::saying( "{\"error\": 7}\n" );
   auto client = it.client();
   EXPECT_EQ( failureOf( [&] { client.call( "list" ); } ), "it: expected an object, got 7" );
}

TEST( ControlFailures, ofAnAgentThatLeavesInTheMiddleAreTold ) {
   auto const it = NoAgent::saying( "{\"jsonrpc\": " );
   auto client = it.client();
   EXPECT_EQ( failureOf( [&] { client.call( "list" ); } ), "it: has ended in the middle of its answer" );
}

TEST( ControlFailures, ofAnAgentThatLeavesWhileItIsAskedMuchAreTold ) {
   NoAgent const it( []( int ) {} );
   auto client = it.client();
   EXPECT_EQ( failureOf( [&] { client.call( "echo", Value::List{ std::string( 8 << 20, 'x' ) } ); } ),
              "it: has ended before it answered" );
}

TEST( ControlClient, WaitsUntilAnAgentHasTakenALongRequest ) {
   std::size_t size = 0;
   {
      NoAgent const it( [&]( int client ) {
         size = NoAgent::readsLine( client );
         std::string const answer = "{\"jsonrpc\": \"2.0\", \"id\": 1, \"result\": \"taken\"}\n";
         ::send( client, answer.data(), answer.size(), MSG_NOSIGNAL );
      } );
      auto client = it.client();
      auto const answer = client.call( "echo", Value::List{ std::string( 8 << 20, 'x' ) } );
      EXPECT_EQ( *answer.value().text(), "taken" );
      std::size_t members = 0;
      answer.eachMember( [&]( std::string_view ) { ++members; } );
      EXPECT_EQ( members, 0u ) << "a text has none";
   }
   EXPECT_GT( size, 8u << 20 );
}

// ---- long answers

TEST( ControlCopies, TellThatThereIsNoRoomForThem ) {
   if ( isSanitized() ) {
      GTEST_SKIP() << "the sanitizers open a file themselves to see whether memory can be read";
   }
   ControlWorld world;
   world.addLong( "long", []( std::ostream & out ) { out << "[1, 2]"; } );
   auto const timer = world.loop.timer( 0, [] {} ); // after which the loop has all files that it needs
   world.serve();
   world.during( [&] {
      auto client = world.client();
      client.call( "echo", Value::List{ "a" } );
      {
         FewFiles const none;
         isSlowToWatch = true; // so that a copy that didn't wait would have answered
         EXPECT_EQ( failureOf( [&] { client.call( "long" ); } ), "-32000 no copy of the process: Too many open files" );
         EXPECT_EQ( client.call( "echo", Value::List{ "b" } ).text(), "\"b\"" ) << "answered once";
         isSlowToWatch = false;
      }
      EXPECT_EQ( client.call( "long" ).text(), "[1, 2]" );
   } );
}

TEST( ControlCopies, ThatCannotBeginLeaveTheirClientToBeServed ) {
   if ( isSanitized() ) {
      GTEST_SKIP() << "the sanitizers open a file themselves to see whether memory can be read";
   }
   ControlWorld world; // whose loop has had no timer, for which it needs a file
   world.addLong( "long", []( std::ostream & out ) { out << "[1, 2]"; } );
   world.serve();
   world.during( [&] {
      auto client = world.client();
      client.call( "echo", Value::List{ "a" } );
      {
         FewFiles const none;
         EXPECT_EQ( failureOf( [&] { client.call( "long" ); } ), "-32603 timer: Too many open files" );
      }
      EXPECT_EQ( client.call( "long" ).text(), "[1, 2]" );
      EXPECT_EQ( client.call( "echo", Value::List{ "b" } ).text(), "\"b\"" ) << "answered once";
   } );
}

} // namespace
