// The time of the process.
//
// Time is an input: the clock stands at 0 until it is moved by whoever drives the process. Nothing here asks the
// machine for the time, and nothing sleeps.
//
// Threading: the agent's scheduler thread.
#pragma once

namespace Rex {

using Seconds = double;

Seconds now();
void nowIs( Seconds now );

} // namespace Rex
