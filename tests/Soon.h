// Waits of tests for what other processes and threads do: until it is so, and not for a time that is thought to do.
//
//    ASSERT_TRUE( soon( [&] { return agent.phase() == "running"; } ) );
//    ASSERT_TRUE( soon( [&] { return isTold; }, [&] { loop.turn( 0.01 ); } ) );
#pragma once

#include <chrono>
#include <thread>

// What is to come comes; a machine that is busy with other things takes its time for it.
constexpr std::chrono::seconds longestWait{ 60 };

// `passes` lets some time go by between two looks. False where it isn't so after the longest wait.
template< class Condition, class Time >
bool soon( Condition const & holds, Time const & passes ) {
   auto const end = std::chrono::steady_clock::now() + longestWait;
   while ( !holds() ) {
      if ( std::chrono::steady_clock::now() > end ) {
         return false;
      }
      passes();
   }
   return true;
}
template< class Condition >
bool soon( Condition const & holds ) {
   return soon( holds, [] { std::this_thread::sleep_for( std::chrono::milliseconds( 2 ) ); } );
}
