// In which phase of its life an agent is.
#pragma once

#include <string_view>

namespace Live {

// waiting: no database yet, or one without a state: nothing is written. reconciling: a whole state is being brought to
// the chips. disconnected: the chips stay as they are. held: a drift waits for a decision. degraded: a chip refuses.
enum class Phase { waiting, reconciling, running, disconnected, held, frozen, degraded };

constexpr std::string_view phaseNames[] = {
   "waiting", "reconciling", "running", "disconnected", "held", "frozen", "degraded" };

constexpr std::string_view nameOf( Phase phase ) {
   return phaseNames[static_cast< int >( phase )];
}

} // namespace Live
