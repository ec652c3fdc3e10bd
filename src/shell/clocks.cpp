#include "shell/clocks.h"

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

ClockTicks CountClockFrame() {
  ClockTicks due;
  if (G.Timer1Enabled && ++G.Timer1Frames >= kTimer1Frames) {
    G.Timer1Frames = 0;
    due.timer1 = true;
  }
  if (G.Timer2Enabled && ++G.Timer2Frames >= kTimer2Frames) {
    G.Timer2Frames = 0;
    due.timer2 = true;
  }
  return due;
}

}  // namespace lf
