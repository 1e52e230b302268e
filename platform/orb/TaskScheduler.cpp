#include "orb/TaskScheduler.h"

#include "assert/Assert.h"

namespace Orb {

bool TaskScheduler::runOne() {
   if ( tasks_.empty() ) {
      return false;
   }
   Rex::sassert( isIdle_, "isIdle" );
   Task const task = std::move( tasks_.front() );
   tasks_.pop_front();
   struct Busy {
      bool & isIdle;
      explicit Busy( bool & flag ) : isIdle( flag ) { isIdle = false; }
      Busy( Busy const & ) = delete;
      Busy & operator=( Busy const & ) = delete;
      ~Busy() { isIdle = true; } // also where the task throws
   } const busy( isIdle_ );
   task();
   return true;
}

void TaskScheduler::clear() {
   while ( !tasks_.empty() ) {
      Task const task = std::move( tasks_.front() );
      tasks_.pop_front();
   }
}

U32 TaskScheduler::runUntilIdle() {
   U32 count = 0;
   while ( runOne() ) {
      ++count;
   }
   return count;
}

} // namespace Orb
