#include "agent/database/Paths.h"

#include "inspection/files/Json.h"
#include "inspection/files/JsonElements.h"

namespace Live {

namespace {

using Inspection::Event;
using Rex::Attribute;
using Rex::TypeData;
using Rex::Value;
using Rex::ValueError;
using Kind = PathChange::Kind;
using PathChanges = std::vector< PathChange >;

// Takes entities apart into paths.
class Flattening {
 public:
   explicit Flattening( PathChanges & changes ) : changes_( changes ) {}

   void entity( std::string const & path, TypeData const & type, Value const & attributes ) {
      changes_.push_back( { Kind::stands, path } );
      Inspection::forEachMember( attributes, [&]( std::string const & name, Value const & value ) {
         if ( type.attributes().empty() && !type.attribute( name ) ) { // a directory's entry
            throw ValueError( "", "there is no attribute \"" + name + "\"" );
         }
         attribute( path, Rex::attributeOf( type, name ), value );
      } );
   }
   void attribute( std::string const & path, Attribute const & attribute, Value const & value ) {
      std::string const below = path + "/" + attribute.name;
      if ( !attribute.canBeSet() ) {
         return; // it follows from others
      }
      if ( attribute.kind == Attribute::Kind::collection ) {
         Inspection::forEachMember( value, [&]( std::string const & key, Value const & member ) {
            entity( below + "/" + key, *attribute.elementType(), member );
         } );
      } else if ( attribute.kind == Attribute::Kind::entity && !value.isNull() ) {
         changes_.push_back( { Kind::clear, path, attribute.name } );
         entity( below, *attribute.elementType(), value );
      } else {
         changes_.push_back( { Kind::set, path, attribute.name, Rex::toText( value ) } );
      }
   }

 private:
   PathChanges & changes_;
};

// What one event does to the paths.
class Changing {
 public:
   Changing( Event const & event, PathLookup const & lookup ) : event_( event ), lookup_( lookup ) {}

   PathChanges changes() {
      if ( event_.fault ) {
         throw ValueError( "", "a state has no faults: l3sm ctl fault add, or play the scenario: l3sm run" );
      }
      PathPlace const place = placeOf( event_.path );
      if ( !event_.attribute ) {
         removeWith( event_.path );
      } else if ( place.entries ) {
         throw ValueError( "/path", event_.path + " is a directory: name one of its entries in the path" );
      } else {
         Attribute const & attribute = Rex::below(
            "attribute", [&]() -> Attribute const & { return settableAttribute( *place.type, *event_.attribute ); } );
         event_.key ? entry( attribute ) : whole( attribute );
      }
      return std::move( changes_ );
   }

 private:
   void removeWith( std::string const & path ) {
      for ( auto const & gone : lookup_.below( path ) ) {
         changes_.push_back( { Kind::remove, gone } );
      }
   }
   void flatten( std::function< void( Flattening & ) > const & what ) {
      Flattening into( changes_ );
      Rex::below( "value", [&] { what( into ); } );
   }
   void whole( Attribute const & attribute ) {
      changes_.push_back( { Kind::stands, event_.path } );
      if ( attribute.elementType() ) {
         removeWith( event_.path + "/" + attribute.name );
      }
      flatten( [&]( Flattening & into ) { into.attribute( event_.path, attribute, event_.value ); } );
   }
   void entry( Attribute const & attribute ) {
      bool const isSet = event_.kind == Event::Kind::set;
      if ( attribute.kind == Attribute::Kind::collection ) {
         std::string const path = event_.path + "/" + attribute.name + "/" + *event_.key;
         removeWith( path );
         if ( isSet ) {
            changes_.push_back( { Kind::stands, event_.path } );
            flatten( [&]( Flattening & into ) { into.entity( path, *attribute.elementType(), event_.value ); } );
         }
      } else if ( attribute.kind == Attribute::Kind::map ) {
         auto const before = lookup_.text( event_.path, attribute.name );
         Value map = before ? valueOfText( *before ) : Value( Value::Object() );
         if ( !map.object() ) {
            map = Value::Object();
         }
         if ( isSet ) {
            ( *map.object() )[*event_.key] = event_.value;
         } else {
            map.object()->erase( *event_.key );
         }
         changes_.push_back( { Kind::set, event_.path, attribute.name, Rex::toText( map ) } );
      } else {
         throw ValueError( "/key", std::string( attribute.name ) + " has no entries: leave the key out" );
      }
   }

   Event const & event_;
   PathLookup const & lookup_;
   PathChanges changes_;
};

} // namespace

PathLookup::PathLookup( Paths const & paths )
   : text( [&paths]( std::string const & path, std::string const & attribute ) -> std::optional< std::string > {
        auto const at = paths.find( path );
        if ( at == paths.end() ) {
           return std::nullopt;
        }
        auto const found = at->second.find( attribute );
        return found == at->second.end() ? std::nullopt : std::optional( found->second );
     } ),
     below( [&paths]( std::string const & path ) {
        std::vector< std::string > found;
        if ( paths.contains( path ) ) {
           found.push_back( path );
        }
        for ( auto at = paths.lower_bound( path + "/" ); at != paths.end() && Rex::isAtOrBelow( at->first, path );
              ++at ) {
           found.push_back( at->first );
        }
        return found;
     } ) {}

std::vector< PathChange > pathChangesOf( Event const & event, PathLookup const & lookup ) {
   return Changing( event, lookup ).changes();
}

void apply( PathChange const & change, Paths & paths ) {
   switch ( change.kind ) {
   case Kind::stands:
      paths[change.path];
      break;
   case Kind::set:
      paths[change.path][change.attribute] = change.text;
      break;
   case Kind::clear:
      if ( auto const at = paths.find( change.path ); at != paths.end() ) {
         at->second.erase( change.attribute );
      }
      break;
   case Kind::remove:
      paths.erase( change.path );
      break;
   }
}

Paths flattened( Value::Object const & state ) {
   Paths paths;
   PathChanges changes;
   Flattening into( changes );
   Rex::ValueErrors errors;
   for ( auto const & [path, attributes] : state ) {
      errors.below( path, [&, at = path, of = &attributes] {
         PathPlace place;
         try {
            place = placeOf( at );
         } catch ( ValueError const & error ) {
            throw ValueError( { "", error.what(), true } );
         }
         if ( of->isNull() ) {
            throw ValueError( "", "a path can't be left out of a database" );
         }
         if ( place.entries ) {
            Inspection::forEachMember( *of, [&]( std::string const & name, Value const & entry ) {
               into.entity( at + "/" + name, *place.entries, entry );
            } );
         } else {
            into.entity( at, *place.type, *of );
         }
      } );
   }
   errors.end();
   for ( PathChange const & change : changes ) {
      apply( change, paths );
   }
   return paths;
}

Paths overlaid( Paths const & under, Paths over ) {
   for ( auto const & [path, attributes] : under ) {
      over[path].insert( attributes.begin(), attributes.end() ); // what is there stays
   }
   return over;
}

Value valueOfText( std::string const & text ) {
   thread_local simdjson::dom::parser parser;
   simdjson::dom::element element;
   if ( auto const error = parser.parse( text ).get( element ) ) {
      throw ValueError( "",
                        "expected JSON, got \"" + text.substr( 0, 40 ) + "\": " + simdjson::error_message( error ) );
   }
   return Inspection::JsonElements::valueOf( element );
}

} // namespace Live
