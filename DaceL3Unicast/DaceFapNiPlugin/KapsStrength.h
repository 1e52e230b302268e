// The strengths of KAPS results: what array element 1 of FlpKapsStrengthMapping holds, and the check that it does.
#pragma once

#include "Programming.h"

#include <map>
#include <utility>

namespace DaceFapNi {

// From a span of entries, first and last, to the strength of both fields.
std::map< std::pair< int, int >, U32 > rangeToDefault0StrengthMapping();

// Ends the process by assertion where an entry of the span holds something else than expected. The last entry of a span
// is not looked at. Entry 32 of array element 1 is expected to have 0 in its second field.
void verifyKapsStrengthMappingEntry( FapStatusPtr const & fapStatus,
                                     int arrayIndex,
                                     U32 expectedStrengthDefault0,
                                     U32 expectedStrengthDefault1,
                                     int firstEntry,
                                     int lastEntry,
                                     std::source_location origin = std::source_location::current() );

} // namespace DaceFapNi
