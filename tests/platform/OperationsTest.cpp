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

class Handle : public Corvo::Node {};
class OtherHandle : public Corvo::Node {};

void visitBy( Corvo::Ptr< FapStatus const > const & fapStatus, Corvo::Ptr< Handle > const & handle ) {
   visited.push_back( fapStatus->fapId().value() + ( handle ? 100 : 0 ) );
}

TEST( OperationsTest, takeAHandleBesideTheEntityWhereTheyNeedOne ) {
   Rex::Operations const operations{ "Test::Sm", { { "visit", visit }, { "visitBy", visitBy } } };
   auto const & plain = *Rex::Operations::find( "Test::Sm", "visit" );
   auto const & byHandle = *Rex::Operations::find( "Test::Sm", "visitBy" );
   EXPECT_FALSE( plain.takesHandle() );
   EXPECT_TRUE( byHandle.takesHandle() );
   auto const fap = Corvo::makePtr< FapStatus >( FapId( 7 ) );
   auto const handle = Corvo::makePtr< Handle >();
   plain( fap, handle );
   byHandle( fap, handle );
   EXPECT_EQ( visited, ( std::vector{ 7, 107 } ) );
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

TEST( OperationsDeathTest, refuseAHandleThatIsMissingOrOfAnotherType ) {
   Rex::Operations const operations{ "Test::Sm", { { "visitBy", visitBy } } };
   auto const & operation = *Rex::Operations::find( "Test::Sm", "visitBy" );
   auto const fap = Corvo::makePtr< FapStatus >( FapId( 7 ) );
   EXPECT_DEATH( operation( fap ), "`handle'" );
   EXPECT_DEATH( operation( fap, Corvo::makePtr< OtherHandle >() ), "`handle'" );
}

} // namespace
