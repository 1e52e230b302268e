#include "interface/SyncMtuSubIntfWalkSm.h"
#include "rex/EntityAttributes.h"
#include "rex/WriteListener.h"

REX_DEFINE( Interface::SyncMtuSubIntfWalkSm, "Interface::SyncMtuSubIntfWalkSm" );

namespace Interface {

SyncMtuData::SyncMtuData( Corvo::Ptr< IntfStatus > const & intfStatus_,
                          Corvo::Ptr< IntfStatusLocal > const & intfStatusLocal_,
                          unsigned int mtu_,
                          bool syncIntf_,
                          bool syncSubIntfs_,
                          int subIntfLimit_ )
   : intfStatus( intfStatus_ ), intfStatusLocal( intfStatusLocal_ ), mtu( mtu_ ), syncIntf( syncIntf_ ),
     syncSubIntfs( syncSubIntfs_ ), subIntfLimit( subIntfLimit_ ) {}

bool operator==( SyncMtuData const & left, SyncMtuData const & right ) {
   return left.intfStatus == right.intfStatus && left.intfStatusLocal == right.intfStatusLocal &&
          left.mtu == right.mtu && left.syncIntf == right.syncIntf && left.syncSubIntfs == right.syncSubIntfs &&
          left.subIntfLimit == right.subIntfLimit;
}

Corvo::Ptr< SyncMtuData > syncMtuDataFactory( Corvo::Ptr< IntfStatus > const & intfStatus,
                                              Corvo::Ptr< IntfStatusLocal > const & intfStatusLocal,
                                              unsigned int mtu,
                                              bool syncIntf,
                                              bool syncSubIntfs,
                                              int subIntfLimit ) {
   return Corvo::makePtr< SyncMtuData >( intfStatus, intfStatusLocal, mtu, syncIntf, syncSubIntfs, subIntfLimit );
}

SyncMtuSubIntfWalkSm * SyncMtuSubIntfWalkSm::newest_ = nullptr;

// One walk. A reset or a restart puts another, or none, in its place, by which the slice that is writing sees it.
struct SyncMtuSubIntfWalkSm::Walk : Corvo::Node {
   explicit Walk( Corvo::Ptr< SyncMtuData > const & data_ ) : data( data_ ) {}

   Corvo::Ptr< SyncMtuData > const data;
   bool begun = false;
   U64 generation = 0; // of the interface's subinterfaces when the walk began
   std::vector< Corvo::Ptr< SubIntfStatus > > subIntfs;
   std::size_t next = 0;
};

// A task of the scheduler. It may outlive the walk that posted it, and then does nothing.
class SyncMtuSubIntfWalkSm::Slice : public Corvo::Node {
 public:
   explicit Slice( SyncMtuSubIntfWalkSm * sm ) : sm_( sm ) {}
   ~Slice() override { detach(); }
   void walkGone() { sm_ = nullptr; }
   void run() {
      if ( Corvo::Ptr< SyncMtuSubIntfWalkSm > const sm = sm_ ) {
         detach();
         sm->runSlice();
      }
   }

