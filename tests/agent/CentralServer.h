// A server of any kind that agents follow, of a test's own, and what is done to it by hand: a test that holds of every
// database is written once.
//
//    struct Cases : testing::TestWithParam< char const * > { std::unique_ptr< CentralServer > server = serverOf(
//    GetParam() ); }; INSTANTIATE_TEST_SUITE_P( Every, Cases, testing::ValuesIn( centralServers ), nameOfServer );
#pragma once

#include "agent/EtcdServer.h"
#include "agent/RedisState.h"
#include "agent/database/EtcdLayout.h"
#include "agent/database/EtcdReader.h"
#include "agent/database/LeaseHolder.h"

class CentralServer {
 public:
   virtual ~CentralServer() = default;
   virtual std::string url() const = 0;
   // What a client says of it where nobody listens.
   virtual std::string refusedText() const = 0;
   virtual void starts() = 0;
   virtual void dies() = 0;
   virtual void standsStill() = 0;
   virtual void goesOn() = 0;
   // What it holds now is what it holds when it comes back, and is not.
   virtual void keepsDump() = 0;
   virtual void comesBackWithDump() = 0;
   // Those that are open now.
   virtual void cutsConnections() = 0;

   // Epoch, and two paths; and so many sub-interfaces.
   virtual void load( std::string const & epoch = "e1", std::size_t interfaces = 0 ) = 0;
   // One attribute of evpn/status, in one transaction.
   virtual void write( std::string const & attribute, std::string const & value ) = 0;
   virtual void writeMany( std::size_t count, std::size_t from = 0 ) = 0;
   virtual void epochIs( std::string const & epoch ) = 0; // empty: there is none
   virtual std::string epoch() = 0;
   virtual void losesAll() = 0;
   // What was before the last transaction can't be told any more.
   virtual void losesHistory() = 0;
   virtual char const * lostHistoryText() const = 0;
   virtual Live::Paths state() = 0;
   virtual std::string lastEntry() = 0;

   // Of agents.
   virtual Live::Attributes agentHash( std::string const & slice ) = 0; // without who holds it
   virtual Live::Paths published( std::string const & slice ) = 0;
   virtual void publishedIs( std::string const & slice, Live::Paths const & paths ) = 0;
   virtual bool isServed( std::string const & slice ) = 0;
   virtual void leaseIs( std::string const & slice, std::string const & holder, unsigned seconds ) = 0;
   virtual void leaseEnds( std::string const & slice ) = 0;
   // Transactions so far, of whomever.
   virtual std::size_t transactions() = 0;
   virtual bool isWatched() = 0;
};

