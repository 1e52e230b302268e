#include "scale/FabricReading.h"

#include "agent/database/EtcdLayout.h"

#include <algorithm>

namespace Scale {

FabricSnapshot::FabricSnapshot( FabricConnection & connection, std::size_t weight, Live::SnapshotAnswers answers )
   : connection_( connection ), answers_( std::move( answers ) ), state_( connection.cluster().state() ),
     position_( connection.cluster().position() ) {
   reads( state_->size() * weight );
}

void FabricSnapshot::reads( std::size_t left ) {
   auto & cluster = connection_.cluster();
   auto const size = std::min( left, Live::snapshotPage );
   auto const keys = static_cast< double >( size );
   cluster.counts().snapshotKeys += size;
   connection_.asks( keys * cluster.costs().server.snapshotKey, tether_.of( [this, &cluster, left, size, keys] {
      cluster.time().spends( keys * cluster.costs().agent.snapshotKey );
      if ( left > size ) {
         reads( left - size );
         return;
      }
      Live::Snapshot whole{ .position = position_, .paths = *state_ };
      answers_.is( whole );
   } ) );
}

FabricReader::FabricReader( Live::EventLoop & loop,
                            FabricConnection & connection,
                            Live::Position const & position,
                            Answers answers )
   : StateReader( loop, position, std::move( answers ) ), connection_( connection ) {
   connection_.asks( 0, tether_.of( [this] {
      if ( connection_.cluster().watch( connection_.member(), *this, FabricCluster::revisionOf( told() ) ) ) {
         answers_.begins();
      } else {
         endsWith( answers_.gap, "the revisions behind the place that was read up to are compacted" );
      }
   } ) );
}

FabricReader::~FabricReader() {
   connection_.cluster().forget( *this );
}

void FabricReader::comes( FabricCluster::Told const & transaction ) {
   connection_.comes( tether_.of( [this, transaction] { waits( { *transaction } ); } ) );
}

} // namespace Scale
