// Clients of the control socket that ask for more than is theirs, and those that are served meanwhile.
#include "ControlWorld.h"

namespace {

using namespace Live;

std::string const echoed = R"({"jsonrpc": "2.0", "id": 1, "result": "a"})";
std::string const echo = request( "echo", R"(["a"])" );

TEST( ControlLimits, EndTheConnectionOfATooLongRequest ) {
   for ( std::string const end : { "", "\n" } ) {
      ControlWorld world;
      world.serve();
      std::string first;
      std::string answer;
      bool ends = false;
      world.during( [&] {
         auto client = world.raw();
         first = client.ask( request( "echo", "[\"" + std::string( 900'000, 'x' ) + "\"]" ) );
         client.send( std::string( 1'200'000, 'x' ) + end );
         answer = client.line();
         ends = client.ends();
      } );
      EXPECT_EQ( first.size(), 900'000 + std::string( R"({"jsonrpc": "2.0", "id": 1, "result": ""})" ).size() );
      EXPECT_NE( answer.find( "a request has at most 1048576 bytes" ), std::string::npos ) << answer;
      EXPECT_TRUE( ends );
      EXPECT_EQ( world.log.size(), 1 );
   }
}

TEST( ControlLimits, RefuseAClientTooMany ) {
   ControlWorld world;
   world.serve();
   std::vector< RawClient > clients;
   std::string refused;
   std::string served;
   world.during( [&] {
      for ( int number = 0; number < 64; ++number ) {
         clients.push_back( world.raw() );
         EXPECT_EQ( clients.back().ask( echo ), echoed );
      }
      auto another = world.raw();
      refused = another.line();
      EXPECT_TRUE( another.ends() );
      served = clients[17].ask( echo );
   } );
   EXPECT_NE( refused.find( "there are 64 clients already" ), std::string::npos ) << refused;
   EXPECT_EQ( served, echoed );
   clients.clear();
   EXPECT_TRUE( world.turnsUntil( [&] { return world.server->clients() == 0; } ) );
}

TEST( ControlLimits, MakeRoomForAClientWhereOneHasAskedForNothingForLong ) {
   ControlWorld world;
   world.options.clients = 2;
   world.options.idle = 0.05;
   world.serve();
   world.during( [&] {
      auto idle = world.raw();
      idle.ask( echo );
      ::usleep( 100'000 );
      auto busy = world.raw();
      busy.ask( echo );
      auto another = world.raw();
      EXPECT_EQ( another.ask( echo ), echoed );
      EXPECT_NE( idle.line().find( "others wait for the place" ), std::string::npos );
      EXPECT_TRUE( idle.ends() );
      EXPECT_EQ( busy.ask( echo ), echoed );
   } );
}

TEST( ControlLimits, DropAClientThatReadsNothingAndServeTheOthersMeanwhile ) {
   ControlWorld world;
   world.options.connection.patience = 0.3;
   std::size_t answered = 0;
   world.commands.add( { .name = "much", .does = "", .answer = [&]( Arguments const & ) -> Answer {
                           ++answered;
                           return std::string( 4'000'000, 'x' );
                        } } );
   world.serve();
   bool ends = false;
   world.during( [&] {
      auto stuck = world.raw();
      for ( int number = 0; number < 100; ++number ) {
         stuck.send( request( "much" ) + "\n" );
      }
      auto other = world.raw();
      for ( int number = 0; number < 100; ++number ) {
         EXPECT_EQ( other.ask( echo ), echoed );
      }
      ends = stuck.endsUnread();
      EXPECT_EQ( other.ask( echo ), echoed );
   } );
   EXPECT_EQ( answered, 1 ); // the others were never read
   EXPECT_TRUE( ends );
   ASSERT_EQ( world.log.size(), 1 );
   EXPECT_NE( world.log[0].find( "was dropped: it doesn't read its answer" ), std::string::npos ) << world.log[0];
}

TEST( ControlLimits, LetAClientTakeItsTimeAsLongAsItReads ) {
   ControlWorld world;
   world.options.connection.patience = 2;
   world.commands.add( { .name = "much", .does = "", .answer = []( Arguments const & ) -> Answer {
                           return std::string( 4'000'000, 'x' );
                        } } );
   world.serve();
   std::size_t got = 0;
   world.during( [&] {
      auto slow = world.raw();
      slow.send( request( "much" ) + "\n" );
      std::vector< char > some( 500'000 );
      while ( got < 4'000'000 ) {
         ::usleep( 200'000 ); // in all longer than its patience
         auto const more = ::recv( slow.number(), some.data(), some.size(), 0 );
         if ( more < 0 && errno == EAGAIN ) {
            continue; // the answer isn't made yet
         }
         ASSERT_GT( more, 0 );
         got += static_cast< std::size_t >( more );
      }
   } );
   EXPECT_GT( got, 4'000'000 );
   EXPECT_TRUE( world.log.empty() );
}

// A client may send faster than it is served, and costs others their turn as little as the loop.
TEST( ControlLimits, ServeARequestOfEachClientInTurn ) {
   ControlWorld world;
   world.serve();
   std::string all;
   for ( int number = 0; number < 3000; ++number ) {
      all += echo + "\n";
   }
   std::size_t before = 0;
   world.during( [&] {
      auto eager = world.raw();
      std::thread sends( [&] { eager.send( all ); } );
      auto other = world.raw();
      EXPECT_EQ( other.ask( echo ), echoed );
      before = world.turns;
      for ( int number = 0; number < 3000; ++number ) {
         ASSERT_EQ( eager.line(), echoed );
      }
      sends.join();
   } );
   EXPECT_LT( before, 2000 );
}

TEST( ControlLimits, ForgetAClientThatLeavesInTheMiddleOfARequest ) {
   ControlWorld world;
   world.serve();
   world.during( [&] {
      world.raw().send( R"({"jsonrpc": "2.0", "id": 1, "meth)" );
      world.raw().send( request( "echo", R"(["nobody reads this"])" ) + "\n" );
   } );
   EXPECT_TRUE( world.turnsUntil( [&] { return world.server->clients() == 0; } ) );
   EXPECT_TRUE( world.log.empty() );
}

} // namespace
