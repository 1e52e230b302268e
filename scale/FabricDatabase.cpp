#include "scale/FabricDatabase.h"

#include "agent/database/EtcdLease.h"

namespace Scale {

namespace {

constexpr Rex::Seconds renewalPeriod = Live::usualLeaseSeconds / Live::leaseRenewals;

} // namespace

std::unique_ptr< FabricConnection > FabricDatabase::newConnection() {
   return std::make_unique< FabricConnection >( loop_, cluster_, member_, [this] {
      ++member_;
      fails( "a member of the cluster is lost" );
   } );
}

void FabricDatabase::takesRight() {
   connection_->asks( cluster_.costs().server.start, [this] {
      renewal_ = loop_.timer( renewalPeriod, [this] {
         renewal_.timeIs( renewalPeriod );
         connection_->asks( renewalPeriod * cluster_.costs().server.idleSecond, [] {} );
      } );
      rightIsOurs();
   } );
}

std::unique_ptr< FabricSnapshot > FabricDatabase::newSnapshot( Live::SnapshotAnswers answers ) {
   return std::make_unique< FabricSnapshot >( *connection_, weight_, std::move( answers ) );
}

std::unique_ptr< FabricReader > FabricDatabase::newReader( Live::Position const & position,
                                                           Live::ReaderAnswers answers ) {
   return std::make_unique< FabricReader >( loop_, *connection_, position, std::move( answers ) );
}

void FabricDatabase::publish( Live::Report const & report ) {
   if ( hasRight() ) {
      publisher_.publish( *connection_, report );
   }
}

void FabricDatabase::rests() {
   renewal_ = {};
   publisher_.begin();
}

} // namespace Scale
