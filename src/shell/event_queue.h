// The queue that Yield fills and runs: input from the host, then clock ticks.
#pragma once

namespace lf {

// Drops everything still queued (a program start, a test).
void ClearEventQueue();
// How many items wait for the next yield.
int QueuedEvents();

}  // namespace lf
