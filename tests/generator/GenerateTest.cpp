// What is checked in is what the catalogue says.
#include "generator/Emit.h"
#include "generator/Read.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

std::filesystem::path const tree = L3SM_SOURCE_DIR;

std::string contents( std::filesystem::path const & file ) {
   std::ifstream in( file, std::ios::binary );
   std::ostringstream text;
   text << in.rdbuf();
   return text.str();
}

TEST( Generate, TheFilesInTheTreeAreWhatTheCatalogueSays ) {
   for ( auto const & [name, text] : emitAll( readCatalogue( tree / "catalogue" ) ) ) {
      EXPECT_TRUE( contents( tree / name ) == text )
         << name << " is not what the catalogue says. To repair it, run:\n\n   ./dev generate\n";
   }
}

TEST( Generate, TheCatalogueHoldsSeventyTables ) {
   auto const catalogue = readCatalogue( tree / "catalogue" );
   EXPECT_EQ( catalogue.tables.size(), 70u );
   EXPECT_EQ( catalogue.tables.front().name, "AdditionalHeadersMapTable0" );
   EXPECT_EQ( catalogue.tables.back().name, "VttTrapStrengths6" );
   std::size_t fields = 0;
   std::size_t layouts = 0;
   for ( auto const & table : catalogue.tables ) {
      fields += table.fieldNames.size();
      layouts += table.layouts.size();
   }
   EXPECT_EQ( fields, 865u );
   EXPECT_EQ( layouts, 552u );
}

TEST( Generate, NumbersOfFieldsAreStable ) {
   auto const ids = readFieldIds( ( tree / "catalogue/field-ids.yaml" ).string() );
   EXPECT_EQ( ids.size(), 659u );
   EXPECT_EQ( ids.at( "cfgOutrifMaxValue" ), 61u );
   EXPECT_EQ( ids.at( "cfgRifMaxValue" ), 63u );
   EXPECT_EQ( ids.at( "cfgSplitHorizonFilter" ), 65u );
   EXPECT_EQ( ids.at( "constStrengthVec" ), 79u );
   EXPECT_EQ( ids.at( "reserved" ), 631u );
   EXPECT_EQ( ids.at( "strengthWidthVec" ), 665u );
   EXPECT_EQ( ids.at( "wayIndex" ), 722u );
   for ( auto const & [name, id] : ids ) {
      EXPECT_LE( id, 722u ) << name;
   }
}

} // namespace
