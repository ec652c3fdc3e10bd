// Fight procedures not written yet.
#include "combat/combat_procedures.h"
#include "display/screen.h"
#include "shell/clocks.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/screens.h"

namespace lf {

// Fight loop and screen: filled by the fight. Until then a fight only raises
// its flag and swaps the clocks, and a frame shows only the cursor.
void d_FightLoopBegin() {
  G.FightActive = True;
  StopTimer1();
  StartTimer2();
}
void d_FightLoopFrame() {
  StartTimer2();
  a_DrawCursor();
  FlipBuffers();
  Yield();
}
void d_FightLoopEnd() {}
void d_CheckMouseDown() {}

// Opponent: filled by the opponent's rules.
void d_CheckOpponentWeaponHit(int) {}
void d_OpponentFireWeapon() {}

}  // namespace lf
