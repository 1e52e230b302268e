#include "agent/TraceFile.h"

#include "agent/control/AgentCommands.h"
#include "inspection/files/InputFile.h"

#include <sstream>

namespace Live {

namespace {

using Inspection::InputError;

struct Wanted {
   std::size_t line;
   std::string facility;
   std::string level;
};

std::vector< Wanted > wantedIn( std::string const & path ) {
   std::vector< Wanted > all;
   std::istringstream text( Inspection::readFile( path ) );
   std::size_t number = 0;
   for ( std::string line; std::getline( text, line ); ) {
      ++number;
      std::istringstream parts( line.starts_with( '#' ) ? "" : line );
      for ( std::string part; std::getline( parts, part, ',' ); ) {
         auto const from = part.find_first_not_of( " \t\r" );
         auto const to = part.find_last_not_of( " \t\r" );
         if ( from == std::string::npos ) {
            continue;
         }
         part = part.substr( from, to - from + 1 );
         auto const slash = part.rfind( '/' );
         if ( slash == std::string::npos || slash == 0 || slash + 1 == part.size() ) {
            throw InputError( path + ":" + std::to_string( number ), "expected FACILITY/LEVEL, got \"" + part + "\"" );
         }
         all.push_back( { number, part.substr( 0, slash ), part.substr( slash + 1 ) } );
      }
   }
   return all;
}

} // namespace

void TraceFile::read() const {
   if ( path_.empty() ) {
      return;
   }
   auto const wanted = wantedIn( path_ );
   Command const & set = commands_.named( "trace set" );
   for ( auto const & [line, facility, level] : wanted ) {
      try {
         checkTrace( facility, level );
      } catch ( CommandError const & error ) {
         throw InputError( path_ + ":" + std::to_string( line ), error.what() );
      }
   }
   auto const to = [&]( std::string const & facility, std::string const & level ) {
      set.answer( Arguments( set, Rex::Value::List{ facility, level } ) );
   };
   to( "*", "off" );
   for ( auto const & [line, facility, level] : wanted ) {
      to( facility, level );
   }
}

} // namespace Live
