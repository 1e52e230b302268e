#include "inspection/SampleValues.h"

#include "simulator/SwitchDescription.h"

#include <algorithm>
#include <array>

namespace Inspection {

namespace {

using Rex::Attribute;
using Rex::Value;
using Rex::ValueType;

constexpr char const * interface = "Ethernet1";

} // namespace

Value sampleValue( ValueType const & type, Value const & from ) {
   switch ( type.kind ) {
   case ValueType::Kind::boolean:
      return from == Value( false );
   case ValueType::Kind::number:
      return from == Value( 1 ) ? 2 : 1;
   case ValueType::Kind::text: {
      if ( !type.choices.empty() ) {
         return from == Value( type.choices.front() ) ? type.choices.back() : type.choices.front();
      }
      if ( type.pattern ) { // a MAC address
         return from == Value( "02:00:00:00:00:01" ) ? "02:00:00:00:00:02" : "02:00:00:00:00:01";
      }
      return from == Value( interface ) ? "Ethernet2" : interface;
   }
   case ValueType::Kind::object:
      break;
   }
   Value::Object object;
   for ( auto const & member : type.members ) {
      auto const * members = from.object();
      bool const isThere = members && members->contains( member.name );
      object[member.name] = sampleValue( member.type, isThere ? members->at( member.name ) : Value() );
   }
   return object;
}

Value sampleValue( Attribute const & attribute, Value const & from ) {
   switch ( attribute.kind ) {
   case Attribute::Kind::scalar:
      return sampleValue( *attribute.valueType(), from );
   case Attribute::Kind::map:
      return sampleValue( *attribute.valueType(), {} );
   case Attribute::Kind::entity:
   case Attribute::Kind::collection:
      break;
   }
   return Value::Object();
}

std::string sampleKey( ValueType const & type ) {
   return type.kind == ValueType::Kind::number ? "1" : std::string( type.name ) == "interface" ? interface : Simulator::SwitchDescription().sliceName;
}

std::string withSampleKeys( std::string const & path ) {
   constexpr std::array words{
      std::pair( "INTERFACE", interface ), std::pair( "NUMBER", "1" ), std::pair( "NAME", "name" ) };
   std::string text = path;
   for ( auto const & [word, key] : words ) {
      for ( auto at = text.find( word ); at != std::string::npos; at = text.find( word ) ) {
         text.replace( at, std::char_traits< char >::length( word ), key );
      }
   }
   return text;
}

} // namespace Inspection
