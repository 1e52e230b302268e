// A recording that was played again, for people.
#pragma once

#include "agent/recording/RecordedRun.h"
#include "inspection/views/Terminal.h"

namespace Live {

void showRecordedRun( std::ostream & out, RecordedRun const & run, Inspection::Style const & style );

} // namespace Live
