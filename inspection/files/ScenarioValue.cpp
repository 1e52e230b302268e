#include "inspection/files/ChipsFile.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

using Rex::Value;

namespace {

Value valueOf( Simulator::FapDescription const & fap ) {
   Value::Object object{ { "fapId", fap.fapId.value() },
                         { "revision", Rex::Codec< Hardware::Dace::FapRevision >::toValue( fap.revision ) } };
   if ( !fap.name.empty() ) {
      object["name"] = fap.name;
   }
   if ( fap.cores ) {
      object["cores"] = *fap.cores;
   }
   if ( !fap.ports.empty() ) {
      Value::Object ports;
      for ( auto const & [systemPort, port] : fap.ports ) {
         ports.emplace( std::to_string( systemPort ), port );
      }
      object["ports"] = std::move( ports );
   }
   return object;
}

Value valueOf( Toggle::Settings const & toggles ) {
   Value::Object files;
   for ( auto const & [file, states] : toggles ) {
      files.emplace( file, Value::Object( states.begin(), states.end() ) );
   }
   return files;
}

} // namespace

// Put together without copies: an agent does it for each of its events.
Value valueOf( Event const & event ) {
   Value::Object what;
   if ( event.fault ) {
      what.emplace( event.word(), Simulator::valueOf( *event.fault ) );
      return what;
   }
   if ( event.kind == Event::Kind::transaction ) {
      Value::List changes;
      for ( Event const & change : event.changes ) {
         changes.push_back( valueOf( change ) );
      }
      what.emplace( event.word(), std::move( changes ) );
      return what;
   }
   Value::Object change;
   change.emplace( "path", event.path );
   for ( auto const & [name, member] :
         { std::pair( "attribute", &event.attribute ), std::pair( "key", &event.key ) } ) {
      if ( *member ) {
         change.emplace( name, **member );
      }
   }
   if ( event.kind == Event::Kind::set ) {
      change.emplace( "value", event.value );
   }
   what.emplace( event.word(), std::move( change ) );
   return what;
}

Value valueOf( Scenario const & scenario, Parts parts ) {
   Value::List faps;
   for ( auto const & fap : scenario.description.faps ) {
      faps.push_back( valueOf( fap ) );
   }
   Value::Object chips;
   for ( auto const & [fap, contents] : scenario.chips ) {
      chips.emplace( std::to_string( fap ), valueOf( contents ) );
   }
   Value::Object object{
      { "name", scenario.name },
      { "switch",
        Value::Object{ { "slice", Value::Object{ { "name", scenario.description.sliceName } } },
                       { "faps", std::move( faps ) } } },
      { "toggles", valueOf( scenario.description.toggles ) },
      { "chips", std::move( chips ) },
      { "state", scenario.state },
   };
   if ( parts == Parts::all ) {
      Value::List events;
      for ( auto const & event : scenario.events ) {
         events.push_back( valueOf( event ) );
      }
      object["events"] = std::move( events );
   }
   return object;
}

} // namespace Inspection
