#include "l3sm/AgentFiles.h"

#include "agent/control/MemoryFile.h"
#include "agent/database/StateFile.h"
#include "inspection/files/ByteStreams.h"
#include "inspection/files/InputFile.h"
#include "inspection/files/InputNames.h"
#include "inspection/files/Json.h"

#include <array>
#include <deque>

namespace Cli {

namespace {

using namespace Inspection;
using Rex::Value;

constexpr U32 usualTimeout = 10;
constexpr U32 longestTimeout = 24 * 60 * 60;

// They are read until the process ends.
Live::MemoryFile & newFile( std::string const & agent ) {
   static std::deque< Live::MemoryFile > files;
   auto & file = files.emplace_back( "agent" );
   inputIsCalled( file.path(), agent );
   return file;
}

std::string nameFor( std::string const & agent ) {
   return "agent " + agent;
}

} // namespace

void AgentOptions::declare( VerbOptions & verb ) {
   verb.text( "--agent", name, "ask a running agent, not a file", "SLICE" );
   verb.number( "--timeout", timeout, "of an agent: seconds in which it says nothing; 10 without it" );
}

std::string socketOf( std::string const & agent ) {
   return agent.find( '/' ) == std::string::npos ? Live::controlPath( agent ) : agent;
}

std::string theOnlyAgent() {
   auto const slices = Live::slicesThere();
   if ( slices.size() == 1 ) {
      return slices.front();
   }
   std::string all;
   for ( auto const & slice : slices ) {
      all += ( all.empty() ? "" : ", " ) + slice;
   }
   throw InputError( slices.empty() ? "no agent has a socket in " + std::string( Live::controlFolder ) +
                                         "; `l3sm serve` starts one, --socket names one that is elsewhere"
                                    : "say which agent with -t; there are " + all );
}

Live::ControlAnswer AgentOptions::call( std::string const & command, Value const & params ) const {
   if ( timeout && ( *timeout == 0 || *timeout > longestTimeout ) ) {
      throw InputError( "--timeout " + std::to_string( *timeout ), "expected seconds, from 1 to a day's" );
   }
   auto const path = socketOf( name );
   Live::ControlClient client(
      { .path = path, .timeout = static_cast< int >( timeout.value_or( usualTimeout ) ), .name = nameFor( name ) } );
   try {
      return client.call( command, params );
   } catch ( Live::CommandError const & error ) {
      throw InputError( nameFor( name ), error.what() );
   }
}

std::string AgentOptions::chips( ContentsFilter const & filter ) const {
   Value::Object params;
   if ( filter.fap() ) {
      params["fap"] = *filter.fap();
   }
   if ( auto const tables = filter.tables(); !tables.empty() ) {
      params["tables"] = Value::List( tables.begin(), tables.end() );
   }
   auto & file = newFile( nameFor( name ) );
   file.append( call( "show", params ).text() );
   return file.path();
}

std::string AgentOptions::state() const {
   auto & file = newFile( nameFor( name ) );
   file.append( call( "state" ).text() );
   return file.path();
}

std::string AgentOptions::journal() const {
   auto & file = newFile( nameFor( name ) );
   std::string lines;
   call( "why" ).eachMember( [&]( std::string_view line ) {
      constexpr std::size_t enough = 1 << 20;
      lines += line;
      lines += '\n';
      if ( lines.size() > enough ) {
         file.append( lines );
         lines.clear();
      }
   } );
   file.append( lines );
   return file.path();
}

std::optional< U32 > AgentOptions::reachesBackTo( std::string const & journal ) {
   ByteSource source( journal );
   std::string line;
   std::array< char, 1 << 12 > some{};
   while ( line.find( '\n' ) == std::string::npos ) {
      auto const got = source.read( some );
      if ( got == 0 ) {
         break;
      }
      line.append( some.data(), got );
   }
   Value const begin = parseJson( line.substr( 0, line.find( '\n' ) ), inputName( journal ) );
   auto const & fields = objectOf( begin );
   auto const found = fields.find( "reachesBackTo" );
   return found == fields.end() ? std::nullopt : std::optional( Rex::Codec< U32 >::fromValue( found->second ) );
}

Value eventsIn( std::string const & file ) {
   Value::List events;
   for ( Event const & event : Live::eventsOfFile( file ) ) {
      events.push_back( valueOf( event ) );
   }
   return events;
}

void missing( std::string const & verb, std::string const & place ) {
   throw InputError( place + " is required, or --agent SLICE; l3sm " + verb + " --help tells what there is" );
}

} // namespace Cli
