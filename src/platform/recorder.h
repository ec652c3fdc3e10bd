// Recorded sessions: a host wrapped by RecordingHost writes every input it
// delivers as a headless script (its seed first, then click, rclick, move
// and key lines between frames lines), so `--headless --script FILE`
// replays the session to the same state. Every host draws "seed from the
// clock" from one seed and the frame counter, so with the seed written first
// the replay draws the same numbers.
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "shell/host.h"

namespace lf {

// Turns yields into script lines. Each line is flushed at once, so a
// session that crashes leaves its input up to the crash.
class ScriptRecorder {
 public:
  ScriptRecorder(std::ostream& out, std::uint64_t seed);
  // One yield: the input it delivered, and where the cursor was before and
  // after the host took it.
  void Yield(const std::vector<InputEvent>& events, int beforeX, int beforeY, int afterX, int afterY);
  // The frames since the last input, and the end.
  void Finish();

 private:
  void Gap();
  std::ostream& out_;
  std::int64_t yields_ = 0;
  std::int64_t lastInput_ = 1;  // the yield whose commands were written last
  bool finished_ = false;
};

class RecordingHost : public Host {
 public:
  RecordingHost(Host& inner, std::ostream& out, std::uint64_t seed);
  ~RecordingHost() override;

  void PumpInput(std::vector<InputEvent>& out) override;
  void Present(const std::uint16_t* pixels, int pitchBytes) override { inner_.Present(pixels, pitchBytes); }
  void GetCursorPos(int& x, int& y) override { inner_.GetCursorPos(x, y); }
  void SetCursorPos(int x, int y) override { inner_.SetCursorPos(x, y); }
  void PaceFrame() override { inner_.PaceFrame(); }
  std::uint64_t ClockSeed() override;
  bool SaveScreenshot(std::string& where) override { return inner_.SaveScreenshot(where); }

  void Finish() { recorder_.Finish(); }

 private:
  Host& inner_;
  ScriptRecorder recorder_;
  std::vector<InputEvent> batch_;
};

}  // namespace lf
