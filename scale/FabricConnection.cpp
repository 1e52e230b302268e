#include "scale/FabricConnection.h"

#include <utility>

namespace Scale {

FabricConnection::FabricConnection( Live::EventLoop & loop, FabricCluster & cluster, std::size_t member, Answered lost )
   : loop_( loop ), cluster_( cluster ), member_( cluster.memberFor( member ) ), lost_( std::move( lost ) ) {
   cluster_.comes( member_, *this );
}

FabricConnection::~FabricConnection() {
   cluster_.goes( *this );
}

void FabricConnection::onTheWire( Answered what ) {
   cluster_.time().after( cluster_.costs().assumed.latency, tether_.of( std::move( what ) ) );
}

void FabricConnection::comes( Answered what ) {
   onTheWire( [this, does = std::move( what )] { loop_.soon( tether_.of( does ) ); } );
}

void FabricConnection::asks( Rex::Seconds cost, Answered answered ) {
   onTheWire( [this, cost, does = std::move( answered )] {
      cluster_.works( member_, cost, tether_.of( [this, does] { comes( does ); } ) );
   } );
}

void FabricConnection::commits( Rex::Seconds cost, Answered answered ) {
   onTheWire( [this, cost, does = std::move( answered )] {
      cluster_.commits( member_, cost, tether_.of( [this, does] { comes( does ); } ) );
   } );
}

void FabricConnection::isLost() {
   tether_.cut();
   comes( lost_ );
}

} // namespace Scale
