// The commands of a recorder: record start, record mark, record stop.
//
// Threading: the agent's loop.
#pragma once

#include "agent/control/Commands.h"
#include "agent/recording/Recorder.h"

namespace Live {

// The recorder outlives the commands.
void addRecordCommands( Commands & commands, Recorder & recorder );

} // namespace Live
