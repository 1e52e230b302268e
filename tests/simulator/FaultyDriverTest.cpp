// A chip fails where it is told to, and nowhere else.
#include "FailingChips.h"

namespace {

using namespace Simulator;
using DaceSal::SchanError;
using testing::ElementsAre;
using FaultyDriverTest = FailingChips;

std::string refusalOf( std::function< void() > const & what ) {
   try {
      what();
   } catch ( Rex::ValueError const & error ) {
      return error.place() + ": " + error.what();
   }
   return "fine";
}

TEST( FaultText, isWhatAPersonTypes ) {
   for ( char const * const kind : { "lost", "flip:7", "stuck:3=1", "stuck:3=0", "error", "delay:20" } ) {
      Fault fault;
      fault.kindIs( kind );
      EXPECT_EQ( fault.kindText(), kind );
   }
   for ( char const * const place :
         { "IppdFerTrapCfg", "IppdFerTrapCfg[3]", "EnablersVectors[0].7", "EnablersVectors.7" } ) {
      Fault fault;
      placeIs( fault, place );
      EXPECT_EQ( fault.placeText(), place );
   }
}

TEST( FaultText, isRefusedWhereItSaysSomethingElse ) {
   for ( char const * const kind : { "",
                                     "lost:3",
                                     "flip",
                                     "flip:",
                                     "flip:x",
                                     "flip:-1",
                                     "stuck:3",
                                     "stuck:3=2",
                                     "stuck:=1",
                                     "error:1",
                                     "delay",
                                     "delay:",
                                     "melt" } ) {
      Fault fault;
      EXPECT_EQ( refusalOf( [&] { fault.kindIs( kind ); } ),
                 "/kind: expected lost, flip:BIT, stuck:BIT=V, error or delay:MS, got \"" + std::string( kind ) +
                    "\"" );
   }
   for ( char const * const place : { "T[", "T[x]", "T[3", "T[3]x", "T.", "T.x", "T[3].-1" } ) {
      Fault fault;
      EXPECT_EQ( refusalOf( [&] { placeIs( fault, place ); } ),
                 "/place: expected TABLE[ARRAY][.ENTRY], got \"" + std::string( place ) + "\"" );
   }
}

TEST( FaultText, isReadBackFromItsValue ) {
   Fault fault{ .fap = 1,
                .table = "IppdFerTrapCfg",
                .array = 3,
                .entry = 0,
                .copy = 1,
                .kind = Fault::Kind::stuck,
                .bit = 4,
                .value = true,
                .count = 2,
                .probability = 0.25,
                .duration = 9,
                .seed = 17 };
   EXPECT_EQ( faultOf( valueOf( fault ) ), fault );
   EXPECT_EQ( faultOf( valueOf( Fault{ .kind = Fault::Kind::error } ) ), Fault{ .kind = Fault::Kind::error } );
   EXPECT_EQ( refusalOf( [] { faultOf( Rex::Value::Object{} ); } ),
              ": \"kind\" is missing: lost, flip:BIT, stuck:BIT=V, error or delay:MS" );
   EXPECT_EQ( refusalOf( [] {
                 faultOf( Rex::Value::Object{ { "kind", "lost" }, { "probability", "2" } } );
              } ),
              "/probability: expected a probability above 0 and up to 1, got 2" );
   EXPECT_EQ( refusalOf( [] {
                 faultOf( Rex::Value::Object{ { "kind", "lost" }, { "count", 0 } } );
              } ),
              "/count: expected a number from 1 on" );
}

TEST_F( FaultyDriverTest, refusesWhatNoChipCanHave ) {
   EXPECT_EQ( refusalOf( [&] { faulty.arm( fault( "lost", "IppdFerTrapCfX" ) ); } ),
              "/table: there is no table IppdFerTrapCfX; did you mean \"IppdFerTrapCfg\"?" );
   EXPECT_EQ( refusalOf( [&] { faulty.arm( fault( "lost", "IppdFerTrapCfg[99]" ) ); } ).substr( 0, 44 ),
              "/array: IppdFerTrapCfg has the array indices" );
   EXPECT_EQ( refusalOf( [&] { faulty.arm( fault( "lost", "IppdFerTrapCfg[3].1" ) ); } ),
              "/entry: IppdFerTrapCfg has the entries 0 on BCM88690_B0, not 1" );
   EXPECT_EQ( refusalOf( [&] { faulty.arm( fault( "flip:32", "IppdFerTrapCfg[3]" ) ); } ),
              "/kind: an entry of IppdFerTrapCfg has the bits 0 to 31 on BCM88690_B0, not 32" );
   Fault other = fault( "lost", "IppdFerTrapCfg" );
   other.copy = 2;
   EXPECT_EQ( refusalOf( [&] { faulty.arm( other ); } ),
              "/copy: IppdFerTrapCfg has the copies 0 to 1 on BCM88690_B0, not 2" );
   other = fault( "lost" );
   other.fap = 4;
   EXPECT_EQ( refusalOf( [&] { faulty.arm( other ); } ), "/fap: the switch has no such FAP" );
   EXPECT_THAT( faulty.armed(), testing::IsEmpty() );
}

TEST_F( FaultyDriverTest, losesAWriteAsOftenAsItIsTold ) {
   Fault lost = fault( "lost", "IppdFerTrapCfg[3]" );
   lost.copy = 1;
   lost.count = 1;
   faulty.arm( lost );
   for ( U32 const copy : { 0, 1 } ) {
      write( faulty, trapCfg( copy ), 5 );
   }
   EXPECT_EQ( read( chips, trapCfg( 0 ) ), 5 );
   EXPECT_EQ( read( chips, trapCfg( 1 ) ), 0 );
   write( faulty, trapCfg( 1 ), 6 );
   EXPECT_EQ( read( chips, trapCfg( 1 ) ), 6 );
   EXPECT_THAT( fired, ElementsAre( "lost 1" ) );
}

TEST_F( FaultyDriverTest, turnsABitRoundAtOnce ) {
   write( chips, trapCfg( 1 ), 5 );
   Fault flip = fault( "flip:1", "IppdFerTrapCfg[3].0" );
   flip.copy = 1;
   faulty.arm( flip );
   EXPECT_EQ( read( chips, trapCfg( 1 ) ), 7 );
   EXPECT_EQ( read( chips, trapCfg( 0 ) ), 0 );
   write( faulty, trapCfg( 1 ), 8 ); // what is written then stands
   EXPECT_EQ( read( chips, trapCfg( 1 ) ), 8 );
   EXPECT_THAT( fired, ElementsAre( "flip:1 1" ) );
}

TEST_F( FaultyDriverTest, holdsAStuckBitWhateverIsWritten ) {
   Fault stuck = fault( "stuck:1=1", "IppdFerTrapCfg[3].0" );
   stuck.copy = 0;
   U32 const number = faulty.arm( stuck );
   EXPECT_EQ( read( chips, trapCfg( 0 ) ), 2 );
   write( faulty, trapCfg( 0 ), 4 );
   EXPECT_EQ( read( chips, trapCfg( 0 ) ), 6 );
   write( faulty, trapCfg( 0 ), 2 ); // as it is anyway
   EXPECT_THAT( fired, ElementsAre( "stuck:1=1 0", "stuck:1=1 0" ) );
   EXPECT_TRUE( faulty.disarm( number ) );
   write( faulty, trapCfg( 0 ), 4 );
   EXPECT_EQ( read( chips, trapCfg( 0 ) ), 4 );
   EXPECT_FALSE( faulty.disarm( number ) );
}

TEST_F( FaultyDriverTest, failsAnOperationThatThenHasDoneNothing ) {
   Fault error = fault( "error", "IppdFerTrapCfg" );
   error.count = 2;
   faulty.arm( error );
   EXPECT_THROW( write( faulty, trapCfg(), 5 ), SchanError );
   EXPECT_EQ( read( chips, trapCfg() ), 0 );
   EXPECT_THROW( read( faulty, trapCfg() ), SchanError );
   write( faulty, trapCfg(), 5 );
   EXPECT_EQ( read( faulty, trapCfg() ), 5 );
   write( faulty, inlif(), 3 ); // another table
}

TEST_F( FaultyDriverTest, takesItsTime ) {
   faulty.arm( fault( "delay:20", "IppdFerTrapCfg" ) );
   write( faulty, trapCfg(), 5 );
   read( faulty, trapCfg() );
   write( faulty, inlif(), 3 );
   EXPECT_DOUBLE_EQ( waited, 0.04 );
   EXPECT_EQ( read( chips, trapCfg() ), 5 );
}

TEST_F( FaultyDriverTest, firesNoMoreWhenItsTimeIsOver ) {
   Fault lost = fault( "lost", "IppdFerTrapCfg" );
   lost.duration = 10;
   faulty.arm( lost );
   Rex::nowIs( Rex::now() + 9 );
   write( faulty, trapCfg(), 5 );
   EXPECT_EQ( read( chips, trapCfg() ), 0 );
   Rex::nowIs( Rex::now() + 1 );
   write( faulty, trapCfg(), 5 );
   EXPECT_EQ( read( chips, trapCfg() ), 5 );
}

TEST_F( FaultyDriverTest, firesByChanceTheSameUnderOneSeed ) {
   auto const lostOnes = [&]( U64 seed ) {
      Fault lost = fault( "lost", "IppdFerTrapCfg" );
      lost.probability = 0.5;
      lost.seed = seed;
      U32 const number = faulty.arm( lost );
      std::vector< U32 > lostAt;
      for ( U32 word = 1; word <= 200; ++word ) {
         write( faulty, trapCfg(), word );
         if ( read( chips, trapCfg() ) != word ) {
            lostAt.push_back( word );
         }
      }
      faulty.disarm( number );
      return lostAt;
   };
   auto const once = lostOnes( 3 );
   EXPECT_EQ( lostOnes( 3 ), once );
   EXPECT_NE( lostOnes( 4 ), once );
   EXPECT_GT( once.size(), 60u );
   EXPECT_LT( once.size(), 140u );
}

TEST_F( FaultyDriverTest, findsAPlaceForABitThatTurnsAnywhere ) {
   write( chips, trapCfg( 0 ), 5 );
   write( chips, trapCfg( 1 ), 5 );
   Fault flip = fault( "flip:3" );
   flip.count = 5;
   faulty.arm( flip );
   EXPECT_EQ( fired.size(), 5u );
   U32 const turned = ( read( chips, trapCfg( 0 ) ) ^ 5 ) | ( read( chips, trapCfg( 1 ) ) ^ 5 );
   EXPECT_EQ( turned, 8u ); // an odd number of times in one of the copies
}

} // namespace
