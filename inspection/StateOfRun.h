// The state as a file tells it: a state file, or a journal, at its end or when an event was over.
//
//    ToldState const told = toldState( "run.jsonl.zst", 17 );               // InputError
//    for ( PathValue const & it : partOf( told.paths, "evpn/status" ) ) {   // "evpn/status", {"vxlanEnabled": true, …}
//       ...
//    }
//
// What a journal's run began with, its events and what the plug-in published are done again, without a plug-in.
#pragma once

#include "rex/Value.h"

#include <optional>
#include <string>
#include <vector>

namespace Inspection {

struct ToldState {
   Rex::Value::Object paths = {};           // path to attributes, as a state file has it
   std::vector< std::string > remarks = {}; // on a journal
};

// `event`: of a journal; none: its end.
ToldState toldState( std::string const & file, std::optional< U32 > event );

struct PathValue {
   std::string path;
   Rex::Value value;
};

// What stands at a path, or below it where it leads to several; an attribute or an entry may stand behind a slash.
// Nothing where nothing stands there.
std::vector< PathValue > partOf( Rex::Value::Object const & paths, std::string const & path );

} // namespace Inspection
