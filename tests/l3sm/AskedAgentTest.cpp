// What `l3sm ctl` makes of what an agent says, and an agent of what is typed: the commands are those of the test.
#include "BuildFolder.h"
#include "agent/ControlWorld.h"

#include <gtest/gtest.h>

namespace {

using Live::Argument;
using Rex::Value;

// An agent with a command for each type of argument, and what `l3sm ctl` prints of it.
struct AskedAgent : ControlWorld {
   AskedAgent() {
      using enum Argument::Type;
      commands.add(
         { .name = "tell",
           .does = "all that it is given",
           .arguments = { { .name = "flag", .type = flag, .isOptional = true, .what = "yes or no" },
                          { .name = "texts", .type = texts, .isOptional = true, .what = "a text" },
                          { .name = "value", .type = value, .isOptional = true, .what = "JSON" },
                          { .name = "number", .type = Argument::Type::number, .isOptional = true, .what = "a count" } },
           .answer = []( Live::Arguments const & given ) -> Live::Answer {
              Value::Object all;
              for ( char const * name : { "flag", "texts", "value", "number" } ) {
                 if ( given.has( name ) ) {
                    all[name] = given.value( name );
                 }
              }
              return all;
           } } );
      serve();
   }

   std::string ctl( std::string const & arguments ) {
      std::string const line = "cd '" + folder / "" + "' && '" + buildFolder() + "/bin/l3sm' ctl --socket a.ctl " +
                               arguments + " </dev/null >.out 2>&1";
      during( [&] { status = WEXITSTATUS( std::system( line.c_str() ) ); } );
      return folder.text( ".out" );
   }
   int status = 0;
};

TEST( AskedAgent, listsItsCommandsALineForEach ) {
   AskedAgent agent;
   EXPECT_EQ( agent.ctl( "list" ),
              "list          every command with its arguments\n"
              "echo text     what it is given\n"
              "set to     *  changes a number\n"
              "tell […]      all that it is given\n"
              "\n"
              "* for the agent's owner and root alone; --json tells each argument\n" );
   EXPECT_EQ( agent.status, 0 );
}

TEST( AskedAgent, namesArgumentsThatCanBeLeftOutWhereTheyAreFew ) {
   AskedAgent agent;
   agent.commands.add( { .name = "look at",
                         .does = "two of them",
                         .arguments = { { .name = "place", .what = "a path" },
                                        { .name = "from", .isOptional = true, .what = "an event" },
                                        { .name = "to", .isOptional = true, .what = "another" } },
                         .answer = []( auto const & ) -> Live::Answer { return Value(); } } );
   EXPECT_NE( agent.ctl( "list" ).find( "\nlook at place [from] [to]     two of them\n" ), std::string::npos )
      << agent.folder.text( ".out" );
}

TEST( AskedAgent, listsForProgramsEachArgument ) {
   AskedAgent agent;
   EXPECT_NE( agent.ctl( "list --json" )
                 .find( R"("arguments": [{"name": "to", "optional": false, "type": "number", "what": "the number"}],)"
                        "\n  \"changes\": true,\n  \"does\": \"changes a number\",\n  \"name\": \"set\"}" ),
              std::string::npos )
      << agent.folder.text( ".out" );
}

TEST( AskedAgent, isGivenEachArgumentAsItsTypeSays ) {
   AskedAgent agent;
   EXPECT_EQ( agent.ctl( "--json tell yes some '{\"a\": [1, true]}' 7" ),
              "{\n \"flag\": true,\n \"number\": 7,\n \"texts\": [\n  \"some\"],\n "
              "\"value\": {\n  \"a\": [1, true]}}\n" );
   EXPECT_EQ( agent.ctl( "--json tell --flag=no" ), "{\n \"flag\": false}\n" );
   EXPECT_EQ( agent.ctl( "--json tell --value 'no JSON'" ), "{\n \"value\": \"no JSON\"}\n" );
   EXPECT_EQ( agent.ctl( "--json tell --value=null" ), "{\n \"value\": null}\n" );
   EXPECT_EQ( agent.ctl( "tell --number some" ), "l3sm: number: expected a key from 0 to 4294967295, got \"some\"\n" );
   EXPECT_EQ( agent.status, 2 );
}

TEST( AskedAgent, isNotToldWhatItHasNoArgumentFor ) {
   AskedAgent agent;
   EXPECT_EQ( agent.ctl( "tell --colour=red" ),
              "l3sm: --colour=red: is no argument of tell; it takes flag, texts, value, number\n" );
   EXPECT_EQ( agent.status, 2 );
   EXPECT_EQ( agent.ctl( "set 1 2" ), "l3sm: 2: is one argument too many for set; it takes to\n" );
   EXPECT_EQ( agent.ctl( "set --to" ), "l3sm: --to: says nothing: --to VALUE\n" );
   EXPECT_EQ( agent.status, 2 );
   EXPECT_EQ( agent.number, std::nullopt );
   EXPECT_EQ( agent.ctl( "set --to 5" ), "5\n" );
   EXPECT_EQ( agent.number, 5u );
}

} // namespace
