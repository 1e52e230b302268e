#include "agent/database/EtcdDatabase.h"

#include <utility>

namespace Live {

EtcdDatabase::EtcdDatabase(
   EventLoop & loop, EtcdAddress const & address, U32 cell, std::string const & slice, U32 leaseSeconds )
   : loop_( loop ), address_( address ), layout_( address.prefix, cell ), lease_( loop, layout_, slice, leaseSeconds ),
     publisher_( loop, layout_, lease_, slice ),
     // The agents of a switch are spread over the members.
     member_( std::hash< std::string >()( slice ) % address.members.size() ) {}

EtcdDatabase::~EtcdDatabase() {
   ends();
}

void EtcdDatabase::snapshot() {
   reader_.reset();
   snapshot_.reset();
   withRight( [this] {
      snapshot_ = std::make_unique< EtcdSnapshot >(
         *client_,
         layout_,
         EtcdSnapshot::Answers{ .is =
                                   [this]( Snapshot & snapshot ) {
                                      auto const done = std::move( snapshot_ );
                                      follower()->snapshotIs( std::move( snapshot ) );
                                   },
                                .without = [this]( std::string const & reason ) { holdsNothing( reason ); },
                                .fails = [this]( std::string const & reason ) { fails( reason ); } } );
   } );
}

void EtcdDatabase::since( Position const & position ) {
   snapshot_.reset();
   if ( reader_ && reader_->more( position ) ) {
      return;
   }
   reader_.reset();
   withRight( [this, position] {
      reader_ = std::make_unique< EtcdReader >(
         loop_,
         *client_,
         layout_,
         position,
         position == read_ ? quiet_ : 0,
         EtcdReader::Answers{
            .begins = [this] { follower()->follows(); },
            .are = [this]( std::vector< Transaction > all ) { follower()->transactionsAre( std::move( all ) ); },
            .gap =
               [this]( std::string const & reason ) {
                  auto const done = std::move( reader_ );
                  follower()->gapIs( reason );
               },
            .without = [this]( std::string const & reason ) { holdsNothing( reason ); } } );
   } );
}

void EtcdDatabase::publish( Report const & report ) {
   if ( hasRight_ ) {
      publisher_.publish( *client_, report, [this]( std::string const & reason ) { fails( reason ); } );
   }
}

void EtcdDatabase::stop() {
   if ( hasRight_ ) {
      lease_.release( *client_ );
   }
   ends();
}

// Runs `what` as soon as we have the right to serve our slice.
void EtcdDatabase::withRight( std::function< void() > what ) {
   if ( hasRight_ ) {
      what();
      return;
   }
   wanted_ = std::move( what );
   if ( client_ ) {
      return;
   }
   client_ = std::make_unique< EtcdClient >(
      loop_, address_, member_, [this]( std::string const & reason ) { fails( reason ); } );
   lease_.take( *client_,
                { .ours =
                     [this] {
                        hasRight_ = true;
                        std::exchange( wanted_, nullptr )();
                     },
                  .others = [this]( std::string const & who ) { refuses( who ); },
                  .fails = [this]( std::string const & reason ) { fails( reason ); } } );
}

void EtcdDatabase::ends() {
   if ( reader_ ) {
      forgetReader();
   }
   hasRight_ = false;
   wanted_ = nullptr;
   lease_.rests();
   publisher_.begin();
   snapshot_.reset();
   reader_.reset();
   client_.reset();
}

// Who begins again where it stood needn't ask for revisions that tell nothing, and may be compacted.
void EtcdDatabase::forgetReader() {
   if ( U64 const quiet = reader_->quietUpTo(); quiet != 0 ) {
      read_ = reader_->told();
      quiet_ = quiet;
   }
}

void EtcdDatabase::fails( std::string const & reason ) {
   std::string const text = name() + ": " + reason;
   ends();
   ++member_;
   follower()->unreachable( text );
}

void EtcdDatabase::refuses( std::string const & who ) {
   ends();
   follower()->refused( who );
}

void EtcdDatabase::holdsNothing( std::string const & reason ) {
   snapshot_.reset();
   reader_.reset();
   follower()->withoutState( reason );
}

} // namespace Live
