#include "inspection/files/JournalLine.h"

#include "inspection/files/ChipsFile.h"
#include "inspection/files/JsonElements.h"
#include "inspection/files/RowNames.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::ValueError;
using Simulator::Ending;
using Simulator::Row;
namespace dom = simdjson::dom;
using namespace JsonElements;

constexpr std::string_view scopeNames[] = { "any", "all", "core" };
constexpr std::string_view writtenEndings[] = { "complete", "interrupted", "assertion" };

Ending endingOf( dom::object const & object ) {
   Ending ending;
   ending.kind = oneOf< Ending::Kind >( text( object, "ended" ), "ended", writtenEndings );
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

void JournalLineParser::chipIs( U16 fap, Hardware::ChipType chipType ) {
   chipTypes_[fap] = chipType;
   chips_.resize( std::max< std::size_t >( chips_.size(), fap + 1u ) );
   chips_[fap] = chipType;
}

JournalLineParser::Parsed JournalLineParser::parse( std::string_view line ) {
   gatesBefore_.clear();
   gatesAfter_.clear();
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
      auto const format = number< int >( object, "format" );
      if ( format != 2 ) {
         throw ValueError( "/format", "this program reads formats 1 and 2, not " + std::to_string( format ) );
      }
      return BeginLine{ format, valueOf( member( object, "scenario" ) ), std::string( text( object, "plugin" ) ) };
   }
   if ( op == "end" ) {
      return endingOf( object );
   }
   return row( object, oneOf< Row::Kind >( op, "op", rowKindNames ) );
}

std::optional< Row > JournalLineParser::row( WrittenRow & written ) {
   Row row{ .kind = written.kind, .event = written.event, .seq = written.seq };
   row.isOfFap = written.isOfFap;
   row.fap = written.fap;
   if ( written.kind == Row::Kind::publish || ( areChipsAll_ && row.isOfFap && !hasFap( row.fap ) ) ) {
      return std::nullopt;
   }
   if ( written.kind == Row::Kind::read || written.kind == Row::Kind::write ) {
      auto const * const table = tableOf( written.table );
      if ( !table || !table->hasMemory || !written.access( row, words_, before_ ) ) {
         return std::nullopt;
      }
      row.table = table->name;
      row.tableNumber = table->number;
      row.layout = layoutOf( row );
      if ( !row.layout || ( row.scope == Row::Scope::core &&
                            static_cast< std::size_t >( row.core ) >= row.layout->selectors.size() ) ) {
         return std::nullopt;
      }
   } else if ( written.kind == Row::Kind::control && !written.control( row ) ) {
      return std::nullopt;
   }
   auto const * const tail = texts_.tailOf( written.rest );
   if ( !tail || ( written.kind == Row::Kind::gate ) == tail->reason.empty() ) {
      return std::nullopt;
   }
   row.reason = tail->reason;
   row.function = tail->function;
   row.source = tail->source.text;
   row.cause = tail->cause.text;
   row.originNumber = tail->source.number;
   row.causeNumber = tail->cause.number;
   return row;
}

Row JournalLineParser::row( dom::object const & object, Row::Kind kind ) {
   Row row{ .kind = kind, .event = number< U32 >( object, "event" ) };
   auto const cause = texts_.kept( text( object, "cause" ) );
   row.cause = cause.text;
   row.causeNumber = cause.number;
   if ( kind == Row::Kind::publish ) {
      publication( object, row );
      return row;
   }
   if ( kind == Row::Kind::fault ) {
      row.fap = number< U16 >( object, "fap" );
      row.reason = texts_.kept( text( object, "reason" ) ).text;
      row.changed = true;
      checkFap( row.fap );
      access( object, row );
      return row;
   }
   row.function = texts_.kept( text( object, "function" ) ).text;
   auto const source = texts_.kept( text( object, "source" ) );
   row.source = source.text;
   row.originNumber = source.number;
   dom::element fap;
   row.isOfFap = !object["fap"].get( fap ) && !fap.is_null();
   if ( kind == Row::Kind::gate ) {
      row.fap = row.isOfFap ? number< U16 >( fap, "fap" ) : U16{ 0 };
      if ( row.isOfFap ) {
         checkFap( row.fap );
      }
      row.reason = texts_.kept( text( object, "reason" ) ).text;
      return row;
   }
   row.fap = number< U16 >( object, "fap" );
   row.seq = number< U64 >( object, "seq" );
   operation( object, row );
   gatesInto( gatesBefore_, object, "gates" );
   gatesInto( gatesAfter_, object, "gatesAfter" );
   return row;
}

