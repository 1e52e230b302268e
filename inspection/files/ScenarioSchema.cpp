#include "inspection/files/ScenarioSchema.h"

#include "generated/Catalogue.h"
#include "inspection/KnownToggles.h"
#include "inspection/StatePaths.h"
#include "inspection/files/FaultSchema.h"
#include "inspection/files/TypeSchema.h"
#include "state/CellStatus.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace Inspection {

namespace {

using Rex::Codec;
using Rex::Value;
using Object = Rex::Value::Object;
using List = Rex::Value::List;

Value const anyText = Object{ { "type", "string" } };

Value described( Value schema, std::string const & description ) {
   ( *schema.object() )["description"] = description;
   return schema;
}

// ---- switch and toggles

Value switchSchema() {
   auto const number = Codec< U16 >::type();
   Value revision = schemaOf( Codec< Hardware::Dace::FapRevision >::type() );
   ( *revision.object() )["required"] = List{ "chipType" };
   Object const fap{
      { "fapId", schemaOf( Codec< Hardware::Dace::FapId >::type() ) },
      { "name", described( anyText, "default: Fap and its number" ) },
      { "cores", described( schemaOf( number ), "default: one for each physical copy that the chip has" ) },
      { "ports", described( objectSchema( number, schemaOf( number ) ), "system port to port of the FAP" ) },
      { "revision", revision },
   };
   Object const faps{
      { "type", "array" }, { "minItems", 1 }, { "items", objectSchema( fap, { "fapId", "revision" } ) } };
   return objectSchema( { { "slice", objectSchema( Object{ { "name", anyText } } ) }, { "faps", faps } }, { "faps" } );
}

Value togglesSchema() {
   Value const state = Object{ { "type", "boolean" } };
   Object files;
   for ( KnownToggle const & toggle : knownToggles() ) {
      auto & names = files.try_emplace( std::string( toggle.file ), Object() ).first->second;
      ( *names.object() )[std::string( toggle.name )] =
         described( state, toggle.defaultState ? "default: true" : "default: false" );
   }
   for ( auto & [file, names] : files ) {
      names = objectSchema( *names.object() );
   }
   return objectSchema( files );
}

// ---- chips

// The entry of a table of so many words.
Value entrySchema( U16 width ) {
   Value const words = Object{ { "type", "array" },
                               { "minItems", width },
                               { "maxItems", width },
                               { "items", Object{ { "type", "string" }, { "pattern", "^0x0*[0-9a-fA-F]{1,8}$" } } } };
   Object const members{ { "words", words },
                         { "instances", objectSchema( Object{ { "0", words }, { "1", words } }, { "0", "1" } ) },
                         { "fields", true } };
   Value entry = objectSchema( members );
   ( *entry.object() )["oneOf"] =
      List{ Object{ { "required", List{ "words" } } }, Object{ { "required", List{ "instances" } } } };
   return entry;
}

Value numbered( U32 least, U32 most, Value const & member ) {
   return Object{ { "type", "object" },
                  { "patternProperties", Object{ { whole( numberPattern( least, most ) ), member } } },
                  { "additionalProperties", false } };
}

// What some chip has a place for; whether this one has, its playing says.
Value tableSchema( Catalogue::Table const & table, Object & definitions ) {
   U32 least = ~0u;
   U32 most = 0;
   U32 entries = 1;
   std::set< U16 > widths;
   for ( auto const & layout : table.layouts ) {
      least = std::min< U32 >( least, layout.arrayIndexFirst );
      most = std::max< U32 >( most, layout.arrayIndexFirst + std::max< U32 >( layout.arrayElements, 1 ) - 1 );
      entries = std::max( entries, layout.entries );
      widths.insert( layout.width );
   }
   List alternatives;
   for ( U16 const width : widths ) {
      std::string const name = "entryOf" + std::to_string( width );
      definitions.try_emplace( name, entrySchema( width ) );
      alternatives.push_back( Object{ { "$ref", "#/definitions/" + name } } );
   }
   Value const entry = alternatives.size() == 1 ? alternatives.front() : Value( Object{ { "anyOf", alternatives } } );
   return numbered( 0, table.variantCount - 1u, numbered( least, most, numbered( 0, entries - 1, entry ) ) );
}

Value chipsSchema( Object & definitions ) {
   Object tables;
   for ( auto const & table : Catalogue::tables() ) {
      if ( table.hasMemory ) {
         tables[table.name] = tableSchema( table, definitions );
      }
   }
   definitions["tables"] = objectSchema( tables );
   Value const ofTables = Object{ { "$ref", "#/definitions/tables" } };
   auto const number = Codec< U32 >::type();
   Value const both =
      objectSchema( { { "tables", ofTables }, { "controls", objectSchema( number, schemaOf( number ) ) } } );
   Object const isLong{
      { "anyOf", List{ Object{ { "required", List{ "tables" } } }, Object{ { "required", List{ "controls" } } } } } };
   return objectSchema( Codec< U16 >::type(), Object{ { "if", isLong }, { "then", both }, { "else", ofTables } } );
}

// ---- state and events

// The paths that lead to an entity, as a regular expression. A name in a directory may hold slashes: what is another
// path below it is left out.
std::string patternOf( StatePath const & path ) {
   std::string pattern;
   std::istringstream steps( path.path );
   for ( std::string step; std::getline( steps, step, '/' ); ) {
      pattern += pattern.empty() ? "" : "/";
      pattern += step == "NUMBER"               ? "(?:" + numberPattern( 0, 0xffffffff ) + ")"
                 : StatePath::isKeyWord( step ) ? ".+"
                                                : escapedInPattern( step );
   }
   std::string others;
   for ( StatePath const & other : statePaths() ) {
      if ( other.path.starts_with( path.path + "/" ) ) {
         others += "(?!" + patternOf( other ) + ")";
      }
   }
   return "^" + others + "(?:" + pattern + ")$";
}

// A condition on a member of an event: that it is this path.
Value leadsTo( StatePath const & path ) {
   return path.hasKey() ? Object{ { "pattern", patternOf( path ) } } : Object{ { "const", path.path } };
}

Value ifMember( std::string const & name, Value const & condition, Value const & then ) {
   return Object{ { "if", Object{ { "properties", Object{ { name, condition } } }, { "required", List{ name } } } },
                  { "then", then } };
}

Value members( Object const & of ) {
   return Object{ { "properties", of } };
}

// What stands beside the path of a "set" in an entity with these attributes, of a "delete".
Value setSchema( StatePath const & path, EntitySchemas & entities ) {
   List names;
   List each;
   for ( StateAttribute const & of : path.attributes ) {
      auto const & attribute = *of.attribute;
      names.emplace_back( attribute.name );
      Object const all{ { "value", entities.attribute( attribute ) } };
      if ( auto const key = attribute.keyType() ) {
         Value const entry = members( { { "key", Object{ { "pattern", whole( keyPattern( *key ) ) } } },
                                        { "value", entities.entry( attribute ) } } );
         each.push_back( ifMember( "attribute",
                                   Object{ { "const", attribute.name } },
                                   Object{ { "if", Object{ { "required", List{ "key" } } } },
                                           { "then", entry },
                                           { "else", members( all ) } } ) );
      } else {
         Object alone = all;
         alone["key"] = false;
         each.push_back( ifMember( "attribute", Object{ { "const", attribute.name } }, members( alone ) ) );
      }
   }
   Object schema{ { "properties", Object{ { "attribute", Object{ { "enum", names } } } } } };
   if ( !each.empty() ) {
      schema["allOf"] = each;
   }
   return schema;
}

Value deleteSchema( StatePath const & path ) {
   List names;
   List each;
   for ( StateAttribute const & of : path.attributes ) {
      if ( auto const key = of.attribute->keyType() ) {
         names.emplace_back( of.attribute->name );
         each.push_back( ifMember( "attribute",
                                   Object{ { "const", of.attribute->name } },
                                   members( { { "key", Object{ { "pattern", whole( keyPattern( *key ) ) } } } } ) ) );
      }
   }
   if ( names.empty() ) {
      return members( { { "attribute", false } } );
   }
   return Object{ { "properties", Object{ { "attribute", Object{ { "enum", names } } } } }, { "allOf", each } };
}

Value eventSchema( EntitySchemas & entities ) {
   List known;
   List sets;
   List deletes;
   List fixed;
   for ( StatePath const & path : statePaths() ) {
      if ( path.kind != StatePath::Kind::state ) {
         continue;
      }
      if ( path.hasKey() ) {
         known.push_back( leadsTo( path ) );
      } else {
         fixed.emplace_back( path.path );
      }
      sets.push_back( ifMember( "path", leadsTo( path ), setSchema( path, entities ) ) );
      deletes.push_back( ifMember( "path", leadsTo( path ), deleteSchema( path ) ) );
   }
   known.insert( known.begin(), Object{ { "enum", fixed } } );
   Object const both{
      { "path", Object{ { "type", "string" }, { "anyOf", known } } }, { "attribute", anyText }, { "key", anyText } };
   Object withValue = both;
   withValue["value"] = true;
   Value set = objectSchema( withValue, { "path", "attribute", "value" } );
   ( *set.object() )["allOf"] = sets;
   Value remove = objectSchema( both, { "path" } );
   ( *remove.object() )["allOf"] = deletes;
   ( *remove.object() )["dependencies"] = Object{ { "attribute", List{ "key" } }, { "key", List{ "attribute" } } };
   Value change = objectSchema( Object{ { "set", set }, { "delete", remove } } );
   Value const one = List{ Object{ { "required", List{ "set" } } }, Object{ { "required", List{ "delete" } } } };
   ( *change.object() )["oneOf"] = one;
   Value const changes = Object{ { "type", "array" }, { "minItems", 1 }, { "items", change } };
   Value event = objectSchema(
      Object{ { "set", set }, { "delete", remove }, { "transaction", changes }, { "fault", faultSchema() } } );
   auto kinds = *one.list();
   kinds.push_back( Object{ { "required", List{ "transaction" } } } );
   kinds.push_back( Object{ { "required", List{ "fault" } } } );
   ( *event.object() )["oneOf"] = std::move( kinds );
   return event;
}

Value stateSchema( EntitySchemas & entities ) {
   Object fixed;
   Object patterns;
   for ( StatePath const & path : statePaths() ) {
      if ( path.kind != StatePath::Kind::state ) {
         continue;
      }
      Value entity = entities.reference( path.entries ? *path.entries : *path.type );
      if ( path.entries ) {
         entity = Object{ { "type", "object" }, { "additionalProperties", entity } };
      }
      if ( path.hasKey() ) {
         patterns[patternOf( path )] = orNull( entity );
      } else {
         fixed[path.path] = orNull( entity );
      }
   }
   return Object{ { "type", "object" },
                  { "properties", fixed },
                  { "patternProperties", patterns },
                  { "additionalProperties", false } };
}

} // namespace

Value scenarioSchema() {
   EntitySchemas entities;
   Object definitions;
   Object const members{
      { "$schema", described( anyText, "where editors find this schema" ) },
      { "name", described( anyText, "one line, for people" ) },
      { "switch", described( switchSchema(), "the slice and its FAPs" ) },
      { "toggles", described( togglesSchema(), "file, then toggle; what is not named has its default" ) },
      { "chips", described( chipsSchema( definitions ), "contents on top of the boot image, by FAP" ) },
      { "state",
        described( stateSchema( entities ), "path to attributes before the start; null leaves the path out" ) },
      { "events",
        Object{ { "type", "array" },
                { "description", "played in order, once the plug-in has started" },
                { "items", eventSchema( entities ) } } },
   };
   Value schema = objectSchema( members, { "switch" } );
   ( *schema.object() )["$schema"] = "http://json-schema.org/draft-07/schema#";
   ( *schema.object() )["title"] = "A scenario of l3sm";
   for ( auto const & [name, definition] : entities.definitions() ) {
      definitions[name] = definition;
   }
   ( *schema.object() )["definitions"] = definitions;
   return schema;
}

} // namespace Inspection