class CentralRedis final : public CentralServer {
 public:
   std::string url() const override { return server.url(); }
   std::string refusedText() const override { return "Connection refused"; }
   void starts() override { server.starts(); }
   void dies() override { server.dies(); }
   void standsStill() override { server.standsStill(); }
   void goesOn() override { server.goesOn(); }
   void keepsDump() override { server.keepsDump(); }
   void comesBackWithDump() override {
      server.dies();
      server.starts();
   }
   void cutsConnections() override { server.cutsConnections(); }
   void load( std::string const & epoch, std::size_t interfaces ) override {
      interfaces == 0 ? loadByHand( server, epoch ) : loadManyByHand( server, interfaces );
   }
   void write( std::string const & attribute, std::string const & value ) override {
      writeByHand( server, attribute, value );
   }
   void writeMany( std::size_t count, std::size_t from ) override { writeManyByHand( server, count, from ); }
   void epochIs( std::string const & epoch ) override {
      epoch.empty() ? server.ask( { "DEL", epochKey } ) : server.ask( { "SET", epochKey, epoch } );
   }
   std::string epoch() override { return std::string( server.ask( { "GET", epochKey } ).text() ); }
   void losesAll() override { server.ask( { "FLUSHALL" } ); }
   void losesHistory() override { server.ask( { "XTRIM", logKey, "MAXLEN", "1" } ); }
   char const * lostHistoryText() const override { return "the log was trimmed past the place that was read up to"; }
   Live::Paths state() override { return stateIn( server ); }
   std::string lastEntry() override { return ::lastEntry( server ); }
   Live::Attributes agentHash( std::string const & slice ) override {
      return Live::attributesOf( server.ask( { "HGETALL", "l3sm:{1}#agent:" + slice } ) );
   }
   Live::Paths published( std::string const & slice ) override {
      Live::Paths paths;
      for ( auto const name : server.ask( { "SMEMBERS", "l3sm:{1}#published:" + slice } ) ) {
         std::string const path( name.text() );
         paths[path] = Live::attributesOf( server.ask( { "HGETALL", "l3sm:{1}#published:" + slice + ":" + path } ) );
      }
      return paths;
   }
   void publishedIs( std::string const & slice, Live::Paths const & paths ) override {
      for ( auto const & [path, attributes] : paths ) {
         server.ask( { "SADD", "l3sm:{1}#published:" + slice, path } );
         for ( auto const & [name, text] : attributes ) {
            server.ask( { "HSET", "l3sm:{1}#published:" + slice + ":" + path, name, text } );
         }
      }
   }
   bool isServed( std::string const & slice ) override {
      return server.ask( { "EXISTS", "l3sm:{1}#lease:" + slice } ).number() == 1;
   }
   void leaseIs( std::string const & slice, std::string const & holder, unsigned seconds ) override {
      server.ask( { "SET", "l3sm:{1}#lease:" + slice, holder, "EX", std::to_string( seconds ) } );
   }
   void leaseEnds( std::string const & slice ) override { server.ask( { "DEL", "l3sm:{1}#lease:" + slice } ); }
   std::size_t transactions() override { return server.served( "exec" ); }
   bool isWatched() override { return server.served( "xread" ) > 0; }

   RedisServer server;
};

