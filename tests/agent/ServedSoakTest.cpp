// Agents for a long time: random transactions, agents and servers that are killed, connections that are cut; and in the
// end their chips are those of a start from the state that the database has, but for what is known to remember.
//
// L3SM_SOAK=N writes N transactions instead of 150.
#include "Served.h"
#include "agent/RedisServer.h"
#include "agent/database/Databases.h"
#include "agent/database/StateFile.h"
#include "agent/database/StateWriter.h"
#include "inspection/FileDifferences.h"
#include "inspection/KnownMemories.h"
#include "inspection/Play.h"
#include "inspection/RandomScenario.h"
#include "inspection/files/ChipsWriter.h"
#include "inspection/files/SavedScenario.h"
#include "rex/Log.h"

namespace {

using namespace Inspection;
using Hardware::ChipType;

std::string switchOf( std::vector< ChipType > const & chips ) {
   Scenario scenario;
   for ( auto const chip : chips ) {
      Simulator::FapDescription fap{
         .fapId = Hardware::Dace::FapId( static_cast< U16 >( scenario.description.faps.size() ) ) };
      fap.revision = Hardware::Dace::FapRevision( Hardware::Dace::fapRevMajorOf( chip ), chip, 7 );
      scenario.description.faps.push_back( fap );
   }
   scenario.description.toggles["Dace.json"]["ArmOrderedSwTable"] = false; // or little is programmed
   auto value = valueOf( scenario, Parts::withoutEvents );
   return toJson( value, 0 );
}

// The chips after a start from where the events lead, without the plug-in's having seen any of them.
std::string chipsAfterStart( std::string const & theSwitch, Scenario const & told ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( L3SM_BINARY_DIR "/lib/libL3SmPlugin.so" );
      Scenario const scenario = scenarioOf( parseJson( theSwitch, "switch" ), "switch" );
      Simulator::SimulatedSwitch sw( scenario.description );
      for ( auto const & [path, attributes] : told.state ) {
         sw.change( [&, at = path, of = &attributes] { stateIs( sw.state(), at, *of ); } );
      }
      for ( Event const & event : told.events ) {
         sw.change( [&] { event.change( sw.state() ); } );
      }
      sw.start();
      writeChipsOf( sw, out );
   } );
   EXPECT_TRUE( child.isFine ) << child.errors;
   return child.output;
}

// The number of the first event that a run can't go on behind: it doesn't fit there, or ends the plug-in by design. 0:
// none.
// Nothing, where the state does that already.
std::optional< U32 > firstBad( std::string const & theSwitch, Scenario const & told ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( L3SM_BINARY_DIR "/lib/libL3SmPlugin.so" );
      Scenario scenario = scenarioOf( parseJson( theSwitch, "switch" ), "switch" );
      scenario.description.journalled = Simulator::SwitchDescription::Journalled::none;
      scenario.state = told.state;
      Simulator::SimulatedSwitch sw( scenario.description );
      scenario.prepare( sw );
      sw.start();
      for ( Event const & event : told.events ) {
         out << event.number << '\n' << std::flush;
         try {
            scenario.play( sw, event );
         } catch ( InputError const & ) {
            return;
         }
      }
      out << 0 << '\n';
   } );
   auto const lines = linesOf( child.output );
   return lines.empty() ? std::nullopt : std::optional( static_cast< U32 >( std::stoul( lines.back() ) ) );
}

// A state and events that every one of the switches lives through.
Scenario toldScenario( std::map< std::string, std::string > const & switches, std::size_t count ) {
   for ( U64 seed = 1;; ++seed ) {
      Scenario told = randomScenario(
         chanceOf( seed ), { .chipTypes = { ChipType::BCM88690_B0 }, .toggles = false, .mostEvents = count } );
      std::erase_if( told.events, []( Event const & event ) { // which stand where each plug-in publishes
         return event.path.starts_with( "shared/phySmStateSharedStatus" );
      } );
      for ( auto at = switches.begin(); at != switches.end(); ) {
         auto const bad = firstBad( at->second, told );
         if ( !bad ) {
            told.events.clear();
            break;
         }
         std::erase_if( told.events, [&]( Event const & event ) { return event.number == *bad; } );
         at = *bad ? switches.begin() : std::next( at );
      }
      if ( told.events.size() >= count / 2 ) {
         return told;
      }
   }
}

std::string unknownDifferences( Folder const & folder, std::string const & a, std::string const & b ) {
   std::ostringstream text;
   auto const all = differencesOf( { .a = folder.file( "a", a ), .b = folder.file( "b", b ) } );
   for ( Difference const & it : all.chips ) {
      for ( ValueDifference const & value : it.values ) {
         if ( !knownMemory( it.table, it.table == Difference::controls ? it.place : value.name ) ) {
            text << "FAP " << it.fap << ' ' << it.table << ' ' << it.place << ' ' << value.name << '\n';
         }
      }
   }
   return text.str();
}

TEST( ServedSoak, endsWithTheChipsOfAFreshStart ) {
   char const * const asked = std::getenv( "L3SM_SOAK" );
   std::size_t const count = asked ? std::stoul( asked ) : 150;
   std::map< std::string, std::string > const switches{
      { "Linecard3", switchOf( { ChipType::BCM88690_B0 } ) },
      { "Linecard4", switchOf( { ChipType::BCM88800_A0, ChipType::BCM88480_A0 } ) },
      { "Linecard7", switchOf( { ChipType::BCM88850_A0 } ) },
   };
   Scenario const told = toldScenario( switches, count );
   Folder const folder;
   RedisServer server;
   auto store = Live::stateStoreAt( server.url(), {}, 1 );
   store->load( Live::stateOfFile( folder.file( "state.json", toJson( told.state, 1 ) ) ) );
   std::map< std::string, std::unique_ptr< ServedAgent > > agents;
   for ( auto const & [slice, theSwitch] : switches ) {
      agents[slice] = std::make_unique< ServedAgent >( folder, slice, theSwitch, server.url() );
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
         server.ask( { "CLIENT", "KILL", "TYPE", "normal", "SKIPME", "yes" } );
         store = Live::stateStoreAt( server.url(), {}, 1 );
      }
   }
   std::string const waited = agents.begin()->second->output( "state wait --timeout 30 --database " + server.url() );
   SCOPED_TRACE( waited );
   for ( auto & [slice, agent] : agents ) {
      EXPECT_EQ( agent->phase(), "running" ) << slice << agent->log();
      EXPECT_EQ( unknownDifferences( folder, agent->ctl( "show" ), chipsAfterStart( switches.at( slice ), told ) ), "" )
         << slice;
      EXPECT_EQ( agent->endsBy( SIGTERM ), 0 ) << agent->log();
   }
}

} // namespace
