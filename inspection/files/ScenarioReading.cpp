#include "inspection/files/ScenarioReading.h"

#include "inspection/files/ChipsFile.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;
using Rex::ValueError;
using Rex::ValueErrors;

[[noreturn]] void refuseKey( std::string const & text ) {
   throw ValueError( { "", text, true } );
}

Simulator::FapDescription fapFromValue( Value const & value ) {
   using Hardware::Dace::FapRevision;
   Simulator::FapDescription fap;
   ValueErrors errors;
   Fields fields( value );
   errors.of( [&] { fap.fapId = fields.required< Hardware::Dace::FapId >( "fapId" ); } );
   errors.of( [&] { fap.name = fields.optional< std::string >( "name", "" ); } );
   errors.of( [&] {
      fields.with( "cores", [&]( Value const & cores ) { fap.cores = Rex::Codec< U16 >::fromValue( cores ); } );
   } );
   errors.of( [&] {
      fields.with( "ports", [&]( Value const & ports ) {
         forEachMember( ports, [&]( std::string const & key, Value const & port ) {
            fap.ports[Rex::Codec< U16 >::fromKey( key )] = Rex::Codec< U16 >::fromValue( port );
         } );
      } );
   } );
   errors.of( [&] { fap.revision = fields.required< FapRevision >( "revision" ); } );
   errors.of( [&] { fields.end(); } );
   errors.end();
   return fap;
}

void readFaps( Value const & value, std::vector< Simulator::FapDescription > & faps ) {
   ValueErrors errors;
   std::size_t index = 0;
   for ( auto const & part : listOf( value ) ) {
      errors.below( std::to_string( index++ ), [&] {
         auto fap = fapFromValue( part );
         if ( std::ranges::find( faps, fap.fapId, &Simulator::FapDescription::fapId ) != faps.end() ) {
            throw ValueError( "/fapId", "there is a FAP " + std::to_string( fap.fapId.value() ) + " already" );
         }
         faps.push_back( std::move( fap ) );
      } );
   }
   errors.end();
   if ( faps.empty() ) {
      throw ValueError( "", "a switch has at least one FAP" );
   }
}

void readSwitch( Value const & value, Simulator::SwitchDescription & description ) {
   ValueErrors errors;
   Fields fields( value );
   errors.of( [&] {
      fields.with( "slice", [&]( Value const & slice ) {
         Fields sliceFields( slice );
         description.sliceName = sliceFields.optional( "name", description.sliceName );
         sliceFields.end();
         if ( description.sliceName.empty() ) {
            throw ValueError( "/name", "a slice has a name" );
         }
      } );
   } );
   errors.of( [&] {
      auto const & faps = fields.required( "faps" );
      Rex::below( "faps", [&] { readFaps( faps, description.faps ); } );
   } );
   errors.of( [&] { fields.end(); } );
   errors.end();
}

void readToggles( Value const & value, Toggle::Settings & toggles ) {
   forEachMember( value, [&]( std::string const & file, Value const & states ) {
      if ( auto const wrong = wrongToggleFile( file ); !wrong.empty() ) {
         refuseKey( wrong );
      }
      forEachMember( states, [&]( std::string const & name, Value const & state ) {
         if ( auto const wrong = wrongToggle( file, name ); !wrong.empty() ) {
            refuseKey( wrong );
         }
         toggles[file][name] = Rex::Codec< bool >::fromValue( state );
      } );
   } );
}

} // namespace

