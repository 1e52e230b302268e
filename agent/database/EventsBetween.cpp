// The events that lead from one state to another.
#include "agent/database/Paths.h"

namespace Live {

namespace {

using Inspection::Event;
using Rex::Attribute;
using Rex::TypeData;
using Rex::Value;
using Rex::ValueError;

constexpr char const * noEntity = "null"; // the text of an attribute that holds none

// The way from one state to the other.
class Way {
 public:
   Way( Paths const & from, Paths const & to, std::map< std::string, std::string > & wrong )
      : from_( from ), to_( to ), wrong_( wrong ) {}

   std::vector< Event > events() {
      for ( auto const & [path, attributes] : from_ ) {
         if ( !to_.contains( path ) && !Rex::isAtOrBelow( path, gone_ ) ) {
            looking( path, [&, at = path, was = &attributes] { goes( at, *was ); } );
         }
      }
      for ( auto const & [path, attributes] : to_ ) {
         looking( path, [&, at = path, want = &attributes] { becomes( at, *want ); } );
      }
      return std::move( events_ );
   }

 private:
   template< class What >
   void looking( std::string const & path, What const & what ) {
      try {
         what();
      } catch ( ValueError const & error ) {
         wrong_[path] = error.what();
      }
   }
   void goes( std::string const & path, Attributes const & attributes ) {
      PathPlace const place = placeOf( path );
      if ( place.isRoot() ||
           ( !place.attribute.empty() && place.key.empty() ) ) { // it stays, as the declarations have it
         for ( auto const & [name, text] : attributes ) {
            reset( path, place, name );
         }
      } else {
         events_.push_back( { .kind = Event::Kind::remove, .path = path } );
         gone_ = path;
      }
   }
   // A directory's entry is made by setting anything in it; what is set here changes nothing in a new one.
   void beginEntry( std::string const & path, TypeData const & type ) {
      for ( auto const * attribute : type.attributes() ) {
         if ( attribute->canBeSet() && attribute->kind != Attribute::Kind::entity ) {
            events_.push_back(
               { .path = path, .attribute = attribute->name, .value = attribute->value( *type.fresh() ) } );
            return;
         }
      }
   }
   std::string held( std::string const & path, std::string const & attribute ) const {
      auto const at = from_.find( path );
      auto const found = at == from_.end() ? Attributes::const_iterator() : at->second.find( attribute );
      return at == from_.end() || found == at->second.end() ? std::string() : found->second;
   }
   void reset( std::string const & path, PathPlace const & place, std::string const & name ) {
      auto const * attribute = place.type->attribute( name );
      auto const fresh = place.type->fresh();
      if ( attribute && attribute->canBeSet() && fresh ) {
         events_.push_back( { .path = path, .attribute = name, .value = attribute->value( *fresh ) } );
      }
   }
   void becomes( std::string const & path, Attributes const & wanted ) {
      auto const had = from_.find( path );
      if ( had != from_.end() && had->second == wanted ) {
         return;
      }
      PathPlace const place = placeOf( path );
      bool const isNew = had == from_.end() && place.isMember();
      if ( had == from_.end() && held( place.owner, place.attribute ) == noEntity ) {
         events_.push_back( { .path = place.owner, .attribute = place.attribute, .value = Value::Object() } );
      }
      if ( had == from_.end() && !place.isRoot() && place.attribute.empty() ) {
         beginEntry( path, *place.type );
      }
      Value::Object all; // of a new member
      for ( auto const & [name, text] : wanted ) {
         if ( had != from_.end() ) {
            auto const before = had->second.find( name );
            if ( before != had->second.end() && before->second == text ) {
               continue;
            }
         }
         try {
            settableAttribute( *place.type, name );
            Value value = valueOfText( text );
            if ( isNew ) {
               all[name] = std::move( value );
            } else {
               events_.push_back( { .path = path, .attribute = name, .value = std::move( value ) } );
            }
         } catch ( ValueError const & error ) {
            wrong_[path + " " + name] = error.what();
         }
      }
      if ( isNew ) {
         events_.push_back(
            { .path = place.owner, .attribute = place.attribute, .key = place.key, .value = std::move( all ) } );
      } else if ( had != from_.end() ) {
         for ( auto const & [name, text] : had->second ) {
            if ( !wanted.contains( name ) && !to_.contains( path + "/" + name ) ) {
               reset( path, place, name );
            }
         }
      }
   }

   Paths const & from_;
   Paths const & to_;
   std::map< std::string, std::string > & wrong_;
   std::vector< Event > events_;
   std::string gone_ = "\n"; // what was removed last, with all below it
};

} // namespace

std::vector< Event >
eventsBetween( Paths const & from, Paths const & to, std::map< std::string, std::string > & wrong ) {
   return Way( from, to, wrong ).events();
}

} // namespace Live