 private:
   void detach() {
      if ( sm_ ) {
         sm_->posted_ = nullptr;
         sm_ = nullptr;
      }
   }
   SyncMtuSubIntfWalkSm * sm_;
};

SyncMtuSubIntfWalkSm::SyncMtuSubIntfWalkSm( Corvo::Ptr< Orb::TaskScheduler > const & scheduler,
                                            Netka::IntfId intfId,
                                            Corvo::Ptr< SubIntfStatusDir const > const & subIntfStatusDir,
                                            Corvo::Ptr< SubIntfStatusLocalDir const > const & subIntfStatusLocalDir )
   : intfId_( intfId ), scheduler_( scheduler ), subIntfs_( SubIntfIndex::of( subIntfStatusDir ) ),
     subIntfStatusLocalDir_( subIntfStatusLocalDir ), older_( newest_ ) {
   if ( older_ ) {
      older_->younger_ = this;
   }
   newest_ = this;
}

SyncMtuSubIntfWalkSm::~SyncMtuSubIntfWalkSm() {
   ( younger_ ? younger_->older_ : newest_ ) = older_;
   if ( older_ ) {
      older_->younger_ = younger_;
   }
   if ( posted_ ) {
      posted_->walkGone();
   }
}

void SyncMtuSubIntfWalkSm::syncMtu( Corvo::Ptr< SyncMtuData > const & data ) {
   if ( !data ) {
      Rex::throwMutatorArgNullPointerException( "Interface::SyncMtuSubIntfWalkSm", "syncMtu" );
   }
   if ( walk_ && *walk_->data == *data ) {
      return;
   }
   walk_ = Corvo::makePtr< Walk >( data );
   asked_ = Asked{ data->intfStatus.get(), data->mtu, false };
   post();
   syncMtuResultIs( SyncMtuResult::walking );
}

void SyncMtuSubIntfWalkSm::reset() {
   finish( SyncMtuResult::idle );
}

void SyncMtuSubIntfWalkSm::finish( SyncMtuResult::SyncMtuResultType result ) {
   walk_ = nullptr;
   syncMtuResultIs( result );
}

void SyncMtuSubIntfWalkSm::post() {
   if ( !posted_ ) {
      auto const slice = Corvo::makePtr< Slice >( this );
      posted_ = slice.get();
      scheduler_->post( [slice] { slice->run(); } );
   }
}

void SyncMtuSubIntfWalkSm::runSlice() {
   auto const walk = walk_;
   if ( !walk ) {
      return; // abandoned
   }
   auto const & data = *walk->data;
   if ( !walk->begun ) {
      walk->begun = true;
      walk->generation = generation();
      if ( subIntfs_ && data.syncSubIntfs ) {
         walk->subIntfs = subIntfs_->subIntfs( intfId_ );
      }
      if ( data.subIntfLimit >= 0 && walk->subIntfs.size() > static_cast< std::size_t >( data.subIntfLimit ) ) {
         walk->subIntfs.resize( static_cast< std::size_t >( data.subIntfLimit ) );
      }
      writeIntf( data );
   }
   auto const end = std::min( walk->next + subIntfsPerSlice, walk->subIntfs.size() );
   while ( isUnderWay( walk ) && generation() == walk->generation && walk->next < end ) {
      writeSubIntf( *walk->subIntfs[walk->next++], data.mtu );
   }
   if ( !isUnderWay( walk ) ) {
      return; // whoever heard of a write has abandoned, restarted or dropped it
   }
   if ( generation() != walk->generation ) {
      finish( SyncMtuResult::restartNeeded );
   } else if ( walk->next == walk->subIntfs.size() ) {
      asked_->isSynced = true;
      finish( SyncMtuResult::synced );
   } else {
      post();
   }
}

// The slice that runs is a user, too: alone, it works for nobody.
bool SyncMtuSubIntfWalkSm::isUnderWay( Corvo::Ptr< Walk > const & walk ) const {
   return walk_ == walk && useCount() > 1;
}

U64 SyncMtuSubIntfWalkSm::generation() const {
   return subIntfs_ ? subIntfs_->generation( intfId_ ) : 0;
}

void SyncMtuSubIntfWalkSm::writeIntf( SyncMtuData const & data ) {
   if ( data.syncIntf && data.intfStatus ) {
      data.intfStatus->mtuIs( data.mtu );
   }
   if ( data.syncIntf && data.intfStatusLocal ) {
      data.intfStatusLocal->mtuIs( data.mtu );
   }
}

namespace {

// What is written for another agent isn't told by itself; here nobody but the walk knows of it.
template< class Status >
void tellMtu( Status const & status, U32 mtu ) {
   auto * const listener = Rex::writeListener();
   if ( listener && status.mtu() != mtu && listener->follows( status ) ) {
      std::string const noKey;
      auto const & attribute = *status.typeData().attribute( "mtu" );
      listener->written( { status, attribute, noKey, Rex::Value( status.mtu() ), Rex::Value( mtu ) } );
   }
}

} // namespace

void SyncMtuSubIntfWalkSm::writeSubIntf( SubIntfStatus & subIntf, U32 mtu ) {
   Corvo::Publisher::ForeignWrite const onBehalfOfTheirAgent;
   tellMtu( subIntf, mtu );
   subIntf.mtuIs( mtu );
   if ( auto const local =
           subIntfStatusLocalDir_ ? subIntfStatusLocalDir_->intfStatusLocal( subIntf.intfId() ) : nullptr ) {
      tellMtu( *local, mtu );
      local->mtuIs( mtu );
   }
}

Corvo::Ptr< SyncMtuSubIntfWalkSm >
syncMtuSubIntfWalkSmFactory( Corvo::Ptr< Orb::TaskScheduler > const & scheduler,
                             Netka::IntfId intfId,
                             Corvo::Ptr< SubIntfStatusDir const > const & subIntfStatusDir,
                             Corvo::Ptr< SubIntfStatusLocalDir const > const & subIntfStatusLocalDir ) {
   return Corvo::makePtr< SyncMtuSubIntfWalkSm >( scheduler, intfId, subIntfStatusDir, subIntfStatusLocalDir );
}

} // namespace Interface
