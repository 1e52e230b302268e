#include "generator/Emit.h"
#include "generator/Text.h"

#include <algorithm>
#include <sstream>

namespace {

using namespace Model;

char const * const header = R"cpp(// clang-format off
//
//    Catalogue::Table const * table = Catalogue::table( "IppdFerTrapCfg" );
//    Catalogue::Layout const * layout = Catalogue::layout( *table, 10, 0 );      // BCM88690_B0, variant 0
//    U16 offset = layout->field( "cpuStrengthN" )->offset;
//
// An entry lies at base + entry + array index * arrayStep, in the block that the selectors of a copy pick.
//
// Threading: constant data.
#pragma once

#include "corvo/Types.h"

#include <span>
#include <string_view>

namespace Catalogue {

// The block of one physical copy.
struct Selector {
   U8 a;
   U8 b;
};

// A run of bits of an entry.
struct Field {
   char const * name;
   U16 offset;
   U16 width;
   bool readOnly; // part of the format's tag
};

// A table on one chip, in one variant.
struct Layout {
   U8 chipType;
   U8 variant;
   U32 entries; // 0 for a register
   U16 width;   // words
   U16 arrayElements;
   U16 arrayIndexMin; // what the chip calls the first element of the array
   S32 sdkDefinedId;  // -1: none
   U8 instanceCount;
   U32 base;
   U32 arrayStep; // 0: no array
   std::span< Selector const > selectors; // by copy
   std::span< Field const > fields;       // in the order of declaration
   U16 arrayIndexFirst; // the first index that the array is addressed by, arrayIndexMin but for few tables

   Field const * field( std::string_view name ) const; // null if the layout lacks it
};

struct Table {
   char const * name;
   U16 number; // place among all tables, alphabetically
   bool isMemory;
   bool hasMemory; // false: a format with no memory of its own
   std::span< U8 const > chips;
   U8 variantCount;
   std::span< Layout const > layouts;
};

std::span< Table const > tables();                       // by number
Table const * table( std::string_view name );            // null if unknown
Layout const * layout( Table const & table, U8 chipType, U8 variant ); // null if not there
char const * chipName( U8 chipType );                    // "BCM88690_B0"; null if unknown

} // namespace Catalogue
)cpp";

// Arrays of equal contents are written once.
class Arrays {
 public:
   std::string name( std::string const & type, std::string const & prefix, std::string const & items ) {
      auto const [found, isNew] = names_.try_emplace( items, prefix + std::to_string( names_.size() ) );
      if ( isNew ) {
         text_ += "constexpr " + type + " " + found->second + "[] = {" + items + "};\n";
      }
      return found->second;
   }
   std::string const & text() const { return text_; }

 private:
   std::map< std::string, std::string > names_;
   std::string text_;
};

std::string fieldItems( Table const & table, Layout const & layout ) {
   std::string items;
   for ( Field const & field : layout.fields ) {
      items += "\n   { \"" + field.name + "\", " + std::to_string( field.offset ) + ", " +
               std::to_string( field.width ) + ", " + ( table.readOnly( field.name ) ? "true" : "false" ) + " },";
   }
   return items + "\n";
}

std::string selectorItems( Layout const & layout ) {
   std::vector< std::string > items;
   for ( auto const & [a, b] : layout.selectors ) {
      items.push_back( "{ " + std::to_string( a ) + ", " + std::to_string( b ) + " }" );
   }
   return " " + list( items ) + " ";
}

std::string layoutItems( Table const & table, Arrays & fields, Arrays & selectors ) {
   std::string items;
   for ( unsigned variant = 0; variant < table.variants; ++variant ) {
      for ( unsigned const chip : table.chips ) {
         Layout const & layout = table.layouts.at( { chip, variant } );
         items += "\n   { " + std::to_string( chip ) + ", " + std::to_string( variant ) + ", " +
                  std::to_string( layout.entries.value_or( 0 ) ) + "u, " + std::to_string( layout.width ) + ", " +
                  std::to_string( layout.arrayElements ) + ", " + std::to_string( layout.arrayIndexMin ) + ", " +
                  std::to_string( layout.sdkDefinedId.value_or( -1 ) ) + ", " + std::to_string( layout.instances ) +
                  ", " + hex( layout.base ) + ", " + std::to_string( layout.arrayStep ) + ", " +
                  selectors.name( "Selector", "selectors", selectorItems( layout ) ) + ", " +
                  fields.name( "Field", "fields", fieldItems( table, layout ) ) + ", " +
                  std::to_string( layout.arrayIndexFirst ) + " },";
      }
   }
   return items + "\n";
}

char const * const lookups = R"cpp(
std::span< Table const > tables() {
   return allTables;
}

Table const * table( std::string_view name ) {
   auto const found = std::lower_bound( std::begin( allTables ), std::end( allTables ), name, []( Table const & t, std::string_view n ) {
      return t.name < n;
   } );
   return found != std::end( allTables ) && found->name == name ? found : nullptr;
}

Layout const * layout( Table const & table, U8 chipType, U8 variant ) {
   auto const found = std::find_if( table.layouts.begin(), table.layouts.end(), [&]( Layout const & l ) {
      return l.chipType == chipType && l.variant == variant;
   } );
   return found == table.layouts.end() ? nullptr : &*found;
}

Field const * Layout::field( std::string_view name ) const {
   auto const found = std::find_if( fields.begin(), fields.end(), [&]( Field const & f ) { return f.name == name; } );
   return found == fields.end() ? nullptr : &*found;
}
)cpp";

} // namespace

std::string emitCatalogueHeader() {
   return generatedNote( "The catalogue of chip tables as plain data, for those who show chips to people." ) + header;
}

std::string emitCatalogueSource( Catalogue const & catalogue ) {
   Arrays fields;
   Arrays selectors;
   std::string layouts;
   std::string tables;
   unsigned number = 0;
   for ( Table const & table : catalogue.tables ) {
      std::vector< std::string > chips;
      for ( unsigned const chip : table.chips ) {
         chips.push_back( std::to_string( chip ) );
      }
      layouts += "\nconstexpr U8 chipsOf" + table.name + "[] = { " + list( chips ) + " };\nconstexpr Layout layoutsOf" +
                 table.name + "[] = {" + layoutItems( table, fields, selectors ) + "};\n";
      // An entry count of all ones marks a format that other tables hold.
      bool const hasMemory = table.layouts.begin()->second.entries != 0xffffffffu;
      tables += "   { \"" + table.name + "\", " + std::to_string( number++ ) + ", " +
                ( table.isMemory ? "true" : "false" ) + ", " + ( hasMemory ? "true" : "false" ) + ", chipsOf" +
                table.name + ", " + std::to_string( table.variants ) + ", layoutsOf" + table.name + " },\n";
   }
   std::string names;
   for ( Chip const & chip : catalogue.chips ) {
      names += "   case " + std::to_string( chip.number ) + ":\n      return \"" + chip.name + "\";\n";
   }
   return generatedNote( "The catalogue of chip tables as plain data." ) +
          "// clang-format off\n#include \"generated/Catalogue.h\"\n\n#include <algorithm>\n#include <iterator>\n\n"
          "namespace Catalogue {\n\nnamespace {\n\n" +
          selectors.text() + "\n" + fields.text() + layouts + "\nconstexpr Table allTables[] = {\n" + tables +
          "};\n\n} // namespace\n" + lookups + "\nchar const * chipName( U8 chipType ) {\n   switch ( chipType ) {\n" +
          names + "   default:\n      return nullptr;\n   }\n}\n\n} // namespace Catalogue\n";
}
