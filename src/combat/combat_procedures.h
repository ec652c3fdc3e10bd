// The fight's procedures called from the shell: its share of the mouse,
// the 1000 ms clock's calls, and the three parts of d_FightLoop.
#pragma once

namespace lf {

// A press while FightActive is set.
void d_CheckMouseDown();
// From the 1000 ms clock: opponent weapon i's shot lands; the opponent fires.
void d_CheckOpponentWeaponHit(int i);
void d_OpponentFireWeapon();
// The game lost in a fight: the fight's clock stops and the fight's flag
// falls (so that nothing of the fight acts under the death picture and the
// menu), DeadSlot rises with the value given (a negative value leaves it),
// and EventHandler takes over.
void d_LoseGame(int deadValue);

// d_FightLoop (screens.h) runs d_FightLoopBegin once when called (the entry
// steps: FightActive, the clocks, the opponent, the bitmaps), then
// d_FightLoopFrame, its yield included, while FightActive is set, and then
// d_FightLoopEnd (the fight is over: back to RunLoop).
void d_FightLoopBegin();
void d_FightLoopFrame();
void d_FightLoopEnd();

}  // namespace lf
