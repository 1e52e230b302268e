#include "inspection/files/ScenarioText.h"

#include "inspection/files/Json.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace Inspection {

namespace {

using Rex::Value;

// What a reader wants to know first; everything else follows, numbers by their value.
constexpr std::array firstKeys{ "$schema",  "name",     "switch",      "slice", "fapId",     "cores", "ports", "faps",
                                "revision", "chipType", "sdkVersion",  "major", "toggles",   "chips", "state", "events",
                                "set",      "delete",   "transaction", "path",  "attribute", "key",   "value" };

auto rankOf( std::string const & key ) {
   bool const isNumber =
      !key.empty() && std::ranges::all_of( key, []( char letter ) { return letter >= '0' && letter <= '9'; } );
   auto const place = std::ranges::find( firstKeys, key ) - firstKeys.begin();
   return std::tuple( place, isNumber ? key.size() : 0, key );
}

std::vector< Value::Object::value_type const * > ordered( Value::Object const & object ) {
   std::vector< Value::Object::value_type const * > members;
   for ( auto const & member : object ) {
      members.push_back( &member );
   }
   std::ranges::sort( members, {}, []( auto const * member ) { return rankOf( member->first ); } );
   return members;
}

std::string oneLine( Value const & value ) {
   if ( auto const * object = value.object() ) {
      std::string out;
      for ( auto const * member : ordered( *object ) ) {
         out += ( out.empty() ? "" : ", " ) + quoted( member->first ) + ": " + oneLine( member->second );
      }
      return "{" + out + "}";
   }
   if ( auto const * list = value.list() ) {
      std::string out;
      for ( auto const & element : *list ) {
         out += ( out.empty() ? "" : ", " ) + oneLine( element );
      }
      return "[" + out + "]";
   }
   return Rex::toText( value );
}

bool isEmpty( Value const & value ) {
   return value.object() ? value.object()->empty() : !value.list() || value.list()->empty();
}

// Each member on a line of its own, down to `depth` levels.
std::string lines( Value const & value, int depth, std::size_t indent ) {
   if ( depth == 0 || isEmpty( value ) ) {
      return oneLine( value );
   }
   std::string const margin( indent + 2, ' ' );
   std::string out;
   auto const add = [&]( std::string const & text ) { out += ( out.empty() ? "\n" : ",\n" ) + margin + text; };
   if ( auto const * object = value.object() ) {
      for ( auto const * member : ordered( *object ) ) {
         add( quoted( member->first ) + ": " + lines( member->second, depth - 1, indent + 2 ) );
      }
      return "{" + out + "\n" + std::string( indent, ' ' ) + "}";
   }
   for ( auto const & element : *value.list() ) {
      add( lines( element, depth - 1, indent + 2 ) );
   }
   return "[" + out + "\n" + std::string( indent, ' ' ) + "]";
}

// How many levels of a part are worth lines of their own.
int depthOf( std::string const & part ) {
   return part == "switch" ? 2 : part == "state" || part == "events" || part == "chips" ? 1 : 0;
}

} // namespace

std::string scenarioLine( Value const & part ) {
   return oneLine( part );
}

std::string scenarioText( Value const & scenario ) {
   std::string out;
   for ( auto const * part : ordered( objectOf( scenario ) ) ) {
      std::string text = lines( part->second, depthOf( part->first ), 2 );
      if ( part->first == "switch" ) {
         // The slice fits on a line; the FAPs don't.
         text = "{";
         for ( auto const * member : ordered( *part->second.object() ) ) {
            text += ( text == "{" ? "\n    " : ",\n    " ) + quoted( member->first ) + ": " +
                    lines( member->second, member->first == "faps" ? 1 : 0, 4 );
         }
         text += "\n  }";
      }
      out += ( out.empty() ? "{\n  " : ",\n  " ) + quoted( part->first ) + ": " + text;
   }
   return out + "\n}\n";
}

} // namespace Inspection
