#include "rex/EntityAttributes.h"

#include "rex/Nearest.h"

namespace Rex {

Entity::~Entity() = default;

TypeData const & Entity::rexType() {
   static TypeData const type{ "Rex::Entity", nullptr };
   return type;
}

void Entity::parentIs( Entity * parent ) {
   if ( parent_ != parent ) {
      parent_ = parent;
      if ( parent && parent->isWriteProtected() != isWriteProtected() ) {
         writeProtectedIs( parent->isWriteProtected() );
      }
      handleParent();
   }
}

void Entity::writeProtectedIs( bool writeProtected ) {
   nodeFlagSet( Corvo::NodeFlag::writeProtected, writeProtected );
   forEachChild( [=]( Entity & child ) { child.writeProtectedIs( writeProtected ); } );
}

void Entity::forEachChild( std::function< void( Entity & ) > const & visit ) const {
   for ( auto const * attribute : typeData().attributes() ) {
      attribute->forEachChild( *this, visit );
   }
}

void Entity::writeRefused() const {
   SassertHelper( "writable" ) << typeData().name() << " " << name() << " is mounted for reading";
   __builtin_unreachable();
}

Value Entity::value() const {
   Value::Object object;
   for ( auto const * attribute : typeData().attributes() ) {
      object.emplace( attribute->name, attribute->value( *this ) );
   }
   return object;
}

void Attribute::entryIs( Entity &, std::string const &, Value const & ) const {
   throw ValueError( "", std::string( name ) + " has no entries: leave the key out" ).below( "key" );
}

bool Attribute::entryDel( Entity &, std::string const & ) const {
   throw ValueError( "", std::string( name ) + " has no entries: leave the key out" ).below( "key" );
}

Value Attribute::entry( Entity const &, std::string const & ) const {
   return {};
}

Corvo::Ptr< Entity > Attribute::child( Entity const &, std::string const & ) const {
   return nullptr;
}

void Attribute::forEachChild( Entity const &, std::function< void( Entity & ) > const & ) const {}

bool Attribute::holds( Entity const &, Entity const & ) const {
   return false;
}

std::string Attribute::keyText( void const * ) const {
   return {};
}

Corvo::Ptr< Entity > TypeData::fresh() const {
   return make_ ? make_() : nullptr;
}

std::vector< Attribute const * > TypeData::attributes() const {
   auto all = base_ ? base_->attributes() : std::vector< Attribute const * >{};
   for ( auto const & attribute : own_ ) {
      all.push_back( attribute.get() );
   }
   return all;
}

std::vector< short > TypeData::attributeIds() const {
   std::vector< short > ids;
   for ( auto const * attribute : attributes() ) {
      ids.push_back( attribute->id );
   }
   return ids;
}

Attribute const * TypeData::attribute( std::string_view name ) const {
   for ( auto const & attribute : own_ ) {
      if ( attribute->name == name ) {
         return attribute.get();
      }
   }
   return base_ ? base_->attribute( name ) : nullptr;
}

Attribute const * TypeData::attribute( short id ) const {
   for ( auto const & attribute : own_ ) {
      if ( attribute->id == id ) {
         return attribute.get();
      }
   }
   return base_ ? base_->attribute( id ) : nullptr;
}

Attribute const * TypeData::holderOf( Entity const & of, Entity const & child ) const {
   for ( auto const & attribute : own_ ) {
      auto const * element = attribute->elementType();
      if ( element && child.typeData().isA( *element ) && attribute->holds( of, child ) ) {
         return attribute.get();
      }
   }
   return base_ ? base_->holderOf( of, child ) : nullptr;
}

namespace {

std::string unknownAttribute( TypeData const & type, std::string const & name ) {
   std::vector< std::string > names;
   std::string all;
   for ( auto const * attribute : type.attributes() ) {
      names.emplace_back( attribute->name );
      all += ( all.empty() ? "" : ", " ) + names.back();
   }
   auto const near = didYouMean( name, names );
   return type.name() + " has no attribute \"" + name + "\"" + near + ( near.empty() ? "; it has " : " It has " ) +
          ( all.empty() ? "none" : all );
}

} // namespace

Attribute const & attributeOf( TypeData const & type, std::string const & name ) {
   if ( auto const * attribute = type.attribute( name ) ) {
      return *attribute;
   }
   throw ValueError( "", unknownAttribute( type, name ) );
}

Value::Object const & Impl::objectOf( Value const & value ) {
   if ( auto const * object = value.object() ) {
      return *object;
   }
   throwWrongKind( "an object", value );
}

void Entity::attributesIs( Value const & value ) {
   ValueErrors errors;
   for ( auto const & [name, part] : Impl::objectOf( value ) ) {
      errors.below( name, [&] {
         auto const * attribute = typeData().attribute( name );
         if ( !attribute ) {
            throw ValueError( { "", unknownAttribute( typeData(), name ), true } );
         }
         attribute->valueIs( *this, part );
      } );
   }
   errors.end();
}

Corvo::String Entity::stepTo( Entity const & child ) const {
   auto const * holder = typeData().holderOf( *this, child );
   if ( !holder ) {
      return {};
   }
   return holder->kind == Attribute::Kind::collection ? std::string( holder->name ) + "/" + child.name() : holder->name;
}

} // namespace Rex
