#include "agent/database/Database.h"

#include <algorithm>
#include <chrono>

namespace Live {

std::optional< Rex::Seconds > Transaction::lag() const {
   if ( written <= 0 ) {
      return std::nullopt;
   }
   std::chrono::duration< double > const now = std::chrono::system_clock::now().time_since_epoch();
   return std::max( now.count() - written, 0.0 );
}

} // namespace Live
