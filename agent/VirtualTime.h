// A time that passes as fast as there is nothing to do: for many agents in one process, each on a processor of its own.
//
//    VirtualTime time;                            // EventLoop::clock() tells it from now on
//    EventLoop one( time );                       // whose timers come by it
//    time.after( 0.5, [] { … } );
//    while ( time.turn() ) {                      // the next that is due
//    }
//
// A call takes no time unless it says so: time.spends( 0.002 ) within a call of a loop keeps that loop busy for two
// milliseconds, as its one thread would be; others go on meanwhile. What is due at the same time comes in the order in
// which it was asked for, so that a run is the same each time.
//
// Files and signals are none of its business: a loop that has a virtual time refuses them.
//
// Threading: one thread; one at a time in a process.
#pragma once

#include "corvo/Types.h"
#include "rex/Clock.h"

#include <functional>
#include <map>
#include <memory>

namespace Live {

class VirtualTime {
 public:
   using Nanoseconds = U64;

   // What a loop runs on.
   struct Processor {
      Nanoseconds busyUntil = 0;
   };
   // As long as it lives, it comes.
   class Appointment {
    public:
      Appointment() = default;
      explicit Appointment( std::shared_ptr< std::function< void() > > what ) : what_( std::move( what ) ) {}

    private:
      std::shared_ptr< std::function< void() > > what_;
   };

   VirtualTime();
   ~VirtualTime();
   VirtualTime( VirtualTime const & ) = delete;
   VirtualTime & operator=( VirtualTime const & ) = delete;

   // Null: the process has the machine's.
   static VirtualTime * ofProcess();

   // For who is under way: with what he has spent.
   Rex::Seconds now() const { return inSeconds( now_ + spent_ ); }
   // Whoever is under way works so long.
   void spends( Rex::Seconds time ) { spent_ += inNanoseconds( time ); }

   // Once, so long from now; on a processor, when that has nothing older to do.
   [[nodiscard]] Appointment
   appointment( Rex::Seconds after, std::function< void() > what, Processor * processor = nullptr );
   void after( Rex::Seconds time, std::function< void() > what, Processor * processor = nullptr );

   // The next that is due. False: there is none.
   bool turn();
   // All that is due until then, which it is now.
   void turnsUntil( Rex::Seconds time );

   static Nanoseconds inNanoseconds( Rex::Seconds time );
   static Rex::Seconds inSeconds( Nanoseconds time );

 private:
   struct Due {
      std::weak_ptr< std::function< void() > > what;
      std::shared_ptr< std::function< void() > > kept; // by nobody else
      Processor * processor;
   };

   void add( Rex::Seconds after, Due due );

   std::map< std::pair< Nanoseconds, U64 >, Due > due_; // by time, and the order in which they were asked for
   U64 count_ = 0;
   Nanoseconds now_ = 0;
   Nanoseconds spent_ = 0;
};

} // namespace Live
