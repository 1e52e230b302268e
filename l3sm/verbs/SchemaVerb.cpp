#include "inspection/files/Json.h"
#include "inspection/files/ScenarioSchema.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

// The schema is an answer for programs: --json changes nothing.
Action defineSchema( VerbOptions & verb ) {
   auto const json = std::make_shared< bool >( false );
   verb.flag( "--json", *json, "for programs, which it is in any case" );
   return [json] {
      std::cout << toJson( scenarioSchema(), 4 ) << '\n';
      return 0;
   };
}

} // namespace Cli
