#include "inspection/files/TypeSchema.h"

namespace Inspection {

namespace {

using Rex::Attribute;
using Rex::Value;
using Rex::ValueType;

std::string digits( char from, char to ) {
   return from == to ? std::string( 1, from ) : std::string( "[" ) + from + "-" + to + "]";
}

std::string anyDigits( std::size_t count ) {
   return count == 0 ? "" : count == 1 ? "[0-9]" : "[0-9]{" + std::to_string( count ) + "}";
}

void addAlternative( std::string & pattern, std::string const & alternative ) {
   pattern += ( pattern.empty() ? "" : "|" ) + alternative;
}

// Texts of one length, from `least` to `most`, with a common beginning.
void addRange( std::string & pattern, std::string const & head, std::string const & least, std::string const & most ) {
   if ( least.empty() ) {
      return addAlternative( pattern, head );
   }
   std::string const tail( least.size() - 1, '0' );
   std::string const nines( least.size() - 1, '9' );
   if ( least[0] == most[0] ) {
      return addRange( pattern, head + least[0], least.substr( 1 ), most.substr( 1 ) );
   }
   char from = least[0];
   char to = most[0];
   if ( least.substr( 1 ) != tail ) {
      addRange( pattern, head + from, least.substr( 1 ), nines );
      ++from;
   }
   bool const isWhole = most.substr( 1 ) == nines;
   to = static_cast< char >( isWhole ? to : to - 1 );
   if ( from <= to ) {
      addAlternative( pattern, head + digits( from, to ) + anyDigits( tail.size() ) );
   }
   if ( !isWhole ) {
      addRange( pattern, head + most[0], tail, most.substr( 1 ) );
   }
}

} // namespace

std::string numberPattern( std::uint64_t least, std::uint64_t most ) {
   std::string pattern;
   std::string from = std::to_string( least );
   std::string const to = std::to_string( most );
   while ( from.size() < to.size() ) {
      addRange( pattern, "", from, std::string( from.size(), '9' ) );
      from = "1" + std::string( from.size(), '0' );
   }
   addRange( pattern, "", from, to );
   return pattern;
}

std::string keyPattern( ValueType const & key ) {
   return key.kind == ValueType::Kind::number ? numberPattern( 0, key.highest ) : ".*";
}

std::string escapedInPattern( std::string const & text ) {
   std::string pattern;
   for ( char const letter : text ) {
      pattern += std::string_view( ".*+?()[]{}|^$\\" ).find( letter ) == std::string_view::npos
                    ? std::string( 1, letter )
                    : std::string( "\\" ) + letter;
   }
   return pattern;
}

Value schemaOf( ValueType const & type ) {
   switch ( type.kind ) {
   case ValueType::Kind::boolean:
      return Value::Object{ { "type", "boolean" } };
   case ValueType::Kind::number:
      return Value::Object{ { "type", "integer" }, { "minimum", 0 }, { "maximum", type.highest } };
   case ValueType::Kind::text: {
      Value::Object schema{ { "type", "string" } };
      if ( !type.choices.empty() ) {
         schema["enum"] = Value::List( type.choices.begin(), type.choices.end() );
      }
      if ( type.pattern ) {
         schema["pattern"] = whole( type.pattern );
      }
      return schema;
   }
   case ValueType::Kind::object:
      break;
   }
   Value::Object members;
   for ( auto const & member : type.members ) {
      members[member.name] = schemaOf( member.type );
   }
   return objectSchema( members );
}

Value orNull( Value const & schema ) {
   return Value::Object{ { "anyOf", Value::List{ Value::Object{ { "type", "null" } }, schema } } };
}

Value objectSchema( ValueType const & key, Value const & member ) {
   Value::Object schema{ { "type", "object" } };
   if ( key.kind == ValueType::Kind::number ) {
      schema["patternProperties"] = Value::Object{ { whole( keyPattern( key ) ), member } };
      schema["additionalProperties"] = false;
   } else {
      schema["additionalProperties"] = member;
   }
   return schema;
}

Value objectSchema( Value::Object const & members, Value::List const & required ) {
   Value::Object schema{ { "type", "object" }, { "properties", members }, { "additionalProperties", false } };
   if ( !required.empty() ) {
      schema["required"] = required;
   }
   return schema;
}

Value EntitySchemas::reference( Rex::TypeData const & type ) {
   if ( !definitions_.contains( type.name() ) ) {
      definitions_[type.name()] = Value(); // a type may hold itself
      Value::Object members;
      for ( auto const * of : type.attributes() ) {
         if ( of->canBeSet() ) {
            members[of->name] = attribute( *of );
         }
      }
      definitions_[type.name()] = objectSchema( members );
   }
   return Value::Object{ { "$ref", "#/definitions/" + type.name() } };
}

Value EntitySchemas::attribute( Attribute const & attribute ) {
   switch ( attribute.kind ) {
   case Attribute::Kind::scalar:
      return schemaOf( *attribute.valueType() );
   case Attribute::Kind::entity:
      return orNull( reference( *attribute.elementType() ) );
   case Attribute::Kind::map:
   case Attribute::Kind::collection:
      break;
   }
   return objectSchema( *attribute.keyType(), entry( attribute ) );
}

Value EntitySchemas::entry( Attribute const & attribute ) {
   return attribute.elementType() ? reference( *attribute.elementType() ) : schemaOf( *attribute.valueType() );
}

} // namespace Inspection
