#include "agent/database/EtcdPublisher.h"

#include "agent/SystemLog.h"

#include <algorithm>

namespace Live {

namespace {

// Between two tries where the cluster has no space.
constexpr Rex::Seconds pauseAfterAFault = 5;

bool isOfSpace( std::string const & error ) {
   return error.find( "database space exceeded" ) != std::string::npos;
}

} // namespace

void EtcdPublisher::begin() {
   tether_.cut();
   again_ = {};
   client_ = nullptr;
   isUnderWay_ = isWhole_ = false;
   waiting_.reset();
   published_.clear();
   changed_.clear();
   rest_.clear();
}

void EtcdPublisher::publish( EtcdClient & client,
                             Report const & report,
                             std::function< void( std::string const & ) > fails ) {
   client_ = &client;
   fails_ = std::move( fails );
   merge( report );
   if ( !isUnderWay_ ) {
      gather();
   }
}

void EtcdPublisher::merge( Report const & report ) {
   waiting_ = Report{ .applied = report.applied, .fields = report.fields };
   if ( report.isWhole ) {
      published_.clear();
      changed_.clear();
      isWhole_ = true;
   }
   for ( auto const & [path, attributes] : report.published ) {
      changed_.insert( path );
      if ( attributes.empty() ) {
         published_.erase( path );
      }
      for ( auto const & [name, text] : attributes ) {
         published_[path][name] = text;
      }
   }
}

EtcdTransaction EtcdPublisher::transaction() const {
   EtcdTransaction transaction;
   transaction.ifLeaseIs( layout_.agent( slice_ ), lease_.id() );
   return transaction;
}

// What waits, as transactions.
void EtcdPublisher::gather() {
   isUnderWay_ = true;
   std::vector< EtcdTransaction > all{ transaction() };
   if ( std::exchange( isWhole_, false ) ) {
      std::string const prefix = layout_.published( slice_ );
      all.back().remove( prefix, endOf( prefix ) );
      all.push_back( transaction() ); // a key is changed once in each
   }
   for ( auto const & path : changed_ ) {
      if ( all.back().size() + 1 >= mostOperations ) {
         all.push_back( transaction() );
      }
      auto const found = published_.find( path );
      auto const key = layout_.published( slice_, path );
      found == published_.end() ? all.back().remove( key ) : all.back().put( key, textOf( found->second ) );
   }
   changed_.clear();
   Attributes fields{ { holderField, Rex::toText( lease_.token() ) },
                      { "epoch", Rex::toText( waiting_->applied.epoch ) },
                      { "applied", Rex::toText( waiting_->applied.entry ) } };
   for ( auto const & [name, text] : waiting_->fields ) {
      fields.emplace( name, Rex::toText( text ) );
   }
   all.back().put( layout_.agent( slice_ ), textOf( fields ), lease_.id() );
   waiting_.reset();
   std::ranges::reverse( all );
   rest_ = std::move( all );
   write();
}

void EtcdPublisher::write() {
   client_->ask( "kv/txn",
                 rest_.back().text(),
                 tether_.of( [this]( EtcdReply const & reply ) { written( reply ); } ),
                 EtcdClient::Errors::areTold );
}

void EtcdPublisher::written( EtcdReply const & reply ) {
   if ( isOfSpace( reply.error ) ) {
      say( Level::warning, "what the agent tells can't be written: " + reply.error );
      again_ = loop_.timer( pauseAfterAFault, [this] { write(); } );
      return;
   }
   if ( !reply.error.empty() || !reply.succeeded ) {
      auto const fails = fails_; // which may end this
      fails( reply.error.empty() ? "the right to serve slice " + slice_ + " is another's, or has run out"
                                 : "what the agent tells can't be written: " + reply.error );
      return;
   }
   rest_.pop_back();
   if ( !rest_.empty() ) {
      write();
      return;
   }
   again_ = loop_.timer( breathOfReports, [this] {
      isUnderWay_ = false;
      if ( waiting_ ) {
         gather();
      }
   } );
}

} // namespace Live
