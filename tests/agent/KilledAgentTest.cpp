// An agent that is killed at any moment, in the middle of an event too, and whose chips outlive it: in the end they are
// those of an agent that was never killed, but for what is known to remember.
//
// L3SM_KILLS=N kills it N times instead of 20.
#include "RandomTransactions.h"
#include "l3sm/Command.h"

namespace {

using namespace RandomTransactions;

TEST( KilledAgent, endsWithTheChipsOfOneThatWasNeverKilled ) {
   char const * const asked = std::getenv( "L3SM_KILLS" );
   std::size_t const kills = asked ? std::stoul( asked ) : 20;
   constexpr std::size_t eventsEach = 8;
   constexpr std::size_t longestWait = 30'000; // microseconds, in which an agent starts or plays some events
   std::string const theSwitch = switchOf( { ChipType::BCM88690_B0 } );
   Scenario const told = toldScenario( { { "Linecard3", theSwitch } }, kills * eventsEach );
   Folder const folder;
   RedisServer server;
   auto const store = Live::stateStoreAt( server.url(), {}, 1 );
   Live::StateWriter writer( *store );
   store->load( Live::stateOfFile( folder.file( "state.json", toJson( told.state, 1 ) ) ) );
   ServedAgent killed( folder, "Linecard3", theSwitch, server.url(), { "--chips-file", folder / "chips" } );
   ServedAgent other( folder, "Linecard4", theSwitch, server.url() );
   ASSERT_TRUE( killed.isSoon( "running" ) ) << killed.log();
   ASSERT_TRUE( other.isSoon( "running" ) ) << other.log();
   auto const choose = chanceOf( 11 );
   std::size_t count = 0;
   for ( Event const & event : told.events ) {
      writer.write( event );
      if ( choose( eventsEach / 2 ) == 0 && count < kills ) {
         ::usleep( static_cast< useconds_t >( choose( longestWait ) ) );
         killed.dies();
         killed.starts();
         ++count;
      }
   }
   EXPECT_GE( count, kills / 2 );
   SCOPED_TRACE( other.output( "state wait --timeout 60 --database " + server.url() ) );
   ASSERT_TRUE( killed.isSoon( "running" ) ) << killed.log();
   EXPECT_EQ( unknownDifferences( folder, killed.ctl( "show" ), other.ctl( "show" ) ), "" ) << killed.log();
   EXPECT_NE( killed.ctl( "audit run" ).find( "\"mismatches\": 0" ), std::string::npos ) << killed.log();
}

struct RestartedAgent : testing::TestWithParam< std::string > {};

// Each example is played through the database; then its agent is killed, and starts on the chips and the state that
// are there.
TEST_P( RestartedAgent, changesNothingOnItsChipsButWhatIsKnownToRemember ) {
   auto const path = std::string( L3SM_SOURCE_DIR "/examples/" ) + GetParam() + ".json";
   Scenario const example = readScenario( path );
   Folder const folder;
   RedisServer server;
   auto const store = Live::stateStoreAt( server.url(), {}, 1 );
   store->load( Live::stateOfFile( path ) );
   ServedAgent agent( folder,
                      "Linecard3",
                      toJson( valueOf( example, Parts::withoutEvents ), 0 ),
                      server.url(),
                      { "--chips-file", folder / "chips" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   Live::StateWriter writer( *store );
   for ( Event const & event : example.events ) {
      if ( event.kind != Event::Kind::fault ) {
         writer.write( event );
      }
   }
   agent.output( "state wait --timeout 60 --database " + server.url() );
   auto const before = agent.ctl( "show" );
   agent.dies();
   agent.starts();
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const metrics = agent.output( "ctl --socket '" + agent.socket() + "' metrics" );
   bool const isUntouched = metrics.find( "\nl3sm_start_changing_writes 0\n" ) != std::string::npos;
   bool const isKnown = agent.log().find( "; known: " ) != std::string::npos;
   EXPECT_NE( isUntouched, isKnown ) << agent.log();
   EXPECT_EQ( isUntouched, agent.ctl( "show" ) == before );
   for ( std::string const & line : linesOf( agent.log() ) ) {
      EXPECT_EQ( line.find( "the start has another value" ) == std::string::npos,
                 line.find( "; known: " ) == std::string::npos )
         << line;
   }
   EXPECT_EQ( isKnown, GetParam() == "gue" );
}

INSTANTIATE_TEST_SUITE_P( Examples, RestartedAgent, testing::ValuesIn( exampleNames() ), NameOfExample() );

} // namespace
