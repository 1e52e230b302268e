// What the lines of rex/Entity.h are made of, for the source files that define types: how attributes change, and the
// attributes as data.
#pragma once

#include "rex/AttributeWrites.h"

namespace Rex {
namespace Impl {

template< class T >
Corvo::Ptr< T > entityFromValue( std::string const & key, Value const & value ) {
   Corvo::Ptr< T > entity;
   if constexpr ( requires { typename T::RexKey; } ) {
      entity = Corvo::makePtr< T >( Codec< typename T::RexKey >::fromKey( key ) );
   } else {
      entity = Corvo::makePtr< T >();
   }
   entity->attributesIs( value );
   return entity;
}

template< class Self, class Type, auto Get, auto Set >
class ScalarAttribute : public Attribute {
 public:
   ScalarAttribute( short number, char const * text ) : Attribute( number, Kind::scalar, text ) {}
   std::optional< ValueType > valueType() const override { return Codec< Type >::type(); }
   Value value( Entity const & of ) const override {
      return Codec< Type >::toValue( ( static_cast< Self const & >( of ).*Get )() );
   }
   void valueIs( Entity & of, Value const & value ) const override {
      ( static_cast< Self & >( of ).*Set )( Codec< Type >::fromValue( value ) );
   }
};

template< class Self, class Type, auto Get, auto Set >
class EntityAttribute : public Attribute {
 public:
   EntityAttribute( short number, char const * text ) : Attribute( number, Kind::entity, text ) {}
   TypeData const * elementType() const override { return &Type::rexType(); }
   Value value( Entity const & of ) const override {
      auto const & entity = ( static_cast< Self const & >( of ).*Get )();
      return entity ? entity->value() : Value();
   }
   void valueIs( Entity & of, Value const & value ) const override {
      ( static_cast< Self & >( of ).*Set )( value.isNull() ? nullptr : entityFromValue< Type >( "", value ) );
   }
   Corvo::Ptr< Entity > child( Entity const & of, std::string const & ) const override {
      return ( static_cast< Self const & >( of ).*Get )();
   }
   bool holds( Entity const & of, Entity const & child ) const override {
      return ( static_cast< Self const & >( of ).*Get )().get() == &child;
   }
   void forEachChild( Entity const & of, std::function< void( Entity & ) > const & visit ) const override {
      if ( auto const & entity = ( static_cast< Self const & >( of ).*Get )() ) {
         visit( *entity );
      }
   }
};

Value::Object const & objectOf( Value const & value );

template< class Self, class Key, class Type, auto Member, auto Set, auto Del >
class MapAttributeData : public Attribute {
 public:
   MapAttributeData( short number, char const * text ) : Attribute( number, Kind::map, text ) {}
   std::optional< ValueType > valueType() const override { return Codec< Type >::type(); }
   std::optional< ValueType > keyType() const override { return Codec< Key >::type(); }
   Value value( Entity const & of ) const override {
      Value::Object object;
      for ( auto const & [key, entry] : ( static_cast< Self const & >( of ).*Member ).all() ) {
         object.emplace( Codec< Key >::toKey( key ), Codec< Type >::toValue( entry ) );
      }
      return object;
   }
   Value entry( Entity const & of, std::string const & key ) const override {
      auto const & entries = ( static_cast< Self const & >( of ).*Member ).all();
      auto const found = entries.find( Codec< Key >::fromKey( key ) );
      return found == entries.end() ? Value() : Codec< Type >::toValue( found->second );
   }
   void valueIs( Entity & of, Value const & value ) const override {
      std::map< Key, Type > wanted;
      ValueErrors errors;
      for ( auto const & [key, entry] : objectOf( value ) ) {
         errors.below( key,
                       [&] { wanted.emplace( Codec< Key >::fromKey( key ), Codec< Type >::fromValue( entry ) ); } );
      }
      errors.end();
      auto & self = static_cast< Self & >( of );
      auto const present = ( self.*Member ).all();
      for ( auto const & [key, entry] : present ) {
         if ( !wanted.contains( key ) ) {
            ( self.*Del )( key );
         }
      }
      for ( auto const & [key, entry] : wanted ) {
         ( self.*Set )( key, entry );
      }
   }
   void entryIs( Entity & of, std::string const & key, Value const & value ) const override {
      Key const number = below( "key", [&] { return Codec< Key >::fromKey( key ); } );
      Type const entry = below( "value", [&] { return Codec< Type >::fromValue( value ); } );
      ( static_cast< Self & >( of ).*Set )( number, entry );
   }
   bool entryDel( Entity & of, std::string const & key ) const override {
      return ( static_cast< Self & >( of ).*Del )( below( "key", [&] { return Codec< Key >::fromKey( key ); } ) );
   }
   std::string keyText( void const * key ) const override {
      return Codec< Key >::toKey( *static_cast< Key const * >( key ) );
   }
};

template< class Self, class Type, auto Member, auto Set, auto Del >
class CollectionAttributeData : public Attribute {
   using Key = typename Type::RexKey;

