// A saved scenario begins where the run ended: played without events, it ends in the same chips, controls and state.
//
// RC_PARAMS="max_success=1000" tries a thousand random runs instead of a hundred.
#include "BuildFolder.h"
#include "inspection/AnyScenario.h"
#include "inspection/FileDifferences.h"
#include "inspection/KnownMemories.h"
#include "inspection/Play.h"
#include "inspection/files/SavedScenario.h"
#include "l3sm/Command.h"
#include "rex/Log.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

// What a run leaves: the scenario that begins there, and its whole state, with what the plug-in publishes.
struct Left {
   std::string saved;
   std::string state;
   bool isFine;
   std::string errors;
};

Left playOf( Scenario const & scenario ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      Simulator::SimulatedSwitch sw( scenario.description );
      play( scenario, sw );
      writeScenario( out, savedScenario( scenario, sw ) );
      out << '\f' << toJson( sw.state().value(), 9 );
   } );
   std::istringstream in( child.output );
   Left left{ {}, {}, child.isFine, child.errors };
   for ( auto * const part : { &left.saved, &left.state } ) {
      std::getline( in, *part, '\f' );
   }
   return left;
}

Left again( Left const & left ) {
   return playOf( scenarioOf( parseJson( left.saved, "saved" ), "saved" ) );
}

// Whether a start is known not to bring it back. Of tables that a start shows, of statuses the attributes that are
// named.
bool isKnown( Difference const & it, std::string_view field ) {
   bool const isControl = it.table == Difference::controls;
   auto const * const known = knownMemory( it.table, isControl ? it.place : field );
   return known && ( isControl || known->atRestart );
}
bool isKnown( PathDifference const & it ) {
   auto const * const known = knownMemory( "published", it.value.name );
   bool const isNamed = known && known->field == it.value.name;
   return it.path.starts_with( "managed/" ) || ( isNamed && it.path.find( "/intfStatus" ) != std::string::npos );
}

// What differs at the ends of two runs, as `l3sm diff` has it, without what is known to remember.
std::string differences( Left const & left, Left const & after ) {
   Folder const folder;
   std::ostringstream text;
   auto const ofSaved = differencesOf( { .a = folder.file( "a", left.saved ), .b = folder.file( "b", after.saved ) } );
   auto const ofState = differencesOf( { .a = folder.file( "c", left.state ), .b = folder.file( "d", after.state ) } );
   for ( Difference const & it : ofSaved.chips ) {
      for ( ValueDifference const & value : it.values ) {
         if ( !isKnown( it, value.name ) ) {
            text << "FAP " << it.fap << ' ' << it.table << ' ' << it.place << ' ' << value.name << '\n';
         }
      }
   }
   for ( auto const * const values : { &ofSaved.values, &ofState.values } ) {
      for ( PathDifference const & it : *values ) {
         if ( !isKnown( it ) ) {
            text << it.path << ' ' << it.value.name << '\n';
         }
      }
   }
   return text.str();
}

TEST( RoundTrip, endsWhereEveryExampleEnded ) {
   for ( auto const & file : exampleScenarios() ) {
      SCOPED_TRACE( file );
      Left const left = playOf( readScenario( file ) );
      Left const after = again( left );
      EXPECT_TRUE( left.isFine && after.isFine );
      EXPECT_EQ( differences( left, after ), "" );
   }
}

TEST( RoundTrip, endsWhereAnyRunEnded ) {
   EXPECT_TRUE( rc::check( [] {
      Scenario const scenario = anyScenario();
      Left const left = playOf( scenario );
      RC_PRE( left.isFine ); // some toggles and inputs together end the process by design
      Left const after = again( left );
      std::string const different = differences( left, after );
      std::ostringstream text;
      writeScenario( text, scenario );
      RC_LOG() << text.str() << different << after.errors;
      RC_ASSERT( after.isFine );
      RC_ASSERT( different == "" );
   } ) );
}

} // namespace
