#include "scale/FabricAgent.h"

namespace Scale {

std::string FabricSize::pathOf( std::size_t number ) {
   return "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet" + std::to_string( number + 1 );
}

Paths FabricSize::state() const {
   Paths all;
   for ( std::size_t number = 0; number < paths; ++number ) {
      all[pathOf( number )]["mtu"] = "9000";
   }
   return all;
}

// What a change publishes beside is left out: those that are measured publish nothing.
Paths FabricAgent::takePublished( bool isWhole ) {
   Paths all;
   for ( std::size_t number = 0; isWhole && number < size_.publishedPaths(); ++number ) {
      all[FabricSize::pathOf( number )]["managed"] = "true";
   }
   return all;
}

} // namespace Scale
