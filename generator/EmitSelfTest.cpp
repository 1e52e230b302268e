#include "generator/Emit.h"
#include "generator/Text.h"

namespace {

using namespace Model;

// Where a field lies: "{ <chip>, <variant>, <offset>, <width> }" for each pair that has it.
std::string places( Table const & table, std::string const & field ) {
   std::string text;
   for ( auto const & [pair, layout] : table.layouts ) {
      if ( Field const * found = layout.field( field ) ) {
         text += ( text.empty() ? "" : "," ) + std::string( "{" ) + std::to_string( pair.first ) + "," +
                 std::to_string( pair.second ) + "," + std::to_string( found->offset ) + "," +
                 std::to_string( found->width ) + "}";
      }
   }
   return text;
}

std::string testOf( Catalogue const & catalogue, Table const & table ) {
   std::string const & name = table.name;
   std::string text = "\nTEST( MetaInfoSelfTest, " + name + " ) {\n   SelfTest::Table< Hardware::" + name +
                      " > table( \"" + name + "\", " + std::to_string( table.variants ) + " );\n";
   for ( auto const & field : table.fieldNames ) {
      std::string const upper = capitalised( field );
      std::string const type = typeFor( table.largestFieldWidth( field ) );
      text +=
         "   table.field< " + type + " >( \"" + field + "\", " + std::to_string( catalogue.fieldIds.at( field ) ) +
         ", " + ( table.readOnly( field ) ? std::string( "nullptr" ) : "&Hardware::" + name + "::" + field + "Is" ) +
         ", &Hardware::" + name + "::" + field + ", &Hardware::" + name + "::is" + upper + "Valid, &Hardware::" + name +
         "::" + field + "Len, &Hardware::" + name + "::" + field + "Offset, { " + places( table, field ) + " } );\n";
   }
   return text + "   table.masks();\n}\n";
}

} // namespace

std::string emitSelfTest( Catalogue const & catalogue ) {
   std::string text = generatedNote( "Every field's offset, width and mask on every chip and variant." ) +
                      "// clang-format off\n#include \"SelfTest.h\"\n\n"
                      "#include \"generated/DaceFapNiPluginL3UnicastMetaInfo.h\"\n";
   for ( Table const & table : catalogue.tables ) {
      text += testOf( catalogue, table );
   }
   return text;
}
