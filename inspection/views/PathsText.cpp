#include "inspection/views/PathsText.h"

#include "inspection/SampleValues.h"
#include "inspection/files/ScenarioText.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Attribute;
using Rex::Value;
using Rex::ValueType;

constexpr char const * kindTexts[] = {
   "",
   "told by the description of the switch",
   "published by the plug-in: --state has it, no scenario sets it",
};

std::string defaultText( StateAttribute const & attribute ) {
   auto const text = Rex::toText( attribute.defaultValue );
   return attribute.isOfSwitch ? "the switch's" : attribute.attribute->elementType() && text != "null" ? "{}" : text;
}

// Functions that run at a change first; those that only look at the start are marked.
std::vector< std::string > hearerTexts( StateAttribute const & attribute, Style const & style ) {
   std::vector< std::string > texts;
   for ( Hearer const & hearer : attribute.hearers ) {
      if ( hearer.atChange ) {
         texts.emplace_back( hearer.function );
      }
   }
   for ( Hearer const & hearer : attribute.hearers ) {
      if ( !hearer.atChange ) {
         texts.push_back( std::string( hearer.function ) + style.faint( "  at the start only" ) );
      }
   }
   return texts;
}

void showAttributes( std::ostream & out, StatePath const & path, Style const & style ) {
   Columns columns;
   columns.row( { style.faint( "attribute" ),
                  style.faint( "takes" ),
                  style.faint( "default" ),
                  style.faint( "functions that hear of it" ) } );
   for ( StateAttribute const & attribute : path.attributes ) {
      auto const functions = hearerTexts( attribute, style );
      columns.row( { style.strong( attribute.attribute->name ),
                     takesText( *attribute.attribute ),
                     defaultText( attribute ),
                     functions.empty() ? style.faint( "-" ) : functions.front() } );
      for ( std::size_t further = 1; further < functions.size(); ++further ) {
         columns.row( { "", "", "", functions[further] } );
      }
   }
   columns.print( out, 2 );
}

Value typeValue( ValueType const & type ) {
   Value::Object value;
   switch ( type.kind ) {
   case ValueType::Kind::boolean:
      value["type"] = "boolean";
      break;
   case ValueType::Kind::number:
      value["type"] = "number";
      value["highest"] = type.highest;
      break;
   case ValueType::Kind::text:
      value["type"] = "text";
      value["of"] = type.name;
      break;
   case ValueType::Kind::object:
      value["type"] = "object";
      Value::Object members;
      for ( auto const & member : type.members ) {
         members[member.name] = typeValue( member.type );
      }
      value["members"] = members;
      break;
   }
   if ( !type.choices.empty() ) {
      value["choices"] = Value::List( type.choices.begin(), type.choices.end() );
   }
   return value;
}

Value attributeValue( StateAttribute const & attribute ) {
   constexpr char const * kinds[] = { "value", "entity", "map", "collection" };
   auto const & of = *attribute.attribute;
   Value::Object value{ { "kind", kinds[static_cast< std::size_t >( of.kind )] } };
   if ( auto const type = of.valueType() ) {
      value["takes"] = typeValue( *type );
   }
   if ( auto const type = of.keyType() ) {
      value["key"] = typeValue( *type );
   }
   if ( of.elementType() ) {
      value["entity"] = of.elementType()->name();
   }
   value[attribute.isOfSwitch ? "defaultOfSwitch" : "default"] =
      attribute.isOfSwitch ? Value( true ) : attribute.defaultValue;
   Value::List heardBy;
   Value::List readBy;
   for ( Hearer const & hearer : attribute.hearers ) {
      if ( hearer.atChange ) {
         heardBy.emplace_back( std::string( hearer.function ) );
      }
      if ( hearer.atStart ) {
         readBy.emplace_back( std::string( hearer.function ) );
      }
   }
   value["heardBy"] = std::move( heardBy );
   value["readAtStartBy"] = std::move( readBy );
   return value;
}

