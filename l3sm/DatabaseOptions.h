// What `serve` and `state` alike take to sign on to a database.
//
// Threading: none.
#pragma once

#include "agent/database/EtcdAddress.h"
#include "l3sm/VerbOptions.h"

namespace Cli {

void defineCredentials( VerbOptions & verb, Live::DatabaseCredentials & into );

} // namespace Cli
