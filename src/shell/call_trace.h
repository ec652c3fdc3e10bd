// A window on the order of calls: the bridge frame and the mouse dispatcher
// name each procedure they call here, and a probe (set by tests) sees them.
#pragma once

namespace lf {

using CallProbe = void (*)(const char* procedure);
// nullptr removes the probe.
void SetCallProbe(CallProbe probe);

// Shows the name to the probe.
void TraceCall(const char* name);
// Names the procedure, then runs it; a failure inside it is skipped.
void Call(const char* name, void (*procedure)());

}  // namespace lf
