#include "Entries.h"

namespace Fuzz {

std::vector< Entry > const & entries() {
   static std::vector< Entry > const all{
      { "scenario", scenario },
      { "journal", journal },
      { "chips", chips },
      { "recording", recording },
      { "control", control },
      { "state", state },
      { "log", log },
      { "etcd", etcd },
      { "catalogue", catalogue },
      { "commandLine", commandLine },
   };
   return all;
}

} // namespace Fuzz
