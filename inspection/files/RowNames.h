// What a journal, and answers for programs, call the kinds of its rows, in the order of Simulator::Row::Kind, and its
// end.
#pragma once

#include <string_view>

namespace Inspection {

inline constexpr std::string_view rowKindNames[] = { "read", "write", "control", "gate", "publish", "fault" };
// How a run ended: in the order of Simulator::Ending::Kind.
inline constexpr std::string_view endingNames[] = { "complete", "interrupted", "assertion", "cut" };

} // namespace Inspection
