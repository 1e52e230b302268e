// Entities: nodes with attributes that announce their changes. One line declares an attribute; getter, setter,
// change notification, JSON form and text form follow from it.
//
//    namespace Evpn {
//    class EvpnStatus : public Rex::Entity {
//       REX_ENTITY( EvpnStatus, Rex::Entity );
//       REX_ATTRIBUTE( bool, vxlanEnabled, 0x102, false );
//       REX_ATTRIBUTE( bool, evpnDciEnabled, 0x106, false );
//    };
//    }
//    REX_DEFINE( Evpn::EvpnStatus, "Evpn::EvpnStatus" );      // in one source file, with rex/EntityAttributes.h
//
//    status->evpnDciEnabledIs( true );                         // announces 0x106, if it was false
//
// The lines, and what each declares:
//
//    REX_KEY( name )                          name() const: the key of an entity of a collection, whose base is
//                                             Rex::KeyedEntity< Key >. Not an attribute: it never changes.
//    REX_ATTRIBUTE( Type, name, id, default ) name() const, nameIs( value )
//    REX_ENTITY_ATTRIBUTE( Type, name, id )   the same with a Corvo::Ptr< Type >, null at first
//    REX_MAP( Key, Type, name, id )           an ordered map of values: name() const, name( key ) const (the value, or
//    a
//                                             default one), nameHas( key ), nameIs( key, value ), nameDel( key )
//    REX_COLLECTION( Type, name, id )         entities by their key, in the order of insertion: name() const for
//                                             walking, name( key ) const (null if absent), nameHas( key ),
//                                             nameIs( entity ) (replaces), nameDel( key ) (returns what was removed)
//    REX_ORDERED_COLLECTION( Type, name, id ) the same, walked in the order of the keys
//    REX_REFERENCES( Type, name, id )         a collection of entities that hang elsewhere: it changes neither their
//                                             parent nor their protection, and a null entity is not entered
//
// Setting an attribute to the value it has announces nothing. A change of an entry of a map or collection is announced
// with a pointer to its key. A null entity given to a collection throws the null-argument exception.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Ptr.h"
#include "corvo/Publisher.h"
#include "rex/AttributeContents.h"
#include "rex/Type.h"
#include "rex/WriteListener.h"

#include <map>
#include <optional>
#include <utility>

namespace Rex {

class Entity : public Corvo::Node {
 public:
   ~Entity() override;
   Corvo::Publisher * publisher() const override { return &publisher_; }
   TypeData const & typeData() const override { return rexType(); }
   static TypeData const & rexType();

   // The entity below which this one hangs, or null. It is not kept alive by it.
   Entity * parent() const { return parent_; }
   void parentIs( Entity * parent );
   // The step from this entity to one directly below it, as paths have it: `<attribute>/<key>` for an entity of a
   // collection, `<attribute>` for one that an attribute holds; empty if this one holds no such entity.
   virtual Corvo::String stepTo( Entity const & child ) const;
   // Called when the parent has changed.
   virtual void handleParent() {}
   // Its name among its siblings: the text of its key, empty without one.
   virtual Corvo::String name() const { return {}; }

   // All attributes, by name, as a value of kind object.
   virtual Value value() const;
   // Sets the attributes that `value`, an object, names. Throws ValueError for unknown attributes and wrong values; the
   // attributes that fit are set then.
   virtual void attributesIs( Value const & value );

   // Visits the entities directly below this one.
   virtual void forEachChild( std::function< void( Entity & ) > const & visit ) const;

   // Marks this entity, and all below it, now and later, as mounted for reading: a write that isn't another agent's
   // ends the process by assertion. What changes nothing is no write.
   void writeProtectedIs( bool writeProtected );

 protected:
   Entity() : publisher_( *this ) {}

   // An entity hangs below the first that takes it in; others that hold it only refer to it.
   void childAdd( Entity & child ) {
      if ( !child.parent_ ) {
         child.parentIs( this );
      }
   }
   void childDel( Entity & child ) {
      if ( child.parent_ == this ) {
         child.parentIs( nullptr );
      }
   }

   void writeCheck() const {
      if ( isWriteProtected() && !Corvo::Publisher::foreignWrite() ) [[unlikely]] {
         writeRefused();
      }
   }
   template< class T >
   void assign( T & attribute, T const & value, short id ) {
      if ( !( attribute == value ) ) {
         writeCheck();
         Impl::PendingWrite write( *this, id );
         attribute = value;
         write.done();
         publisher_.publish( id, nullptr, &attribute );
      }
   }

