// Where a path leads, told by the declarations of the entities.
#include "agent/database/Paths.h"
#include "rex/Dir.h"

#include <algorithm>

namespace Live {

namespace {

using Rex::Attribute;
using Rex::TypeData;
using Rex::ValueError;
using Simulator::StateRoot;

struct Root {
   StateRoot const * root;
   std::string path;
   TypeData const * type;
   TypeData const * entries;
};

std::vector< Root > const & roots() {
   static std::vector< Root > const all = [] {
      std::vector< Root > found;
      for ( StateRoot const & root : Simulator::stateRoots() ) {
         auto const entity = root.make();
         auto const dir = Corvo::ptrCast< Rex::Dir >( entity );
         found.push_back( { &root, root.path(), &entity->typeData(), dir ? dir->elementType() : nullptr } );
      }
      return found;
   }();
   return all;
}

[[noreturn]] void refuse( std::string const & text ) {
   throw ValueError( "/path", text );
}

Root const & rootOf( std::string const & path ) {
   Root const * longest = nullptr;
   for ( Root const & root : roots() ) {
      if ( Rex::isAtOrBelow( path, root.path ) && ( !longest || root.path.size() > longest->path.size() ) ) {
         longest = &root;
      }
   }
   if ( !longest ) {
      refuse( "there is no path \"" + path + "\"; `l3sm paths` lists them" );
   }
   if ( longest->root->kind != StateRoot::Kind::state ) {
      refuse( longest->path + " can't be set: it is told by the description of the switch" );
   }
   return *longest;
}

bool holdsEntities( Attribute const & attribute ) {
   return attribute.elementType() && attribute.canBeSet();
}

} // namespace

Attribute const & settableAttribute( TypeData const & type, std::string const & name ) {
   auto const & attribute = Rex::attributeOf( type, name );
   if ( !attribute.canBeSet() ) {
      throw ValueError( "", name + " only refers to entities that stand elsewhere" );
   }
   return attribute;
}

Inspection::Event makingItsMember( Inspection::Event const & event, PathPlace const & place ) {
   Rex::Value const value = event.key ? Rex::Value::Object{ { *event.key, event.value } } : event.value;
   Inspection::Event making = event;
   making.path = place.owner;
   making.attribute = place.attribute;
   making.key = place.key;
   making.value = Rex::Value::Object{ { *event.attribute, value } };
   return making;
}

PathPlace placeOf( std::string const & path ) {
   Root const & root = rootOf( path );
   if ( path.ends_with( '/' ) ) {
      refuse( "\"" + path + "\" ends in a slash" );
   }
   PathPlace place{ .type = root.type, .entries = root.entries };
   std::size_t at = root.path.size(); // all before it is taken
   while ( at < path.size() ) {
      std::size_t const from = at + 1;
      std::string const owner = path.substr( 0, at );
      at = std::min( path.find( '/', from ), path.size() );
      std::string const step = path.substr( from, at - from );
      if ( place.entries ) {
         if ( step.empty() ) {
            refuse( "\"" + path + "\" has an empty key" );
         }
         place = { place.entries, nullptr, owner, {}, step };
      } else {
         auto const * attribute = place.type->attribute( step );
         if ( !attribute || !holdsEntities( *attribute ) ) {
            refuse( owner + " holds nothing at \"" + path.substr( from ) + "\"" );
         }
         place = { attribute->elementType(), nullptr, owner, step, {} };
         if ( attribute->kind == Attribute::Kind::collection ) {
            if ( at == path.size() ) {
               refuse( path + " is a collection: its members have paths, " + path + "/KEY" );
            }
            place.key = path.substr( at + 1 ); // which may have slashes: no member holds entities
            at = path.size();
         }
      }
   }
   return place;
}

} // namespace Live
