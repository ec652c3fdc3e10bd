#include "platform/run_modes.h"

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <fstream>
#include <iostream>
#include <sstream>

#include <SDL.h>

#include "media/clip_player.h"
#include "media/media_backend.h"
#include "media/mute.h"
#include "media/volume.h"
#include "platform/headless_host.h"
#include "platform/monkey_host.h"
#include "platform/recorder.h"
#include "platform/sdl_host.h"
#include "platform/settings.h"
#include "shell/program.h"
#include "shell/save_store.h"
#include "shell/screenshot.h"

namespace lf {
namespace {

int RunOn(Host& inner, const std::optional<std::string>& record, std::uint64_t seed) {
  std::ofstream file;
  std::optional<RecordingHost> recording;
  if (record) {
    file.open(*record, std::ios::binary | std::ios::trunc);
    if (!file) {
      std::fprintf(stderr, "lanefarer: cannot write the recording \"%s\"\n", record->c_str());
      return 2;
    }
    recording.emplace(inner, file, seed);
  }
  Host& host = recording ? static_cast<Host&>(*recording) : inner;
  SetHost(&host);
  int status = 0;
  try {
    status = RunProgram();
  } catch (const ProgramEnd& end) {
    status = end.status;
  }
  SetHost(nullptr);
  if (recording) recording->Finish();
  return status;
}

// The player's settings, with the command line over them for this run.
struct WindowedSettings {
  std::optional<std::string> path;
  Settings saved;     // what the file holds (changed by toggles and resizes)
  Settings in_force;  // what this run uses
};

WindowedSettings ReadSettings(const Options& options) {
  WindowedSettings w;
  w.path = SettingsPath(std::getenv("XDG_CONFIG_HOME"), std::getenv("HOME"));
  if (w.path) {
    std::string report;
    w.saved = LoadSettings(*w.path, report);
    if (!report.empty()) std::fprintf(stderr, "lanefarer: %s\n", report.c_str());
  }
  w.in_force = w.saved;
  if (options.windowScale > 0) w.in_force.windowScale = options.windowScale;
  if (options.fullscreen) w.in_force.fullscreen = true;
  return w;
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
  WindowedSettings settings = ReadSettings(options);
  SetTooltipsAtStart(settings.in_force.tooltips);
  {
    SdlHost host;
    std::string error;
    if (!host.Open(WindowOptions{settings.in_force.windowScale, settings.in_force.fullscreen}, error)) {
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
    host.onWindowChange = [&settings](bool fullscreen, int scale) {
      if (!settings.path) return;
      Settings next = settings.saved;
      next.fullscreen = fullscreen;
      if (scale > 0) next.windowScale = scale;
      if (next == settings.saved) return;
      settings.saved = next;
      std::string why;
      if (!SaveSettings(*settings.path, next, why))
        std::fprintf(stderr, "lanefarer: cannot write the settings file %s: %s\n", settings.path->c_str(),
                     why.c_str());
    };
    if (settings.in_force.clips)
      SetClipPresenter([&host](const std::uint8_t* rgb, int w, int h) { return host.PresentClipFrame(rgb, w, h); });
    const bool sound = !Muted() && OpenAudioBackend();
    if (sound) SetAudioVolumes(settings.in_force.soundVolume, settings.in_force.musicVolume);
    // In a window a save's wait on the disk runs beside the game.
    SetBackgroundCommits(true);
    status = RunOn(host, options.record, host.SessionSeed());
    WaitForCommit();
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
  if (options.monkey > 0) {
    MonkeyHost monkey(options.monkey, options.seed);
    return RunOn(monkey, options.record, options.seed);
  }
  std::vector<ScriptCommand> script;
  try {
    script = ParseScript(text);
  } catch (const ScriptError& e) {
    std::fprintf(stderr, "%s\n", e.Message().c_str());
    return 2;
  }
  // A recording of a replay starts from the seed the script sets first.
  std::uint64_t seed = options.seed;
  if (!script.empty() && script.front().kind == ScriptCommand::Kind::Seed) seed = script.front().seed;
  HeadlessHost host(std::move(script), options.seed);
  return RunOn(host, options.record, seed);
}

}  // namespace lf
