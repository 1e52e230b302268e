// The revision of the sources that this program was built from. The build writes it anew where it has changed, so it
// stands alone: a commit compiles this one line.
//
// Threading: a constant.
#pragma once

namespace Inspection {

// Empty where nobody knew it.
extern char const * const revision;

} // namespace Inspection
