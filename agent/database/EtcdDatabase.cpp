#include "agent/database/EtcdDatabase.h"

#include <functional>
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

std::unique_ptr< EtcdClient > EtcdDatabase::newConnection() {
   return std::make_unique< EtcdClient >(
      loop_, address_, member_, [this]( std::string const & reason ) { fails( reason ); } );
}

void EtcdDatabase::takesRight() {
   lease_.take( *connection_,
                { .ours = [this] { rightIsOurs(); },
                  .others = [this]( std::string const & who ) { refuses( who ); },
                  .fails = [this]( std::string const & reason ) { fails( reason ); } } );
}

void EtcdDatabase::givesRightUp() {
   lease_.release( *connection_ );
}

std::unique_ptr< EtcdSnapshot > EtcdDatabase::newSnapshot( SnapshotAnswers answers ) {
   return std::make_unique< EtcdSnapshot >( *connection_, layout_, std::move( answers ) );
}

std::unique_ptr< EtcdReader > EtcdDatabase::newReader( Position const & position, ReaderAnswers answers ) {
   return std::make_unique< EtcdReader >(
      loop_, *connection_, layout_, position, position == read_ ? quiet_ : 0, std::move( answers ) );
}

void EtcdDatabase::publish( Report const & report ) {
   if ( hasRight() ) {
      publisher_.publish( *connection_, report, [this]( std::string const & reason ) { fails( reason ); } );
   }
}

// Who begins again where it stood needn't ask for revisions that tell nothing, and may be compacted.
void EtcdDatabase::rests() {
   if ( U64 const quiet = reader_ ? reader_->quietUpTo() : 0; quiet != 0 ) {
      read_ = reader_->told();
      quiet_ = quiet;
   }
   lease_.rests();
   publisher_.begin();
}

void EtcdDatabase::fails( std::string const & reason ) {
   ++member_;
   CentralDatabase::fails( reason );
}

} // namespace Live
