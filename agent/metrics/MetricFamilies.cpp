// What there is to be counted, as data.
#include "agent/metrics/Metrics.h"

namespace Live {

namespace {

constexpr auto counter = MetricFamily::Type::counter;
constexpr auto gauge = MetricFamily::Type::gauge;
constexpr auto histogram = MetricFamily::Type::histogram;

constexpr MetricFamily families[] = {
   { "l3sm_events_total", counter, "Changes of state that were played, by path without keys.", { "cause" } },
   { "l3sm_chip_operations_total",
     counter,
     "Driver operations, by FAP, kind, and whether the contents of a copy became different by it.",
     { "fap", "op", "changed" } },
   { "l3sm_event_duration_seconds", histogram, "Time from the begin of an event to its last operation.", {} },
   { "l3sm_database_lag_seconds", gauge, "Age of the transaction that was applied last, when it was applied.", {} },
   { "l3sm_resyncs_total", counter, "Snapshots that were taken anew, by reason.", { "reason" } },
   { "l3sm_rejected_entries", gauge, "Values of the database that are wrong and were not applied.", {} },
   { "l3sm_start_changing_writes", gauge, "Writes of the last start that changed the contents of a chip.", {} },
   { "l3sm_audit_mismatches_total",
     counter,
     "Places of a chip that held something else than was written, by FAP and kind.",
     { "fap", "kind" } },
   { "l3sm_repairs_total", counter, "Repairs of a place of a chip, by FAP and result.", { "fap", "result" } },
   { "l3sm_faults_injected_total", counter, "Faults that were injected, by kind.", { "kind" } },
   { "l3sm_gates_closed_total", counter, "Conditions that kept a function from going on.", { "function" } },
   { "l3sm_phase", gauge, "1 for the phase that the agent is in, 0 for the others.", { "phase" } },
   { "l3sm_recording", gauge, "Whether a recording is being written.", {} },
   { "l3sm_recording_failures_total", counter, "Recordings that stopped because they couldn't be written.", {} },
   { "l3sm_build_info",
     gauge,
     "1, with the program's version and which build of the plug-in it has loaded.",
     { "version", "plugin" } },
};

} // namespace

std::span< MetricFamily const > metricFamilies() {
   return families;
}

} // namespace Live
