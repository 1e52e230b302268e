// Which facilities trace, and up to which level: changed while the agent runs. And what was traced last, whatever the
// levels.
#include "agent/control/AgentCommands.h"

#include "inspection/LastSteps.h"
#include "rex/Nearest.h"
#include "rex/Trace.h"

#include <algorithm>
#include <map>
#include <memory>

namespace Live {

namespace {

using Rex::Value;

constexpr std::int64_t off = -1;
constexpr char const * every = "*";

std::vector< std::string > facilities() {
   auto known = Rex::traceFacilityNames();
   known.erase( std::unique( known.begin(), known.end() ), known.end() ); // one has a part in each file
   return known;
}

void check( std::string const & facility ) {
   auto const known = facilities();
   if ( facility == every || std::ranges::find( known, facility ) != known.end() ) {
      return;
   }
   std::string all;
   for ( auto const & name : known ) {
      all += ( all.empty() ? "; there are " : ", " ) + name;
   }
   auto const near = Rex::didYouMean( facility, known );
   throw CommandError( CommandError::wrongArguments,
                       "facility: there is no " + facility + ( near.empty() ? all : near ) );
}

// "off", or a level.
int levelOf( std::string const & text ) {
   if ( text == "off" ) {
      return off;
   }
   if ( text.size() == 1 && text[0] >= '0' && text[0] <= '9' ) {
      return text[0] - '0';
   }
   throw CommandError( CommandError::wrongArguments,
                       "level: expected a level from 0 to 9, or off; got \"" + text + "\"" );
}

} // namespace

void checkTrace( std::string const & facility, std::string const & level ) {
   check( facility );
   levelOf( level );
}

void addTraceCommands( Commands & commands ) {
   auto const levels = std::make_shared< std::map< std::string, int > >();
   auto const list = [levels]() -> Value {
      Value::Object all;
      for ( auto const & facility : facilities() ) {
         auto const found = levels->find( facility );
         all[facility] =
            found == levels->end() || found->second < 0 ? Value( "off" ) : Value( std::to_string( found->second ) );
      }
      return all;
   };
   commands.add( { .name = "trace list",
                   .does = "the trace facilities, each with its level",
                   .answer = [list]( Arguments const & ) -> Answer { return list(); } } );
   commands.add( { .name = "trace set",
                   .does = "trace a facility up to a level",
                   .arguments = { { .name = "facility", .what = "its name; * for every one" },
                                  { .name = "level", .what = "0 to 9, or off" } },
                   .changes = true,
                   .answer = [levels, list]( Arguments const & given ) -> Answer {
                      auto const facility = given.required< std::string >( "facility" );
                      check( facility );
                      int const level = levelOf( given.required< std::string >( "level" ) );
                      Rex::traceLevelIs( facility, level );
                      for ( auto const & name : facilities() ) {
                         if ( facility == every || facility == name ) {
                            ( *levels )[name] = level;
                         }
                      }
                      return list();
                   } } );
   commands.add( { .name = "trace ring",
                   .does = "the last steps, from the ring buffer, whatever the levels",
                   .arguments = { { .name = "count",
                                    .type = Argument::Type::number,
                                    .isOptional = true,
                                    .what = "the last that many; all without it" } },
                   .answer = []( Arguments const & given ) -> Answer {
                      Value::List steps;
                      for ( auto & step : Inspection::lastSteps(
                               given.optional< U32 >( "count" ).value_or( Rex::RingTrace::capacity ) ) ) {
                         steps.push_back( std::move( step ) );
                      }
                      return Value( std::move( steps ) );
                   } } );
}

} // namespace Live
