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

std::string const none = "null"; // an attribute that holds no entity

Attribute const & attributeAt( TypeData const & type, std::string const & name ) {
   auto const & attribute =
      Rex::below( "attribute", [&]() -> Attribute const & { return Rex::attributeOf( type, name ); } );
   if ( !attribute.canBeSet() ) {
      throw ValueError( "/attribute", name + " only refers to entities that stand elsewhere" );
   }
   return attribute;
}

bool isBelow( std::string const & path, std::string const & owner ) {
   return path.size() > owner.size() && path.starts_with( owner ) && path[owner.size()] == '/';
}

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
      PathPlace const place = placeOf( event_.path );
      if ( !event_.attribute ) {
         removeWith( event_.path );
      } else if ( place.entries ) {
         throw ValueError( "/path", event_.path + " is a directory: name one of its entries in the path" );
      } else {
         Attribute const & attribute = attributeAt( *place.type, *event_.attribute );
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

// The way from one state to the other.
class Way {
 public:
   Way( Paths const & from, Paths const & to, std::map< std::string, std::string > & wrong )
      : from_( from ), to_( to ), wrong_( wrong ) {}

   std::vector< Event > events() {
      for ( auto const & [path, attributes] : from_ ) {
         if ( !to_.contains( path ) && !isBelow( path, gone_ ) ) {
            looking( path, [&, at = path, was = &attributes] { goes( at, *was ); } );
         }
      }
      for ( auto const & [path, attributes] : to_ ) {
         looking( path, [&, at = path, want = &attributes] { becomes( at, *want ); } );
      }
      return std::move( events_ );
   }

 private:
   template< class What >
   void looking( std::string const & path, What const & what ) {
      try {
         what();
      } catch ( ValueError const & error ) {
         wrong_[path] = error.what();
      }
   }
   void goes( std::string const & path, Attributes const & attributes ) {
      PathPlace const place = placeOf( path );
      if ( place.isRoot() ||
           ( !place.attribute.empty() && place.key.empty() ) ) { // it stays, as the declarations have it
         for ( auto const & [name, text] : attributes ) {
            reset( path, place, name );
         }
      } else {
         events_.push_back( { .kind = Event::Kind::remove, .path = path } );
         gone_ = path;
      }
   }
   // A directory's entry is made by setting anything in it; what is set here changes nothing in a new one.
   void beginEntry( std::string const & path, TypeData const & type ) {
      for ( auto const * attribute : type.attributes() ) {
         if ( attribute->canBeSet() && attribute->kind != Attribute::Kind::entity ) {
            events_.push_back(
               { .path = path, .attribute = attribute->name, .value = attribute->value( *type.fresh() ) } );
            return;
         }
      }
   }
   std::string held( std::string const & path, std::string const & attribute ) const {
      auto const at = from_.find( path );
      auto const found = at == from_.end() ? Attributes::const_iterator() : at->second.find( attribute );
      return at == from_.end() || found == at->second.end() ? std::string() : found->second;
   }
   void reset( std::string const & path, PathPlace const & place, std::string const & name ) {
      auto const * attribute = place.type->attribute( name );
      auto const fresh = place.type->fresh();
      if ( attribute && attribute->canBeSet() && fresh ) {
         events_.push_back( { .path = path, .attribute = name, .value = attribute->value( *fresh ) } );
      }
   }
   void becomes( std::string const & path, Attributes const & wanted ) {
      auto const had = from_.find( path );
      if ( had != from_.end() && had->second == wanted ) {
         return;
      }
      PathPlace const place = placeOf( path );
      bool const isNew = had == from_.end() && !place.isRoot() && !place.attribute.empty() && !place.key.empty();
      if ( had == from_.end() && held( place.owner, place.attribute ) == none ) {
         events_.push_back( { .path = place.owner, .attribute = place.attribute, .value = Value::Object() } );
      }
      if ( had == from_.end() && !place.isRoot() && place.attribute.empty() ) {
         beginEntry( path, *place.type );
      }
      Value::Object all; // of a new member
      for ( auto const & [name, text] : wanted ) {
         if ( had != from_.end() ) {
            auto const before = had->second.find( name );
            if ( before != had->second.end() && before->second == text ) {
               continue;
            }
         }
         try {
            attributeAt( *place.type, name );
            Value value = valueOfText( text );
            if ( isNew ) {
               all[name] = std::move( value );
            } else {
               events_.push_back( { .path = path, .attribute = name, .value = std::move( value ) } );
            }
         } catch ( ValueError const & error ) {
            wrong_[path + " " + name] = error.what();
         }
      }
      if ( isNew ) {
         events_.push_back(
            { .path = place.owner, .attribute = place.attribute, .key = place.key, .value = std::move( all ) } );
      } else if ( had != from_.end() ) {
         for ( auto const & [name, text] : had->second ) {
            if ( !wanted.contains( name ) && !to_.contains( path + "/" + name ) ) {
               reset( path, place, name );
            }
         }
      }
   }

   Paths const & from_;
   Paths const & to_;
   std::map< std::string, std::string > & wrong_;
   std::vector< Event > events_;
   std::string gone_ = "\n"; // what was removed last, with all below it
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
        for ( auto at = paths.lower_bound( path + "/" ); at != paths.end() && isBelow( at->first, path ); ++at ) {
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

std::vector< Event >
eventsBetween( Paths const & from, Paths const & to, std::map< std::string, std::string > & wrong ) {
   return Way( from, to, wrong ).events();
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