class CentralEtcd final : public CentralServer {
 public:
   std::string url() const override { return server.url(); }
   std::string refusedText() const override {
      auto const host = server.members[0]->host();
      auto const colon = host.find( ':' );
      return "Failed to connect to " + host.substr( 0, colon ) + " port " + host.substr( colon + 1 ) +
             " after 0 ms: Couldn't connect to server";
   }
   void starts() override { server.starts(); }
   void dies() override { server.dies(); }
   void standsStill() override { server.members[0]->standsStill(); }
   void goesOn() override { server.members[0]->goesOn(); }
   void keepsDump() override {
      server.dies();
      std::filesystem::copy( data(), data() + ".kept", std::filesystem::copy_options::recursive );
      server.starts();
   }
   void comesBackWithDump() override {
      server.dies();
      std::filesystem::remove_all( data() );
      std::filesystem::rename( data() + ".kept", data() );
      server.starts();
   }
   void cutsConnections() override { // nothing less does
      server.dies();
      server.starts();
   }
   void load( std::string const & epoch, std::size_t interfaces ) override {
      Live::EtcdTransaction transaction;
      transaction.put( layout.epoch(), epoch );
      transaction.put( layout.mark(), epoch );
      transaction.put( layout.writes(), "by hand" );
      transaction.put( layout.key( "evpn/status" ), R"({"vxlanEnabled": false})" );
      transaction.put( layout.key( "interface/config/global" ), R"({"l3Mtu": 9000})" );
      server.ask( "kv/txn", transaction );
      for ( std::size_t at = 0; at < interfaces; ) {
         Live::EtcdTransaction some;
         for ( ; at < interfaces && some.size() < Live::mostOperations; ++at ) {
            some.put( layout.key( "interface/status/subintf/intfStatus/Ethernet1." + std::to_string( at ) ),
                      "{\"mtu\":" + std::to_string( at % 9000 ) + "}" );
         }
         server.ask( "kv/txn", some );
      }
   }
   void write( std::string const & attribute, std::string const & value ) override {
      auto attributes = Live::attributesOf( server.at( layout.key( "evpn/status" ) )->value );
      attributes[attribute] = value;
      Live::EtcdTransaction transaction;
      transaction.put( layout.key( "evpn/status" ), Live::textOf( attributes ) );
      transaction.put( layout.writes(), "by hand" );
      server.ask( "kv/txn", transaction );
   }
   void writeMany( std::size_t count, std::size_t from ) override {
      for ( std::size_t at = from; at < from + count; ++at ) {
         write( at % 2 == 0 ? "vxlanEnabled" : "mplsEnabled", at % 3 == 0 ? "true" : "false" );
      }
   }
   void epochIs( std::string const & epoch ) override {
      epoch.empty() ? server.remove( layout.epoch() ) : server.put( layout.epoch(), epoch );
   }
   std::string epoch() override { return server.at( layout.epoch() )->value; }
   void losesAll() override { server.remove( "l3sm:", true ); }
   void losesHistory() override { server.compacts( server.revision() ); }
   char const * lostHistoryText() const override {
      return "the revisions behind the place that was read up to are compacted";
   }
   Live::Paths state() override {
      Live::Paths paths;
      for ( auto const & each : server.under( layout.mark() ) ) {
         if ( each.key != layout.mark() ) {
            paths[std::string( layout.pathOf( each.key ) )] = Live::attributesOf( each.value );
         }
      }
      return paths;
   }
   std::string lastEntry() override {
      U64 last = 0;
      for ( auto const & each : server.under( layout.cell ) ) {
         bool const isOfState = each.key.starts_with( layout.mark() ) || each.key == layout.writes();
         last = isOfState ? std::max( last, each.modified ) : last;
      }
      return std::to_string( last );
   }
   Live::Attributes agentHash( std::string const & slice ) override {
      Live::Attributes fields;
      auto const there = server.at( layout.agent( slice ) );
      for ( auto const & [name, text] : there ? Live::attributesOf( there->value ) : Live::Attributes() ) {
         if ( name != "holder" ) {
            fields[name] = *Live::valueOfText( text ).text();
         }
      }
      return fields;
   }
   Live::Paths published( std::string const & slice ) override {
      Live::Paths paths;
      std::string const begin = layout.published( slice );
      for ( auto const & each : server.under( begin ) ) {
         paths[each.key.substr( begin.size() )] = Live::attributesOf( each.value );
      }
      return paths;
   }
   void publishedIs( std::string const & slice, Live::Paths const & paths ) override {
      for ( auto const & [path, attributes] : paths ) {
         server.put( layout.published( slice, path ), Live::textOf( attributes ) );
      }
   }
   bool isServed( std::string const & slice ) override { return server.at( layout.agent( slice ) ).has_value(); }
   void leaseIs( std::string const & slice, std::string const & holder, unsigned seconds ) override {
      auto const lease = server.askText( "lease/grant", "{\"TTL\":" + std::to_string( seconds ) + "}" ).lease;
      Live::EtcdTransaction transaction;
      transaction.put( layout.agent( slice ), Live::textOf( { { "holder", Rex::toText( holder ) } } ), lease );
      server.ask( "kv/txn", transaction );
   }
   void leaseEnds( std::string const & slice ) override {
      auto const there = server.at( layout.agent( slice ) );
      server.askText( "lease/revoke", "{\"ID\":" + std::to_string( there->lease ) + "}" );
   }
   std::size_t transactions() override { return server.revision(); }
   bool isWatched() override {
      std::string const ask = "curl -s http://" + server.members[0]->host() +
                              "/metrics | grep -q '^etcd_debugging_mvcc_watcher_total [1-9]'";
      return std::system( ask.c_str() ) == 0;
   }

   EtcdServer server;
   Live::EtcdLayout layout{ "", 1 };

 private:
   std::string data() const { return server.members[0]->data(); }
};

inline constexpr char const * centralServers[] = { "redis", "etcd" };

inline std::unique_ptr< CentralServer > serverOf( std::string const & kind ) {
   if ( kind == "etcd" ) {
      return std::make_unique< CentralEtcd >();
   }
   return std::make_unique< CentralRedis >();
}

inline std::string nameOfServer( testing::TestParamInfo< char const * > const & of ) {
   return of.param;
}