void readParts( Value & value, Scenario & scenario ) {
   ValueErrors errors;
   Fields fields( value );
   fields.find( "events" );
   errors.of( [&] { fields.optional< std::string >( "$schema", "" ); } ); // for editors
   errors.of( [&] { scenario.name = fields.optional< std::string >( "name", "" ); } );
   errors.of( [&] {
      auto const & theSwitch = fields.required( "switch" );
      Rex::below( "switch", [&] { readSwitch( theSwitch, scenario.description ); } );
   } );
   errors.of( [&] {
      fields.with( "toggles", [&]( Value const & toggles ) { readToggles( toggles, scenario.description.toggles ); } );
   } );
   errors.of( [&] {
      fields.with( "chips", [&]( Value const & chips ) {
         forEachMember( chips, [&]( std::string const & key, Value const & contents ) {
            scenario.chips[Rex::Codec< U16 >::fromKey( key )] = contentsFromValue( contents );
         } );
      } );
   } );
   errors.of( [&] { fields.with( "state", []( Value const & state ) { objectOf( state ); } ); } );
   errors.of( [&] { fields.end(); } );
   if ( auto const state = value.object()->find( "state" ); state != value.object()->end() && state->second.object() ) {
      scenario.state = std::move( *state->second.object() );
   }
   errors.end();
}

std::vector< Event > eventsIn( Value const & list ) {
   std::vector< Event > events;
   ValueErrors errors;
   for ( Value const & value : listOf( list ) ) {
      Event & event = events.emplace_back();
      event.number = static_cast< U32 >( events.size() );
      errors.below( std::to_string( events.size() - 1 ), [&] { readEvent( value, event ); } );
   }
   errors.end();
   return events;
}

void readEvent( Value const & value, Event & event ) {
   Fields kinds( value );
   if ( auto const * const fault = kinds.find( "fault" ) ) {
      event.kind = Event::Kind::fault;
      kinds.end();
      event.fault = Rex::below( event.word(), [&] { return Simulator::faultOf( *fault ); } );
      return;
   }
   if ( auto const * const changes = kinds.find( "transaction" ) ) {
      event.kind = Event::Kind::transaction;
      kinds.end();
      Rex::below( event.word(), [&] {
         ValueErrors errors;
         for ( Value const & change : listOf( *changes ) ) {
            Event & read = event.changes.emplace_back( Event{ .number = event.number } );
            errors.below( std::to_string( event.changes.size() - 1 ), [&] {
               readEvent( change, read );
               if ( read.kind == Event::Kind::transaction || read.fault ) {
                  throw ValueError( "",
                                    std::string( "a transaction holds no " ) + ( read.fault ? "fault" : "other one" ) );
               }
            } );
         }
         errors.end();
         if ( event.changes.empty() ) {
            throw ValueError( "", "a transaction holds one change at least" );
         }
      } );
      return;
   }
   bool const isSet = kinds.find( "set" );
   bool const isDelete = kinds.find( "delete" );
   kinds.end();
   if ( isSet == isDelete ) {
      throw ValueError(
         "", "an event is {\"set\": {...}}, {\"delete\": {...}}, {\"transaction\": [...]}, or {\"fault\": {...}}" );
   }
   event.kind = isSet ? Event::Kind::set : Event::Kind::remove;
   std::string const kind = isSet ? "set" : "delete";
   Rex::below( kind, [&] {
      ValueErrors errors;
      Fields fields( *kinds.find( kind ) );
      errors.of( [&] { event.path = fields.required< std::string >( "path" ); } );
      if ( isSet ) {
         errors.of( [&] { event.attribute = fields.required< std::string >( "attribute" ); } );
         errors.of( [&] { event.value = fields.required( "value" ); } );
      }
      for ( auto const & [name, member] :
            { std::pair( "attribute", &event.attribute ), std::pair( "key", &event.key ) } ) {
         if ( !( isSet && member == &event.attribute ) ) {
            errors.of( [&, as = name, into = member] {
               fields.with( as, [&]( Value const & text ) { *into = Rex::Codec< std::string >::fromValue( text ); } );
            } );
         }
      }
      errors.of( [&] { fields.end(); } );
      if ( !isSet && event.attribute.has_value() != event.key.has_value() ) {
         errors.of( [] {
            throw ValueError( "", "to delete an entry takes \"attribute\" and \"key\", to delete an entity neither" );
         } );
      }
      errors.end();
   } );
}

} // namespace Inspection
