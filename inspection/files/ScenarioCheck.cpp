#include "inspection/files/BuiltInScenario.h"
#include "inspection/files/Contradictions.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/Rehearsal.h"
#include "inspection/files/ScenarioReading.h"
#include "inspection/views/Progress.h"

#include <algorithm>
#include <charconv>

namespace Inspection {

namespace {

using Fault = JsonText::Fault;
using Rex::Value;
using Rex::ValueErrors;

constexpr std::string_view eventList = "/events/";

// The number of the event that a place is in, as every answer counts it, and the place seen from there. None where what
// should be the list of events is something else.
std::optional< std::pair< U32, std::string > > eventOf( std::string const & place ) {
   if ( !place.starts_with( eventList ) ) {
      return std::nullopt;
   }
   auto const rest = place.substr( eventList.size() );
   auto const end = std::min( rest.find( '/' ), rest.size() );
   U32 index = 0;
   auto const read = std::from_chars( rest.data(), rest.data() + end, index );
   if ( read.ec != std::errc() || read.ptr != rest.data() + end ) {
      return std::nullopt;
   }
   return std::pair( index + 1, rest.substr( end ) );
}

std::string said( Fault const & fault ) {
   std::string where = fault.place;
   if ( auto const event = eventOf( fault.place ) ) {
      where = "event " + std::to_string( event->first ) + ( event->second.empty() ? "" : ", " + event->second );
   }
   return where.empty() ? fault.text : where + ": " + fault.text;
}

void readEvents( Value::List & values, Scenario & scenario, Rehearsal & rehearsal, ValueErrors & errors ) {
   Progress progress( "checking events" );
   scenario.events.reserve( values.size() );
   for ( auto & value : values ) {
      auto const index = std::to_string( scenario.events.size() );
      Event & event = scenario.events.emplace_back();
      event.number = static_cast< U32 >( scenario.events.size() );
      progress.stands( event.number, values.size() );
      if ( errors.below( index, [&] { readEvent( value, event ); } ) ) {
         errors.below( index, [&] { Rex::below( event.word(), [&] { rehearsal.event( event ); } ); } );
      } else {
         rehearsal.isWithout( event );
      }
      value = Value(); // it isn't needed any more
   }
}

Scenario scenarioFrom( JsonText text ) {
   Scenario scenario;
   scenario.file = text.name();
   Value value = text.take();
   ValueErrors errors;
   errors.of( [&] { readParts( value, scenario ); } );
   Rehearsal rehearsal( scenario.description );
   bool const hasSwitch =
      !scenario.description.faps.empty() &&
      std::ranges::none_of( errors.faults(), []( auto const & it ) { return it.place.starts_with( "/switch" ); } );
   if ( hasSwitch ) { // or nobody knows what is missing
      errors.below( "chips", [&] { rehearsal.chips( scenario.chips, scenario.description.faps ); } );
   }
   errors.below( "state", [&] { rehearsal.state( scenario.state ); } );
   auto * const object = value.object();
   if ( object && object->contains( "events" ) ) {
      errors.below( "events", [&] {
         auto & events = object->at( "events" );
         listOf( events );
         ValueErrors wrong;
         readEvents( *events.list(), scenario, rehearsal, wrong );
         wrong.end();
      } );
   }
   if ( auto faults = text.with( errors.faults() ); !faults.empty() ) {
      throw refusalOf( text.placed( std::move( faults ) ), said );
   }
   for ( auto & [place, fault] : text.placed( contradictionsIn( scenario ) ) ) {
      auto const event = eventOf( fault.place );
      scenario.warnings.push_back( { place, fault.text, event ? std::optional( event->first ) : std::nullopt } );
   }
   return scenario;
}

} // namespace

Scenario readScenario( std::string const & path ) {
   auto text = readFile( path );
   auto const kind = kindOf( text );
   std::string const another = notA( FileKind::scenario, text );
   try {
      return scenarioFrom( { inputName( path ), std::move( text ) } );
   } catch ( InputError const & ) {
      for ( auto const other : { FileKind::journal,
                                 FileKind::chips,
                                 FileKind::state,
                                 FileKind::page,
                                 FileKind::binary,
                                 FileKind::recording } ) {
         if ( kind == other ) { // which has nothing of a scenario
            throw InputError( inputName( path ), another );
         }
      }
      throw;
   }
}

Scenario builtInScenario() {
   return scenarioFrom( { "the built-in example", std::string( exampleText ) } );
}

Scenario scenarioOf( Value value, std::string const & file ) {
   return scenarioFrom( { file, std::move( value ) } );
}

} // namespace Inspection