 private:
   template< class, class >
   friend class MapAttribute;
   template< class, template< class, class > class >
   friend class CollectionAttribute;
   template< class >
   friend class ReferencesAttribute;
   template< class >
   friend class HeldEntity;
   [[noreturn]] void writeRefused() const;

   mutable Corvo::Publisher publisher_;
   Entity * parent_ = nullptr;
};

// An entity that stands in a collection under a key, which it is made with.
template< class Key >
class KeyedEntity : public Entity {
 public:
   using RexKey = Key;
   explicit KeyedEntity( Key const & key ) : key_( key ) {}
   Key const & rexKey() const { return key_; }
   Corvo::String name() const override { return Codec< Key >::toKey( key_ ); }

 private:
   Key const key_;
};

// What a line tells its type about itself.
namespace Impl {

template< int Number >
struct Line {};

template< class Self, class Type, auto Get, auto Set >
void scalar( TypeData & type, short id, char const * name );
template< class Self, class Type, auto Get, auto Set >
void entity( TypeData & type, short id, char const * name );
template< class Self, class Key, class Type, auto Member, auto Set, auto Del >
void map( TypeData & type, short id, char const * name );
template< class Self, class Type, auto Member, auto Set, auto Del >
void collection( TypeData & type, short id, char const * name );
template< class Self, class Type, auto Member >
void references( TypeData & type, short id, char const * name );
template< class T >
TypeData const & declaredType( char const * name );

} // namespace Impl
} // namespace Rex

#define REX_ENTITY( Class, Base )                                                                                      \
 public:                                                                                                               \
   using RexSelf = Class;                                                                                              \
   using RexBase = Base;                                                                                               \
   using RexBase::RexBase;                                                                                             \
   static constexpr int rexFirstLine = __LINE__;                                                                       \
   static ::Rex::TypeData const & rexType();                                                                           \
   ::Rex::TypeData const & typeData() const override;                                                                  \
   static_assert( true )

#define REX_KEY( keyName )                                                                                             \
 public:                                                                                                               \
   RexKey const & keyName() const {                                                                                    \
      return rexKey();                                                                                                 \
   }                                                                                                                   \
   static_assert( true )

#define REX_ATTRIBUTE( Type, attr, id, ... )                                                                           \
 public:                                                                                                               \
   Type const & attr() const {                                                                                         \
      return attr##_;                                                                                                  \
   }                                                                                                                   \
   void attr##Is( Type const & value ) {                                                                               \
      assign( attr##_, value, id );                                                                                    \
   }                                                                                                                   \
   static void rexDeclare( ::Rex::Impl::Line< __LINE__ >, auto & type ) {                                              \
      ::Rex::Impl::scalar< RexSelf, Type, &RexSelf::attr, &RexSelf::attr##Is >( type, id, #attr );                     \
   }                                                                                                                   \
                                                                                                                       \
 private:                                                                                                              \
   Type attr##_{ __VA_ARGS__ };                                                                                        \
   static_assert( true )

#define REX_ENTITY_ATTRIBUTE( Type, attr, id )                                                                         \
 public:                                                                                                               \
   ::Corvo::Ptr< Type > const & attr() const {                                                                         \
      return attr##_.get();                                                                                            \
   }                                                                                                                   \
   void attr##Is( ::Corvo::Ptr< Type > const & value ) {                                                               \
      attr##_.set( id, value );                                                                                        \
   }                                                                                                                   \
   static void rexDeclare( ::Rex::Impl::Line< __LINE__ >, auto & type ) {                                              \
      ::Rex::Impl::entity< RexSelf, Type, &RexSelf::attr, &RexSelf::attr##Is >( type, id, #attr );                     \
   }                                                                                                                   \
                                                                                                                       \
 private:                                                                                                              \
   ::Rex::HeldEntity< Type > attr##_{ *this };                                                                         \
   static_assert( true )

