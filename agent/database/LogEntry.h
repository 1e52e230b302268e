// An entry of the log: a transaction, as it is written and read.
//
//    std::string const text = changesText( events );            // [{"set": {"path": "evpn/status", …}}]
//    Transaction const transaction = transactionOf( entry, { server, epoch, {} } );
//
// Threading: none.
#pragma once

#include "agent/database/Database.h"
#include "agent/database/RedisReply.h"

#include <span>

namespace Live {

// What goes into the field `changes`.
std::string changesText( std::span< Inspection::Event const > events );
// `entry`: its id and its fields. `life`: the server and the epoch that it was read in.
Transaction transactionOf( RedisReply entry, Position const & life );

} // namespace Live
