// What comes of reading a state, in whatever database it lies. From within each of them who reads may be destroyed.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Database.h"

#include <functional>

namespace Live {

// One of them, once.
struct SnapshotAnswers {
   std::function< void( Snapshot & ) > is;
   std::function< void( std::string const & ) > without;
   std::function< void( std::string const & ) > fails;
};

struct ReaderAnswers {
   std::function< void() > begins; // what comes behind the place will come
   std::function< void( std::vector< Transaction > ) > are;
   std::function< void( std::string const & ) > gap;
   std::function< void( std::string const & ) > without;
};

} // namespace Live
