// The verb `ctl`: asks and tells a running agent at its control socket.
#include "agent/database/Paths.h"
#include "inspection/files/Json.h"
#include "inspection/views/ValueText.h"
#include "l3sm/AgentFiles.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;

constexpr char const * twoAgents = "-t and --socket both name an agent; leave one out";

struct CtlOptions {
   std::string agent;
   std::string socket;
   std::optional< U32 > timeout;
   std::vector< std::string > words;
   bool json = false;
};

struct Known {
   std::string name;
   Value::List arguments;
};

// The command that the line begins with: the longest one.
Known commandOf( Value const & commands, std::vector< std::string > const & words ) {
   Known found;
   for ( Value const & command : listOf( commands ) ) {
      auto const & fields = objectOf( command );
      std::string const & name = *fields.at( "name" ).text();
      auto const twoWords = words.size() > 1 ? words[0] + " " + words[1] : words[0];
      if ( ( name == words[0] || name == twoWords ) && name.size() > found.name.size() ) {
         found = { name, listOf( fields.at( "arguments" ) ) };
      }
   }
   return found;
}

// What a person has typed, as the command takes it.
Value typed( Value const & argument, std::string const & text ) {
   auto const & fields = objectOf( argument );
   std::string const & type = *fields.at( "type" ).text();
   std::string const & name = *fields.at( "name" ).text();
   if ( type == "number" ) {
      return inFile( name, [&] { return Value( Rex::Codec< U32 >::fromKey( text ) ); } );
   }
   if ( type == "flag" ) {
      return text == "true" || text == "yes" || text == "on";
   }
   if ( type == "texts" ) {
      return Value::List{ text };
   }
   if ( type != "value" ) {
      return text;
   }
   // Of a file of events, those.
   if ( name == "events" ) {
      return eventsIn( text );
   }
   try {
      return Live::valueOfText( text );
   } catch ( Rex::ValueError const & ) {
      return text; // what is no JSON is a text
   }
}

[[noreturn]] void refuseArgument( Known const & command, std::string const & word, std::string const & what ) {
   std::string all;
   for ( Value const & argument : command.arguments ) {
      all += ( all.empty() ? "; it takes " : ", " ) + *objectOf( argument ).at( "name" ).text();
   }
   throw InputError( word, what + command.name + all );
}

Value paramsOf( Known const & command, std::vector< std::string > const & words ) {
   std::size_t const first = 1 + static_cast< std::size_t >( std::ranges::count( command.name, ' ' ) );
   Value::Object params;
   auto const nameOf = []( Value const & argument ) { return *objectOf( argument ).at( "name" ).text(); };
   std::size_t place = 0; // of the next that isn't named
   for ( std::size_t at = first; at < words.size(); ++at ) {
      if ( words[at].starts_with( "--" ) ) {
         auto const equals = words[at].find( '=' );
         std::string const name = words[at].substr( 2, equals == std::string::npos ? equals : equals - 2 );
         auto const named = std::ranges::find( command.arguments, name, nameOf );
         if ( named == command.arguments.end() ) {
            refuseArgument( command, words[at], "is no argument of " );
         }
         if ( equals == std::string::npos && at + 1 == words.size() ) {
            throw InputError( words[at], "says nothing: " + words[at] + " VALUE" );
         }
         params[name] = typed( *named, equals == std::string::npos ? words[++at] : words[at].substr( equals + 1 ) );
         continue;
      }
      if ( place == command.arguments.size() ) {
         refuseArgument( command, words[at], "is one argument too many for " );
      }
      Value const & argument = command.arguments[place++];
      params[nameOf( argument )] = typed( argument, words[at] );
   }
   return params;
}

// Never the name of a slice.
std::string pathOf( std::string const & socket ) {
   return socket.find( '/' ) == std::string::npos ? "./" + socket : socket;
}

// A line for each command; its arguments in full are for programs.
void writeCommands( std::ostream & out, Value const & commands, Style const & style ) {
   constexpr std::size_t mostOptional = 2; // that are named
   Columns columns;
   for ( Value const & command : listOf( commands ) ) {
      auto const & fields = objectOf( command );
      std::string line = *fields.at( "name" ).text();
      std::string optional;
      std::size_t count = 0;
      for ( Value const & argument : listOf( fields.at( "arguments" ) ) ) {
         auto const & of = objectOf( argument );
         std::string const & name = *of.at( "name" ).text();
         bool const isOptional = *of.at( "optional" ).boolean();
         count += isOptional ? 1 : 0;
         ( isOptional ? optional : line ) += isOptional ? " [" + name + "]" : " " + name;
      }
      columns.row( { style.strong( line + ( count > mostOptional ? " […]" : optional ) ),
                     *fields.at( "changes" ).boolean() ? "*" : "",
                     *fields.at( "does" ).text() } );
   }
   columns.print( out );
   out << "\n* for the agent's owner and root alone; --json tells each argument\n";
}

// What a person reads first, and in which unit.
void writeStatus( std::ostream & out, Value status, Style const & style ) {
   static constexpr std::pair< char const *, char const * > units[] = {
      { "since", " s" }, { "uptime", " s" }, { "lag", " ms" } };
   for ( auto const & [name, unit] : units ) {
      auto & value = ( *status.object() )[name];
      if ( value.integer() ) {
         value = std::to_string( *value.integer() ) + unit;
      }
   }
   writeValue( out, status, style, { "slice", "phase", "reason", "since", "database", "epoch", "position", "events" } );
}

