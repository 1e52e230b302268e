// The state of an agent: looked at, and, where it follows no other database, changed.
#include "agent/control/AgentCommands.h"

#include "agent/database/EmbeddedDatabase.h"
#include "inspection/files/Json.h"
#include "inspection/files/ScenarioReading.h"
#include "inspection/views/Terminal.h"

namespace Live {

namespace {

using Inspection::Event;
using Rex::Value;

EmbeddedDatabase & own( AgentSubjects const & subjects ) {
   if ( !subjects.embedded ) {
      throw CommandError( CommandError::refused,
                          "the agent follows " + subjects.agent.database().name() +
                             ", where its state is changed: l3sm state" );
   }
   return *subjects.embedded;
}

Answer transacted( AgentSubjects const & subjects, std::vector< Event > changes ) {
   auto & database = own( subjects );
   auto const count = changes.size();
   database.transact( std::move( changes ) );
   return Inspection::counted( count, "change", "changes" );
}

// What of the state lies at a path and below it, of all of it.
Value::Object below( Value::Object all, std::string const & path ) {
   std::erase_if( all, [&]( auto const & it ) { return !Rex::isAtOrBelow( it.first, path ); } );
   return all;
}

Answer stateAt( SliceAgent const & agent, std::optional< std::string > const & path ) {
   return LongAnswer{ [&agent, path]( std::ostream & out ) {
      Value const all = agent.sw().state().value();
      if ( !path ) {
         out << Inspection::toJson( all, 2 );
         return;
      }
      auto const here = below( *all.object(), *path );
      if ( !here.empty() ) {
         out << Inspection::toJson( here, 2 );
         return;
      }
      auto const entity = agent.sw().state().entity( *path ); // Rex::ValueError
      if ( !entity ) {
         throw Inspection::InputError( *path, "nothing stands there" );
      }
      out << Inspection::toJson( Value::Object{ { *path, entity->value() } }, 2 );
   } };
}

} // namespace

std::vector< Event > eventsOf( Value const & list ) {
   return Arguments::reading( "events", [&] { return Inspection::eventsIn( list ); } );
}

void addStateCommands( Commands & commands, AgentSubjects const & subjects ) {
   commands.add( { .name = "state",
                   .does = "the state as the plug-in sees it, all of it or what is at a path and below",
                   .arguments = { { .name = "path", .isOptional = true, .what = "a path of the state" } },
                   .answer = [subjects]( Arguments const & given ) {
                      return stateAt( subjects.agent, given.optional< std::string >( "path" ) );
                   } } );
   commands.add( { .name = "state set",
                   .does = "set an attribute, where the agent has no other database",
                   .arguments = { { .name = "path", .what = "a path of the state" },
                                  { .name = "attribute", .what = "an attribute there" },
                                  { .name = "value", .type = Argument::Type::value, .what = "as JSON" },
                                  { .name = "key", .isOptional = true, .what = "of a member of the attribute" } },
                   .changes = true,
                   .answer = [subjects]( Arguments const & given ) -> Answer {
                      Event event{ .number = 1,
                                   .path = given.required< std::string >( "path" ),
                                   .attribute = given.required< std::string >( "attribute" ),
                                   .key = given.optional< std::string >( "key" ),
                                   .value = given.value( "value" ) };
                      return transacted( subjects, { std::move( event ) } );
                   } } );
   commands.add( { .name = "state delete",
                   .does = "delete what is at a path, or a member of an attribute there",
                   .arguments = { { .name = "path", .what = "a path of the state" },
                                  { .name = "attribute", .isOptional = true, .what = "an attribute there" },
                                  { .name = "key", .isOptional = true, .what = "of a member of the attribute" } },
                   .changes = true,
                   .answer = [subjects]( Arguments const & given ) -> Answer {
                      Event event{ .number = 1,
                                   .kind = Event::Kind::remove,
                                   .path = given.required< std::string >( "path" ),
                                   .attribute = given.optional< std::string >( "attribute" ),
                                   .key = given.optional< std::string >( "key" ) };
                      return transacted( subjects, { std::move( event ) } );
                   } } );
   commands.add( { .name = "state apply",
                   .does = "play events of a scenario, each a transaction; those before a wrong one have been played",
                   .arguments = { { .name = "events",
                                    .type = Argument::Type::value,
                                    .what = "a list of events as a scenario has them" } },
                   .changes = true,
                   .answer = [subjects]( Arguments const & given ) -> Answer {
                      auto & database = own( subjects );
                      auto const events = eventsOf( given.value( "events" ) );
                      for ( Event const & event : events ) {
                         Arguments::reading( "events/" + std::to_string( event.number - 1 ),
                                             [&] { database.transact( changesOf( event ) ); } );
                      }
                      return Inspection::counted( events.size(), "event", "events" );
                   } } );
}

} // namespace Live
