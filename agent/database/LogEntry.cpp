#include "agent/database/LogEntry.h"

#include "agent/database/RedisLayout.h"
#include "inspection/files/JsonElements.h"
#include "inspection/files/ScenarioReading.h"

#include <charconv>

namespace Live {

namespace {

using Inspection::Event;
using Rex::ValueError;
namespace Json = Inspection::JsonElements;

constexpr double millisecondsInSecond = 1000;

// The quick road for what is as it should be; false for all else, whose faults the reading of scenarios tells.
bool readQuickly( Json::dom::element element, Event & event ) {
   Json::dom::object outer;
   Json::dom::object of;
   if ( element.get( outer ) || outer.size() != 1 ) {
      return false;
   }
   auto const [kind, inner] = *outer.begin();
   bool const isSet = kind == "set";
   if ( ( !isSet && kind != "delete" ) || inner.get( of ) ) {
      return false;
   }
   event.kind = isSet ? Event::Kind::set : Event::Kind::remove;
   bool isKnown = true;
   bool hasValue = false;
   for ( auto const [name, part] : of ) {
      std::string_view text;
      if ( name == "value" && isSet ) {
         event.value = Json::valueOf( part );
         hasValue = true;
      } else if ( part.get( text ) ) {
         return false;
      } else if ( name == "path" ) {
         event.path = text;
      } else if ( name == "attribute" ) {
         event.attribute = text;
      } else if ( name == "key" ) {
         event.key = text;
      } else {
         isKnown = false;
      }
   }
   return isKnown && !event.path.empty() &&
          ( isSet ? hasValue && event.attribute : event.attribute.has_value() == event.key.has_value() );
}

void read( Json::dom::element element, Event & event ) {
   try {
      if ( readQuickly( element, event ) ) {
         return;
      }
   } catch ( ValueError const & ) { // told below with its place
   }
   event = {};
   Inspection::readEvent( Json::valueOf( element ), event );
}

void tell( std::vector< std::string > & faults,
           std::string const & id,
           std::string const & place,
           ValueError const & error ) {
   for ( auto const & fault : error.faults() ) {
      faults.push_back( id + ": " + place + fault.place + ": " + fault.text );
   }
}

void readChanges( std::string_view text, std::string const & id, Transaction & into ) {
   thread_local simdjson::dom::parser parser;
   Json::dom::array list;
   if ( auto const error = parser.parse( text.data(), text.size() ).get( list ) ) {
      into.unreadable.push_back( id + ": expected a list of changes as JSON: " + simdjson::error_message( error ) );
      return;
   }
   std::size_t index = 0;
   into.changes.reserve( list.size() );
   for ( auto const element : list ) {
      std::string const place = "/" + std::to_string( index++ );
      try {
         Event event;
         read( element, event );
         into.changes.push_back( std::move( event ) );
      } catch ( ValueError const & error ) {
         tell( into.unreadable, id, place, error );
      }
   }
}

U64 numberAt( std::string_view text ) {
   U64 number = 0;
   std::from_chars( text.data(), text.data() + text.size(), number );
   return number;
}

} // namespace

EntryId EntryId::of( std::string_view text ) {
   auto const dash = text.find( '-' );
   return { numberAt( text.substr( 0, dash ) ),
            dash == std::string_view::npos ? 0 : numberAt( text.substr( dash + 1 ) ) };
}

std::string changesText( std::span< Event const > events ) {
   Rex::Value::List list;
   for ( Event const & event : events ) {
      list.push_back( valueOf( event ) );
   }
   return Rex::toText( list );
}

Transaction transactionOf( RedisReply entry, Position const & life ) {
   Transaction transaction{ .position = life, .changes = {} };
   std::string const id( entry[0].text() );
   transaction.position.entry = id;
   transaction.written = static_cast< double >( EntryId::of( id ).milliseconds ) / millisecondsInSecond;
   auto const fields = entry[1];
   bool isThere = false;
   for ( std::size_t at = 0; at + 1 < fields.size(); at += 2 ) {
      if ( fields[at].text() == changesField ) {
         isThere = true;
         readChanges( fields[at + 1].text(), id, transaction );
      }
   }
   if ( !isThere ) {
      transaction.unreadable.push_back( id + ": there is no field \"" + changesField + "\"" );
   }
   return transaction;
}

} // namespace Live
