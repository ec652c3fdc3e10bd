// The death hand-over and the full-screen pictures.
#include "shell/death.h"

#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/screens.h"

namespace lf {

void EventHandler() {
  if (G.StatusSlot[DeadSlot].Active != True) return;
  DrawSingle(8);
  PlayTrack(2);
  G.MenuActive = True;
  G.NoGameRunning = True;
  DrawMainMenu();
}

void DrawSingle(int Pic) {
  G.ClickSeen = False;
  while (G.ClickSeen == 0) {
    Skip([Pic] {
      SetSrc(0, 0, 640, 480);
      BltFast(0, 0, GFX.FullPicture[Pic], false);
    });
    FlipBuffers();
    MoveCursor(0, 0);
    Yield();
  }
}

}  // namespace lf
