// Which database an address means.
//
//    auto const database = databaseAt( loop, "etcd://db1,db2,db3", {}, 1, "Linecard3" );
//
// Threading: none.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/Database.h"
#include "agent/database/EtcdAddress.h"
#include "agent/database/StateStore.h"

namespace Live {

// For an agent. Without an address, the process itself. Throws Inspection::InputError.
std::unique_ptr< Database > databaseAt( EventLoop & loop,
                                        std::string const & url,
                                        DatabaseCredentials const & credentials,
                                        U32 cell,
                                        std::string const & slice );
// For people and scripts. Throws likewise.
std::unique_ptr< StateStore >
stateStoreAt( std::string const & url, DatabaseCredentials const & credentials, U32 cell );

} // namespace Live
