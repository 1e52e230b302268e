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
