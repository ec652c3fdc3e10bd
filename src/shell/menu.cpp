// The main menu: its frame and its six entries.
#include "shell/menu.h"

#include <memory>
#include <string>

#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/clocks.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/saved_games.h"
#include "shell/screens.h"

namespace lf {
namespace {

constexpr int kTitleHeight = 120;
constexpr int kBandHeight = 60;

void Resume() {
  if (G.NoGameRunning != 0) return;
  PlaySoundFx(4, 1);
  G.MenuActive = False;
  if (G.StatusSlot[DockedSlot].Active == True) {
    G.FightActive = False;
    PlayTrack(3);
    a_StationLoop();
  }
  if (G.StatusSlot[EventSlot].Active == True) {
    G.FightActive = False;
    PlayTrack(3);
    // An event raised but not yet entered has no loop to go back to: the
    // bridge below goes on, and enters it.
    if (G.EventActive == True) c_EventLoop();
  }
  if (G.BridgeActive == True && G.FightActive == 0) {
    PlayTrack(4);
    RunLoop();
  }
  if (G.FightActive == True) {
    // The menu loop ends, and the fight below it goes on.
    G.BridgeActive = False;
    PlayTrack(2);
  }
}

// Load in a running game reads a saved position before it leaves the
// screen under the menu: one that cannot be read leaves the game where it
// stood, with the reason on the bridge's strip. With nothing saved at all
// the bridge comes up and its strip says so.
void Load() {
  if (G.NoGameRunning == 0) {
    PlaySoundFx(4, 1);
    const std::string problem =
        SavedPositionExists() ? ReadSavedPosition(*std::make_unique<Game>(G)) : std::string();
    if (!problem.empty()) {
      if (G.BridgeActive == True && G.FightActive == 0) SetMessage("", problem, "");
      Resume();
      return;
    }
    G.StatusSlot[DockedSlot].Active = False;
    if (G.BridgeActive == 0 || G.FightActive == True) {
      // The bridge bitmaps went with the station or the fight.
      G.ProgressCount = 0;
      G.ProgressMode = 1;
      Skip(LoadMainBitmaps);
      G.ProgressMode = 0;
    }
    if (G.FightActive == True) {
      // A fight left by Load gives the clocks back as its end would.
      StopTimer2();
      StartTimer1();
    }
    G.FightActive = False;
    G.MenuActive = False;
    G.BridgeActive = True;
    Skip(LoadGame);
    PlayTrack(4);
    RunLoop();
  }
  PlaySoundFx(4, 1);
  G.MenuActive = False;
  G.LoadAfterStart = True;
  StartNew();
}

}  // namespace

int MenuEntryAt(int y) {
  for (int i = 1; i <= 6; ++i) {
    const int top = kTitleHeight + kBandHeight * (i - 1);
    if (top < y && y < top + kBandHeight) return i;
  }
  return 0;
}

void b_DrawMainMenu() {
  ReadCursor();
  Skip([] {
    SetSrc(0, 0, 640, kTitleHeight);
    BltFast(0, 0, GFX.MenuBitmap[0], false);
  });
  const int lit = MenuEntryAt(G.MouseY);
  for (int i = 1; i <= 6; ++i) {
    Skip([i, lit] {
      const int srcTop = i == lit ? kBandHeight : 0;
      SetSrc(0, srcTop, 640, srcTop + kBandHeight);
      BltFast(0, kTitleHeight + kBandHeight * (i - 1), GFX.MenuBitmap[i], false);
    });
  }
}

void DrawMainMenuFrame() {
  Skip(b_DrawMainMenu);
  Skip(a_DrawCursor);
  Yield();
  FlipBuffers();
}

void CheckMenuMouseDown() {
  ReadCursor();
  switch (MenuEntryAt(G.MouseY)) {
    case 1:  // New game
      Skip(EraseInfo);
      PlaySoundFx(4, 1);
      G.MenuActive = False;
      StartNew();
    case 2: Resume(); break;
    case 3: Load(); break;
    case 4:  // Introduction
      StopTrack();
      PlayIntro();
      PlayTrack(2);
      break;
    case 5:  // Credits
      StopTrack();
      PlayCredits();
      PlayTrack(2);
      break;
    case 6:  // Exit
      StopTrack();
      Form_Unload();
    default: break;
  }
}

}  // namespace lf
