// The contents of attributes: what an entity's lines (rex/Entity.h) keep in it. What changes them is compiled once,
// with the type's definition (rex/AttributeWrites.h), and shared by all who include the type.
//
//    map.get( key );                       // the value, or a default one
//    map.set( owner, id, key, value );     // announces, if that is another
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Ptr.h"
#include "rex/HashMap2018.h"

#include <map>

namespace Rex {

class Entity;

// A map attribute's contents.
template< class Key, class Type >
class MapAttribute {
 public:
   std::map< Key, Type > const & all() const { return map_; }
   bool has( Key const & key ) const { return map_.contains( key ); }
   Type get( Key const & key ) const {
      auto const found = map_.find( key );
      return found == map_.end() ? Type{} : found->second;
   }
   void set( Entity & owner, short id, Key key, Type value );
   bool del( Entity & owner, short id, Key key );

 private:
   std::map< Key, Type > map_;
};

// An ordered map with the operations of HashMap2018 that a collection needs.
template< class Key, class Type >
class OrderedMap {
 public:
   auto begin() const { return map_.begin(); }
   auto end() const { return map_.end(); }
   std::size_t size() const { return map_.size(); }
   bool empty() const { return map_.empty(); }
   bool has( Key const & key ) const { return map_.contains( key ); }
   Type get( Key const & key ) const {
      auto const found = map_.find( key );
      return found == map_.end() ? Type{} : found->second;
   }
   void set( Key const & key, Type value ) { map_[key] = std::move( value ); }
   Type del( Key const & key ) {
      auto node = map_.extract( key );
      return node ? std::move( node.mapped() ) : Type{};
   }

 private:
   std::map< Key, Type > map_;
};

// An entity attribute's contents: one entity, hanging below its owner, or none.
template< class Type >
class HeldEntity {
 public:
   explicit HeldEntity( Entity & owner ) : owner_( owner ) {}
   HeldEntity( HeldEntity const & ) = delete;
   HeldEntity & operator=( HeldEntity const & ) = delete;
   ~HeldEntity();
   Corvo::Ptr< Type > const & get() const { return entity_; }
   void set( short id, Corvo::Ptr< Type > entity );

 private:
   Entity & owner_;
   Corvo::Ptr< Type > entity_;
};

// A collection attribute's contents: entities by key, hanging below their owner.
template< class Type, template< class, class > class Container >
class CollectionAttribute {
 public:
   using Key = typename Type::RexKey;
   using Entities = Container< Key, Corvo::Ptr< Type > >;

   explicit CollectionAttribute( Entity & owner ) : owner_( owner ) {}
   CollectionAttribute( CollectionAttribute const & ) = delete;
   CollectionAttribute & operator=( CollectionAttribute const & ) = delete;
   ~CollectionAttribute();
   Entities const & all() const { return entities_; }
   void set( short id, Corvo::Ptr< Type > entity, char const * name );
   Corvo::Ptr< Type > del( short id, Key key );

 private:
   Entity & owner_;
   Entities entities_;
};

// The contents of an attribute that refers to entities which hang elsewhere.
template< class Type >
class ReferencesAttribute {
 public:
   using Key = typename Type::RexKey;
   using Entities = HashMap2018< Key, Corvo::Ptr< Type > >;

   Entities const & all() const { return entities_; }
   void set( Entity & owner, short id, Corvo::Ptr< Type > entity );
   Corvo::Ptr< Type > del( Entity & owner, short id, Key key );

 private:
   Entities entities_;
};

} // namespace Rex
