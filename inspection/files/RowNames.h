// What a journal, and answers for programs, call the kinds of its rows: in the order of Simulator::Row::Kind.
#pragma once

#include <string_view>

namespace Inspection {

inline constexpr std::string_view rowKindNames[] = { "read", "write", "control", "gate", "publish", "fault" };

} // namespace Inspection