// What a path holds, in few words: its attributes, a collection with the word for its keys.
std::vector< std::string > namesIn( StatePath const & path, std::vector< StatePath const * > const & paths ) {
   std::vector< std::string > names;
   for ( StateAttribute const & attribute : path.attributes ) {
      std::string name = attribute.attribute->name;
      for ( StatePath const * below : paths ) {
         bool const isBelow = below->hasKey() && below->path.starts_with( path.path + "/" + name + "/" );
         if ( isBelow && below->path.find( '/', path.path.size() + name.size() + 2 ) == std::string::npos ) {
            name += below->path.substr( path.path.size() + name.size() + 1 );
            break;
         }
      }
      names.push_back( name );
   }
   if ( path.entries ) {
      names.emplace_back( "NAME" );
   }
   if ( path.kind != StatePath::Kind::state ) {
      names.emplace_back( path.kind == StatePath::Kind::given ? "(told by the switch)" : "(published)" );
   }
   return names;
}

} // namespace

std::string takesText( ValueType const & type ) {
   switch ( type.kind ) {
   case ValueType::Kind::boolean:
      return type.name;
   case ValueType::Kind::number:
      return "0-" + std::to_string( type.highest );
   case ValueType::Kind::text:
      return type.name;
   case ValueType::Kind::object:
      break;
   }
   std::string members;
   for ( auto const & member : type.members ) {
      members += ( members.empty() ? "" : ", " ) + std::string( member.name );
   }
   return "{" + members + "}";
}

std::string takesText( Attribute const & attribute ) {
   auto const keyType = attribute.keyType();
   auto const valueType = attribute.valueType();
   std::string const key = keyType ? takesText( *keyType ) + " → " : "";
   std::string const value = attribute.elementType() ? attribute.elementType()->name()
                             : valueType             ? takesText( *valueType )
                                                     : "an entity that stands elsewhere";
   return key + value + ( attribute.kind == Attribute::Kind::entity ? " or null" : "" );
}

Value eventFor( StatePath const & path, StateAttribute const & attribute ) {
   Value::Object set{ { "path", withSampleKeys( path.path ) }, { "attribute", attribute.attribute->name } };
   if ( auto const key = attribute.attribute->keyType() ) {
      set["key"] = sampleKey( *key );
   }
   set["value"] = sampleValue( *attribute.attribute, attribute.defaultValue );
   return Value::Object{ { "set", set } };
}

void listPaths( std::ostream & out, std::vector< StatePath const * > const & paths, Style const & style ) {
   std::size_t width = 0;
   for ( StatePath const * path : paths ) {
      width = std::max( width, path->hasKey() ? 0 : path->path.size() );
   }
   for ( StatePath const * path : paths ) {
      if ( path->hasKey() ) {
         continue; // its name stands beside the attribute that holds it
      }
      std::string line = padded( style.strong( path->path ), width );
      for ( std::string const & name : namesIn( *path, paths ) ) {
         if ( widthOf( line ) + name.size() + 2 > lineWidth() && widthOf( line ) > width ) {
            out << line << '\n';
            line = std::string( width, ' ' );
         }
         line += "  " + name;
      }
      out << line << '\n';
   }
}

void showPath( std::ostream & out, StatePath const & path, Style const & style ) {
   out << style.title( path.path ) << "  " << path.type->name();
   auto const kind = std::string( kindTexts[static_cast< std::size_t >( path.kind )] );
   out << ( kind.empty() ? "" : "  " + style.faint( kind ) ) << '\n';
   if ( path.entries ) {
      out << "  entities by name, each " << path.entries->name() << '\n';
   }
   if ( !path.attributes.empty() ) {
      showAttributes( out, path, style );
      if ( path.kind == StatePath::Kind::state ) {
         out << "  " << style.faint( "event" ) << "  " << scenarioLine( eventFor( path, path.attributes.front() ) )
             << '\n';
      }
   }
}

Value pathsValue( std::vector< StatePath const * > const & paths ) {
   constexpr char const * kinds[] = { "state", "given", "published" };
   Value::Object all;
   for ( StatePath const * path : paths ) {
      Value::Object attributes;
      for ( StateAttribute const & attribute : path->attributes ) {
         attributes[attribute.attribute->name] = attributeValue( attribute );
      }
      Value::Object one{ { "type", path->type->name() },
                         { "kind", kinds[static_cast< std::size_t >( path->kind )] },
                         { "attributes", attributes } };
      if ( path->entries ) {
         one["entries"] = path->entries->name();
      }
      all[path->path] = one;
   }
   return Value::Object{ { "paths", all } };
}

} // namespace Inspection
