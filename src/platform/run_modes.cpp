#include "platform/run_modes.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

#include <SDL.h>

#include "media/clip_player.h"
#include "media/media_backend.h"
#include "media/mute.h"
#include "platform/headless_host.h"
#include "platform/sdl_host.h"
#include "shell/program.h"

namespace lf {
namespace {

int RunOn(Host& host) {
  SetHost(&host);
  int status = 0;
  try {
    status = RunProgram();
  } catch (const ProgramEnd& end) {
    status = end.status;
  }
  SetHost(nullptr);
  return status;
}

bool ReadScript(const std::string& file, std::string& text) {
  std::stringstream s;
  if (file == "-") {
    s << std::cin.rdbuf();
  } else {
    std::ifstream f(file, std::ios::binary);
    if (!f) return false;
    s << f.rdbuf();
    if (f.bad()) return false;
  }
  text = s.str();
  return true;
}

}  // namespace

int RunWindowed(const Options& options) {
  int status = 0;
  {
    SdlHost host;
    std::string error;
    if (!host.Open(WindowOptions{options.windowScale, options.fullscreen}, error)) {
      if (SDL_WasInit(SDL_INIT_VIDEO) == 0)
        std::fprintf(stderr,
                     "lanefarer: no display available (%s); to run without a window use "
                     "--headless --script FILE\n",
                     error.c_str());
      else
        std::fprintf(stderr, "lanefarer: cannot open the game window: %s\n", error.c_str());
      SDL_Quit();
      return 1;
    }
    SetClipPresenter([&host](const std::uint8_t* rgb, int w, int h) { return host.PresentClipFrame(rgb, w, h); });
    const bool sound = !Muted() && OpenAudioBackend();
    status = RunOn(host);
    if (sound) CloseAudioBackend();
    SetClipPresenter(nullptr);
  }
  SDL_Quit();
  return status;
}

int RunHeadless(const Options& options) {
  // Nothing in a headless run may reach for a screen or a sound device.
  SDL_setenv("SDL_VIDEODRIVER", "dummy", 1);
  SDL_setenv("SDL_AUDIODRIVER", "dummy", 1);
  std::string text;
  if (options.script && !ReadScript(*options.script, text)) {
    std::fprintf(stderr, "lanefarer: cannot read the script \"%s\"\n", options.script->c_str());
    return 2;
  }
  std::vector<ScriptCommand> script;
  try {
    script = ParseScript(text);
  } catch (const ScriptError& e) {
    std::fprintf(stderr, "%s\n", e.Message().c_str());
    return 2;
  }
  HeadlessHost host(std::move(script), options.seed);
  return RunOn(host);
}

}  // namespace lf
