#include "inspection/files/Json.h"

#include "rex/Nearest.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace Inspection {

namespace {

using Rex::Value;

constexpr std::size_t deepest = 64;

// Builds a value from the events of the parser, and refuses what JSON lets pass.
class ValueBuilder {
 public:
   using number_integer_t = nlohmann::json::number_integer_t;
   using number_unsigned_t = nlohmann::json::number_unsigned_t;
   using number_float_t = nlohmann::json::number_float_t;
   using string_t = nlohmann::json::string_t;
   using binary_t = nlohmann::json::binary_t;

   ValueBuilder( std::string const & text, std::string const & name ) : text_( text ), name_( name ) {}
   Value take() { return std::move( result_ ); }

   bool null() { return put( nullptr ); }
   bool boolean( bool value ) { return put( value ); }
   bool number_integer( number_integer_t value ) { return put( value ); }
   bool number_unsigned( number_unsigned_t value ) {
      if ( value > static_cast< number_unsigned_t >( std::numeric_limits< std::int64_t >::max() ) ) {
         refuse( std::to_string( value ) + " is too large a number" );
      }
      return put( value );
   }
   bool number_float( number_float_t, string_t const & text ) { refuse( text + " is no whole number" ); }
   bool string( string_t & value ) { return put( std::move( value ) ); }
   bool binary( binary_t & ) { refuse( "binary data" ); }
   bool start_object( std::size_t ) { return open( Value::Object() ); }
   bool start_array( std::size_t ) { return open( Value::List() ); }
   bool end_object() { return close(); }
   bool end_array() { return close(); }
   bool key( string_t & key ) {
      auto & level = levels_.back();
      level.key = key;
      if ( level.value.object()->contains( key ) ) {
         refuse( "this key stands twice in the object" );
      }
      return true;
   }
   bool parse_error( std::size_t position, std::string const &, nlohmann::detail::exception const & error ) {
      auto const end = text_.begin() + static_cast< std::ptrdiff_t >( std::min( position, text_.size() ) );
      // The position is one behind the last character read; an end of line that was read ends its own line.
      auto const lines = std::count( text_.begin(), end == text_.begin() ? end : end - 1, '\n' ) + 1;
      std::string what = error.what();
      if ( auto const at = what.find( "column " ); at != std::string::npos ) {
         what = what.substr( what.find( ": ", at ) + 2 );
      }
      std::replace( what.begin(), what.end(), '\n', ' ' );
      throw InputError( name_ + ":" + std::to_string( lines ), what );
   }

 private:
   struct Level {
      Value value;
      std::string key;
      std::size_t index = 0;
   };

   [[noreturn]] void refuse( std::string const & text ) const {
      std::string place;
      for ( auto const & level : levels_ ) {
         place += level.value.object() ? Rex::pointerStep( level.key ) : "/" + std::to_string( level.index );
      }
      throw InputError( place.empty() ? name_ : name_ + ": " + place, text );
   }
   bool put( Value value ) {
      if ( levels_.empty() ) {
         result_ = std::move( value );
         return true;
      }
      auto & level = levels_.back();
      if ( auto * object = level.value.object() ) {
         object->emplace( level.key, std::move( value ) );
      } else {
         level.value.list()->push_back( std::move( value ) );
         ++level.index;
      }
      return true;
   }
   bool open( Value value ) {
      if ( levels_.size() == deepest ) {
         refuse( "nested too deeply" );
      }
      levels_.push_back( { std::move( value ), {}, 0 } );
      return true;
   }
   bool close() {
      Value value = std::move( levels_.back().value );
      levels_.pop_back();
      return put( std::move( value ) );
   }

   std::string const & text_;
   std::string const & name_;
   std::vector< Level > levels_;
   Value result_;
};

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

std::string readFile( std::string const & path ) {
   std::ifstream const in( path, std::ios::binary );
   if ( !in || std::filesystem::is_directory( path ) ) {
      throw InputError( path, std::string( "can't be read: " ) + std::strerror( in ? EISDIR : errno ) );
   }
   std::ostringstream text;
   text << in.rdbuf();
   return text.str();
}

Value readJson( std::string const & path ) {
   return parseJson( readFile( path ), path );
}

Value parseJson( std::string const & text, std::string const & name ) {
   ValueBuilder builder( text, name );
   nlohmann::json::sax_parse( text, &builder );
   return builder.take();
}

std::string toJson( Value const & value, int depth ) {
   std::string out;
   write( out, value, depth, 0 );
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
   for ( auto const & [name, value] : object_ ) {
      if ( !known_.contains( name ) ) {
         std::vector< std::string > const known( known_.begin(), known_.end() );
         auto remedy = Rex::didYouMean( name, known );
         if ( remedy.empty() ) {
            for ( auto const & candidate : known ) {
               remedy += ( remedy.empty() ? "; there may be " : ", " ) + candidate;
            }
         }
         throw Rex::ValueError( Rex::pointerStep( name ), "this key means nothing here" + remedy );
      }
   }
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
