#include "agent/database/StateFile.h"

#include "inspection/files/FileKind.h"
#include "inspection/files/Rehearsal.h"
#include "inspection/files/ScenarioReading.h"

#include <algorithm>

namespace Live {

namespace {

using namespace Inspection;
using Rex::Value;
using Simulator::StateRoot;

bool isOthers( std::string const & path ) {
   if ( path.starts_with( "managed/" ) ) {
      return true;
   }
   auto const root = std::ranges::find( Simulator::stateRoots(), path, &StateRoot::path );
   return root != Simulator::stateRoots().end() && root->kind != StateRoot::Kind::state;
}

Value::Object checkedState( JsonText text ) {
   Value value = text.take();
   if ( !value.object() ) {
      throw InputError( text.name(), "expected an object of paths" );
   }
   Value::Object state = std::move( *value.object() );
   std::erase_if( state, []( auto const & part ) { return isOthers( part.first ); } );
   text.reading( [&] { Rehearsal( {} ).state( state ); } );
   return state;
}

} // namespace

// What is no state file is to be a scenario.
Value::Object stateIn( std::string const & path ) {
   auto text = readFile( path );
   if ( kindOf( text ) == FileKind::state ) {
      return checkedState( { inputName( path ), std::move( text ) } );
   }
   return path == "-" ? scenarioOf( parseJson( std::move( text ), inputName( path ) ), inputName( path ) ).state
                      : readScenario( path ).state;
}

Paths stateOfFile( std::string const & path ) {
   Value::Object const state = stateIn( path );
   std::string const name = inputName( path );
   Paths paths = inFile( name, [&] { return flattened( state ); } );
   for ( StateRoot const & root : Simulator::stateRoots() ) {
      if ( root.kind == StateRoot::Kind::state && !placeOf( root.path() ).entries ) {
         paths.try_emplace( root.path() );
      }
   }
   return paths;
}

// Whether an event fits is judged by the state that it comes to, not by the file's.
std::vector< Event > eventsOfFile( std::string const & path ) {
   JsonText text( inputName( path ), readFile( path ) );
   Value const value = text.take();
   std::vector< Event > events;
   text.reading( [&] {
      auto const * const object = value.object();
      if ( value.list() ) {
         events = eventsIn( value );
      } else if ( object && object->contains( "events" ) ) {
         Rex::below( "events", [&] { events = eventsIn( object->at( "events" ) ); } );
      } else {
         throw Rex::ValueError( "", "expected a scenario with \"events\", or a list of events" );
      }
   } );
   return events;
}

} // namespace Live
