// JSON Schemas of what declarations say: of values, of keys, of entities.
//
//    schemaOf( Rex::Codec< U16 >::type() );         // {"type": "integer", "minimum": 0, "maximum": 65535}
//    numberPattern( 0, 255 );                       // as a key: "0|[1-9][0-9]?|1[0-9][0-9]|..."
//    EntitySchemas entities;
//    entities.reference( *type );                   // {"$ref": "#/definitions/Evpn::EvpnStatus"}
//    entities.definitions();                        // of all types that were referred to
#pragma once

#include "rex/Entity.h"

#include <set>

namespace Inspection {

Rex::Value schemaOf( Rex::ValueType const & type );
// Either this or null.
Rex::Value orNull( Rex::Value const & schema );
// An object with members of one kind, under keys of a type.
Rex::Value objectSchema( Rex::ValueType const & key, Rex::Value const & member );
// An object with these members and no other.
Rex::Value objectSchema( Rex::Value::Object const & members, Rex::Value::List const & required = {} );

// Regular expressions without anchors: the numbers of a range in decimal, without leading zeros; a key.
std::string numberPattern( std::uint64_t least, std::uint64_t most );
std::string keyPattern( Rex::ValueType const & key );
// The text as a regular expression that matches it alone.
std::string escapedInPattern( std::string const & text );
// The whole of a text.
inline std::string whole( std::string const & pattern ) {
   return "^(?:" + pattern + ")$";
}

class EntitySchemas {
 public:
   Rex::Value reference( Rex::TypeData const & type );
   // Of an attribute as a whole; of one entry of a map or collection.
   Rex::Value attribute( Rex::Attribute const & attribute );
   Rex::Value entry( Rex::Attribute const & attribute );
   Rex::Value::Object const & definitions() const { return definitions_; }

 private:
   Rex::Value::Object definitions_;
};

} // namespace Inspection
