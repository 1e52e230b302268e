// What a client of the control socket sends, and what it is answered.
#include "ControlWorld.h"
#include "inspection/files/InputError.h"

namespace {

using namespace Live;
using Rex::Value;

// A line each.
std::vector< std::string > answersTo( std::vector< std::string > const & lines ) {
   ControlWorld world;
   world.serve();
   std::vector< std::string > answers;
   world.during( [&] {
      auto client = world.raw();
      for ( auto const & line : lines ) {
         answers.push_back( client.ask( line ) );
      }
   } );
   return answers;
}

std::string error( int code, std::string const & message, std::string const & id = "1" ) {
   return R"({"jsonrpc": "2.0", "id": )" + id + R"(, "error": {"code": )" + std::to_string( code ) +
          R"(, "message": )" + Inspection::quoted( message ) + "}}";
}

TEST( ControlRequests, areAnsweredInTheirOrderWithTheirIds ) {
   EXPECT_EQ( answersTo( { R"({"jsonrpc": "2.0", "id": 17, "method": "echo", "params": ["a"]})",
                           R"({"jsonrpc": "2.0", "id": "x", "method": "echo", "params": {"text": "b"}})" } ),
              ( std::vector< std::string >{ R"({"jsonrpc": "2.0", "id": 17, "result": "a"})",
                                            R"({"jsonrpc": "2.0", "id": "x", "result": "b"})" } ) );
}

TEST( ControlRequests, thatAreNoneAreToldWhatIsWrong ) {
   EXPECT_EQ( answersTo( { "hello",
                           "[]",
                           "7",
                           R"({"id": 1, "method": "echo"})",
                           R"({"jsonrpc": "2.0", "id": 1})",
                           R"({"jsonrpc": "2.0", "id": [], "method": "echo"})",
                           R"({"jsonrpc": "2.0", "id": 1, "method": "echo", "params": 3})" } ),
              ( std::vector< std::string >{
                 error( -32700, "request:1:1: syntax error while parsing value - invalid literal", "null" ),
                 error( -32600, "batches are not served; send one request a line", "null" ),
                 error( -32600, "expected an object, got a number", "null" ),
                 error( -32600, "jsonrpc: expected \"2.0\"" ),
                 error( -32600, "method: expected the name of a command" ),
                 error( -32600, "id: expected a number or a string, got a list", "null" ),
                 error( -32600, "params: expected an object or a list, got a number" ),
              } ) );
}

TEST( ControlRequests, withWrongArgumentsAreToldWhichAndWhatWasExpected ) {
   EXPECT_EQ( answersTo( { request( "ecko" ),
                           request( "set" ),
                           request( "set", R"({"to": "x"})" ),
                           request( "set", R"({"to": -1})" ),
                           request( "set", R"({"too": 1})" ),
                           request( "set", "[1, 2]" ),
                           request( "set", "[4294967296]" ) } ),
              ( std::vector< std::string >{
                 error( -32601, "there is no command \"ecko\"; did you mean \"echo\"?" ),
                 error( -32602, "to is missing; expected a number, 0 or more: the number" ),
                 error( -32602, "to: expected a number, 0 or more: the number; got a string" ),
                 error( -32602, "to: expected a number, 0 or more: the number; got -1" ),
                 error( -32602, "too: set has no such argument; did you mean \"to\"?" ),
                 error( -32602, "set takes 1 arguments, got 2; the arguments are to" ),
                 error( -32602, "to: expected a number from 0 to 4294967295, got 4294967296" ),
              } ) );
}

TEST( ControlRequests, withoutAnIdGetNoAnswer ) {
   EXPECT_EQ( answersTo( { R"({"jsonrpc": "2.0", "method": "echo", "params": ["a"]})"
                           "\n"
                           R"({"jsonrpc": "2.0", "method": "nothing"})"
                           "\n" +
                           request( "echo", R"(["b"])" ) } ),
              ( std::vector< std::string >{ R"({"jsonrpc": "2.0", "id": 1, "result": "b"})" } ) );
}

TEST( ControlRequests, thatComeInPiecesOrSeveralAtOnceAreAllAnswered ) {
   ControlWorld world;
   world.serve();
   world.during( [&] {
      auto client = world.raw();
      std::string const text = request( "echo", R"(["one"])" );
      for ( char const letter : text ) {
         client.send( std::string( 1, letter ) );
      }
      client.send( "\n\n" + request( "echo", R"(["two"])" ) + "\r\n" + request( "echo", R"(["three"])" ) );
      client.sendsNoMore(); // which ends the last line
      EXPECT_NE( client.line().find( "one" ), std::string::npos );
      EXPECT_NE( client.line().find( "two" ), std::string::npos );
      EXPECT_NE( client.line().find( "three" ), std::string::npos );
      EXPECT_TRUE( client.ends() );
   } );
   EXPECT_TRUE( world.log.empty() );
}

TEST( ControlRequests, ListEveryCommandWithItsArguments ) {
   ControlWorld world;
   world.serve();
   Value list;
   world.during( [&] { list = world.client().call( "list" ).value(); } );
   EXPECT_EQ(
      list,
      Rex::Value( Value::List{
         Value::Object{ { "name", "list" },
                        { "does", "every command with its arguments" },
                        { "arguments", Value::List() },
                        { "changes", false } },
         Value::Object{ { "name", "echo" },
                        { "does", "what it is given" },
                        { "arguments",
                          Value::List{ Value::Object{
                             { "name", "text" }, { "type", "text" }, { "optional", false }, { "what", "any" } } } },
                        { "changes", false } },
         Value::Object{
            { "name", "set" },
            { "does", "changes a number" },
            { "arguments",
              Value::List{ Value::Object{
                 { "name", "to" }, { "type", "number" }, { "optional", false }, { "what", "the number" } } } },
            { "changes", true } } } ) );
}

TEST( ControlRequests, thatChangeSomethingAreForTheOwnerAndRoot ) {
   for ( auto const & [user, may] : std::map< uid_t, bool >{ { ::geteuid(), true }, { 0, true }, { 54321, false } } ) {
      ControlWorld world;
      world.options.peerOf = [who = user]( int ) { return Peer{ .process = 1, .user = who }; };
      world.serve();
      std::string looked;
      std::string changed;
      world.during( [&] {
         auto client = world.raw();
         changed = client.ask( request( "set", "[7]" ) );
         looked = client.ask( request( "echo", R"(["a"])" ) );
      } );
      EXPECT_EQ( world.number.has_value(), may ) << user;
      EXPECT_EQ( looked, R"({"jsonrpc": "2.0", "id": 1, "result": "a"})" );
      if ( !may ) {
         EXPECT_EQ( changed,
                    error( -32001, "set changes the agent: only its owner and root may; this is user 54321" ) );
      }
   }
}

// The kernel tells who it is, not the client.
TEST( ControlRequests, ofAnotherUserOfTheGroupMayLookAndChangeNothing ) {
   if ( ::geteuid() != 0 ) {
      GTEST_SKIP() << "only root can become another user";
   }
   ControlWorld world;
   std::filesystem::permissions( world.folder / ".", std::filesystem::perms( 0711 ) );
   world.serve();
   ASSERT_EQ( ::chown( world.options.path.c_str(), 0, 54321 ), 0 );
   auto const asUser = [&]( gid_t group ) {
      pid_t const child = ::fork();
      if ( child == 0 ) {
         bool const is = ::setresgid( group, group, group ) == 0 && ::setresuid( 54321, 54321, 54321 ) == 0;
         int seen = is ? 0 : 8;
         try {
            auto client = world.raw();
            seen += client.ask( request( "echo", R"(["a"])" ) ).find( "result" ) != std::string::npos ? 1 : 0;
            seen += client.ask( request( "set", "[7]" ) ).find( "-32001" ) != std::string::npos ? 2 : 0;
         } catch ( Inspection::InputError const & error ) {
            seen = std::string( error.what() ).find( "no permission to connect" ) != std::string::npos ? 4 : 5;
         }
         ::_exit( seen );
      }
      int status = 0;
      world.turnsUntil( [&] { return ::waitpid( child, &status, WNOHANG ) == child; } );
      return WEXITSTATUS( status );
   };
   EXPECT_EQ( asUser( 54321 ), 1 + 2 );
   EXPECT_EQ( asUser( 54322 ), 4 );
   EXPECT_FALSE( world.number );
}

} // namespace
