// Dir: a directory of entities by name.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Entity.h"

#include <functional>

namespace Rex {

class Dir : public Entity {
   REX_ENTITY( Dir, Rex::Entity );

 public:
   // Announced, with a pointer to the name, when an entry comes, is replaced, or goes.
   static constexpr short entryAttribute = 0x101;

   using Factory = std::function< Corvo::Ptr< Entity >( Corvo::String const & name ) >;

   Dir() = default;
   // A directory whose entries are of one type and can be made from a value.
   Dir( TypeData const & elementType, Factory factory )
      : elementType_( &elementType ), factory_( std::move( factory ) ) {}

   ~Dir() override;

   // The entry of this name, or null.
   Corvo::Ptr< Entity > entityPtr( Corvo::String const & name ) const { return entries_.get( name ); }
   OrderedMap< Corvo::String, Corvo::Ptr< Entity > > const & entries() const { return entries_; }
   TypeData const * elementType() const { return elementType_; }

   // Enters an entity, or replaces the one that is there. Null: throws the null-argument exception.
   void entityIs( Corvo::String const & name, Corvo::Ptr< Entity > const & entity );
   Corvo::Ptr< Entity > entityDel( Corvo::String const & name );
   // A new entity of the element type; not entered. Null for a directory without one.
   Corvo::Ptr< Entity > newEntity( Corvo::String const & name ) const;

   Corvo::String stepTo( Entity const & child ) const override; // the name alone
   Value value() const override;
   void attributesIs( Value const & value ) override;
   void forEachChild( std::function< void( Entity & ) > const & visit ) const override;

 private:
   OrderedMap< Corvo::String, Corvo::Ptr< Entity > > entries_;
   TypeData const * elementType_ = nullptr;
   Factory factory_;
};

} // namespace Rex
