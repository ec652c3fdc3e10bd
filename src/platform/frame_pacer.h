// Holds frames to a fixed rate on a free-running counter: frame n may start
// at start + n / fps seconds. A run that falls far behind (a stall, a
// dragged window) starts counting afresh instead of racing to catch up.
#pragma once

#include <cstdint>

namespace lf {

class FramePacer {
 public:
  FramePacer(std::uint64_t ticksPerSecond, int framesPerSecond);
  // Called once a frame with the counter's value; returns the counter value
  // at which the next frame may start (`now` or later).
  std::uint64_t NextStart(std::uint64_t now);

 private:
  std::uint64_t ticks_;
  int fps_;
  std::uint64_t start_ = 0;
  std::uint64_t frames_ = 0;
  bool started_ = false;
};

}  // namespace lf
