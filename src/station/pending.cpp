// Station procedures not written yet.
#include "display/screen.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/screens.h"
#include "station/station_procedures.h"

namespace lf {

// Docking and the station loop: filled by the station screen. Until then
// the hand-over goes straight into the loop, and a pass of the loop shows
// only the cursor.
void a_EnteringStation() { a_StationLoop(); }
void a_CheckStationMouseDown() {}
void a_StationLoopFrame() {
  G.NoGameRunning = False;
  a_DrawCursor();
  FlipBuffers();
  Yield();
}

// Guilds: filled by the guild halls.
void DrawGuildMembership() {}

// Meeting lounge: filled by the lounge's news.
void a_ChangeNewsText() {}

}  // namespace lf
