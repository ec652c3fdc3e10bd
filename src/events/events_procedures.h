// The story event procedures called from the shell.
#pragma once

namespace lf {

// Tries story event n; raises EventSlot when its conditions hold.
void CheckNextEvent(int n);
// Loads the event's pictures; ends in c_EventLoop (screens.h).
void c_EnterEvent();
// A press while the event screen runs.
void c_CheckEventMouseDown();
// One pass of c_EventLoop, its yield included. c_EventLoop (the machine)
// repeats this while EventActive is set.
void c_EventLoopFrame();

}  // namespace lf
