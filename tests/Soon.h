// Waits of tests for what other processes and threads do: until it is so, and not for a time that is thought to do.
//
//    ASSERT_TRUE( soon( [&] { return agent.phase() == "running"; } ) );
#pragma once

#include <chrono>
#include <thread>

// What is to come comes; a machine that is busy with other things takes its time for it.
constexpr std::chrono::seconds longestWait{ 60 };

// Looks every few milliseconds; false where it isn't so after the longest wait.
template< class Condition >
bool soon( Condition const & holds ) {
   auto const end = std::chrono::steady_clock::now() + longestWait;
   while ( !holds() ) {
      if ( std::chrono::steady_clock::now() > end ) {
         return false;
      }
      std::this_thread::sleep_for( std::chrono::milliseconds( 2 ) );
   }
   return true;
}
