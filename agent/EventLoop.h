// The one loop of an agent: files that are ready, times that have come, signals, and what is to be done soon.
//
//    EventLoop loop;
//    auto const listening = loop.io( socket, EPOLLIN, [&]( U32 ) { accept(); } );
//    auto const again = loop.timer( 0.1, [&] { connect(); } );       // once; as long as the handle lives
//    int const status = loop.run();                                   // until loop.end( status )
//
// Whenever the loop calls somebody, the clock of the process (rex/Clock.h) stands at its time: nobody else asks the
// machine what time it is.
//
// A loop may have a virtual time (VirtualTime.h) in place of the machine's: then whoever drives that drives it, too.
//
// An exception that leaves a call ends the loop, and run() throws it.
//
// Threading: everything runs on the thread that runs the loop.
#pragma once

#include "agent/VirtualTime.h"

#include <exception>
#include <vector>

struct sd_event;

namespace Live {

class EventLoop {
 public:
   // What the loop looks after, as long as this lives.
   class Source {
    public:
      struct Impl;
      Source();
      explicit Source( std::unique_ptr< Impl > impl );
      Source( Source && ) noexcept;
      Source & operator=( Source && ) noexcept;
      ~Source();
      explicit operator bool() const { return impl_ != nullptr; }
      // Of a file: which EPOLL events are waited for from now on.
      void eventsIs( U32 events );
      // Of a timer: it comes in so many seconds from now, whether or not it has come already.
      void timeIs( Rex::Seconds after );

    private:
      std::unique_ptr< Impl > impl_;
   };

   EventLoop();
   explicit EventLoop( VirtualTime & time );
   ~EventLoop();
   EventLoop( EventLoop const & ) = delete;
   EventLoop & operator=( EventLoop const & ) = delete;

   // `ready` is called with the EPOLL events that have come.
   [[nodiscard]] Source io( int file, U32 events, std::function< void( U32 ) > ready );
   // Once, so many seconds from now.
   [[nodiscard]] Source timer( Rex::Seconds after, std::function< void() > come );
   // A signal, which is blocked for the process from now on. One handler a signal.
   [[nodiscard]] Source signal( int number, std::function< void() > come );
   // Once, when everything that is ready now has been served.
   void soon( std::function< void() > what );

   // The machine's steady time, or the virtual one: for measuring how long something takes, alone.
   static Rex::Seconds clock();

   // Runs until somebody ends it; what end() was told. A loop that has ended looks after nothing any more.
   int run();
   void end( int status );
   // Serves what is ready; waits so long for something to become ready. Whether something was served.
   bool turn( Rex::Seconds wait = 0 );

   // Tells the service manager, where one asks for it, at half its period that the loop still turns, and calls `tick`
   // then: what is to be looked at now and then goes along with that and wakes nobody else. Without one: each
   // `otherwise` seconds.
   void watchdog( Rex::Seconds otherwise, std::function< void() > tick );

 private:
   void refuseVirtual() const;

   sd_event * loop_ = nullptr;    // null where
   VirtualTime * time_ = nullptr; // there is that
   std::unique_ptr< VirtualTime::Processor > processor_;
   std::exception_ptr failure_;
   std::vector< std::function< void() > > soon_;
   std::unique_ptr< Source::Impl > deferred_; // what serves them
   Source watchdog_;
   bool isWatched_ = false;
};

} // namespace Live
