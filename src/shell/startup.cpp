// Start-up and the closing sequence.
#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/menu.h"
#include "shell/program.h"
#include "shell/screens.h"
#include "shell/screenshot.h"

namespace lf {

void Form_Load() {
  // The system cursor is hidden by the host; the game draws its own.
  Quelmar();
  LoadSoundBank();
  InicializeDirectDraw();
  // No disc device to open: music is played by track role.
  PlayTrack(2);
  G.MenuActive = True;
  G.NoGameRunning = True;
  G.TooltipsOn = TooltipsAtStart() ? True : False;
  Skip(LoadMenuBitmaps);
  DrawMainMenu();
}

void Form_Unload() {
  // Every bitmap of every table goes; the surfaces, channels and devices
  // belong to the host and the media backend, which close with the process.
  Skip(Kraj);
  throw ProgramEnd{0};
}

}  // namespace lf
