// Agents for a long time: random transactions, agents and servers that are killed, connections that are cut; and in the
// end their chips are those of a start from the state that the database has, but for what is known to remember.
//
// L3SM_SOAK=N writes N transactions instead of 150.
#include "RandomTransactions.h"
#include "agent/CentralServer.h"

namespace {

using namespace RandomTransactions;

struct ServedSoak : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
};

INSTANTIATE_TEST_SUITE_P( Every, ServedSoak, testing::ValuesIn( centralServers ), nameOfServer );

TEST_P( ServedSoak, endsWithTheChipsOfAFreshStart ) {
   char const * const asked = std::getenv( "L3SM_SOAK" );
   std::size_t const count = asked ? std::stoul( asked ) : 150;
   std::map< std::string, std::string > const switches{
      { "Linecard3", switchOf( { ChipType::BCM88690_B0 } ) },
      { "Linecard4", switchOf( { ChipType::BCM88800_A0, ChipType::BCM88480_A0 } ) },
      { "Linecard7", switchOf( { ChipType::BCM88850_A0 } ) },
   };
   Scenario const told = toldScenario( switches, count );
   Folder const folder;
   auto store = Live::stateStoreAt( server->url(), {}, 1 );
   store->load( Live::stateOfFile( folder.file( "state.json", toJson( told.state, 1 ) ) ) );
   std::map< std::string, std::unique_ptr< ServedAgent > > agents;
   for ( auto const & [slice, theSwitch] : switches ) {
      agents[slice] = std::make_unique< ServedAgent >( folder, slice, theSwitch, server->url() );
      ASSERT_TRUE( agents[slice]->isSoon( "running" ) ) << agents[slice]->log();
   }
   auto const choose = chanceOf( 7 );
   for ( Event const & event : told.events ) {
      Live::StateWriter( *store ).write( event );
      auto & one = *std::next( agents.begin(), static_cast< std::ptrdiff_t >( choose( agents.size() ) ) )->second;
      if ( choose( 40 ) == 0 ) {
         one.dies();
         one.starts();
      }
      if ( choose( 30 ) == 0 ) {
         server->cutsConnections();
         store = Live::stateStoreAt( server->url(), {}, 1 );
      }
   }
   std::string const waited = agents.begin()->second->output( "state wait --timeout 60 --database " + server->url() );
   SCOPED_TRACE( waited );
   for ( auto & [slice, agent] : agents ) {
      EXPECT_EQ( agent->phase(), "running" ) << slice << agent->log();
      EXPECT_EQ( unknownDifferences( folder, agent->ctl( "show" ), chipsAfterStart( switches.at( slice ), told ) ), "" )
         << slice;
      EXPECT_EQ( agent->endsBy( SIGTERM ), 0 ) << agent->log();
   }
}

} // namespace
