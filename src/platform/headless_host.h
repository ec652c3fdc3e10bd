// The headless driver: no window, no sound device, no waiting. The game
// pulls its input from a script: at each yield (one PumpInput) the driver
// runs script lines until it holds a budget of frames, then spends one
// frame of it and hands over the input queued for that yield. Commands
// therefore run inside a yield, after that frame was drawn and shown and
// before its input. Running off the end of the script, or `quit`, ends the
// program with status 0; a line that fails prints "script:LINE: what" on
// the error stream and ends it with status 2.
#pragma once

#include <cstdint>
#include <iostream>
#include <vector>

#include "platform/script.h"
#include "shell/host.h"

namespace lf {

// "Seed the random generator from the clock", headless: the --seed value
// mixed with the frame counter, so a run repeats exactly.
std::uint64_t HeadlessSeed(std::uint64_t seed, std::int64_t frame);

class HeadlessHost : public Host {
 public:
  HeadlessHost(std::vector<ScriptCommand> script, std::uint64_t seed, std::ostream& err = std::cerr);

  void PumpInput(std::vector<InputEvent>& out) override;
  void Present(const std::uint16_t* pixels, int pitchBytes) override;
  void GetCursorPos(int& x, int& y) override;
  void SetCursorPos(int x, int y) override;
  void PaceFrame() override {}
  std::uint64_t ClockSeed() override;
  bool SaveScreenshot(std::string& where) override;

  // Yields served so far.
  std::int64_t Yields() const { return yields_; }
  // The last presented frame, 640x480 RGB565, black before the first.
  const std::vector<std::uint16_t>& LastFrame() const { return frame_; }

 private:
  void Run(const ScriptCommand& cmd);
  void Queue(int x, int y, const InputEvent* event);
  [[noreturn]] void Fail(const ScriptCommand& cmd, const std::string& what);

  std::vector<ScriptCommand> script_;
  std::size_t next_ = 0;
  std::uint64_t seed_;
  std::ostream& err_;
  std::int64_t budget_ = 0;
  std::int64_t yields_ = 0;
  std::vector<InputEvent> pending_;
  bool cursorPending_ = false;
  int pendingX_ = 0, pendingY_ = 0;
  int cursorX_ = 320, cursorY_ = 240;
  std::vector<std::uint16_t> frame_;
};

}  // namespace lf
