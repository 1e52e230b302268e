#include "rex/Dir.h"

REX_DEFINE( Rex::Dir, "Rex::Dir" );

namespace Rex {

Dir::~Dir() {
   for ( auto const & [name, entity] : entries_ ) {
      entity->parentIs( nullptr );
   }
}

void Dir::entityIs( Corvo::String const & name, Corvo::Ptr< Entity > const & entity ) {
   if ( !entity ) {
      throwMutatorArgNullPointerException( "Rex::Dir", "entityPtr" );
   }
   writeCheck();
   if ( entries_.get( name ) == entity ) {
      return;
   }
   if ( auto const old = entries_.get( name ) ) {
      old->parentIs( nullptr );
   }
   entity->parentIs( this );
   entries_.set( name, entity );
   publisher()->publish( entryAttribute, &name, entity.get() );
}

Corvo::Ptr< Entity > Dir::entityDel( Corvo::String const & name ) {
   Corvo::String const copy = name;
   writeCheck();
   auto const old = entries_.del( copy );
   if ( old ) {
      old->parentIs( nullptr );
      publisher()->publish( entryAttribute, &copy, nullptr );
   }
   return old;
}

Corvo::Ptr< Entity > Dir::newEntity( Corvo::String const & name ) const {
   return factory_ ? factory_( name ) : nullptr;
}

void Dir::forEachChild( std::function< void( Entity & ) > const & visit ) const {
   for ( auto const & [name, entity] : entries_ ) {
      visit( *entity );
   }
}

Value Dir::value() const {
   Value::Object object;
   for ( auto const & [name, entity] : entries_ ) {
      object.emplace( name, entity->value() );
   }
   return object;
}

void Dir::attributesIs( Value const & value ) {
   for ( auto const & [name, part] : Impl::objectOf( value ) ) {
      auto const entity = newEntity( name );
      if ( !entity ) {
         throw ValueError( pointerStep( name ), "this directory takes no entries from outside" );
      }
      try {
         entity->attributesIs( part );
      } catch ( ValueError const & error ) {
         throw error.below( name );
      }
      entityIs( name, entity );
   }
}

} // namespace Rex
