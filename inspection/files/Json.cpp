#include "inspection/files/Json.h"

#include "inspection/files/InputFile.h"
#include "inspection/files/JsonText.h"
#include "rex/Nearest.h"

namespace Inspection {

namespace {

using Rex::Value;

void write( std::string & out, Value const & value, int depth, int indent ) {
   auto const * object = value.object();
   auto const * list = value.list();
   bool const isEmpty = object ? object->empty() : list ? list->empty() : true;
   if ( depth <= 0 || isEmpty ) {
      out += Rex::toText( value );
      return;
   }
   out += object ? '{' : '[';
   bool first = true;
   auto const member = [&]( std::string const & key, Value const & part ) {
      out += first ? "\n" : ",\n";
      first = false;
      out.append( static_cast< std::size_t >( indent ) + 1, ' ' );
      out += key;
      write( out, part, depth - 1, indent + 1 );
   };
   if ( object ) {
      for ( auto const & [key, part] : *object ) {
         member( quoted( key ) + ": ", part );
      }
   } else {
      for ( auto const & part : *list ) {
         member( "", part );
      }
   }
   out += object ? '}' : ']';
}

} // namespace

Value readJson( std::string const & path ) {
   return parseJson( readFile( path ), inputName( path ) );
}

Value parseJson( std::string text, std::string const & name ) {
   JsonText parsed( name, std::move( text ) );
   return parsed.reading( [&] { return parsed.take(); } );
}

std::string toJson( Value const & value, int depth, int indent ) {
   std::string out;
   write( out, value, depth, indent );
   return out;
}

std::string quoted( std::string const & text ) {
   return Rex::toText( text );
}

Fields::Fields( Value const & object ) : object_( objectOf( object ) ) {}

Value const * Fields::find( std::string const & name ) {
   known_.insert( name );
   auto const found = object_.find( name );
   return found == object_.end() ? nullptr : &found->second;
}

Value const & Fields::required( std::string const & name ) {
   if ( auto const * value = find( name ) ) {
      return *value;
   }
   throw Rex::ValueError( "", "\"" + name + "\" is missing" );
}

void Fields::end() const {
   Rex::ValueErrors errors;
   for ( auto const & [name, value] : object_ ) {
      if ( !known_.contains( name ) ) {
         errors.below( name, [&] { throw Rex::ValueError( { "", unknown( name ), true } ); } );
      }
   }
   errors.end();
}

std::string Fields::unknown( std::string const & name ) const {
   std::vector< std::string > const known( known_.begin(), known_.end() );
   auto remedy = Rex::didYouMean( name, known );
   if ( remedy.empty() ) {
      for ( auto const & candidate : known ) {
         remedy += ( remedy.empty() ? "; there may be " : ", " ) + candidate;
      }
   }
   return "this key means nothing here" + remedy;
}

Value::Object const & objectOf( Value const & value ) {
   if ( auto const * object = value.object() ) {
      return *object;
   }
   Rex::throwWrongKind( "an object", value );
}

Value::List const & listOf( Value const & value ) {
   if ( auto const * list = value.list() ) {
      return *list;
   }
   Rex::throwWrongKind( "a list", value );
}

} // namespace Inspection
