#include "simulator/Fault.h"

#include "generated/Catalogue.h"
#include "rex/Nearest.h"
#include "simulator/PlaceAt.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Simulator {

namespace {

using Rex::ValueError;
using Number = Rex::Codec< U32 >;

constexpr std::array< char const *, 5 > names{ "lost", "flip", "stuck", "error", "delay" };
constexpr char const * forms = "lost, flip:BIT, stuck:BIT=V, error or delay:MS";
constexpr U32 longestDelay = 10000; // milliseconds, for one operation

[[noreturn]] void refuseKind( std::string const & text ) {
   throw ValueError( "/kind", "expected " + std::string( forms ) + ", got \"" + text + "\"" );
}

U32 numberIn( std::string const & part, std::string const & text ) {
   try {
      return Number::fromKey( part );
   } catch ( ValueError const & ) {
      refuseKind( text );
   }
}

std::string rangeText( U32 first, U32 last ) {
   return first == last ? std::to_string( first ) : std::to_string( first ) + " to " + std::to_string( last );
}

} // namespace

void Fault::kindIs( std::string const & text ) {
   auto const colon = text.find( ':' );
   auto const name = std::ranges::find( names, text.substr( 0, colon ) );
   std::string const rest = colon == std::string::npos ? std::string() : text.substr( colon + 1 );
   if ( name == names.end() ) {
      refuseKind( text );
   }
   auto const wanted = static_cast< Fault::Kind >( name - names.begin() );
   bool const takesMore = wanted != Fault::Kind::lost && wanted != Fault::Kind::error;
   if ( takesMore == rest.empty() ) {
      refuseKind( text );
   }
   if ( wanted == Fault::Kind::flip ) {
      bit = numberIn( rest, text );
   } else if ( wanted == Fault::Kind::stuck ) {
      auto const equals = rest.find( '=' );
      if ( equals == std::string::npos || ( rest.substr( equals ) != "=0" && rest.substr( equals ) != "=1" ) ) {
         refuseKind( text );
      }
      bit = numberIn( rest.substr( 0, equals ), text );
      value = rest.back() == '1';
   } else if ( wanted == Fault::Kind::delay ) {
      milliseconds = numberIn( rest, text );
      if ( milliseconds > longestDelay ) {
         throw ValueError( "/kind", "an operation is delayed by " + std::to_string( longestDelay ) + " ms at most" );
      }
   }
   kind = wanted;
}

std::string Fault::kindText() const {
   std::string const name = names[static_cast< std::size_t >( kind )];
   switch ( kind ) {
   case Fault::Kind::flip:
      return name + ":" + std::to_string( bit );
   case Fault::Kind::stuck:
      return name + ":" + std::to_string( bit ) + "=" + ( value ? "1" : "0" );
   case Fault::Kind::delay:
      return name + ":" + std::to_string( milliseconds );
   default:
      return name;
   }
}

std::string Fault::placeText() const {
   if ( table.empty() ) {
      return "any table";
   }
   return table + ( array ? "[" + std::to_string( *array ) + "]" : "" ) +
          ( entry ? "." + std::to_string( *entry ) : "" );
}

std::string Fault::text() const {
   return placeText() + ( fap ? " --fap " + std::to_string( *fap ) : "" ) +
          ( copy ? " --copy " + std::to_string( *copy ) : "" ) + " --kind " + kindText();
}

void placeIs( Fault & fault, std::string const & text ) {
   auto const number = [&]( std::size_t from, std::size_t to ) {
      try {
         return Number::fromKey( text.substr( from, to - from ) );
      } catch ( ValueError const & ) {
         throw ValueError( "/place", "expected TABLE[ARRAY][.ENTRY], got \"" + text + "\"" );
      }
   };
   auto const bracket = text.find( '[' );
   auto const closed = bracket == std::string::npos ? bracket : text.find( ']', bracket );
   auto const dot = text.find( '.', closed == std::string::npos ? 0 : closed );
   fault.table = text.substr( 0, std::min( bracket, dot ) );
   if ( bracket != std::string::npos ) {
      fault.array = number( bracket + 1, closed == std::string::npos ? text.size() : closed );
      if ( closed == std::string::npos || ( closed + 1 != text.size() && closed + 1 != dot ) ) {
         throw ValueError( "/place", "expected TABLE[ARRAY][.ENTRY], got \"" + text + "\"" );
      }
   }
   if ( dot != std::string::npos ) {
      fault.entry = number( dot + 1, text.size() );
   }
}

namespace {

double probabilityOf( Rex::Value const & value ) {
   std::string const text = value.text() ? *value.text() : Rex::toText( value );
   double number = 0;
   auto const [end, error] = std::from_chars( text.data(), text.data() + text.size(), number );
   if ( error != std::errc() || end != text.data() + text.size() || !( number > 0 && number <= 1 ) ) {
      throw ValueError( "", "expected a probability above 0 and up to 1, got " + text );
   }
   return number;
}

std::string textOf( double number ) {
   std::array< char, 32 > digits;
   return { digits.data(), std::to_chars( digits.begin(), digits.end(), number ).ptr };
}

} // namespace