#define REX_MAP( Key, Type, attr, id )                                                                                 \
 public:                                                                                                               \
   std::map< Key, Type > const & attr() const {                                                                        \
      return attr##_.all();                                                                                            \
   }                                                                                                                   \
   Type attr( Key const & key ) const {                                                                                \
      return attr##_.get( key );                                                                                       \
   }                                                                                                                   \
   bool attr##Has( Key const & key ) const {                                                                           \
      return attr##_.has( key );                                                                                       \
   }                                                                                                                   \
   void attr##Is( Key const & key, Type const & value ) {                                                              \
      attr##_.set( *this, id, key, value );                                                                            \
   }                                                                                                                   \
   bool attr##Del( Key const & key ) {                                                                                 \
      return attr##_.del( *this, id, key );                                                                            \
   }                                                                                                                   \
   static void rexDeclare( ::Rex::Impl::Line< __LINE__ >, auto & type ) {                                              \
      ::Rex::Impl::map< RexSelf, Key, Type, &RexSelf::attr##_, &RexSelf::attr##Is, &RexSelf::attr##Del >(              \
         type, id, #attr );                                                                                            \
   }                                                                                                                   \
                                                                                                                       \
 private:                                                                                                              \
   ::Rex::MapAttribute< Key, Type > attr##_;                                                                           \
   static_assert( true )

#define REX_COLLECTION_OF( Container, Type, attr, id )                                                                 \
 public:                                                                                                               \
   ::Rex::CollectionAttribute< Type, Container >::Entities const & attr() const {                                      \
      return attr##_.all();                                                                                            \
   }                                                                                                                   \
   ::Corvo::Ptr< Type > attr( Type::RexKey const & key ) const {                                                       \
      return attr##_.all().get( key );                                                                                 \
   }                                                                                                                   \
   bool attr##Has( Type::RexKey const & key ) const {                                                                  \
      return attr##_.all().has( key );                                                                                 \
   }                                                                                                                   \
   void attr##Is( ::Corvo::Ptr< Type > const & entity ) {                                                              \
      attr##_.set( id, entity, #attr );                                                                                \
   }                                                                                                                   \
   ::Corvo::Ptr< Type > attr##Del( Type::RexKey const & key ) {                                                        \
      return attr##_.del( id, key );                                                                                   \
   }                                                                                                                   \
   static void rexDeclare( ::Rex::Impl::Line< __LINE__ >, auto & type ) {                                              \
      ::Rex::Impl::collection< RexSelf, Type, &RexSelf::attr##_, &RexSelf::attr##Is, &RexSelf::attr##Del >(            \
         type, id, #attr );                                                                                            \
   }                                                                                                                   \
                                                                                                                       \
 private:                                                                                                              \
   ::Rex::CollectionAttribute< Type, Container > attr##_{ *this };                                                     \
   static_assert( true )

#define REX_COLLECTION( Type, attr, id ) REX_COLLECTION_OF( ::Rex::HashMap2018, Type, attr, id )
#define REX_ORDERED_COLLECTION( Type, attr, id ) REX_COLLECTION_OF( ::Rex::OrderedMap, Type, attr, id )

#define REX_REFERENCES( Type, attr, id )                                                                               \
 public:                                                                                                               \
   ::Rex::ReferencesAttribute< Type >::Entities const & attr() const {                                                 \
      return attr##_.all();                                                                                            \
   }                                                                                                                   \
   ::Corvo::Ptr< Type > attr( ::Rex::ReferencesAttribute< Type >::Key const & key ) const {                            \
      return attr##_.all().get( key );                                                                                 \
   }                                                                                                                   \
   bool attr##Has( ::Rex::ReferencesAttribute< Type >::Key const & key ) const {                                       \
      return attr##_.all().has( key );                                                                                 \
   }                                                                                                                   \
   void attr##Is( ::Corvo::Ptr< Type > const & entity ) {                                                              \
      attr##_.set( *this, id, entity );                                                                                \
   }                                                                                                                   \
   ::Corvo::Ptr< Type > attr##Del( ::Rex::ReferencesAttribute< Type >::Key const & key ) {                             \
      return attr##_.del( *this, id, key );                                                                            \
   }                                                                                                                   \
   static void rexDeclare( ::Rex::Impl::Line< __LINE__ >, auto & type ) {                                              \
      ::Rex::Impl::references< RexSelf, Type, &RexSelf::attr##_ >( type, id, #attr );                                  \
   }                                                                                                                   \
                                                                                                                       \
 private:                                                                                                              \
   ::Rex::ReferencesAttribute< Type > attr##_;                                                                         \
   static_assert( true )

#define REX_DEFINE( Class, typeName )                                                                                  \
   ::Rex::TypeData const & Class::rexType() {                                                                          \
      static ::Rex::TypeData const & type = ::Rex::Impl::declaredType< Class >( typeName );                            \
      return type;                                                                                                     \
   }                                                                                                                   \
   ::Rex::TypeData const & Class::typeData() const {                                                                   \
      return rexType();                                                                                                \
   }                                                                                                                   \
   static_assert( true )
