// The screen loops as a flat machine. Calling a loop (RunLoop, DrawMainMenu,
// a_StationLoop, c_EventLoop, d_FightLoop) runs as a nested call that never
// returns would: the rest of the current frame and handler chain is
// abandoned (ScreenChange is thrown and caught by the program's loop), and
// input still queued stays queued for the next yield.
#pragma once

namespace lf {

struct ScreenChange {};

// One yield to the event queue: the host's input, then the clock ticks due
// after this frame, each run to completion in order.
void Yield();

// The loops (entry points; each throws ScreenChange).
[[noreturn]] void RunLoop();
[[noreturn]] void DrawMainMenu();

}  // namespace lf
