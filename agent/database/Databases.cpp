#include "agent/database/Databases.h"

#include "agent/database/EmbeddedDatabase.h"
#include "agent/database/EtcdDatabase.h"
#include "agent/database/EtcdStore.h"
#include "agent/database/RedisDatabase.h"
#include "agent/database/RedisStore.h"
#include "inspection/files/InputError.h"

namespace Live {

namespace {

RedisAddress redisAddressOf( std::string const & url, DatabaseCredentials const & credentials ) {
   if ( url.find( "://" ) != std::string::npos && !url.starts_with( "redis" ) ) {
      throw Inspection::InputError( "the address of the database begins with none of redis://, redis+unix://, etcd://, "
                                    "etcds://" );
   }
   if ( credentials != DatabaseCredentials() ) {
      throw Inspection::InputError(
         std::string( "--database-user and its like are for etcd; the password of a Redis comes from the "
                      "environment, " ) +
         redisPasswordVariable );
   }
   return RedisAddress::of( url );
}

} // namespace

std::unique_ptr< Database > databaseAt( EventLoop & loop,
                                        std::string const & url,
                                        DatabaseCredentials const & credentials,
                                        U32 cell,
                                        std::string const & slice ) {
   if ( url.empty() ) {
      return std::make_unique< EmbeddedDatabase >( loop );
   }
   if ( EtcdAddress::isOne( url ) ) {
      return std::make_unique< EtcdDatabase >( loop, EtcdAddress::of( url, credentials ), cell, slice );
   }
   return std::make_unique< RedisDatabase >( loop, redisAddressOf( url, credentials ), cell, slice );
}

std::unique_ptr< StateStore >
stateStoreAt( std::string const & url, DatabaseCredentials const & credentials, U32 cell ) {
   if ( EtcdAddress::isOne( url ) ) {
      return std::make_unique< EtcdStore >( EtcdAddress::of( url, credentials ), cell );
   }
   return std::make_unique< RedisStore >( redisAddressOf( url, credentials ), cell );
}

} // namespace Live
