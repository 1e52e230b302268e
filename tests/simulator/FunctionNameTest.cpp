#include "simulator/FunctionName.h"

#include <gtest/gtest.h>
#include <source_location>

using Simulator::fileName;
using Simulator::functionName;

namespace DaceFapNi {

std::string here( std::source_location at = std::source_location::current() ) {
   return functionName( at.function_name() );
}

// Functions of every sort that programs a chip.
struct L3Sm {
   struct NestedSm_SlotLoadBalance {
      std::string handle() const { return here(); }
   };
   static std::string initIpTraps( std::map< int, std::pair< int, int > > const & ) { return here(); }
   virtual ~L3Sm() = default;
   virtual std::string handle( void ( * )( int ) ) const { return here(); }
   std::string inLambda( int ) {
      return [&]( auto const & x ) { return x ? here() : ""; }( true );
   }
   std::vector< std::string > operator()( int ) const { return { here() }; }
};

template< class Table >
std::string updateStrength( Table const & ) {
   return here();
}

std::string freeFunction( int ) {
   return here();
}

namespace {
std::string hidden( std::string const & ) {
   return here();
}
struct Hidden {
   std::string name() noexcept { return here(); }
};
} // namespace

} // namespace DaceFapNi

namespace Elsewhere {
std::string function() {
   return DaceFapNi::here();
}
} // namespace Elsewhere

namespace {

TEST( FunctionName, isThatOfTheMemberWithItsClass ) {
   DaceFapNi::L3Sm sm;
   EXPECT_EQ( DaceFapNi::L3Sm::initIpTraps( {} ), "L3Sm::initIpTraps" );
   EXPECT_EQ( sm.handle( nullptr ), "L3Sm::handle" );
   EXPECT_EQ( DaceFapNi::L3Sm::NestedSm_SlotLoadBalance{}.handle(), "L3Sm::NestedSm_SlotLoadBalance::handle" );
   EXPECT_EQ( sm( 1 )[0], "L3Sm::operator()" );
}

TEST( FunctionName, isThatOfTheFunctionAroundALambda ) {
   EXPECT_EQ( DaceFapNi::L3Sm{}.inLambda( 1 ), "L3Sm::inLambda" );
}

TEST( FunctionName, isBareForAFreeFunction ) {
   EXPECT_EQ( DaceFapNi::freeFunction( 1 ), "freeFunction" );
   EXPECT_EQ( DaceFapNi::updateStrength( std::vector< int >{} ), "updateStrength" );
   EXPECT_EQ( DaceFapNi::hidden( "" ), "hidden" );
   EXPECT_EQ( DaceFapNi::Hidden{}.name(), "Hidden::name" );
}

TEST( FunctionName, keepsOtherNamespaces ) {
   EXPECT_EQ( Elsewhere::function(), "Elsewhere::function" );
   EXPECT_EQ( functionName( "int main()" ), "main" );
}

TEST( FunctionName, readsResultsThatArePointersAndTemplates ) {
   EXPECT_EQ( functionName( "const char* DaceFapNi::name(int)" ), "name" );
   EXPECT_EQ( functionName( "std::map<int, std::vector<int> > DaceFapNi::all() const" ), "all" );
   EXPECT_EQ( functionName( "DaceFapNi::L3Sm::L3Sm(int, int)" ), "L3Sm::L3Sm" );
   EXPECT_EQ( functionName( "virtual DaceFapNi::L3Sm::~L3Sm()" ), "L3Sm::~L3Sm" );
   EXPECT_EQ( functionName( "" ), "" );
}

TEST( FileName, isTheLastPartOfAPath ) {
   EXPECT_EQ( fileName( "DaceL3Unicast/DaceFapNiPlugin/L3SmRouting.cpp" ), "L3SmRouting.cpp" );
   EXPECT_EQ( fileName( "L3Sm.cpp" ), "L3Sm.cpp" );
}

} // namespace
