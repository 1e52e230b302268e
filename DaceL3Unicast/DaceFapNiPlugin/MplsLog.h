// The plug-in's one message to the operator.
#pragma once

namespace DaceFapNi {

// Says that 'mpls lookup label count 2' and 'mpls lookup fallback ip' can't be had together.
void logMultiLabelLookupWithFallbackIp();

} // namespace DaceFapNi