 public:
   CollectionAttributeData( short number, char const * text ) : Attribute( number, Kind::collection, text ) {}
   TypeData const * elementType() const override { return &Type::rexType(); }
   std::optional< ValueType > keyType() const override { return Codec< Key >::type(); }
   Value value( Entity const & of ) const override {
      Value::Object object;
      for ( auto const & [key, entity] : ( static_cast< Self const & >( of ).*Member ).all() ) {
         object.emplace( Codec< Key >::toKey( key ), entity->value() );
      }
      return object;
   }
   Value entry( Entity const & of, std::string const & key ) const override {
      auto const entity = ( static_cast< Self const & >( of ).*Member ).all().get( Codec< Key >::fromKey( key ) );
      return entity ? entity->value() : Value();
   }
   void valueIs( Entity & of, Value const & value ) const override {
      std::map< std::string, Corvo::Ptr< Type > > wanted;
      ValueErrors errors;
      for ( auto const & [key, entry] : objectOf( value ) ) {
         errors.below( key, [&] { wanted.emplace( key, entityFromValue< Type >( key, entry ) ); } );
      }
      errors.end();
      auto & self = static_cast< Self & >( of );
      std::vector< Key > gone;
      for ( auto const & [key, entity] : ( self.*Member ).all() ) {
         if ( !wanted.contains( Codec< Key >::toKey( key ) ) ) {
            gone.push_back( key );
         }
      }
      for ( auto const & key : gone ) {
         ( self.*Del )( key );
      }
      for ( auto const & [key, entity] : wanted ) {
         ( self.*Set )( entity );
      }
   }
   void entryIs( Entity & of, std::string const & key, Value const & value ) const override {
      static_cast< void >( below( "key", [&] { return Codec< Key >::fromKey( key ); } ) );
      auto const entity = below( "value", [&] { return entityFromValue< Type >( key, value ); } );
      ( static_cast< Self & >( of ).*Set )( entity );
   }
   bool entryDel( Entity & of, std::string const & key ) const override {
      return ( static_cast< Self & >( of ).*Del )( below( "key", [&] { return Codec< Key >::fromKey( key ); } ) ) !=
             nullptr;
   }
   Corvo::Ptr< Entity > child( Entity const & of, std::string const & key ) const override {
      return ( static_cast< Self const & >( of ).*Member ).all().get( Codec< Key >::fromKey( key ) );
   }
   bool holds( Entity const & of, Entity const & child ) const override {
      auto const & key = static_cast< Type const & >( child ).rexKey();
      return ( static_cast< Self const & >( of ).*Member ).all().get( key ).get() == &child;
   }
   void forEachChild( Entity const & of, std::function< void( Entity & ) > const & visit ) const override {
      for ( auto const & [key, entity] : ( static_cast< Self const & >( of ).*Member ).all() ) {
         visit( *entity );
      }
   }
   std::string keyText( void const * key ) const override {
      return Codec< Key >::toKey( *static_cast< Key const * >( key ) );
   }
};

// Entities that hang elsewhere can be read here; they are set where they hang.
template< class Self, class Type, auto Member >
class ReferencesAttributeData : public Attribute {
   using Key = typename Type::RexKey;

