// What the game needs from the machine it runs on: input, the cursor, a
// place to show finished frames, pacing and a seed. The SDL window and the
// headless driver (src/platform) implement it; tests use ScriptedHost.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "shell/program.h"

namespace lf {

struct InputEvent {
  enum class Kind { MouseDown, KeyDown, Close };
  Kind kind = Kind::MouseDown;
  int button = 1;  // mouse: 1 left, 2 right
  int key = 0;     // the game's key codes: 27 Escape, 37..40 arrows
};

class Host {
 public:
  virtual ~Host() = default;
  // Called once in every yield: append the input that arrived since the
  // last yield, in order.
  virtual void PumpInput(std::vector<InputEvent>& out) = 0;
  // Shows a finished 640x480 RGB565 frame.
  virtual void Present(const std::uint16_t* pixels, int pitchBytes) = 0;
  // The cursor in 640x480 screen space.
  virtual void GetCursorPos(int& x, int& y) = 0;
  virtual void SetCursorPos(int x, int y) = 0;
  // Waits so that frames run at 60 a second (a headless run does not wait).
  virtual void PaceFrame() = 0;
  // The seed for "seed the random generator from the clock".
  virtual std::uint64_t ClockSeed() = 0;
  // Saves the last shown frame as a picture for the player (F12): true with
  // `where` the file, false with `where` the reason.
  virtual bool SaveScreenshot(std::string& where) {
    where = "screenshots are not taken here";
    return false;
  }
};

// A host for tests: input is queued by the test and delivered one batch a
// yield; presented frames are counted and the cursor is a plain variable.
class ScriptedHost : public Host {
 public:
  std::deque<std::vector<InputEvent>> batches;
  int cursorX = 0, cursorY = 0;
  long presented = 0;
  std::uint64_t seed = 1;

  void Click(int x, int y, int button = 1) {
    batches.push_back({InputEvent{InputEvent::Kind::MouseDown, button, 0}});
    pendingCursor.push_back({x, y});
  }
  void Key(int code) { batches.push_back({InputEvent{InputEvent::Kind::KeyDown, 1, code}}); pendingCursor.push_back({-1, -1}); }
  // Several events delivered in one yield.
  void Send(std::vector<InputEvent> batch) {
    batches.push_back(std::move(batch));
    pendingCursor.push_back({-1, -1});
  }
  // Yields with no input.
  void Wait(int yields) {
    for (int i = 0; i < yields; ++i) {
      batches.push_back({});
      pendingCursor.push_back({-1, -1});
    }
  }
  void CloseWindow() {
    batches.push_back({InputEvent{InputEvent::Kind::Close, 1, 0}});
    pendingCursor.push_back({-1, -1});
  }
  // Yields left before the host ends the program with status -1 (a test that
  // would otherwise wait for ever); -1 for no limit.
  long yieldBudget = -1;

  void PumpInput(std::vector<InputEvent>& out) override {
    if (yieldBudget == 0) throw ProgramEnd{-1};
    if (yieldBudget > 0) --yieldBudget;
    if (batches.empty()) return;
    auto [x, y] = pendingCursor.front();
    pendingCursor.pop_front();
    if (x >= 0) { cursorX = x; cursorY = y; }
    for (auto& e : batches.front()) out.push_back(e);
    batches.pop_front();
  }
  void Present(const std::uint16_t*, int) override { ++presented; }
  void GetCursorPos(int& x, int& y) override { x = cursorX; y = cursorY; }
  void SetCursorPos(int x, int y) override { cursorX = x; cursorY = y; }
  void PaceFrame() override {}
  std::uint64_t ClockSeed() override { return seed; }

 private:
  struct Pos { int x, y; };
  std::deque<Pos> pendingCursor;
};

// The host the game runs on; a ScriptedHost until the program sets another.
Host& CurrentHost();
void SetHost(Host* host);  // nullptr puts the default scripted host back

}  // namespace lf
