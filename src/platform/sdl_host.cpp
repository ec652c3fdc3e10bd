#include "platform/sdl_host.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>

#include <SDL.h>

#include "platform/headless_host.h"
#include "platform/screenshot_file.h"
#include "shell/game_state.h"
#include "shell/paths.h"
#include "shell/screenshot.h"

namespace lf {
namespace {
constexpr int kW = 640, kH = 480;

// Closing the window sends both a window close and a quit: one is enough.
void PushClose(std::vector<InputEvent>& out) {
  if (!out.empty() && out.back().kind == InputEvent::Kind::Close) return;
  out.push_back(InputEvent{InputEvent::Kind::Close, 1, 0});
}
}  // namespace

int GameKeyCode(int sdlKey) {
  switch (sdlKey) {
    case SDLK_ESCAPE: return 27;
    case SDLK_LEFT: return 37;
    case SDLK_UP: return 38;
    case SDLK_RIGHT: return 39;
    case SDLK_DOWN: return 40;
    default: return 0;
  }
}

SdlHost::~SdlHost() {
  if (clipTexture_) SDL_DestroyTexture(clipTexture_);
  if (texture_) SDL_DestroyTexture(texture_);
  if (renderer_) SDL_DestroyRenderer(renderer_);
  if (window_) SDL_DestroyWindow(window_);
  if (videoStarted_) SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

bool SdlHost::Open(const WindowOptions& options, std::string& error) {
  SDL_SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "nearest");
  SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
  SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
  // Only real displays: SDL would otherwise fall back to an invisible
  // off-screen driver. A driver named in SDL_VIDEODRIVER is taken as asked.
  if (!SDL_getenv("SDL_VIDEODRIVER")) {
    std::string drivers;
    if (const char* d = SDL_getenv("DISPLAY"); d && *d) drivers += "x11,";
    if (const char* d = SDL_getenv("WAYLAND_DISPLAY"); d && *d) drivers += "wayland,";
    drivers += "KMSDRM";
    SDL_SetHint(SDL_HINT_VIDEODRIVER, drivers.c_str());
  }
  if (SDL_InitSubSystem(SDL_INIT_VIDEO | SDL_INIT_EVENTS) != 0) {
    error = SDL_GetError();
    return false;
  }
  videoStarted_ = true;

  SDL_Rect usable{0, 0, kW * 2, kH * 2 + 80};
  if (SDL_GetDisplayUsableBounds(0, &usable) != 0) SDL_GetDisplayBounds(0, &usable);
  const int scale = OpeningScale(usable.w, usable.h, options.scale);

  Uint32 flags = SDL_WINDOW_RESIZABLE;
  if (options.fullscreen) flags |= SDL_WINDOW_FULLSCREEN_DESKTOP;
  window_ = SDL_CreateWindow("Lanefarer", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, kW * scale, kH * scale,
                             flags);
  if (!window_) {
    error = SDL_GetError();
    return false;
  }
  SDL_SetWindowMinimumSize(window_, kW, kH);

  // No vsync: the pacer holds 60 frames a second on any display.
  renderer_ = SDL_CreateRenderer(window_, -1, SDL_RENDERER_ACCELERATED);
  if (!renderer_) renderer_ = SDL_CreateRenderer(window_, -1, SDL_RENDERER_SOFTWARE);
  if (!renderer_) {
    error = SDL_GetError();
    return false;
  }
  texture_ = SDL_CreateTexture(renderer_, SDL_PIXELFORMAT_RGB565, SDL_TEXTUREACCESS_STREAMING, kW, kH);
  if (!texture_) {
    error = SDL_GetError();
    return false;
  }
  SDL_ShowCursor(SDL_DISABLE);
  SDL_SetRenderDrawColor(renderer_, 0, 0, 0, 255);
  SDL_RenderClear(renderer_);
  SDL_RenderPresent(renderer_);
  pacer_ = FramePacer(SDL_GetPerformanceFrequency(), 60);
  sessionSeed_ = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  frame_.assign(static_cast<std::size_t>(kW) * kH, 0);
  if (Verbose()) {
    SDL_RendererInfo info{};
    SDL_GetRendererInfo(renderer_, &info);
    std::fprintf(stderr, "lanefarer: window %dx%d (scale %d) on %s, renderer %s\n", kW * scale, kH * scale, scale,
                 SDL_GetCurrentVideoDriver(), info.name ? info.name : "?");
  }
  return true;
}

Letterbox SdlHost::MouseBox() const {
  int w = kW, h = kH;
  SDL_GetWindowSize(window_, &w, &h);
  return FitFrame(w, h);
}

void SdlHost::ToggleFullscreen() {
  const bool full = (SDL_GetWindowFlags(window_) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
  SDL_SetWindowFullscreen(window_, full ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
  if (onWindowChange) onWindowChange(!full, 0);
}

void SdlHost::HandleEvent(const SDL_Event& e, std::vector<InputEvent>& out) {
  switch (e.type) {
    case SDL_QUIT:
      PushClose(out);
      break;
    case SDL_WINDOWEVENT:
      if (e.window.event == SDL_WINDOWEVENT_CLOSE) PushClose(out);
      // A window the player resized keeps its whole-number scale for the
      // next start; fullscreen sizes are not the player's choice of scale.
      if (e.window.event == SDL_WINDOWEVENT_RESIZED && onWindowChange &&
          !(SDL_GetWindowFlags(window_) & SDL_WINDOW_FULLSCREEN_DESKTOP)) {
        const int scale = std::max(1, std::min(e.window.data1 / kW, e.window.data2 / kH));
        onWindowChange(false, scale);
      }
      break;
    case SDL_MOUSEMOTION:
      WindowToScreen(MouseBox(), e.motion.x, e.motion.y, cursorX_, cursorY_);
      break;
    case SDL_MOUSEBUTTONDOWN: {
      int button = 0;
      if (e.button.button == SDL_BUTTON_LEFT) button = 1;
      if (e.button.button == SDL_BUTTON_RIGHT) button = 2;
      if (!button) break;
      WindowToScreen(MouseBox(), e.button.x, e.button.y, cursorX_, cursorY_);
      out.push_back(InputEvent{InputEvent::Kind::MouseDown, button, 0});
      break;
    }
    case SDL_KEYDOWN: {
      const SDL_Keycode sym = e.key.keysym.sym;
      if ((sym == SDLK_RETURN || sym == SDLK_KP_ENTER) && (e.key.keysym.mod & KMOD_ALT)) {
        if (!e.key.repeat) ToggleFullscreen();
        break;
      }
      if (sym == SDLK_F11) {
        if (!e.key.repeat) ToggleFullscreen();
        break;
      }
      if (sym == SDLK_F12) {
        if (!e.key.repeat) out.push_back(InputEvent{InputEvent::Kind::KeyDown, 1, kScreenshotKey});
        break;
      }
      const int code = GameKeyCode(sym);
      // Held arrows repeat and keep the view moving; a held Escape opens
      // the menu once.
      if (code == 0 || (code == 27 && e.key.repeat)) break;
      out.push_back(InputEvent{InputEvent::Kind::KeyDown, 1, code});
      break;
    }
    default:
      break;
  }
}

void SdlHost::PumpInput(std::vector<InputEvent>& out) {
  out.insert(out.end(), heldBack_.begin(), heldBack_.end());
  heldBack_.clear();
  SDL_Event e;
  while (SDL_PollEvent(&e)) HandleEvent(e, out);
}

void SdlHost::Present(const std::uint16_t* pixels, int pitchBytes) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(pixels);
  for (int y = 0; y < kH; ++y)
    std::memcpy(frame_.data() + static_cast<std::size_t>(y) * kW, bytes + static_cast<std::ptrdiff_t>(y) * pitchBytes,
                kW * sizeof(std::uint16_t));
  SDL_UpdateTexture(texture_, nullptr, pixels, pitchBytes);
  ShowTexture(texture_);
}

void SdlHost::ShowTexture(SDL_Texture* texture) {
  int w = kW, h = kH;
  SDL_GetRendererOutputSize(renderer_, &w, &h);
  const Letterbox box = FitFrame(w, h);
  const SDL_Rect dst{box.x, box.y, box.w, box.h};
  SDL_SetRenderDrawColor(renderer_, 0, 0, 0, 255);
  SDL_RenderClear(renderer_);
  SDL_RenderCopy(renderer_, texture, nullptr, &dst);
  SDL_RenderPresent(renderer_);
}

bool SdlHost::PresentClipFrame(const std::uint8_t* rgb, int w, int h) {
  if (!clipTexture_ || w != clipW_ || h != clipH_) {
    if (clipTexture_) SDL_DestroyTexture(clipTexture_);
    clipTexture_ = SDL_CreateTexture(renderer_, SDL_PIXELFORMAT_RGB24, SDL_TEXTUREACCESS_STREAMING, w, h);
    clipW_ = w;
    clipH_ = h;
  }
  if (clipTexture_) {
    SDL_UpdateTexture(clipTexture_, nullptr, rgb, w * 3);
    ShowTexture(clipTexture_);
  }
  std::vector<InputEvent> events;
  SDL_Event e;
  bool goOn = true;
  while (SDL_PollEvent(&e)) {
    // Any key or mouse button ends the clip, not only those the game reads
    // (the fullscreen keys toggle and let it run on); the press is not
    // passed on to the game.
    const bool fullscreenKey = e.type == SDL_KEYDOWN &&
                               (e.key.keysym.sym == SDLK_F11 ||
                                ((e.key.keysym.sym == SDLK_RETURN || e.key.keysym.sym == SDLK_KP_ENTER) &&
                                 (e.key.keysym.mod & KMOD_ALT)));
    if ((e.type == SDL_KEYDOWN && !e.key.repeat && !fullscreenKey) || e.type == SDL_MOUSEBUTTONDOWN) goOn = false;
    HandleEvent(e, events);
  }
  for (const InputEvent& ev : events) {
    if (ev.kind == InputEvent::Kind::Close) {
      heldBack_.push_back(ev);
      goOn = false;
    }
  }
  return goOn;
}

void SdlHost::GetCursorPos(int& x, int& y) {
  x = cursorX_;
  y = cursorY_;
}

void SdlHost::SetCursorPos(int x, int y) {
  cursorX_ = std::clamp(x, 0, kW - 1);
  cursorY_ = std::clamp(y, 0, kH - 1);
  if (!(SDL_GetWindowFlags(window_) & SDL_WINDOW_INPUT_FOCUS)) return;
  int wx = 0, wy = 0;
  ScreenToWindow(MouseBox(), cursorX_, cursorY_, wx, wy);
  SDL_WarpMouseInWindow(window_, wx, wy);
}

void SdlHost::PaceFrame() {
  const std::uint64_t start = pacer_.NextStart(SDL_GetPerformanceCounter());
  const std::uint64_t freq = SDL_GetPerformanceFrequency();
  for (;;) {
    const std::uint64_t now = SDL_GetPerformanceCounter();
    if (now >= start) break;
    const std::uint64_t ms = (start - now) * 1000 / freq;
    // Sleep while more than a couple of milliseconds remain, then spin.
    if (ms > 2) SDL_Delay(static_cast<Uint32>(ms - 1));
    else SDL_Delay(0);
  }
}

std::uint64_t SdlHost::ClockSeed() { return HeadlessSeed(sessionSeed_, G.Frame); }

bool SdlHost::SaveScreenshot(std::string& where) { return WriteScreenshot(frame_.data(), where); }

}  // namespace lf
