#include "rex/Dir.h"
#include "rex/EntityAttributes.h"

REX_DEFINE( Rex::Dir, "Rex::Dir" );

namespace Rex {

Dir::~Dir() {
   for ( auto const & [name, entity] : entries_ ) {
      childDel( *entity );
   }
}

void Dir::entityIs( Corvo::String const & name, Corvo::Ptr< Entity > const & entity ) {
   if ( !entity ) {
      throwMutatorArgNullPointerException( "Rex::Dir", "entityPtr" );
   }
   auto const old = entries_.get( name );
   if ( old == entity ) {
      return;
   }
   writeCheck();
   // Copies: a callback may take away where the arguments stand.
   Corvo::String const key = name;
   auto const held = entity; // NOLINT(performance-unnecessary-copy-initialization)
   entries_.set( key, held );
   if ( old ) {
      childDel( *old );
   }
   childAdd( *held );
   publisher()->publish( entryAttribute, &key, held.get() );
}

Corvo::Ptr< Entity > Dir::entityDel( Corvo::String const & name ) {
   if ( !entries_.has( name ) ) {
      return nullptr;
   }
   writeCheck();
   Corvo::String const key = name;
   auto const old = entries_.del( key );
   childDel( *old );
   publisher()->publish( entryAttribute, &key, nullptr );
   return old;
}

Corvo::String Dir::stepTo( Entity const & child ) const {
   for ( auto const & [name, entity] : entries_ ) {
      if ( entity.get() == &child ) {
         return name;
      }
   }
   return {};
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
   ValueErrors errors;
   for ( auto const & [name, part] : Impl::objectOf( value ) ) {
      errors.below( name, [&] {
         auto const entity = newEntity( name );
         if ( !entity ) {
            throw ValueError( { "", "this directory takes no entries from outside", true } );
         }
         entity->attributesIs( part );
         entityIs( name, entity );
      } );
   }
   errors.end();
}

} // namespace Rex
