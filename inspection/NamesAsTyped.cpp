#include "inspection/NamesAsTyped.h"

#include "inspection/files/InputError.h"
#include "rex/Nearest.h"

#include <algorithm>
#include <set>

namespace Inspection {

Catalogue::Table const & tableNamed( std::string const & name ) {
   if ( auto const * const table = Catalogue::table( name ) ) {
      return *table;
   }
   std::vector< std::string > names;
   for ( auto const & table : Catalogue::tables() ) {
      names.emplace_back( table.name );
   }
   auto const remedy = Rex::didYouMean( name, names );
   throw InputError( "no table has the name \"" + name + "\"" +
                     ( remedy.empty() ? "; `l3sm catalogue` lists them" : remedy ) );
}

std::string fieldNamed( Catalogue::Table const & table, std::string const & name ) {
   std::set< std::string > names;
   for ( auto const & layout : table.layouts ) {
      for ( auto const & field : layout.fields ) {
         names.insert( field.name );
      }
   }
   if ( names.contains( name ) ) {
      return name;
   }
   auto const remedy = Rex::didYouMean( name, { names.begin(), names.end() } );
   throw InputError( std::string( table.name ) + " has no field \"" + name + "\"" +
                     ( remedy.empty() ? "; `l3sm catalogue " + std::string( table.name ) + "` lists them" : remedy ) );
}

Hardware::ChipType chipNamed( std::string const & name ) {
   std::vector< std::string > names;
   for ( auto const chipType : Hardware::allChipTypes ) {
      if ( name == Hardware::chipTypeName( chipType ) ) {
         return chipType;
      }
      names.emplace_back( Hardware::chipTypeName( chipType ) );
   }
   std::string remedy = Rex::didYouMean( name, names );
   if ( remedy.empty() ) {
      for ( auto const & known : names ) {
         remedy += ( remedy.empty() ? "; there is " : ", " ) + known;
      }
   }
   throw InputError( "no chip has the name \"" + name + "\"" + remedy );
}

bool hasVariants( Catalogue::Table const & table ) {
   return table.variantCount > 1;
}

bool isArrayed( Catalogue::Layout const & layout ) {
   return layout.arrayElements > 1 || layout.arrayIndexFirst != 0;
}

std::string entryText( Catalogue::Layout const & layout, U32 array, U32 entry ) {
   std::string text = isArrayed( layout ) ? "[" + std::to_string( array ) + "]" : "";
   if ( layout.entries != 0 ) {
      text += ( text.empty() ? "" : " " ) + std::to_string( entry );
   }
   return text;
}

std::string placeText( Catalogue::Table const & table, Catalogue::Layout const & layout, U32 array, U32 entry ) {
   std::string const within = entryText( layout, array, entry );
   if ( !hasVariants( table ) ) {
      return within;
   }
   return "variant " + std::to_string( layout.variant ) + ( within.empty() ? "" : " " ) + within;
}

std::string readable( std::string const & value ) {
   constexpr std::size_t prefix = 2; // "0x"
   constexpr std::size_t group = 8;
   std::size_t const digits = value.size() - prefix;
   std::string text = "0x";
   for ( std::size_t digit = 0; digit < digits; ++digit ) {
      if ( digit > 0 && ( digits - digit ) % group == 0 ) {
         text += '\'';
      }
      text += value[prefix + digit];
   }
   if ( digits <= group ) {
      auto const number = std::stoul( value, nullptr, 16 );
      if ( number > 9 && number <= 0xffff ) {
         text += " (" + std::to_string( number ) + ")";
      }
   }
   return text;
}

std::string bitsText( Catalogue::Field const & field ) {
   std::string const last = std::to_string( field.offset );
   return field.width == 1 ? "[" + last + "]"
                           : "[" + std::to_string( field.offset + field.width - 1 ) + ":" + last + "]";
}

} // namespace Inspection