void JournalLineParser::checkFap( U16 fap ) const {
   if ( areChipsAll_ && !hasFap( fap ) ) {
      throw ValueError( "/fap", "the switch that the journal begins with has no FAP " + std::to_string( fap ) );
   }
}

void JournalLineParser::gatesInto( std::vector< Row > & gates, dom::object const & object, char const * key ) {
   dom::array list;
   if ( object[key].get( list ) ) {
      return;
   }
   for ( dom::element const element : list ) {
      dom::object gate;
      if ( element.get( gate ) ) {
         throw ValueError( Rex::pointerStep( key ), "expected objects" );
      }
      gates.push_back( Rex::below( key, [&] { return row( gate, Row::Kind::gate ); } ) );
   }
}

void JournalLineParser::operation( dom::object const & object, Row & row ) {
   std::string_view chip; // format 1
   if ( !object["chip"].get( chip ) ) {
      chipIs( row.fap, Rex::below( "chip", [&] { return chipTypeFromValue( std::string( chip ) ); } ) );
   }
   checkFap( row.fap );
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
   Rex::below( "words", [&] { wordsInto( words_, member( object, "words" ) ); } );
   row.words = words_;
   dom::element before;
   if ( !object["before"].get( before ) ) {
      Rex::below( "before", [&] { wordsInto( before_, before ); } );
      row.before = before_;
      if ( before_.size() != words_.size() ) {
         throw ValueError( "/before", "expected as many words as were written, " + std::to_string( words_.size() ) );
      }
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
   row.path = texts_.kept( text( object, "path" ) ).text;
   row.attribute = texts_.kept( text( object, "attribute" ) ).text;
   std::string_view key;
   if ( !object["key"].get( key ) ) {
      row.key = texts_.kept( key ).text;
   }
   published_ = valueOf( member( object, "value" ) );
   publishedBefore_ = valueOf( member( object, "before" ) );
   row.published = &published_;
   row.publishedBefore = &publishedBefore_;
}

// Looked up once for most rows: its name is a dozen comparisons away otherwise.
Catalogue::Table const * JournalLineParser::tableOf( std::string_view name ) {
   if ( name.empty() ) {
      return nullptr;
   }
   auto const letter = [&]( std::size_t at ) { return std::size_t{ static_cast< unsigned char >( name[at] ) }; };
   std::size_t const few = name.size() + 5 * letter( name.size() - 1 ) + 37 * letter( name.size() / 2 );
   auto & known = knownTables_[few % knownTables_.size()];
   if ( known.name != name ) {
      auto const * const table = Catalogue::table( name );
      known = { table ? table->name : std::string_view(), table };
   }
   return known.table;
}

// Where the journal doesn't say what kind of chip it was, the first of the table's layouts that has the place.
Catalogue::Layout const * JournalLineParser::layoutOf( Row const & row ) const {
   bool const isKnown = hasFap( row.fap );
   auto const array = static_cast< U32 >( row.array );
   for ( auto const & layout : Catalogue::tables()[row.tableNumber].layouts ) {
      bool const isChip = !isKnown || static_cast< U8 >( *chips_[row.fap] ) == layout.chipType;
      bool const hasArray = array >= layout.arrayIndexFirst && array - layout.arrayIndexFirst < layout.arrayElements;
      bool const hasEntry = row.entry ? *row.entry < layout.entries : layout.entries == 0;
      if ( isChip && hasArray && hasEntry && layout.variant == row.variant && layout.width == row.words.size() ) {
         return &layout;
      }
   }
   return nullptr;
}

} // namespace Inspection
