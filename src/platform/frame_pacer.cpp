#include "platform/frame_pacer.h"

namespace lf {

FramePacer::FramePacer(std::uint64_t ticksPerSecond, int framesPerSecond)
    : ticks_(ticksPerSecond ? ticksPerSecond : 1), fps_(framesPerSecond > 0 ? framesPerSecond : 60) {}

std::uint64_t FramePacer::NextStart(std::uint64_t now) {
  if (!started_) {
    started_ = true;
    start_ = now;
    frames_ = 0;
  }
  ++frames_;
  const std::uint64_t target = start_ + frames_ * ticks_ / static_cast<std::uint64_t>(fps_);
  // More than a tenth of a second late: begin a new count from now.
  if (now > target && now - target > ticks_ / 10) {
    start_ = now;
    frames_ = 0;
    return now;
  }
  return now > target ? now : target;
}

}  // namespace lf
