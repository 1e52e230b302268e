// The control socket in the file system, and clients that find nobody there.
#include "ControlWorld.h"
#include "inspection/files/InputError.h"

#include <sys/stat.h>
#include <sys/un.h>

namespace {

using namespace Live;

std::string refusal( std::function< void() > const & what ) {
   try {
      what();
   } catch ( Inspection::InputError const & error ) {
      return error.what();
   }
   return "nothing was refused";
}

// What a killed agent leaves.
void leaveSocket( std::string const & path ) {
   Descriptor const socket( ::socket( AF_UNIX, SOCK_STREAM, 0 ) );
   sockaddr_un address{};
   address.sun_family = AF_UNIX;
   path.copy( address.sun_path, path.size() );
   ASSERT_EQ( ::bind( socket.number(), reinterpret_cast< sockaddr const * >( &address ), sizeof address ), 0 );
}

TEST( ControlSocket, IsForOwnerAndGroupAndGoesWithTheAgent ) {
   ControlWorld world;
   world.serve();
   struct stat there {};
   ASSERT_EQ( ::stat( world.options.path.c_str(), &there ), 0 );
   EXPECT_EQ( there.st_mode & 07777U, 0660U );
   world.server.reset();
   EXPECT_FALSE( std::filesystem::exists( world.options.path ) );
}

TEST( ControlSocket, OfADeadAgentIsReplaced ) {
   ControlWorld world;
   leaveSocket( world.options.path );
   EXPECT_EQ( refusal( [&] { world.client(); } ),
              world.options.path + ": the agent that listened there is gone; `l3sm serve` starts it again" );
   world.serve();
   world.during( [&] { EXPECT_EQ( *world.client().call( "echo", Rex::Value::List{ "a" } ).value().text(), "a" ); } );
}

TEST( ControlSocket, OfAnotherAgentIsLeftToIt ) {
   ControlWorld world;
   world.serve();
   ControlWorld other;
   other.options.path = world.options.path;
   EXPECT_EQ( refusal( [&] { other.serve(); } ),
              world.options.path + ": another agent listens there; end it, or name another socket with --socket" );
   world.during( [&] { EXPECT_EQ( *world.client().call( "echo", Rex::Value::List{ "a" } ).value().text(), "a" ); } );
}

TEST( ControlSocket, ReplacesNothingThatIsNoSocket ) {
   ControlWorld world;
   world.folder.file( "a.ctl", "mine" );
   EXPECT_EQ( refusal( [&] { world.serve(); } ),
              world.options.path + ": is there and is no socket; name another with --socket" );
   EXPECT_EQ( world.folder.text( "a.ctl" ), "mine" );
   world.options.path = world.folder / std::string( 200, 'x' );
   EXPECT_EQ( refusal( [&] { world.serve(); } ),
              world.options.path + ": is too long for a socket; 107 letters are possible" );
   world.options.path = world.folder / "nowhere/a.ctl";
   EXPECT_EQ( refusal( [&] { world.serve(); } ),
              world.options.path + ": can't be listened on: No such file or directory" );
}

TEST( ControlSocket, IsFoundByTheNameOfItsSlice ) {
   ControlWorld world;
   world.serve();
   world.folder.file( "b.ctl", "no socket" );
   EXPECT_EQ( slicesThere( world.folder / "" ), std::vector< std::string >{ "a" } );
   EXPECT_EQ( slicesThere( world.folder / "nowhere" ), std::vector< std::string >{} );
   EXPECT_EQ( controlPath( "Linecard3" ), "/run/l3sm/Linecard3.ctl" );
}

TEST( ControlClient, SaysThatNobodyListens ) {
   ControlWorld const world;
   EXPECT_EQ( refusal( [&] { world.client(); } ),
              world.options.path + ": no agent listens there; `l3sm serve` starts one" );
}

TEST( ControlClient, GivesUpAfterAWhileInWhichNothingComes ) {
   ControlWorld world;
   world.serve(); // and nobody turns the loop
   EXPECT_EQ( refusal( [&] { world.client( 1 ).call( "list" ); } ),
              world.options.path + ": hasn't answered for 1 s; --timeout S waits longer" );
}

TEST( ControlClient, SaysThatTheAgentEndsDuringACall ) {
   ControlWorld world;
   world.commands.add( { .name = "end", .does = "", .answer = []( Arguments const & ) -> Answer { ::_exit( 3 ); } } );
   pid_t const agent = ::fork();
   if ( agent == 0 ) {
      ControlWorld child;
      child.options.path = world.options.path;
      child.commands.add(
         { .name = "end", .does = "", .answer = []( Arguments const & ) -> Answer { ::_exit( 3 ); } } );
      child.serve();
      child.loop.run();
   }
   std::optional< ControlClient > client;
   while ( !client ) {
      try {
         client.emplace( world.client() );
      } catch ( Inspection::InputError const & ) {
         ::usleep( 1000 );
      }
   }
   EXPECT_EQ( refusal( [&] { client->call( "end" ); } ), world.options.path + ": has ended before it answered" );
   ::waitpid( agent, nullptr, 0 );
}

} // namespace
