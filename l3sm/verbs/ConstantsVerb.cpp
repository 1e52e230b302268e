// The verb `constants`: what the platform stands in for.
#include "inspection/views/ConstantsText.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

Action defineConstants( VerbOptions & verb ) {
   auto const json = std::make_shared< bool >( false );
   verb.flag( "--json", *json, "everything, for programs" );
   return [json] {
      ( *json ? Inspection::writeConstants : Inspection::showConstants )( std::cout );
      return 0;
   };
}

} // namespace Cli
