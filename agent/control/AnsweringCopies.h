// Answers that take long: a copy of the process, made by fork, computes each from the state of that moment and writes
// it to the client's socket, while the agent goes on.
//
//    AnsweringCopies copies( loop, {} );
//    auto const number = copies.begin( { .socket = client, .id = 7, .answer = answer },
//                                      [&]( CopyEnd const & end ) { goOn( end ); } );
//    copies.forget( number );                        // the client is gone: so is the copy
//
// What it costs the agent is the fork, which grows with the memory that it has in use, and a copy of each page that it
// changes while the answer is computed. As bench/ControlBench.cpp measured it on two busy cores: with 64 FAPs (22 MB)
// the agent stands still for 1 ms, with 128 MB more for 5 to 6, and an event changes 140 pages (of 1 FAP: 0.5 ms, 12
// pages). Where malloc asks for large pages (GLIBC_TUNABLES=glibc.malloc.hugetlb=1, as the unit file does), it is 1 ms
// with 256 MB more, too.
//
// A copy has no file of the agent's but the client's socket, runs no destructor and no hook of the agent's, and leaves
// the processor to the agent. So many run at once, others wait for their turn. One that takes too long is ended.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/control/Commands.h"

#include <list>

namespace Live {

struct LongCall {
   int socket; // which nobody else writes to meanwhile
   Rex::Value id;
   LongAnswer answer;
};

// How a copy ended.
struct CopyEnd {
   bool isWhole;     // the client has all of the answer, or an error instead
   bool hasBegun;    // something was written
   std::string what; // why it isn't whole
};

class AnsweringCopies {
 public:
   struct Limits {
      std::size_t atOnce = 4;
      Rex::Seconds time = 60; // for an answer
      int patience = 10;      // seconds that a client may read nothing
   };
   using Done = std::function< void( CopyEnd const & ) >;
   using Number = U64;

   AnsweringCopies( EventLoop & loop, Limits limits ) : loop_( loop ), limits_( limits ) {}
   ~AnsweringCopies();
   AnsweringCopies( AnsweringCopies const & ) = delete;
   AnsweringCopies & operator=( AnsweringCopies const & ) = delete;

   // `done` comes from the loop, never from within a call.
   Number begin( LongCall call, Done done );
   // Its `done` doesn't come any more.
   void forget( Number number );

 private:
   // What a copy tells the agent.
   struct Told;
   struct Copy {
      Number number;
      LongCall call;
      Done done;
      int process = 0; // 0: it waits for its turn
      int descriptor = -1;
      Told * told = nullptr;
      bool isLate = false;
      EventLoop::Source ended;
      EventLoop::Source late;
   };
   void start();
   bool start( Copy & copy );
   void ended( Number number );
   std::list< Copy >::iterator find( Number number );
   static void end( Copy & copy );
   [[noreturn]] static void beCopy( Copy const & copy, int patience );

   EventLoop & loop_;
   Limits limits_;
   Number latest_ = 0;
   std::size_t running_ = 0;
   std::list< Copy > copies_; // in the order of their calls
   EventLoop::Source turn_;
};

} // namespace Live
