#include "generator/Yaml.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

Yaml Yaml::load( std::string const & file ) {
   std::ifstream in( file );
   if ( !in || !std::filesystem::is_regular_file( file ) ) { // a folder can be opened, too
      throw Error( file, 1, "cannot be read" );
   }
   try {
      return { YAML::Load( in ), file, 1 };
   } catch ( YAML::Exception const & e ) {
      throw Error( file, e.mark.is_null() ? 1 : e.mark.line + 1, e.msg );
   }
}

Yaml Yaml::child( YAML::Node const & node ) const {
   return { node, file_, line() };
}

int Yaml::line() const {
   return node_.IsDefined() && node_.Mark().line >= 0 ? node_.Mark().line + 1 : line_;
}

void Yaml::fail( std::string const & text ) const {
   throw Error( file_, line(), text );
}

void Yaml::entries( std::function< void( std::string const &, Yaml const & ) > const & each ) const {
   if ( !node_.IsMap() ) {
      fail( "a map of keys and values is expected here" );
   }
   std::set< std::string > seen;
   for ( auto const & entry : node_ ) {
      std::string const key = child( entry.first ).text();
      if ( !seen.insert( key ).second ) {
         child( entry.first ).fail( "the key '" + key + "' stands here twice" );
      }
      each( key, child( entry.second ) );
   }
}

void Yaml::allowKeys( std::initializer_list< std::string_view > keys ) const {
   entries( [&]( std::string const & key, Yaml const & value ) {
      if ( std::find( keys.begin(), keys.end(), key ) == keys.end() ) {
         std::string known;
         for ( auto k : keys ) {
            known += ( known.empty() ? "" : ", " ) + std::string( k );
         }
         value.fail( "unknown key '" + key + "'; known here: " + known );
      }
   } );
}

bool Yaml::has( std::string const & key ) const {
   return node_[key].IsDefined();
}

Yaml Yaml::at( std::string const & key ) const {
   YAML::Node const node = node_[key];
   if ( !node.IsDefined() ) {
      fail( "'" + key + "' is missing" );
   }
   return child( node );
}

std::string Yaml::text() const {
   if ( !node_.IsScalar() ) {
      fail( "a word or number is expected here" );
   }
   return node_.Scalar();
}

std::uint32_t Yaml::number() const {
   std::string const digits = text();
   bool const hex = digits.starts_with( "0x" );
   std::size_t used = 0;
   unsigned long long value = 0;
   try {
      value = std::stoull( hex ? digits.substr( 2 ) : digits, &used, hex ? 16 : 10 );
   } catch ( std::exception const & ) {
      used = 0;
   }
   if ( used == 0 || used != digits.size() - ( hex ? 2 : 0 ) || digits[0] == '-' || value > 0xffffffff ) {
      fail( "'" + digits + "' is not a number of 32 bits" );
   }
   return static_cast< std::uint32_t >( value );
}

std::vector< Yaml > Yaml::items( std::optional< std::size_t > count ) const {
   if ( !node_.IsSequence() ) {
      fail( "a list is expected here" );
   }
   if ( count && node_.size() != *count ) {
      fail( "a list of " + std::to_string( *count ) + " is expected here" );
   }
   std::vector< Yaml > list;
   for ( auto const & item : node_ ) {
      list.push_back( child( item ) );
   }
   return list;
}
