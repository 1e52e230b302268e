#include "inspection/files/Scenario.h"

#include "inspection/files/BuiltInScenario.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/views/Progress.h"
#include "simulator/TableMap.h"

namespace Inspection {

namespace {

using Rex::below;
using Rex::Value;
using Rex::ValueError;

Simulator::FapDescription fapFromValue( Value const & value ) {
   using Hardware::Dace::FapRevision;
   Simulator::FapDescription fap;
   Fields fields( value );
   fap.fapId = fields.required< Hardware::Dace::FapId >( "fapId" );
   fap.name = fields.optional< std::string >( "name", "" );
   fields.with( "cores", [&]( Value const & cores ) { fap.cores = Rex::Codec< U16 >::fromValue( cores ); } );
   fields.with( "ports", [&]( Value const & ports ) {
      forEachMember( ports, [&]( std::string const & key, Value const & port ) {
         fap.ports[Rex::Codec< U16 >::fromKey( key )] = Rex::Codec< U16 >::fromValue( port );
      } );
   } );
   auto const & revision = fields.required( "revision" );
   below( "revision", [&] {
      Fields( revision ).required( "chipType" );
      fap.revision = Rex::Codec< FapRevision >::fromValue( revision );
   } );
   fields.end();
   return fap;
}

std::vector< Simulator::FapDescription > fapsFromValue( Value const & value ) {
   std::vector< Simulator::FapDescription > faps;
   for ( auto const & part : listOf( value ) ) {
      auto const place = std::to_string( faps.size() );
      auto const fap = below( place, [&] { return fapFromValue( part ); } );
      for ( auto const & other : faps ) {
         if ( other.fapId == fap.fapId ) {
            throw ValueError( "/" + place + "/fapId",
                              "there is a FAP " + std::to_string( fap.fapId.value() ) + " already" );
         }
      }
      faps.push_back( fap );
   }
   if ( faps.empty() ) {
      throw ValueError( "", "a switch has at least one FAP" );
   }
   return faps;
}

void readSwitch( Value const & value, Simulator::SwitchDescription & description ) {
   Fields fields( value );
   fields.with( "slice", [&]( Value const & slice ) {
      Fields sliceFields( slice );
      description.sliceName = sliceFields.optional( "name", description.sliceName );
      sliceFields.end();
   } );
   auto const & faps = fields.required( "faps" );
   description.faps = below( "faps", [&] { return fapsFromValue( faps ); } );
   fields.end();
}

Toggle::Settings togglesFromValue( Value const & value ) {
   Toggle::Settings toggles;
   forEachMember( value, [&]( std::string const & file, Value const & states ) {
      forEachMember( states, [&]( std::string const & name, Value const & state ) {
         toggles[file][name] = Rex::Codec< bool >::fromValue( state );
      } );
   } );
   return toggles;
}

Event eventFromValue( Value const & value, U32 number ) {
   Event event{ number, Event::Kind::set, {}, {}, {}, {} };
   Fields kinds( value );
   bool const isSet = kinds.find( "set" );
   bool const isDelete = kinds.find( "delete" );
   kinds.end();
   if ( isSet == isDelete ) {
      throw ValueError( "", "an event is either {\"set\": {...}} or {\"delete\": {...}}" );
   }
   event.kind = isSet ? Event::Kind::set : Event::Kind::remove;
   std::string const kind = isSet ? "set" : "delete";
   below( kind, [&] {
      Fields fields( *kinds.find( kind ) );
      event.path = fields.required< std::string >( "path" );
      if ( isSet ) {
         event.attribute = fields.required< std::string >( "attribute" );
         event.value = fields.required( "value" );
      }
      for ( auto const & [name, member] :
            { std::pair( "attribute", &event.attribute ), std::pair( "key", &event.key ) } ) {
         if ( fields.find( name ) ) {
            *member = fields.required< std::string >( name );
         }
      }
      fields.end();
      if ( !isSet && event.attribute.has_value() != event.key.has_value() ) {
         throw ValueError( "", "to delete an entry takes \"attribute\" and \"key\", to delete an entity neither" );
      }
   } );
   return event;
}

Scenario scenarioFromValue( Value const & value ) {
   Scenario scenario;
   Fields fields( value );
   scenario.name = fields.optional< std::string >( "name", "" );
   auto const & theSwitch = fields.required( "switch" );
   below( "switch", [&] { readSwitch( theSwitch, scenario.description ); } );
   fields.with( "toggles",
                [&]( Value const & toggles ) { scenario.description.toggles = togglesFromValue( toggles ); } );
   fields.with( "chips", [&]( Value const & chips ) {
      forEachMember( chips, [&]( std::string const & key, Value const & contents ) {
         scenario.chips[Rex::Codec< U16 >::fromKey( key )] = contentsFromValue( contents );
      } );
   } );
   fields.with( "state", [&]( Value const & state ) { scenario.state = objectOf( state ); } );
   fields.with( "events", [&]( Value const & events ) {
      for ( auto const & event : listOf( events ) ) {
         auto const index = static_cast< U32 >( scenario.events.size() );
         scenario.events.push_back(
            below( std::to_string( index ), [&] { return eventFromValue( event, index + 1 ); } ) );
      }
   } );
   fields.end();
   return scenario;
}

} // namespace

Scenario scenarioOf( Value const & value, std::string const & file ) {
   Scenario scenario = inFile( file, [&] { return scenarioFromValue( value ); } );
   scenario.file = file;
   scenario.document = value;
   scenario.document.object()->erase( "events" );
   // Played without a plug-in, whatever doesn't fit shows itself before the first chip is programmed.
   auto description = scenario.description;
   description.journalled = Simulator::SwitchDescription::Journalled::none;
   Simulator::SimulatedSwitch rehearsal( description );
   scenario.prepare( rehearsal );
   Progress progress( "checking events" );
   for ( auto const & event : scenario.events ) {
      progress.stands( event.number, scenario.events.size() );
      scenario.play( rehearsal, event );
   }
   return scenario;
}

std::string Event::text() const {
   std::string out = ( kind == Kind::set ? "set " : "delete " ) + path;
   out += attribute ? " " + *attribute : "";
   out += key ? "[" + *key + "]" : "";
   out += kind == Kind::set ? " = " + Rex::toText( value ) : "";
   return out;
}

Rex::Value Scenario::begin() const {
   Value::Object value = *document.object();
   Value::Object toggles;
   for ( auto const & [toggleFile, states] : description.toggles ) {
      Value::Object of;
      for ( auto const & [toggle, isOn] : states ) {
         of.emplace( toggle, isOn );
      }
      toggles.emplace( toggleFile, std::move( of ) );
   }
   value["toggles"] = std::move( toggles );
   return value;
}

Simulator::FapDescription const & Scenario::fap( U16 number ) const {
   for ( auto const & fap : description.faps ) {
      if ( fap.fapId.value() == number ) {
         return fap;
      }
   }
   throw InputError( file + ": /chips/" + std::to_string( number ), "the switch has no such FAP" );
}

void Scenario::fillChips( Simulator::ChipDriver & driver ) const {
   for ( auto const & [number, contents] : chips ) {
      auto const & of = fap( number );
      auto const place = "/chips/" + std::to_string( number );
      auto & chip = *driver.chip( of.fapId );
      try {
         apply( contents.tables, chip, of.revision.chipType(), place );
      } catch ( Simulator::ContentsError const & error ) {
         throw InputError( file, error.what() );
      }
      for ( auto const & [control, value] : contents.controls ) {
         chip.controlIs( control, value );
      }
   }
}

void Scenario::prepare( Simulator::SimulatedSwitch & sw ) const {
   fillChips( sw.driver() );
   inFile( file, [&] {
      for ( auto const & [path, attributes] : state ) {
         try {
            if ( attributes.isNull() ) {
               sw.deleteEntity( path );
            } else {
               sw.setAttributes( path, attributes );
            }
         } catch ( ValueError const & error ) {
            // A place in {"path", "value"}, and here the one is the key of the other.
            auto const inValue = error.place().starts_with( "/value" );
            throw ValueError( inValue ? error.place().substr( 6 ) : "", error.what() ).below( path ).below( "state" );
         }
      }
   } );
}

void Scenario::play( Simulator::SimulatedSwitch & sw, Event const & event ) const {
   inFile( file, [&] {
      auto const isSet = event.kind == Event::Kind::set;
      try {
         if ( isSet && event.key ) {
            sw.setEntry( event.path, *event.attribute, *event.key, event.value );
         } else if ( isSet ) {
            sw.set( event.path, *event.attribute, event.value );
         } else if ( event.attribute ) {
            sw.deleteEntry( event.path, *event.attribute, *event.key );
         } else {
            sw.deleteEntity( event.path );
         }
      } catch ( ValueError const & error ) {
         throw error.below( isSet ? "set" : "delete" ).below( std::to_string( event.number - 1 ) ).below( "events" );
      }
   } );
}

Scenario readScenario( std::string const & path ) {
   return scenarioOf( readJson( path ), path );
}

Scenario builtInScenario() {
   return scenarioOf( parseJson( exampleText, "the built-in example" ), "the built-in example" );
}

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

Value valueOf( Event const & event ) {
   Value::Object object{ { "path", event.path } };
   for ( auto const & [name, member] :
         { std::pair( "attribute", &event.attribute ), std::pair( "key", &event.key ) } ) {
      if ( *member ) {
         object[name] = **member;
      }
   }
   if ( event.kind == Event::Kind::set ) {
      object["value"] = event.value;
   }
   return Value::Object{ { event.kind == Event::Kind::set ? "set" : "delete", std::move( object ) } };
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

void toggleIs( Toggle::Settings & toggles, std::string const & text ) {
   auto const colon = text.find( ':' );
   auto const equals = text.rfind( '=' );
   auto const state = equals == std::string::npos ? "" : text.substr( equals + 1 );
   bool const hasForm = colon != std::string::npos && colon > 0 && equals != std::string::npos && equals > colon + 1;
   if ( !hasForm || ( state != "on" && state != "off" ) ) {
      throw InputError( "--toggle " + text,
                        "expected FILE:NAME=on or FILE:NAME=off, as in Dace.json:ArmOrderedSwTable=off" );
   }
   toggles[text.substr( 0, colon )][text.substr( colon + 1, equals - colon - 1 )] = state == "on";
}

} // namespace Inspection