Fault faultOf( Rex::Value const & value ) {
   auto const * const object = value.object();
   if ( !object ) {
      throw ValueError( "", "expected an object" );
   }
   Fault fault;
   Rex::ValueErrors errors;
   bool hasKind = false;
   for ( auto const & member : *object ) {
      std::string const & name = member.first;
      Rex::Value const & part = member.second;
      errors.below( name, [&] {
         if ( name == "fap" ) {
            fault.fap = Rex::Codec< U16 >::fromValue( part );
         } else if ( name == "table" ) {
            fault.table = Rex::Codec< std::string >::fromValue( part );
         } else if ( name == "array" ) {
            fault.array = Number::fromValue( part );
         } else if ( name == "entry" ) {
            fault.entry = Number::fromValue( part );
         } else if ( name == "copy" ) {
            fault.copy = Number::fromValue( part );
         } else if ( name == "kind" ) {
            hasKind = true;
            try {
               fault.kindIs( Rex::Codec< std::string >::fromValue( part ) );
            } catch ( ValueError const & error ) {
               throw ValueError( "", error.what() );
            }
         } else if ( name == "count" ) {
            fault.count = Number::fromValue( part );
            if ( *fault.count == 0 ) {
               throw ValueError( "", "expected a number from 1 on" );
            }
         } else if ( name == "probability" ) {
            fault.probability = probabilityOf( part );
         } else if ( name == "for" ) {
            fault.duration = Number::fromValue( part );
         } else if ( name == "seed" ) {
            fault.seed = Rex::Codec< U64 >::fromValue( part );
         } else {
            throw ValueError( { "",
                                "a fault has \"fap\", \"table\", \"array\", \"entry\", \"copy\", \"kind\", "
                                "\"count\", \"probability\", \"for\" and \"seed\"",
                                true } );
         }
      } );
   }
   if ( !hasKind ) {
      errors.of( [] { throw ValueError( "", std::string( "\"kind\" is missing: " ) + forms ); } );
   }
   errors.end();
   return fault;
}

Rex::Value valueOf( Fault const & fault ) {
   Rex::Value::Object object{ { "kind", fault.kindText() } };
   auto const put = [&]( char const * name, auto const & number ) {
      if ( number ) {
         object[name] = static_cast< std::int64_t >( *number );
      }
   };
   put( "fap", fault.fap );
   put( "array", fault.array );
   put( "entry", fault.entry );
   put( "copy", fault.copy );
   put( "count", fault.count );
   put( "for", fault.duration );
   if ( !fault.table.empty() ) {
      object["table"] = fault.table;
   }
   if ( fault.probability < 1 ) {
      object["probability"] = textOf( fault.probability );
   }
   if ( fault.seed != 1 ) {
      object["seed"] = static_cast< std::int64_t >( fault.seed );
   }
   return object;
}

void check( Fault const & fault, std::map< U16, Hardware::ChipType > const & faps ) {
   std::optional< ValueError > wrong;
   for ( auto const & [fap, chipType] : faps ) {
      if ( fault.fap.value_or( fap ) != fap ) {
         continue;
      }
      try {
         check( fault, chipType );
         return;
      } catch ( ValueError const & error ) {
         wrong = error;
      }
   }
   throw wrong.value_or( ValueError( "/fap", "the switch has no such FAP" ) );
}

void check( Fault const & fault, Hardware::ChipType chipType ) {
   std::string const on = std::string( " on " ) + Hardware::chipTypeName( chipType );
   if ( fault.table.empty() ) {
      if ( fault.array || fault.entry ) {
         throw ValueError( "/table", "an array and an entry are those of a table: name it" );
      }
      return;
   }
   auto const * const table = Catalogue::table( fault.table );
   if ( !table ) {
      std::vector< std::string > known;
      for ( Catalogue::Table const & each : Catalogue::tables() ) {
         known.emplace_back( each.name );
      }
      throw ValueError( "/table", "there is no table " + fault.table + Rex::didYouMean( fault.table, known ) );
   }
   auto const * const found = firstLayout( *table, chipType );
   if ( !found ) {
      throw ValueError( "/table", fault.table + " has no memory" + on );
   }
   Catalogue::Layout const & layout = *found;
   U32 const first = layout.arrayIndexFirst;
   if ( fault.array && *fault.array - first >= layout.arrayElements ) {
      throw ValueError( "/array",
                        fault.table + " has the array indices " + rangeText( first, first + layout.arrayElements - 1 ) +
                           on + ", not " + std::to_string( *fault.array ) );
   }
   if ( fault.entry && *fault.entry >= entryCount( layout ) ) {
      throw ValueError( "/entry",
                        fault.table + " has the entries " + rangeText( 0, entryCount( layout ) - 1 ) + on + ", not " +
                           std::to_string( *fault.entry ) );
   }
   if ( fault.copy && *fault.copy >= layout.selectors.size() ) {
      throw ValueError( "/copy",
                        fault.table + " has the copies " +
                           rangeText( 0, static_cast< U32 >( layout.selectors.size() ) - 1 ) + on + ", not " +
                           std::to_string( *fault.copy ) );
   }
   bool const hasBit = fault.kind == Fault::Kind::flip || fault.kind == Fault::Kind::stuck;
   if ( hasBit && fault.bit >= layout.width * 32u ) {
      throw ValueError( "/kind",
                        "an entry of " + fault.table + " has the bits 0 to " + std::to_string( layout.width * 32 - 1 ) +
                           on + ", not " + std::to_string( fault.bit ) );
   }
}

} // namespace Simulator
