// The screen loops as a flat machine. Calling a loop (RunLoop, DrawMainMenu,
// a_StationLoop, c_EventLoop, d_FightLoop) runs as a nested call that never
// returns would: the rest of the current frame and handler chain is
// abandoned (ScreenChange is thrown and caught by the program's loop), and
// input still queued stays queued for the next yield.
//
// The machine keeps a stack of loops. A loop that never returns (RunLoop,
// a_StationLoop, c_EventLoop, d_FightLoop) replaces the whole stack; the menu
// is pushed over the loop it interrupts, and when its loop ends (MenuActive
// is no longer -1 at the top of a frame) it pops back to the loop below, which
// goes on with its next frame. Only the top loop runs frames.
#pragma once

namespace lf {

struct ScreenChange {};

enum class Screen { Menu, Bridge, Station, Event, Fight };

// One yield to the event queue: the host's input, then the clock ticks due
// after this frame, each run to completion in order. An item is taken off
// the queue before it runs, so a screen change thrown by a handler leaves the
// rest queued for the next yield.
void Yield();

// The loops (entry points; each runs the loop's entry steps and throws
// ScreenChange).
[[noreturn]] void RunLoop();
[[noreturn]] void DrawMainMenu();
[[noreturn]] void a_StationLoop();
[[noreturn]] void c_EventLoop();
[[noreturn]] void d_FightLoop();

// Runs the top loop's next frame. A loop found ended at the top of its frame
// runs what follows it (RunLoop closes the program; a menu, station, event or
// fight loop returns to the loop below). With no loop at all, an idle frame
// presents black and yields, so the Escape key and a close still act.
// ScreenChange and StatementFailed stop here; ProgramEnd goes through.
void RunNextFrame();

// The machine's stack, for the program and for tests.
int ScreenDepth();
// The loop at depth i (0 the bottom); throws StatementFailed out of range.
Screen ScreenAt(int i);
// The loop that runs (throws StatementFailed when there is none).
Screen TopScreen();
// Empties the stack and the input queue (a program start, a test).
void ResetScreens();

}  // namespace lf
