// The scenario of examples/urpf-and-ip-traps.json, put in at build time.
#pragma once

namespace Inspection {

extern char const * const exampleText;

} // namespace Inspection
