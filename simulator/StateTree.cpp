#include "simulator/StateTree.h"

#include "interface/ManagedIntfStatusDir.h"

namespace Simulator {

namespace {

using Corvo::Ptr;
using Rex::Attribute;
using Rex::ValueError;
using Home = StateRoot::Home;

Corvo::String databasePath( StateRoot const & root ) {
   return root.home == Home::cell ? Cell::path( root.name, 0 ) : root.name;
}

[[noreturn]] void refusePath( std::string const & text ) {
   throw ValueError( "/path", text );
}

void checkMayChange( StateRoot const & root ) {
   if ( root.kind == StateRoot::Kind::given ) {
      refusePath( root.path() + " is told by the description of the switch and can't be set" );
   }
   if ( root.kind == StateRoot::Kind::machinery ) {
      refusePath( root.path() + " has no attributes that can be set" );
   }
}

Attribute const & attributeAt( Rex::Entity const & entity, std::string const & attribute ) {
   return Rex::below( "attribute", [&]() -> Attribute const & { return attributeOf( entity.typeData(), attribute ); } );
}

} // namespace

StateTree::StateTree()
   : database_( Corvo::makePtr< Stordb::Database >() ),
     shared_( Corvo::makePtr< Agent::MounterPlugin::LocalSharedState >() ) {
   for ( auto const & root : stateRoots() ) {
      rootEntityIs( root, root.make() );
   }
}

StateTree::~StateTree() {
   // What plug-ins have stored in the shared objects may hold the map that they stand in.
   shared_->readOnlyDb().clear();
   shared_->writeAllowedDb().clear();
}

Ptr< Rex::Entity > StateTree::rootEntity( StateRoot const & root ) const {
   switch ( root.home ) {
   case Home::database:
   case Home::cell:
      return database_->entity( databasePath( root ) );
   case Home::readOnly: {
      // What is shared for reading is changed by its owner, whom this tree stands for.
      auto const entity = shared_->readOnlyDb().get( root.name );
      return const_cast< Rex::Entity * >( entity.get() );
   }
   case Home::writeAllowed:
      return shared_->writeAllowedDb().get( root.name );
   }
   return nullptr;
}

void StateTree::rootEntityIs( StateRoot const & root, Ptr< Rex::Entity > const & entity ) {
   rootOfEntity_.erase( rootEntity( root ).get() );
   switch ( root.home ) {
   case Home::database:
   case Home::cell:
      if ( entity ) {
         database_->entityIs( databasePath( root ), entity );
      } else {
         database_->entityDel( databasePath( root ) );
      }
      break;
   case Home::readOnly:
      shared_->readOnlyDb().del( root.name );
      if ( entity ) {
         shared_->readOnlyDb().set( root.name, entity );
      }
      break;
   case Home::writeAllowed:
      shared_->writeAllowedDb().del( root.name );
      if ( entity ) {
         shared_->writeAllowedDb().set( root.name, entity );
      }
      break;
   }
   if ( entity ) {
      rootOfEntity_[entity.get()] = &root;
   }
}

void StateTree::rootIs( std::string const & path, Ptr< Rex::Entity > const & entity ) {
   rootEntityIs( rootOf( path ), entity );
}

Ptr< Rex::Entity > StateTree::entity( std::string const & path ) const {
   return find( path ).entity;
}

template< class Change >
void StateTree::changeAt( std::string const & path, Change const & change ) {
   Place const place = find( path );
   checkMayChange( *place.root );
   if ( place.entity ) {
      change( *place.entity );
      return;
   }
   auto const dir = Corvo::ptrCast< Rex::Dir >( place.owner );
   if ( !dir ) {
      refusePath( "nothing stands at " + path + ", which was left out" );
   }
   auto const entity = dir->newEntity( place.step );
   change( *entity );
   dir->entityIs( place.step, entity );
}

void StateTree::attributeIs( std::string const & path, std::string const & attribute, Rex::Value const & value ) {
   changeAt( path, [&]( Rex::Entity & entity ) {
      auto const & found = attributeAt( entity, attribute );
      Rex::below( "value", [&] { found.valueIs( entity, value ); } );
   } );
}

void StateTree::attributesIs( std::string const & path, Rex::Value const & value ) {
   changeAt( path, [&]( Rex::Entity & entity ) { Rex::below( "value", [&] { entity.attributesIs( value ); } ); } );
}

void StateTree::entryIs( std::string const & path,
                         std::string const & attribute,
                         std::string const & key,
                         Rex::Value const & value ) {
   changeAt( path, [&]( Rex::Entity & entity ) { attributeAt( entity, attribute ).entryIs( entity, key, value ); } );
}

void StateTree::entryDel( std::string const & path, std::string const & attribute, std::string const & key ) {
   Place const place = find( path );
   if ( !place.entity ) {
      refusePath( "nothing stands at " + path );
   }
   if ( !attributeAt( *place.entity, attribute ).entryDel( *place.entity, key ) ) {
      throw ValueError( "/key", path + " has no entry \"" + key + "\" in " + attribute );
   }
}

void StateTree::entityDel( std::string const & path ) {
   Place const place = find( path );
   if ( !place.entity ) {
      refusePath( "nothing stands at " + path );
   }
   if ( !place.owner ) {
      rootEntityIs( *place.root, nullptr );
   } else if ( auto const dir = Corvo::ptrCast< Rex::Dir >( place.owner ) ) {
      dir->entityDel( place.step );
   } else if ( auto const & attribute = attributeOf( place.owner->typeData(), place.step );
               attribute.kind == Attribute::Kind::entity ) {
      attribute.valueIs( *place.owner, nullptr );
   } else {
      attribute.entryDel( *place.owner, place.key );
   }
}

StateRoot const * StateTree::rootAbove( Rex::Entity const & entity ) const {
   for ( auto const * at = &entity; at; at = at->parent() ) {
      if ( auto const root = rootOfEntity_.find( at ); root != rootOfEntity_.end() ) {
         return root->second;
      }
   }
   return nullptr;
}

std::string StateTree::pathOf( Rex::Entity const & entity ) const {
   if ( auto const root = rootOfEntity_.find( &entity ); root != rootOfEntity_.end() ) {
      return root->second->path();
   }
   auto const * parent = entity.parent();
   auto path = parent ? pathOf( *parent ) : std::string();
   auto const step = path.empty() ? std::string() : parent->stepTo( entity );
   if ( step.empty() ) {
      return {};
   }
   path += '/';
   path += step;
   return path;
}

Rex::Value StateTree::value() const {
   Rex::Value::Object all;
   for ( auto const & root : stateRoots() ) {
      if ( root.kind != StateRoot::Kind::machinery ) {
         auto const entity = rootEntity( root );
         all.emplace( root.path(), entity ? entity->value() : Rex::Value() );
      }
   }
   // What the agent publishes itself.
   if ( auto const * dir = Interface::ManagedIntfStatusDir::newest() ) {
      all.emplace( "managed/intfStatusDir", dir->value() );
   }
   if ( auto const * dir = Interface::ManagedIntfStatusLocalDir::newest() ) {
      all.emplace( "managed/intfStatusLocalDir", dir->value() );
   }
   return all;
}

} // namespace Simulator
