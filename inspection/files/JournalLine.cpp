#include "inspection/files/JournalLine.h"

#include "inspection/files/ChipsFile.h"

#include <charconv>

namespace Inspection {

namespace {

using Rex::Value;
using Rex::ValueError;
using Simulator::Ending;
using Simulator::Row;
namespace dom = simdjson::dom;

constexpr std::string_view kindNames[] = { "read", "write", "control", "gate", "publish" };
constexpr std::string_view scopeNames[] = { "any", "all", "core" };
constexpr std::string_view endingNames[] = { "complete", "interrupted", "assertion" };

dom::element member( dom::object const & object, char const * key ) {
   dom::element element;
   if ( object[key].get( element ) ) {
      throw ValueError( "", std::string( "\"" ) + key + "\" is missing" );
   }
   return element;
}

template< class T >
T number( dom::element element, char const * key ) {
   std::uint64_t value = 0;
   if ( element.get( value ) || value > std::numeric_limits< T >::max() ) {
      throw ValueError( Rex::pointerStep( key ),
                        "expected a number from 0 to " + std::to_string( std::numeric_limits< T >::max() ) );
   }
   return static_cast< T >( value );
}

template< class T >
T number( dom::object const & object, char const * key ) {
   return number< T >( member( object, key ), key );
}

bool boolean( dom::object const & object, char const * key ) {
   bool value = false;
   if ( member( object, key ).get( value ) ) {
      throw ValueError( Rex::pointerStep( key ), "expected true or false" );
   }
   return value;
}

std::string_view text( dom::object const & object, char const * key ) {
   std::string_view value;
   if ( member( object, key ).get( value ) ) {
      throw ValueError( Rex::pointerStep( key ), "expected a string" );
   }
   return value;
}

// The place of a text in a list of names.
template< class Kind, std::size_t count >
Kind oneOf( std::string_view word, char const * key, std::string_view const ( &names )[count] ) {
   auto const found = std::ranges::find( names, word );
   if ( found == std::end( names ) ) {
      std::string known;
      for ( auto const name : names ) {
         known += ( known.empty() ? "" : ", " ) + std::string( name );
      }
      throw ValueError( Rex::pointerStep( key ), "\"" + std::string( word ) + "\" is none of " + known );
   }
   return static_cast< Kind >( found - names );
}

Value valueOf( dom::element element ) {
   switch ( element.type() ) {
   case dom::element_type::ARRAY: {
      Value::List list;
      for ( dom::element const part : dom::array( element ) ) {
         list.push_back( valueOf( part ) );
      }
      return list;
   }
   case dom::element_type::OBJECT: {
      Value::Object object;
      for ( auto const [key, part] : dom::object( element ) ) {
         object.emplace( key, valueOf( part ) );
      }
      return object;
   }
   case dom::element_type::INT64:
      return std::int64_t( element );
   case dom::element_type::UINT64:
   case dom::element_type::DOUBLE:
      throw ValueError( "", "a number that is too large, or not whole" );
   case dom::element_type::STRING:
      return std::string( std::string_view( element ) );
   case dom::element_type::BOOL:
      return bool( element );
   case dom::element_type::NULL_VALUE:
      break;
   }
   return {};
}

U32 wordOf( dom::element element, char const * key ) {
   std::string_view digits;
   U32 word = 0;
   if ( element.get( digits ) || digits.size() < 3 || digits.size() > 10 || !digits.starts_with( "0x" ) ||
        std::from_chars( digits.data() + 2, digits.data() + digits.size(), word, 16 ).ptr !=
           digits.data() + digits.size() ) {
      throw ValueError( Rex::pointerStep( key ), "expected words such as \"0x00000a00\"" );
   }
   return word;
}

void wordsInto( std::vector< U32 > & words, dom::element element, char const * key ) {
   dom::array list;
   if ( element.get( list ) ) {
      throw ValueError( Rex::pointerStep( key ), "expected a list of words" );
   }
   words.clear();
   for ( dom::element const word : list ) {
      words.push_back( wordOf( word, key ) );
   }
}

Ending endingOf( dom::object const & object ) {
   Ending ending;
   ending.kind = oneOf< Ending::Kind >( text( object, "ended" ), "ended", endingNames );
   ending.events = number< U32 >( object, "events" );
   ending.operations = number< U64 >( object, "operations" );
   if ( ending.kind == Ending::Kind::assertion ) {
      ending.text = text( object, "text" );
      ending.function = text( object, "function" );
      ending.source = text( object, "source" );
   }
   return ending;
}

std::string counted( std::size_t words ) {
   return std::to_string( words ) + ( words == 1 ? " word" : " words" );
}

} // namespace

JournalLineParser::Parsed JournalLineParser::parse( std::string_view line ) {
   dom::element root;
   dom::object object;
   if ( auto const error = parser_.parse( line.data(), line.size(), false ).get( root ) ) {
      throw ValueError( "", std::string( "no JSON: " ) + simdjson::error_message( error ) );
   }
   if ( root.get( object ) ) {
      throw ValueError( "", "expected an object" );
   }
   auto const op = text( object, "op" );
   if ( op == "event" ) {
      return EventLine{ number< U32 >( object, "event" ), valueOf( member( object, "what" ) ) };
   }
   if ( op == "begin" ) {
      return BeginLine{ number< int >( object, "format" ),
                        valueOf( member( object, "scenario" ) ),
                        std::string( text( object, "plugin" ) ) };
   }
   if ( op == "end" ) {
      return endingOf( object );
   }
   return row( object, oneOf< Row::Kind >( op, "op", kindNames ) );
}

JournalLineParser::Text JournalLineParser::kept( std::string_view text ) {
   auto const known = numbers_.find( text );
   if ( known != numbers_.end() ) {
      return { known->first, known->second };
   }
   auto const number = static_cast< U32 >( texts_.size() );
   std::string_view const keep = texts_.emplace_back( text );
   numbers_.emplace( keep, number );
   return { keep, number };
}

Row JournalLineParser::row( dom::object const & object, Row::Kind kind ) {
   Row row{ .kind = kind, .event = number< U32 >( object, "event" ) };
   auto const cause = kept( text( object, "cause" ) );
   row.cause = cause.text;
   row.causeNumber = cause.number;
   if ( kind == Row::Kind::publish ) {
      publication( object, row );
      return row;
   }
   row.function = kept( text( object, "function" ) ).text;
   auto const source = kept( text( object, "source" ) );
   row.source = source.text;
   row.originNumber = source.number;
   dom::element fap;
   row.isOfFap = !object["fap"].get( fap ) && !fap.is_null();
   if ( kind == Row::Kind::gate ) {
      row.fap = row.isOfFap ? number< U16 >( fap, "fap" ) : U16{ 0 };
      row.reason = kept( text( object, "reason" ) ).text;
      return row;
   }
   row.fap = number< U16 >( object, "fap" );
   row.seq = number< U64 >( object, "seq" );
   operation( object, row );
   return row;
}

void JournalLineParser::operation( dom::object const & object, Row & row ) {
   std::string_view chip; // format 1
   if ( !object["chip"].get( chip ) ) {
      chipTypes_[row.fap] = chipTypeFromValue( std::string( chip ) );
   }
   row.changed = row.kind != Row::Kind::read && boolean( object, "changed" );
   if ( row.kind != Row::Kind::control ) {
      access( object, row );
      return;
   }
   row.control = number< U32 >( object, "control" );
   row.value = number< U32 >( object, "value" );
   dom::element before;
   if ( !object["before"].get( before ) ) {
      row.valueBefore = number< U32 >( before, "before" );
   }
}

void JournalLineParser::access( dom::object const & object, Row & row ) {
   auto const * const table = Catalogue::table( text( object, "table" ) );
   if ( !table || !table->hasMemory ) {
      throw ValueError( "/table", "no table has this name; `l3sm catalogue` lists them" );
   }
   row.table = table->name;
   row.tableNumber = table->number;
   row.variant = number< U8 >( object, "variant" );
   row.array = number< U16 >( object, "array" );
   dom::element entry;
   if ( !object["entry"].get( entry ) && !entry.is_null() ) {
      row.entry = number< U32 >( entry, "entry" );
   }
   row.scope = oneOf< Row::Scope >( text( object, "scope" ), "scope", scopeNames );
   row.core = row.scope == Row::Scope::core ? number< U8 >( object, "core" ) : U8{ 0 };
   wordsInto( words_, member( object, "words" ), "words" );
   row.words = words_;
   dom::element before;
   if ( !object["before"].get( before ) ) {
      wordsInto( before_, before, "before" );
      row.before = before_;
   } else if ( row.kind == Row::Kind::write && !row.changed ) {
      row.before = words_;
   }
   row.layout = layoutOf( row );
   if ( !row.layout ) {
      throw ValueError( "",
                        std::string( row.table ) + " has no such variant, array index and entry of " +
                           counted( row.words.size() ) + " on the chip of FAP " + std::to_string( row.fap ) );
   }
   if ( row.scope == Row::Scope::core && static_cast< std::size_t >( row.core ) >= row.layout->selectors.size() ) {
      throw ValueError( "/core", std::string( row.table ) + " has no such instance" );
   }
}

void JournalLineParser::publication( dom::object const & object, Row & row ) {
   row.path = kept( text( object, "path" ) ).text;
   row.attribute = kept( text( object, "attribute" ) ).text;
   std::string_view key;
   if ( !object["key"].get( key ) ) {
      row.key = kept( key ).text;
   }
   published_ = valueOf( member( object, "value" ) );
   publishedBefore_ = valueOf( member( object, "before" ) );
   row.published = &published_;
   row.publishedBefore = &publishedBefore_;
}

// Where the journal doesn't say what kind of chip it was, the first of the table's layouts that has the place.
Catalogue::Layout const * JournalLineParser::layoutOf( Row const & row ) const {
   auto const chip = chipTypes_.find( row.fap );
   auto const array = static_cast< U32 >( row.array );
   for ( auto const & layout : Catalogue::tables()[row.tableNumber].layouts ) {
      bool const isChip = chip == chipTypes_.end() || static_cast< U8 >( chip->second ) == layout.chipType;
      bool const hasArray = array >= layout.arrayIndexFirst && array - layout.arrayIndexFirst < layout.arrayElements;
      bool const hasEntry = row.entry ? *row.entry < layout.entries : layout.entries == 0;
      if ( isChip && hasArray && hasEntry && layout.variant == row.variant && layout.width == row.words.size() ) {
         return &layout;
      }
   }
   return nullptr;
}

} // namespace Inspection
