#include "agent/database/StateStore.h"

#include "inspection/files/InputError.h"

#include <fstream>

namespace Live {

void StateStore::refuse( std::string const & what ) const {
   throw Inspection::InputError( name(), what );
}

std::string newEpoch() {
   std::string epoch;
   std::getline( std::ifstream( "/proc/sys/kernel/random/uuid" ), epoch );
   return epoch;
}

} // namespace Live
