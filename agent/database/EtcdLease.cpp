#include "agent/database/EtcdLease.h"

#include "agent/database/LeaseHolder.h"

namespace Live {

namespace {

std::string idText( U64 id ) {
   return "{\"ID\":" + std::to_string( id ) + "}";
}

// Of whatever stands in an agent's key.
std::string tokenIn( std::string const & value ) {
   try {
      auto const fields = attributesOf( value );
      auto const found = fields.find( holderField );
      auto const held = found == fields.end() ? Rex::Value() : valueOfText( found->second );
      return held.text() ? *held.text() : std::string();
   } catch ( Rex::ValueError const & ) {
      return {};
   }
}

} // namespace

EtcdLease::EtcdLease( EventLoop & loop, EtcdLayout const & layout, std::string slice, U32 seconds )
   : loop_( loop ), key_( layout.agent( slice ) ), agents_( layout.agents( slice ) ), slice_( std::move( slice ) ),
     seconds_( seconds ), token_( LeaseHolder::thisProcess().text() ) {}

void EtcdLease::take( EtcdClient & client, Answers answers ) {
   rests();
   client_ = &client;
   answers_ = std::move( answers );
   if ( id_ == 0 ) {
      grant();
      return;
   }
   client.ask( "lease/keepalive", idText( id_ ), tether_.of( [this]( EtcdReply const & reply ) {
      if ( reply.ttl > 0 ) {
         write( 0 );
      } else {
         grant();
      }
   } ) );
}

void EtcdLease::rests() {
   tether_.cut();
   renewal_ = {};
   client_ = nullptr;
}

void EtcdLease::grant() {
   id_ = 0;
   client_->ask(
      "lease/grant", "{\"TTL\":" + std::to_string( seconds_ ) + "}", tether_.of( [this]( EtcdReply const & reply ) {
         id_ = reply.lease;
         write( 0 );
      } ) );
}

// `insteadOf`: the revision of the key of one who is dead; 0: there is to be none.
void EtcdLease::write( U64 insteadOf ) {
   EtcdTransaction transaction;
   transaction.ifModifiedAt( key_, insteadOf );
   transaction.put( key_, textOf( { { holderField, Rex::toText( token_ ) } } ), id_ );
   transaction.put( agents_, "{}" );
   transaction.otherwise( { .key = key_ } );
   client_->ask( "kv/txn", transaction.text(), tether_.of( [this]( EtcdReply const & reply ) {
      reply.succeeded ? has() : isTaken( reply );
   } ) );
}

void EtcdLease::isTaken( EtcdReply const & reply ) {
   auto const * const there = reply.only();
   if ( !there ) { // it has just gone
      write( 0 );
      return;
   }
   auto const token = tokenIn( there->value );
   if ( there->lease == id_ ) {
      has();
   } else if ( token == token_ || LeaseHolder::of( token ).isDead() ) {
      write( there->modified );
   } else {
      refuse( token, there->lease );
   }
}

void EtcdLease::refuse( std::string const & token, U64 id ) {
   std::string const who = "slice " + slice_ + " is served by " + LeaseHolder::of( token ).forPeople();
   client_->ask(
      "lease/revoke", idText( std::exchange( id_, 0 ) ), []( EtcdReply const & ) {}, EtcdClient::Errors::areTold );
   if ( id == 0 ) {
      answers_.others( who + ", which has the right to it until somebody deletes " + key_ );
      return;
   }
   client_->ask( "lease/timetolive",
                 idText( id ),
                 tether_.of( [this, who]( EtcdReply const & reply ) {
                    answers_.others( who + ", which has the right to it for " + std::to_string( reply.ttl ) +
                                     " s more unless it renews it" );
                 } ),
                 EtcdClient::Errors::areTold );
}

void EtcdLease::has() {
   renewal_ = loop_.timer( seconds_ / leaseRenewals, [this] { renew(); } );
   auto const ours = answers_.ours; // which may end this
   ours();
}

void EtcdLease::renew() {
   renewal_.timeIs( seconds_ / leaseRenewals );
   client_->ask( "lease/keepalive", idText( id_ ), tether_.of( [this]( EtcdReply const & reply ) {
      if ( reply.ttl <= 0 ) {
         id_ = 0;
         auto const fails = answers_.fails; // which may end this
         fails( "the right to serve slice " + slice_ +
                " has run out: this process, or the cluster, stood still for longer than it lasts" );
      }
   } ) );
}

void EtcdLease::release( EtcdClient & client ) {
   if ( id_ != 0 ) {
      EtcdTransaction transaction;
      transaction.ifLeaseIs( key_, id_ );
      transaction.remove( key_ );
      transaction.remove( agents_ );
      client.sayAndGo( "kv/txn", transaction.text() );
   }
   id_ = 0;
   rests();
}

} // namespace Live
