// The game in an SDL window: a 640x480 frame scaled by a whole number and
// letterboxed, fullscreen on Alt+Enter or F11, the system cursor hidden
// (the game draws its own), 60 frames a second by the performance counter
// whatever the display's refresh.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/frame_pacer.h"
#include "platform/letterbox.h"
#include "shell/host.h"

struct SDL_Window;
struct SDL_Renderer;
struct SDL_Texture;
union SDL_Event;

namespace lf {

struct WindowOptions {
  int scale = 0;  // 0: the largest that fits the desktop, up to 3
  bool fullscreen = false;
};

class SdlHost : public Host {
 public:
  SdlHost() = default;
  ~SdlHost() override;
  SdlHost(const SdlHost&) = delete;
  SdlHost& operator=(const SdlHost&) = delete;

  // Initialises SDL video and opens the window. False, with `error` set,
  // when there is no display or the window cannot be made.
  bool Open(const WindowOptions& options, std::string& error);

  void PumpInput(std::vector<InputEvent>& out) override;
  void Present(const std::uint16_t* pixels, int pitchBytes) override;
  void GetCursorPos(int& x, int& y) override;
  void SetCursorPos(int x, int y) override;
  void PaceFrame() override;
  // One seed drawn from the wall clock when the window opens, mixed with
  // the frame counter as a headless run does, so a recorded session replays.
  std::uint64_t ClockSeed() override;
  std::uint64_t SessionSeed() const { return sessionSeed_; }
  bool SaveScreenshot(std::string& where) override;

  // Told when the player toggles fullscreen or resizes the window: the new
  // fullscreen state and the window's whole-number scale.
  std::function<void(bool fullscreen, int scale)> onWindowChange;

  // Shows one picture of a clip scaled into the window and handles the
  // window's events: false when a key or click ends the clip (that press is
  // not passed on to the game) or the window is closed (the close is kept
  // for the game's next yield).
  bool PresentClipFrame(const std::uint8_t* rgb, int w, int h);

 private:
  void ToggleFullscreen();
  // Draws a texture scaled into the letterbox and presents it.
  void ShowTexture(SDL_Texture* texture);
  void HandleEvent(const SDL_Event& e, std::vector<InputEvent>& out);
  Letterbox MouseBox() const;

  SDL_Window* window_ = nullptr;
  SDL_Renderer* renderer_ = nullptr;
  SDL_Texture* texture_ = nullptr;
  SDL_Texture* clipTexture_ = nullptr;
  int clipW_ = 0, clipH_ = 0;
  std::vector<InputEvent> heldBack_;  // a close seen while a clip played
  bool videoStarted_ = false;
  int cursorX_ = 320, cursorY_ = 240;
  FramePacer pacer_{1, 60};
  std::uint64_t sessionSeed_ = 0;
  std::vector<std::uint16_t> frame_;  // the last frame shown, for F12
};

// The game's code for an SDL key, or 0 for a key the game ignores.
int GameKeyCode(int sdlKey);

}  // namespace lf
