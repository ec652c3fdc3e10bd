// The two clocks: the 100 ms clock (game time, static, story event draws)
// and the 1000 ms clock (reloads and exit timers of a fight). Both are
// counted in frames at 60 a second and ticked in the yield after the frame
// that completes their interval; both are created stopped.
#pragma once

namespace lf {

inline constexpr int kTimer1Frames = 6;   // 100 ms
inline constexpr int kTimer2Frames = 60;  // 1000 ms

// Starting a clock that is stopped begins a fresh interval; starting one
// that runs changes nothing. A stopped clock ticks no more, and a tick of it
// still queued is dropped.
void StartTimer1();
void StopTimer1();
void StartTimer2();
void StopTimer2();

// Counts one frame on each running clock; says which are due a tick.
struct ClockTicks {
  bool timer1 = false;
  bool timer2 = false;
};
ClockTicks CountClockFrame();

// The ticks themselves.
void Timer1_Timer();
void Timer2_Timer();

}  // namespace lf
