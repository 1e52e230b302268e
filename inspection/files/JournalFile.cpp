#include "inspection/files/JournalFile.h"

#include "inspection/files/ChipsFile.h"
#include "inspection/files/Json.h"
#include "inspection/views/Progress.h"
#include "inspection/NamesAsTyped.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace Inspection {

namespace {

using Rex::Value;
using Rex::ValueError;
using Simulator::Journal;

class RowReader {
 public:
   RowReader( JournalFile & journal, Value const & value ) : journal_( journal ), fields_( value ) {}

   Journal::Row row() {
      Journal::Row row{};
      row.seq = fields_.required< U64 >( "seq" );
      row.event = fields_.required< U32 >( "event" );
      constexpr char const * kinds[] = { "read", "write", "control" };
      row.kind = static_cast< Journal::Kind >( oneOf( "op", kinds ) );
      row.fap = fields_.required< U16 >( "fap" );
      row.function = text( "function" );
      row.source = text( "source" );
      row.cause = text( "cause" );
      fields_.with( "chip",
                    [&]( Value const & chip ) { row.chip = Hardware::chipTypeName( chipTypeFromValue( chip ) ); } );
      row.changed = row.kind != Journal::Kind::read && fields_.required< bool >( "changed" );
      if ( row.kind == Journal::Kind::control ) {
         row.control = fields_.required< U32 >( "control" );
         row.value = fields_.required< U32 >( "value" );
      } else {
         place( row );
         words( row );
      }
      fields_.with( "gates", [&]( Value const & list ) { row.gates = gates( list ); } );
      fields_.with( "gatesAfter", [&]( Value const & list ) { row.gatesAfter = gates( list ); } );
      return row;
   }

 private:
   // The place of a member's text in a list of names.
   template< std::size_t count >
   std::size_t oneOf( char const * key, char const * const ( &names )[count] ) {
      std::string const word = fields_.required< std::string >( key );
      auto const found = std::ranges::find( names, word );
      if ( found == std::end( names ) ) {
         std::string known;
         for ( auto const * name : names ) {
            known += ( known.empty() ? "" : ", " ) + std::string( name );
         }
         throw ValueError( Rex::pointerStep( key ), "\"" + word + "\" is none of " + known );
      }
      return static_cast< std::size_t >( found - names );
   }
   std::string_view text( char const * key ) { return journal_.kept( fields_.required< std::string >( key ) ); }

   void place( Journal::Row & row ) {
      auto const * const table = Catalogue::table( fields_.required< std::string >( "table" ) );
      if ( !table || !table->hasMemory ) {
         throw ValueError( "/table", "no table has this name; `l3sm catalogue` lists them" );
      }
      row.table = table->name;
      row.variant = fields_.required< U8 >( "variant" );
      row.array = static_cast< int >( fields_.required< U16 >( "array" ) );
      fields_.with( "entry", [&]( Value const & entry ) {
         if ( !entry.isNull() ) {
            row.entry = Rex::Codec< U32 >::fromValue( entry );
         }
      } );
      constexpr char const * scopes[] = { "any", "all", "core" };
      row.scope = static_cast< Journal::Scope >( oneOf( "scope", scopes ) );
      if ( row.scope == Journal::Scope::core ) {
         row.core = fields_.required< U8 >( "core" );
      }
   }

   void words( Journal::Row & row ) {
      auto const & list = fields_.required( "words" );
      Rex::below( "words", [&] { row.words = wordsFromValue( list ); } );
      auto const * const layout = layoutOf( row );
      if ( !layout ) {
         std::string const on = row.chip ? std::string( " on " ) + row.chip : "";
         throw ValueError( "",
                           std::string( row.table ) + " has no such variant, array index and entry of " +
                              counted( row.words.size() ) + on );
      }
      if ( row.scope == Journal::Scope::core && static_cast< std::size_t >( row.core ) >= layout->selectors.size() ) {
         throw ValueError( "/core", std::string( row.table ) + " has no such instance" );
      }
   }

   static std::string counted( std::size_t words ) {
      return std::to_string( words ) + ( words == 1 ? " word" : " words" );
   }

   std::vector< Journal::Gate > gates( Value const & list ) {
      std::vector< Journal::Gate > gates;
      for ( Value const & value : listOf( list ) ) {
         RowReader gate( journal_, value );
         Journal::Gate one{};
         one.function = gate.text( "function" );
         one.source = gate.text( "source" );
         one.reason = gate.text( "reason" );
         one.event = gate.fields_.required< U32 >( "event" );
         one.cause = gate.text( "cause" );
         gate.fields_.with( "fap", [&]( Value const & fap ) { one.fap = Rex::Codec< U16 >::fromValue( fap ); } );
         gates.push_back( one );
      }
      return gates;
   }

   JournalFile & journal_;
   Fields fields_;
};

// One line of the file. An error names the line.
Value parsed( std::string const & line, std::string const & place ) {
   try {
      return parseJson( line, "" );
   } catch ( InputError const & error ) {
      // ":1: text" or ": /pointer: text"
      std::string const text = error.what();
      throw InputError( place, text.substr( text.find( ": " ) + 2 ) );
   }
}

} // namespace

JournalFile readJournal( std::string const & path ) {
   JournalFile journal( path );
   std::string const text = readFile( path );
   auto const lines = static_cast< std::size_t >( std::ranges::count( text, '\n' ) );
   std::istringstream in( text );
   std::string line;
   Progress progress( "reading " + path );
   for ( std::size_t number = 1; std::getline( in, line ); ++number ) {
      progress.stands( number, lines );
      std::string const place = path + ":" + std::to_string( number );
      Value const value = parsed( line, place );
      inFile( place, [&] { journal.rowIs( RowReader( journal, value ).row() ); } );
   }
   return journal;
}

Catalogue::Layout const * layoutOf( Journal::Row const & row ) {
   auto const & table = *Catalogue::table( row.table );
   auto const array = static_cast< U32 >( row.array );
   for ( auto const & layout : table.layouts ) {
      bool const isChip = !row.chip || std::string_view( row.chip ) == Catalogue::chipName( layout.chipType );
      bool const hasArray = array >= layout.arrayIndexFirst && array - layout.arrayIndexFirst < layout.arrayElements;
      bool const hasEntry = row.entry ? *row.entry < layout.entries : layout.entries == 0;
      if ( isChip && hasArray && hasEntry && layout.variant == row.variant && layout.width == row.words.size() ) {
         return &layout;
      }
   }
   return nullptr;
}

} // namespace Inspection
