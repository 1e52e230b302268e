#include "MplsLog.h"

#include "rex/Log.h"

namespace DaceFapNi {

namespace {

REX_LOG_SECTION constexpr Rex::LogMessage multiLabelLookupWithFallbackIp{
   "DACE_MULTI_LABEL_LOOKUP_COUNT_MPLS_FALLBACK_IP_NOT_SUPPORTED",
   "Configurations 'mpls lookup label count 2' and 'mpls lookup fallback ip' cannot co-exist.",
   "Configuration 'mpls lookup fallback ip' doesn't support 2 MPLS label lookup.",
   "Please unconfigure either of the two.",
   Rex::LogMessage::error,
   0 };

// Every conflict is told.
Rex::LogHandle const multiLabelLookupWithFallbackIpLog{ multiLabelLookupWithFallbackIp, Rex::Seconds{ 0 }, 1.0, 0, 0 };

} // namespace

void logMultiLabelLookupWithFallbackIp() {
   Rex::log( multiLabelLookupWithFallbackIpLog );
}

} // namespace DaceFapNi
