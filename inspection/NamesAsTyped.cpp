#include "inspection/NamesAsTyped.h"

#include "inspection/files/InputError.h"
#include "rex/Nearest.h"
#include "rex/Value.h"

#include <algorithm>
#include <set>

namespace Inspection {

std::string listed( std::vector< std::string > const & names, std::size_t most ) {
   std::string text;
   for ( std::size_t name = 0; name < std::min( most, names.size() ); ++name ) {
      text += ( name == 0 ? "" : ", " ) + names[name];
   }
   return text + ( names.size() > most ? " and " + std::to_string( names.size() - most ) + " more" : "" );
}

namespace {

std::set< std::string > fieldsOf( Catalogue::Table const & table ) {
   std::set< std::string > names;
   for ( auto const & layout : table.layouts ) {
      for ( auto const & field : layout.fields ) {
         names.insert( field.name );
      }
   }
   return names;
}

std::string someOf( std::vector< Catalogue::Table const * > const & tables ) {
   std::vector< std::string > names;
   std::ranges::transform( tables, std::back_inserter( names ), []( auto const * table ) { return table->name; } );
   return listed( names, 4 );
}

// "0 to 3", "0, 2"
std::string rangeText( std::set< U32 > const & numbers ) {
   if ( numbers.size() > 2 && *numbers.rbegin() - *numbers.begin() + 1 == numbers.size() ) {
      return std::to_string( *numbers.begin() ) + " to " + std::to_string( *numbers.rbegin() );
   }
   std::string text;
   for ( U32 const number : numbers ) {
      text += ( text.empty() ? "" : ", " ) + std::to_string( number );
   }
   return text;
}

} // namespace

std::vector< Catalogue::Table const * > tablesWithField( std::string_view field ) {
   std::vector< Catalogue::Table const * > all;
   for ( auto const & table : Catalogue::tables() ) {
      bool const hasIt = std::ranges::any_of( table.layouts, [&]( auto const & it ) { return it.field( field ); } );
      if ( table.hasMemory && hasIt ) {
         all.push_back( &table );
      }
   }
   return all;
}

std::vector< std::string > tableNames() {
   std::vector< std::string > names;
   for ( auto const & table : Catalogue::tables() ) {
      names.emplace_back( table.name );
   }
   return names;
}

Catalogue::Table const & tableNamed( std::string const & name ) {
   if ( auto const * const table = Catalogue::table( name ) ) {
      return *table;
   }
   std::string const head = name.substr( 0, name.find( '.' ) );
   if ( head != name && Catalogue::table( head ) ) {
      throw InputError( "\"" + name + "\" is no table but a field of one; the table is " + head );
   }
   if ( auto const with = tablesWithField( name ); !with.empty() ) {
      throw InputError( "\"" + name + "\" is no table but a field, of " + someOf( with ) );
   }
   auto const remedy = Rex::didYouMean( name, tableNames() );
   throw InputError( "no table has the name \"" + name + "\"" +
                     ( remedy.empty() ? "; `l3sm catalogue` lists them" : remedy ) );
}

std::string fieldNamed( Catalogue::Table const & table, std::string const & name ) {
   auto const names = fieldsOf( table );
   if ( names.contains( name ) ) {
      return name;
   }
   auto const remedy = Rex::didYouMean( name, { names.begin(), names.end() } );
   throw InputError( std::string( table.name ) + " has no field \"" + name + "\"" +
                     ( remedy.empty() ? "; `l3sm catalogue " + std::string( table.name ) + "` lists them" : remedy ) );
}

std::string TablePart::text() const {
   return table->name + ( field.empty() ? "" : "." + field ) + ( bit ? ":" + std::to_string( *bit ) : "" );
}

U32 TablePart::width() const {
   U32 widest = 0;
   for ( auto const & layout : table->layouts ) {
      auto const * const it = layout.field( field );
      widest = std::max( widest, it ? it->width : U32{ 0 } );
   }
   return widest;
}

TablePart partNamed( std::string const & typed ) {
   auto const colon = typed.find( ':' );
   std::string const name = typed.substr( 0, colon );
   auto const dot = name.find( '.' );
   std::string const head = name.substr( 0, dot );
   TablePart part;
   if ( dot != std::string::npos ) {
      part.table = &tableNamed( head );
      part.field = fieldNamed( *part.table, name.substr( dot + 1 ) );
   } else if ( auto const with = tablesWithField( head ); !Catalogue::table( head ) && !with.empty() ) {
      if ( with.size() > 1 ) {
         throw InputError( std::to_string( with.size() ) + " tables have a field \"" + head + "\": " + someOf( with ) +
                           "; say which, as in " + with.front()->name + "." + head );
      }
      part.table = with.front();
      part.field = head;
   } else {
      part.table = &tableNamed( head );
   }
   if ( colon == std::string::npos ) {
      return part;
   }
   try {
      part.bit = Rex::Codec< U32 >::fromKey( typed.substr( colon + 1 ) );
   } catch ( Rex::ValueError const & ) {
      throw InputError( "\"" + typed.substr( colon + 1 ) + "\" is no bit; say it as in " + name + ":0" );
   }
   if ( part.field.empty() ) {
      throw InputError( "a bit is one of a field, as in " + std::string( part.table->name ) + "." +
                        *fieldsOf( *part.table ).begin() + ":0" );
   }
   if ( *part.bit >= part.width() ) {
      throw InputError( part.table->name + ( "." + part.field ) + " has the bits 0 to " +
                        std::to_string( part.width() - 1 ) );
   }
   return part;
}

void checkPlace( Catalogue::Table const & table, TypedPlace const & place ) {
   std::string const name = table.name;
   auto layouts = std::vector< Catalogue::Layout >( table.layouts.begin(), table.layouts.end() );
   // Keeps the layouts that have it; where none does, tells what those have.
   auto const narrow =
      [&]( std::optional< U32 > const & number, char const * what, auto const & first, auto const & size ) {
         if ( !number ) {
            return;
         }
         std::set< U32 > there;
         for ( auto const & layout : layouts ) {
            for ( U32 each = first( layout ); each < first( layout ) + size( layout ); ++each ) {
               there.insert( each );
            }
         }
         if ( !there.contains( *number ) ) {
            throw InputError( name + " has no " + what + " " + std::to_string( *number ) + "; there is " +
                              rangeText( there ) );
         }
         std::erase_if(
            layouts, [&]( auto const & it ) { return *number < first( it ) || *number >= first( it ) + size( it ); } );
      };
   auto const none = []( auto const & ) { return U32{ 0 }; };
   narrow(
      place.variant,
      "variant",
      []( auto const & it ) { return U32{ it.variant }; },
      []( auto const & ) { return U32{ 1 }; } );
   narrow(
      place.array,
      "array index",
      []( auto const & it ) { return U32{ it.arrayIndexFirst }; },
      []( auto const & it ) { return U32{ it.arrayElements }; } );
   narrow( place.entry, "entry", none, []( auto const & it ) { return std::max< U32 >( it.entries, 1 ); } );
   narrow( place.copy, "copy", none, []( auto const & it ) { return U32{ it.instanceCount }; } );
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
   if ( !value.starts_with( "0x" ) || value.find( ' ' ) != std::string::npos ) {
      return value;
   }
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
