// What an agent says of itself, a line each: to the journal of the system where that reads along, with its level, else
// to standard error.
//
//    say( Level::notice, "running" );
//
// Threading: any.
#pragma once

#include <string>

namespace Live {

enum class Level { error = 3, warning = 4, notice = 5, info = 6 };

void say( Level level, std::string const & line );

} // namespace Live
