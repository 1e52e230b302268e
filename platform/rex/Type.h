// Types of entities and their attributes, as data: what the scenario reader, the state dump and the cause of an
// operation are made of. Written by the macros of rex/Entity.h; nobody fills these in by hand.
//
// Threading: a type is built at its first use, on the agent's scheduler thread.
#pragma once

#include "corvo/NodeType.h"
#include "corvo/Ptr.h"
#include "rex/Value.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace Rex {

class Entity;
class TypeData;

// One attribute of a type. All operations take an entity of that type.
class Attribute {
 public:
   // scalar: one value. entity: one entity, or none. map: values by key. collection: entities by key.
   enum class Kind : U8 { scalar, entity, map, collection };

   short const id;
   Kind const kind;
   char const * const name;

   Attribute( short id_, Kind kind_, char const * name_ ) : id( id_ ), kind( kind_ ), name( name_ ) {}
   virtual ~Attribute() = default;

   // The type of the entities that it holds; null for scalars and maps.
   virtual TypeData const * elementType() const { return nullptr; }
   // What a scalar, or an entry of a map, takes; none where it holds entities.
   virtual std::optional< ValueType > valueType() const { return std::nullopt; }
   // What the keys of a map or collection are.
   virtual std::optional< ValueType > keyType() const { return std::nullopt; }
   // False where it only refers to entities that are set elsewhere.
   virtual bool canBeSet() const { return true; }

   virtual Value value( Entity const & of ) const = 0;
   // Sets the attribute, announcing what changes. A map or collection becomes equal to the object that is given;
   // an entity is made anew from it. Throws ValueError before anything has changed.
   virtual void valueIs( Entity & of, Value const & value ) const = 0;
   // Sets or removes one entry of a map or collection. entryDel says whether there was one. Throws ValueError, its
   // place "/key" or below "/value".
   virtual void entryIs( Entity & of, std::string const & key, Value const & value ) const;
   virtual bool entryDel( Entity & of, std::string const & key ) const;
   // One entry of a map or collection; null if there is none.
   virtual Value entry( Entity const & of, std::string const & key ) const;
   // The entity that it holds, under `key` in a collection; null if there is none.
   virtual Corvo::Ptr< Entity > child( Entity const & of, std::string const & key ) const;
   // Visits the entities that it holds.
   virtual void forEachChild( Entity const & of, std::function< void( Entity & ) > const & visit ) const;
   // Whether it holds `child`, an entity of the element type.
   virtual bool holds( Entity const & of, Entity const & child ) const;
   // The text of a notification's key.
   virtual std::string keyText( void const * key ) const;
};

class TypeData : public Corvo::NodeType {
 public:
   TypeData( std::string name, TypeData const * base ) : NodeType( std::move( name ) ), base_( base ) {}

   TypeData const * base() const { return base_; }
   // Those of the bases first, each in declaration order.
   std::vector< Attribute const * > attributes() const;
   std::vector< short > attributeIds() const override;
   // Null if the type has none of this name or number.
   Attribute const * attribute( std::string_view name ) const;
   Attribute const * attribute( short id ) const;
   // The one in which `of`, an entity of this type, holds `child`; null if none does.
   Attribute const * holderOf( Entity const & of, Entity const & child ) const;
   bool isA( TypeData const & type ) const { return this == &type || ( base_ && base_->isA( type ) ); }

   // An entity of this type, each attribute at its default, in a collection under the first of all keys. Null where one
   // can't be made from nothing.
   Corvo::Ptr< Entity > fresh() const;

   using Make = Corvo::Ptr< Entity > ( * )();
   void makeIs( Make make ) { make_ = make; }
   void attributeAdd( std::unique_ptr< Attribute > attribute ) { own_.push_back( std::move( attribute ) ); }

 private:
   Make make_ = nullptr;
   TypeData const * base_;
   std::vector< std::unique_ptr< Attribute > > own_;
};

// The attribute of this name. Throws ValueError, with a name that is near, if the type has none.
Attribute const & attributeOf( TypeData const & type, std::string const & name );

} // namespace Rex
