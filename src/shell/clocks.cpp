#include "shell/clocks.h"

#include <cstdint>

#include "shell/game_state.h"

namespace lf {

void StartTimer1() {
  if (G.Timer1Enabled) return;
  G.Timer1Enabled = True;
  G.Timer1Frames = 0;
}
void StopTimer1() { G.Timer1Enabled = False; }

void StartTimer2() {
  if (G.Timer2Enabled) return;
  G.Timer2Enabled = True;
  G.Timer2Frames = 0;
}
void StopTimer2() { G.Timer2Enabled = False; }

namespace {

// Counts one frame of a clock's run; true when the clock ticks after it. A
// count already at or past the last frame of the period (a restored state
// may hold any count) ticks at once, so the count never grows past it.
bool CountFrame(std::int32_t& frames, int period) {
  if (frames < 0 || frames >= period - 1) {
    frames = 0;
    return true;
  }
  ++frames;
  return false;
}

}  // namespace

ClockTicks CountClockFrame() {
  ClockTicks due;
  if (G.Timer1Enabled && CountFrame(G.Timer1Frames, kTimer1Frames)) due.timer1 = true;
  if (G.Timer2Enabled && CountFrame(G.Timer2Frames, kTimer2Frames)) due.timer2 = true;
  return due;
}

}  // namespace lf