 public:
   ReferencesAttributeData( short number, char const * text ) : Attribute( number, Kind::collection, text ) {}
   std::optional< ValueType > keyType() const override { return Codec< Key >::type(); }
   bool canBeSet() const override { return false; }
   Value value( Entity const & of ) const override {
      Value::Object object;
      for ( auto const & [key, entity] : ( static_cast< Self const & >( of ).*Member ).all() ) {
         object.emplace( Codec< Key >::toKey( key ), entity->value() );
      }
      return object;
   }
   Value entry( Entity const & of, std::string const & key ) const override {
      auto const entity = ( static_cast< Self const & >( of ).*Member ).all().get( Codec< Key >::fromKey( key ) );
      return entity ? entity->value() : Value();
   }
   void valueIs( Entity &, Value const & ) const override { throw refusal(); }
   void entryIs( Entity &, std::string const &, Value const & ) const override { throw refusal(); }
   bool entryDel( Entity &, std::string const & ) const override { throw refusal(); }
   std::string keyText( void const * key ) const override {
      return Codec< Key >::toKey( *static_cast< Key const * >( key ) );
   }

 private:
   ValueError refusal() const {
      return { "", std::string( name ) + " refers to entities that stand elsewhere: set them there" };
   }
};

template< class Self, class Type, auto Get, auto Set >
void scalar( TypeData & type, short id, char const * name ) {
   type.attributeAdd( std::make_unique< ScalarAttribute< Self, Type, Get, Set > >( id, name ) );
}
template< class Self, class Type, auto Get, auto Set >
void entity( TypeData & type, short id, char const * name ) {
   type.attributeAdd( std::make_unique< EntityAttribute< Self, Type, Get, Set > >( id, name ) );
}
template< class Self, class Key, class Type, auto Member, auto Set, auto Del >
void map( TypeData & type, short id, char const * name ) {
   type.attributeAdd( std::make_unique< MapAttributeData< Self, Key, Type, Member, Set, Del > >( id, name ) );
}
template< class Self, class Type, auto Member, auto Set, auto Del >
void collection( TypeData & type, short id, char const * name ) {
   type.attributeAdd( std::make_unique< CollectionAttributeData< Self, Type, Member, Set, Del > >( id, name ) );
}

template< class Self, class Type, auto Member >
void references( TypeData & type, short id, char const * name ) {
   type.attributeAdd( std::make_unique< ReferencesAttributeData< Self, Type, Member > >( id, name ) );
}

// A type's declaration fits on a page: its attributes are told apart by their lines, which are tried in turn.
constexpr int linesOfAPage = 64;

template< class T, int Number >
void declareLine( TypeData & type ) {
   if constexpr ( requires { T::rexDeclare( Line< Number >{}, type ); } ) {
      T::rexDeclare( Line< Number >{}, type );
   }
}

template< class T, int... Lines >
void declareLines( TypeData & type, std::integer_sequence< int, Lines... > ) {
   ( declareLine< T, T::rexFirstLine + Lines >( type ), ... );
}

template< class T >
Corvo::Ptr< Entity > makeFresh() {
   if constexpr ( requires { typename T::RexKey; } ) {
      return Corvo::makePtr< T >( typename T::RexKey{} );
   } else if constexpr ( std::is_default_constructible_v< T > ) {
      return Corvo::makePtr< T >();
   } else {
      return nullptr;
   }
}

template< class T >
TypeData const & declaredType( char const * name ) {
   auto * type = new TypeData( name, &T::RexBase::rexType() ); // one for each type, for the life of the process
   type->makeIs( makeFresh< T > );
   declareLines< T >( *type, std::make_integer_sequence< int, linesOfAPage >{} );
   return *type;
}

} // namespace Impl
} // namespace Rex
