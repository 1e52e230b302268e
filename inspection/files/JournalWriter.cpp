#include "inspection/files/JournalWriter.h"

#include "inspection/Version.h"
#include "inspection/files/Json.h"

#include <array>
#include <charconv>

namespace Inspection {

namespace {

using Simulator::Ending;
using Simulator::Row;

constexpr std::size_t textBytes = 1 << 16;

constexpr std::string_view kindNames[] = { "read", "write", "control", "gate", "publish" };
constexpr std::string_view scopeNames[] = { "any", "all", "core" };
constexpr std::string_view endingNames[] = { "complete", "interrupted", "assertion", "cut" };

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

void add( std::string & line, std::string_view key, bool value ) {
   addKey( line, key );
   line += value ? "true" : "false";
}

void add( std::string & line, std::string_view key, std::string_view text ) {
   addKey( line, key );
   line += quoted( std::string( text ) );
}

void add( std::string & line, std::string_view key, Rex::Value const & value ) {
   addKey( line, key );
   line += toJson( value, 0 );
}

void add( std::string & line, std::string_view key, Simulator::WordView words ) {
   constexpr char digits[] = "0123456789abcdef";
   addKey( line, key );
   line += '[';
   char text[] = "\"0x00000000\", ";
   for ( std::size_t word = 0; word < words.size(); ++word ) {
      for ( int digit = 0; digit < 8; ++digit ) {
         text[3 + digit] = digits[words[word] >> ( 28 - 4 * digit ) & 15];
      }
      line.append( text, word + 1 < words.size() ? 14 : 12 );
   }
   line += ']';
}

std::string begun( std::string_view op ) {
   return "{\"op\": \"" + std::string( op ) + "\"";
}

// What the row has of its own.
void addHead( std::string & line, Row const & row ) {
   line += "{\"op\": \"";
   line += nameOf( row.kind, kindNames );
   line += '"';
   if ( row.isOperation() ) {
      add( line, "seq", row.seq );
   }
   add( line, "event", row.event );
   if ( row.isOfFap && row.kind != Row::Kind::publish ) {
      add( line, "fap", row.fap );
   }
   switch ( row.kind ) {
   case Row::Kind::read:
   case Row::Kind::write:
      add( line, "table", row.table );
      add( line, "variant", unsigned{ row.variant } );
      add( line, "array", row.array );
      if ( row.entry ) {
         add( line, "entry", *row.entry );
      } else {
         line += ", \"entry\": null";
      }
      add( line, "scope", nameOf( row.scope, scopeNames ) );
      if ( row.scope == Row::Scope::core ) {
         add( line, "core", row.core );
      }
      add( line, "words", row.words );
      if ( row.kind == Row::Kind::write ) {
         add( line, "changed", row.changed );
         if ( row.changed && !row.before.empty() ) {
            add( line, "before", row.before );
         }
      }
      break;
   case Row::Kind::control:
      add( line, "control", row.control );
      add( line, "value", row.value );
      add( line, "changed", row.changed );
      if ( row.changed && row.valueBefore ) {
         add( line, "before", *row.valueBefore );
      }
      break;
   case Row::Kind::gate:
      add( line, "reason", row.reason );
      break;
   case Row::Kind::publish:
      add( line, "path", row.path );
      add( line, "attribute", row.attribute );
      if ( row.key ) {
         add( line, "key", *row.key );
      }
      add( line, "value", *row.published );
      add( line, "before", *row.publishedBefore );
      break;
   }
}

// What it shares with many others.
std::string originOf( Row const & row ) {
   std::string line;
   add( line, "function", row.function );
   add( line, "source", row.source );
   return line;
}

std::string causeOf( Row const & row ) {
   std::string line;
   add( line, "cause", row.cause );
   return line + "}";
}

// The text of a number, made when it is first asked for.
template< class Make >
std::string const & known( std::vector< std::string > & texts, std::size_t number, Make const & make ) {
   if ( texts.size() <= number ) {
      texts.resize( number + 1 );
   }
   auto & text = texts[number];
   if ( text.empty() ) {
      text = make();
   }
   return text;
}

} // namespace

JournalWriter::JournalWriter( std::string path, Begin const & begin ) : sink_( std::move( path ) ) {
   std::string line = begun( "begin" );
   add( line, "format", 2 );
   add( line, "l3sm", versionNumber() );
   add( line, "plugin", std::string_view( begin.plugin ) );
   add( line, "scenario", begin.scenario );
   sink_.append( line + "}\n" );
   sink_.bringToDisk();
}

void JournalWriter::eventBegins( U32 event, Rex::Value const & what ) {
   std::string line = begun( "event" );
   add( line, "event", event );
   add( line, "what", what );
   text_ += line + "}\n";
}

void JournalWriter::row( Row const & row ) {
   addHead( text_, row );
   if ( row.kind != Row::Kind::publish ) {
      text_ += known( origins_, row.originNumber, [&] { return originOf( row ); } );
   }
   text_ += known( causes_, row.causeNumber, [&] { return causeOf( row ) + "\n"; } );
   if ( text_.size() >= textBytes ) {
      sink_.append( text_ );
      text_.clear();
   }
}

void JournalWriter::eventEnds( U32 ) {
   sink_.append( text_ );
   text_.clear();
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
   text_ += line + "}\n";
   eventEnds( ending.events );
   sink_.close();
}

std::string JournalWriter::line( Row const & row ) {
   std::string line;
   addHead( line, row );
   return line + ( row.kind == Row::Kind::publish ? "" : originOf( row ) ) + causeOf( row );
}

} // namespace Inspection
