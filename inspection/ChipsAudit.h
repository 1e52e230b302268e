// What a scenario leaves on the chips that the plug-in hasn't written, or doesn't leave there though it has.
//
//    ChipsAudit const audit = auditAfter( scenario, plugin );
//    audit.isFine();                    // every chip holds what was written to it
//
// Threading: the agent's scheduler thread.
#pragma once

#include "inspection/WrongPlace.h"
#include "inspection/files/Scenario.h"

#include <set>

namespace Inspection {

struct ChipsAudit {
   std::vector< WrongPlace > wrong; // of chips that answer
   std::set< U16 > degraded;        // FAPs whose chips don't
   U64 faults = 0;                  // that fired

   bool isFine() const { return wrong.empty() && degraded.empty(); }
};

// Plays it. InputError where it doesn't fit, or the library can't be loaded.
ChipsAudit auditAfter( Scenario const & scenario, std::string const & plugin );

} // namespace Inspection
