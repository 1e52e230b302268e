#include "scale/FabricPublisher.h"

#include "agent/database/EtcdLayout.h"

#include <algorithm>
#include <utility>

namespace Scale {

namespace {

// The agent's own key goes along with the last of them.
constexpr std::size_t mostKeys = Live::mostOperations - 1;

} // namespace

void FabricPublisher::begin() {
   tether_.cut();
   again_ = {};
   connection_ = nullptr;
   isUnderWay_ = isWaiting_ = false;
   keys_ = 0;
}

void FabricPublisher::publish( FabricConnection & connection, Live::Report const & report ) {
   connection_ = &connection;
   applied_ = FabricCluster::revisionOf( report.applied );
   keys_ += report.published.size() * weight_;
   isWaiting_ = true;
   if ( !isUnderWay_ ) {
      gather();
   }
}

void FabricPublisher::gather() {
   isUnderWay_ = true;
   isWaiting_ = false;
   write( std::exchange( keys_, 0 ) );
}

void FabricPublisher::write( std::size_t left ) {
   auto & cluster = connection_->cluster();
   auto const & costs = cluster.costs();
   auto const size = std::min( left, mostKeys );
   bool const isLast = size == left;
   cluster.counts().publishedKeys += size;
   cluster.counts().reports += isLast ? 1 : 0;
   cluster.time().spends( costs.agent.report );
   connection_->commits( static_cast< double >( size ) * costs.server.publishedKey +
                            ( isLast ? costs.server.report : 0 ),
                         tether_.of( [this, left, size, applied = applied_] { written( left - size, applied ); } ) );
}

void FabricPublisher::written( std::size_t left, U64 applied ) {
   if ( left > 0 ) {
      write( left );
      return;
   }
   reported_ = applied;
   again_ = loop_.timer( connection_->cluster().costs().assumed.breath, [this] {
      isUnderWay_ = false;
      if ( isWaiting_ ) {
         gather();
      }
   } );
}

} // namespace Scale