int ctl( CtlOptions const & options ) {
   if ( !options.agent.empty() && !options.socket.empty() ) {
      throw InputError( twoAgents );
   }
   AgentOptions const agent{ .name = !options.socket.empty()  ? pathOf( options.socket )
                                     : !options.agent.empty() ? options.agent
                                                              : theOnlyAgent(),
                             .timeout = options.timeout };
   Value const commands = agent.call( "list" ).value();
   Known command = commandOf( commands, options.words );
   if ( command.name.empty() ) {
      command.name = options.words[0]; // which the agent refuses, with a remedy
   }
   bool const isList = command.name == "list";
   Value const result = isList ? commands : agent.call( command.name, paramsOf( command, options.words ) ).value();
   if ( options.json ) {
      std::cout << toJson( result, 2 ) << '\n';
   } else if ( isList ) {
      writeCommands( std::cout, result, Style::of( std::cout ) );
   } else if ( command.name == "status" && result.object() ) {
      writeStatus( std::cout, result, Style::of( std::cout ) );
   } else {
      writeValue( std::cout, result, Style::of( std::cout ) );
   }
   return 0;
}

} // namespace

Action defineCtl( VerbOptions & verb ) {
   auto const options = std::make_shared< CtlOptions >();
   verb.text( "-t,--agent", options->agent, "which agent; not needed where there is one", "SLICE" );
   verb.text( "--socket", options->socket, "the same, by its socket", "PATH" );
   verb.number( "--timeout", options->timeout, "seconds in which the agent says nothing; 10 without it" );
   verb.texts( "COMMAND", options->words, "what to ask or tell it, with its arguments; `list` tells what there is" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "`ctl show`, `why`, `diff` and `plan` take what those verbs take: l3sm ctl show --fap 0." );
   return [options] {
      if ( options->words.empty() ) {
         throw InputError( "say what to ask the agent; l3sm ctl list tells what there is" );
      }
      return ctl( *options );
   };
}

namespace {

bool isOption( std::string const & word, std::string const & name ) {
   return word == name || word.starts_with( name + "=" );
}

// Behind the command its own arguments stand, by name or by place; what is `ctl`'s comes before it.
std::vector< std::string > withCommandLast( std::vector< std::string > const & words, std::size_t command ) {
   static constexpr std::string_view flags[] = { "--json", "--help", "-h" };
   static constexpr std::string_view withValue[] = { "-t", "--agent", "--socket", "--timeout" };
   auto const begin = words.begin() + static_cast< std::ptrdiff_t >( command );
   std::vector< std::string > ours( words.begin(), begin );
   std::vector< std::string > others{ "--" };
   for ( auto at = begin; at != words.end(); ++at ) {
      bool const isWithValue =
         std::ranges::any_of( withValue, [&]( auto const name ) { return isOption( *at, std::string( name ) ); } );
      bool const isOurs = isWithValue || std::ranges::find( flags, *at ) != std::end( flags );
      ( isOurs ? ours : others ).push_back( *at );
      if ( isWithValue && at->find( '=' ) == std::string::npos && std::next( at ) != words.end() ) {
         ours.push_back( *++at );
      }
   }
   ours.insert( ours.end(), others.begin(), others.end() );
   return ours;
}

} // namespace

bool isOfAgentsToo( std::string const & verb ) {
   static constexpr std::string_view verbs[] = { "show", "why", "diff", "plan" };
   return std::ranges::find( verbs, verb ) != std::end( verbs );
}

std::vector< std::string > withoutCtl( std::vector< std::string > const & words ) {
   if ( words.size() < 2 || words[1] != "ctl" ) {
      return words;
   }
   std::string agent;
   std::vector< std::string > others;
   std::size_t at = 2;
   for ( ; at < words.size() && words[at].starts_with( "-" ); ++at ) {
      std::string const & word = words[at];
      bool const isAgent = isOption( word, "-t" ) || isOption( word, "--agent" ) || isOption( word, "--socket" );
      if ( !isAgent && !isOption( word, "--timeout" ) ) {
         others.push_back( word );
         continue;
      }
      auto const equals = word.find( '=' );
      std::string value;
      if ( equals != std::string::npos ) {
         value = word.substr( equals + 1 );
      } else if ( at + 1 < words.size() ) {
         value = words[++at];
      }
      if ( isAgent ) {
         if ( !agent.empty() ) {
            throw InputError( twoAgents );
         }
         agent = isOption( word, "--socket" ) ? pathOf( value ) : value;
      } else {
         others.insert( others.end(), { "--timeout", value } );
      }
   }
   if ( at == words.size() ) {
      return words;
   }
   if ( !isOfAgentsToo( words[at] ) ) {
      return withCommandLast( words, at );
   }
   std::vector< std::string > verb{ words[0], words[at], "--agent", agent.empty() ? theOnlyAgent() : agent };
   verb.insert( verb.end(), others.begin(), others.end() );
   verb.insert( verb.end(), words.begin() + static_cast< std::ptrdiff_t >( at ) + 1, words.end() );
   return verb;
}

} // namespace Cli
