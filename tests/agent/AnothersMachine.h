// Who has the right to a slice on another machine: whether he lives, nobody can tell from here.
//
//    server->leaseIs( "Linecard3", anothersMachine().text(), 300 );
#pragma once

#include "agent/database/LeaseHolder.h"

inline Live::LeaseHolder anothersMachine() {
   auto holder = Live::LeaseHolder::thisProcess();
   holder.host = "gauss";
   holder.boot = "another";
   return holder;
}
