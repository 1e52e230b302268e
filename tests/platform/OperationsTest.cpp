#include "rex/Operations.h"

#include "state/CellStatus.h"

#include <gtest/gtest.h>

using Hardware::Dace::FapId;
using Hardware::Dace::Cell::CellStatus;
using Hardware::Dace::Cell::FapStatus;

namespace {

std::vector< int > visited;

void visit( Corvo::Ptr< FapStatus const > const & fapStatus ) {
   visited.push_back( fapStatus->fapId().value() );
}
void ignore( Corvo::Ptr< FapStatus const > const & ) {}

TEST( OperationsTest, areFoundByTypeAndNameAndRunOnAnEntity ) {
   Rex::Operations const operations{ "Test::Sm", { { "ignore", ignore }, { "visit", visit } } };
   auto const * const found = Rex::Operations::find( "Test::Sm", "visit" );
   ASSERT_NE( found, nullptr );
   ( *found )( Corvo::makePtr< FapStatus >( FapId( 7 ) ) );
   EXPECT_EQ( visited, std::vector{ 7 } );
   EXPECT_EQ( Rex::Operations::find( "Test::Sm", "fly" ), nullptr );
   EXPECT_EQ( Rex::Operations::find( "Test::Other", "visit" ), nullptr );
}

TEST( OperationsTest, areNamedInTheOrderInWhichTheyWereOffered ) {
   Rex::Operations const first{ "Test::Sm", { { "visit", visit }, { "ignore", ignore } } };
   Rex::Operations const other{ "Test::Other", { { "visit", visit } } };
   Rex::Operations const second{ "Test::Sm", { { "again", visit } } };
   EXPECT_EQ( Rex::Operations::names( "Test::Sm" ), ( std::vector< std::string >{ "visit", "ignore", "again" } ) );
}

TEST( OperationsTest, areGoneWithTheirLibrary ) {
   { Rex::Operations const operations{ "Test::Sm", { { "visit", visit } } }; }
   EXPECT_EQ( Rex::Operations::find( "Test::Sm", "visit" ), nullptr );
   EXPECT_TRUE( Rex::Operations::names( "Test::Sm" ).empty() );
}

TEST( OperationsDeathTest, refuseAnEntityOfAnotherType ) {
   Rex::Operations const operations{ "Test::Sm", { { "visit", visit } } };
   EXPECT_DEATH( ( *Rex::Operations::find( "Test::Sm", "visit" ) )( Corvo::makePtr< CellStatus >() ), "`argument'" );
}

} // namespace
