// The agent's scheduler: runs tasks in the order in which they were posted, one at a time and to completion.
//
// Threading: one thread posts and runs.
#pragma once

#include "corvo/Ptr.h"

#include <deque>
#include <functional>

namespace Orb {

class TaskScheduler : public Corvo::Node {
 public:
   ~TaskScheduler() override { clear(); }

   using Task = std::function< void() >;

   // Appends a task. It may post further ones.
   void post( Task task ) { tasks_.push_back( std::move( task ) ); }
   // Runs the oldest task. Returns false if there was none. From within a task: assertion text "isIdle".
   bool runOne();
   // Runs until nothing is left to do; returns the number of tasks that were run.
   U32 runUntilIdle();
   // Drops what is left to do, and what is posted by what goes with it: the agent goes down.
   void clear();
   std::size_t pending() const { return tasks_.size(); }

 private:
   std::deque< Task > tasks_;
   bool isIdle_ = true;
};

} // namespace Orb
