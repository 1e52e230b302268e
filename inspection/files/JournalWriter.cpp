#include "inspection/files/JournalWriter.h"

#include "inspection/Version.h"
#include "inspection/files/Json.h"
#include "inspection/files/RowNames.h"

#include <array>
#include <charconv>

namespace Inspection {

namespace {

using Simulator::Ending;
using Simulator::Row;

constexpr std::size_t textBytes = 1 << 16;

template< class Kind, std::size_t count >
std::string_view nameOf( Kind kind, std::string_view const ( &names )[count] ) {
   return names[static_cast< std::size_t >( kind )];
}

void addNumber( std::string & line, std::integral auto number ) {
   std::array< char, 24 > digits;
   line.append( digits.data(), std::to_chars( digits.begin(), digits.end(), number ).ptr );
}

// A key, with what stands before its value.
void addKey( std::string & line, std::string_view key ) {
   line += ", \"";
   line += key;
   line += "\": ";
}

void add( std::string & line, std::string_view key, std::integral auto number ) {
   addKey( line, key );
   addNumber( line, number );
}

void add( std::string & line, std::string_view key, std::string_view text ) {
   addKey( line, key );
   line += quoted( std::string( text ) );
}

void add( std::string & line, std::string_view key, Rex::Value const & value ) {
   addKey( line, key );
   line += toJson( value, 0 );
}

std::string begun( std::string_view op ) {
   return "{\"op\": \"" + std::string( op ) + "\"";
}

} // namespace

JournalWriter::JournalWriter( std::string path, Begin const & begin ) : sink_( std::move( path ) ) {
   std::string line = begun( "begin" );
   add( line, "format", 2 );
   add( line, "l3sm", versionNumber() );
   add( line, "plugin", std::string_view( begin.plugin ) );
   if ( begin.reachesBackTo ) {
      add( line, "reachesBackTo", *begin.reachesBackTo );
   }
   add( line, "scenario", begin.scenario );
   sink_.append( line + "}\n" );
   sink_.bringToDisk();
}

void JournalWriter::eventBegins( U32 event, Rex::Value const & what ) {
   std::string line = begun( "event" );
   add( line, "event", event );
   add( line, "what", what );
   sink_.append( line + "}\n" );
}

void JournalWriter::row( Row const & row ) {
   lines_.add( row );
   if ( lines_.text().size() >= textBytes ) {
      sink_.append( lines_.text() );
      lines_.clear();
   }
}

void JournalWriter::eventEnds( U32 ) {
   sink_.append( lines_.text() );
   lines_.clear();
   sink_.bringToDisk();
}

void JournalWriter::ends( Ending const & ending ) {
   std::string line = begun( "end" );
   add( line, "ended", nameOf( ending.kind, endingNames ) );
   add( line, "events", ending.events );
   add( line, "operations", ending.operations );
   if ( ending.kind == Ending::Kind::assertion ) {
      add( line, "text", std::string_view( ending.text ) );
      add( line, "function", std::string_view( ending.function ) );
      add( line, "source", std::string_view( ending.source ) );
   }
   eventEnds( ending.events );
   sink_.append( line + "}\n" );
   sink_.close();
}

std::string JournalWriter::line( Row const & row ) {
   Row alone = row; // its numbers stand for nothing here
   alone.originNumber = alone.causeNumber = 0;
   RowLines lines;
   lines.add( alone );
   return std::string( lines.text().substr( 0, lines.text().size() - 1 ) );
}

} // namespace Inspection
