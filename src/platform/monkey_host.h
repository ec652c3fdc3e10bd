// The monkey: a headless host that plays random input for a number of
// frames, from a seed. Its clicks lean towards the controls of the screen
// that is up (the bridge's visible buttons and faces, the station's menu,
// answer buttons and exit, the menu's entries but Exit), the rest falls
// anywhere; now and then it moves the cursor, presses an arrow or Escape,
// or clicks the right button. With a RecordingHost around it, what it did
// becomes a script that replays a failure.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "shell/host.h"

namespace lf {

class MonkeyHost : public Host {
 public:
  MonkeyHost(std::int64_t frames, std::uint64_t seed);

  void PumpInput(std::vector<InputEvent>& out) override;
  void Present(const std::uint16_t*, int) override {}
  void GetCursorPos(int& x, int& y) override;
  void SetCursorPos(int x, int y) override;
  void PaceFrame() override {}
  std::uint64_t ClockSeed() override;

  std::int64_t Yields() const { return yields_; }

 private:
  struct Zone {
    int left, top, right, bottom;  // inclusive
  };
  // The controls of the screen that is up now.
  void CurrentZones();
  void PickPoint(int& x, int& y);
  int Between(int lo, int hi);

  std::int64_t frames_;
  std::uint64_t seed_;
  std::int64_t yields_ = 0;
  std::mt19937_64 rng_;
  std::vector<Zone> zones_;
  int cursorX_ = 320, cursorY_ = 240;
};

}  // namespace lf
