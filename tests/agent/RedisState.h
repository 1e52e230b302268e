// A small state in a Redis, and transactions on it, written by hand.
//
//    loadByHand( server );                                  // epoch "e1", two paths
//    writeByHand( server, "vxlanEnabled", "true" );          // one transaction
#pragma once

#include "agent/RedisServer.h"
#include "agent/database/Paths.h"

inline std::string const epochKey = "l3sm:{1}#epoch";
inline std::string const logKey = "l3sm:{1}#log";
inline std::string const pathsKey = "l3sm:{1}#paths";
inline std::string const evpnKey = "l3sm:{1}:evpn/status";

inline void loadByHand( RedisServer & server, std::string const & epoch = "e1" ) {
   server.atOnce( { { "SET", epochKey, epoch },
                    { "SADD", pathsKey, "evpn/status", "interface/config/global" },
                    { "HSET", evpnKey, "vxlanEnabled", "false" },
                    { "HSET", "l3sm:{1}:interface/config/global", "l3Mtu", "9000" },
                    { "XADD", logKey, "*", "changes", "[]", "epoch", epoch } } );
}

inline std::string changesByHand( std::string const & attribute, std::string const & value ) {
   return R"([{"set": {"path": "evpn/status", "attribute": ")" + attribute + R"(", "value": )" + value + "}}]";
}

inline void writeByHand( RedisServer & server, std::string const & attribute, std::string const & value ) {
   server.atOnce( { { "HSET", evpnKey, attribute, value },
                    { "XADD", logKey, "*", "changes", changesByHand( attribute, value ), "epoch", "e1" } } );
}

// So many sub-interfaces on top.
inline void loadManyByHand( RedisServer & server, std::size_t count ) {
   loadByHand( server );
   for ( std::size_t at = 0; at < count; ++at ) {
      std::string const path = "interface/status/subintf/intfStatus/Ethernet1." + std::to_string( at );
      server.tell( { "SADD", pathsKey, path } );
      server.tell( { "HSET", "l3sm:{1}:" + path, "mtu", std::to_string( at % 9000 ) } );
   }
   for ( std::size_t at = 0; at < 2 * count; ++at ) {
      server.answer();
   }
}

// Many transactions in one go.
inline void writeManyByHand( RedisServer & server, std::size_t count, std::size_t from = 0 ) {
   for ( std::size_t at = from; at < from + count; ++at ) {
      std::string const attribute = at % 2 == 0 ? "vxlanEnabled" : "mplsEnabled";
      std::string const value = at % 3 == 0 ? "true" : "false";
      server.tell( { "MULTI" } );
      server.tell( { "HSET", evpnKey, attribute, value } );
      server.tell( { "XADD", logKey, "*", "changes", changesByHand( attribute, value ), "epoch", "e1" } );
      server.tell( { "EXEC" } );
   }
   for ( std::size_t at = 0; at < 4 * count; ++at ) {
      server.answer();
   }
}

inline std::string lastEntry( RedisServer & server ) {
   return std::string( server.ask( { "XREVRANGE", logKey, "+", "-", "COUNT", "1" } )[0][0].text() );
}

// What is there.
inline Live::Paths stateIn( RedisServer & server ) {
   Live::Paths paths;
   std::vector< std::string > names;
   for ( auto const name : server.ask( { "SMEMBERS", pathsKey } ) ) {
      names.emplace_back( name.text() );
   }
   for ( auto const & name : names ) {
      auto & attributes = paths[name];
      auto const fields = server.ask( { "HGETALL", "l3sm:{1}:" + name } );
      for ( std::size_t at = 0; at + 1 < fields.size(); at += 2 ) {
         attributes.emplace( fields[at].text(), fields[at + 1].text() );
      }
   }
   return paths;
}
