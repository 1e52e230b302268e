// What is under way, told on standard error once it has taken a second, and on a terminal only: one line, which is
// written over as the work goes on and erased at its end.
//
//    Progress progress( "playing" );
//    for ( auto const & event : events ) {
//       progress.stands( event.number, events.size() );      // "playing: 3 of 500"
//       ...
//    }
//
// The cursor stays at the line's begin, so that whatever else is said meanwhile takes its place.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

namespace Inspection {

class Progress {
 public:
   using Time = std::chrono::steady_clock::time_point;

   explicit Progress( std::string doing );
   // With a clock and a terminal of one's own; none: nothing is told.
   Progress( std::string doing, std::function< Time() > now, std::ostream * terminal );
   ~Progress();
   Progress( Progress const & ) = delete;
   Progress & operator=( Progress const & ) = delete;

   void stands( std::size_t done, std::size_t all );

 private:
   std::string doing_;
   std::function< Time() > now_;
   std::ostream * terminal_;
   Time next_; // when it is told again
   bool isShown_ = false;
};

} // namespace Inspection
