// The catalogue for programs: whoever walks a table with nothing but its numbers reaches every element of it.
#include "l3sm/Command.h"

#include "generated/Catalogue.h"
#include "inspection/files/Json.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>

namespace {

using Rex::Value;

std::int64_t number( Value const & of, char const * name ) {
   return *of.object()->at( name ).integer();
}

using Indices = std::pair< std::int64_t, std::int64_t >;

// The first array index and the last, as the answer tells them.
Indices arrayOf( Value const & layout ) {
   if ( layout.object()->contains( "arrayIndexAccepted" ) ) {
      auto const & range = *layout.object()->at( "arrayIndexAccepted" ).list();
      return { *range.at( 0 ).integer(), *range.at( 1 ).integer() };
   }
   auto const first = number( layout, "arrayIndexMin" );
   return { first, first + number( layout, "arrayElements" ) - 1 };
}

TEST( Catalogue, tellsTheArrayIndicesThatEveryTableAccepts ) {
   auto const answer = Inspection::parseJson( Command( "catalogue --json" ).output, "catalogue" );
   auto const & classes = *answer.object()->at( "classes" ).object();
   std::size_t layouts = 0;
   std::size_t others = 0; // where they aren't those of the elements
   for ( auto const & table : Catalogue::tables() ) {
      auto const & chips = *classes.at( table.name ).object()->at( "layouts" ).object();
      for ( auto const & layout : table.layouts ) {
         auto const & told =
            chips.at( std::to_string( layout.chipType ) ).object()->at( std::to_string( layout.variant ) );
         auto const indices = Simulator::arrayIndices( layout );
         EXPECT_EQ( arrayOf( told ), Indices( indices.front(), indices.back() ) )
            << table.name << " on chip " << int{ layout.chipType };
         others += told.object()->contains( "arrayIndexAccepted" ) ? 1 : 0;
         ++layouts;
      }
   }
   EXPECT_GT( layouts, 500u );
   EXPECT_EQ( others, 4u ); // two tables on two chips
}

} // namespace
