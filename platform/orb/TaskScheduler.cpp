#include "orb/TaskScheduler.h"

namespace Orb {

bool TaskScheduler::runOne() {
   if ( tasks_.empty() ) {
      return false;
   }
   Task const task = std::move( tasks_.front() );
   tasks_.pop_front();
   task();
   return true;
}

U32 TaskScheduler::runUntilIdle() {
   U32 count = 0;
   while ( runOne() ) {
      ++count;
   }
   return count;
}

} // namespace Orb
