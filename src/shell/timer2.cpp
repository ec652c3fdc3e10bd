// The 1000 ms clock of a fight: reloads, special systems, the opponent's
// shots, warning lamps and the three exit countdowns.
#include "combat/combat_procedures.h"
#include "shell/clocks.h"
#include "shell/game_state.h"

namespace lf {
namespace {

// A special system's timer counts down to 1, jumps to -1 and counts on down
// to its end value, where it stands at 0 (free again).
constexpr std::int16_t kSpecialTimerEnd[6] = {0, -3, -21, -41, -10, -20};

void CountDown(std::int16_t& v) { Assign(v, v - 1.0); }

void CountReloads() {
  for (int i = 1; i <= G.WeaponRack[0]; ++i) Skip([i] { CountDown(G.WeaponReload[i]); });
}

void CountSpecialTimers() {
  for (int i = 1; i <= 5; ++i)
    if (G.SpecialTimer[i] != 0) CountDown(G.SpecialTimer[i]);
  for (int i = 1; i <= 5; ++i) {
    if (G.SpecialTimer[i] == 1)
      G.SpecialTimer[i] = -1;
    else if (G.SpecialTimer[i] == kSpecialTimerEnd[i])
      G.SpecialTimer[i] = 0;
  }
}

void CountOpponentReloads() {
  for (int i = 1; i <= G.EnemyWeaponSlot[0]; ++i) {
    Skip([i] {
      if (G.EnemyReload[i] > 0) G.EnemyReload[i] -= 1;
      if (G.EnemyReload[i] == 1) d_CheckOpponentWeaponHit(i);
    });
  }
}

void CountWarnings() {
  for (int i = 1; i <= 5; ++i)
    if (G.Warning[i] > 0) G.Warning[i] -= 1;
}

void CountSurrender() {
  if (G.SurrenderTimer > 0) G.SurrenderTimer -= 1;
  if (G.SurrenderTimer == 1) G.FightActive = False;
}

void CountFlee() {
  if (G.FleeTimer > 0) G.FleeTimer -= 1;
  if (G.FleeTimer == 1) G.FightActive = False;
}

void CountAutodestruct() {
  if (G.AutodestructTimer > 0) G.AutodestructTimer -= 1;
  if (G.AutodestructTimer == 1) d_LoseGame(1);
}

}  // namespace

void Timer2_Timer() {
  Skip(CountReloads);
  Skip(CountSpecialTimers);
  Skip(CountOpponentReloads);
  Skip(CountWarnings);
  Skip(CountSurrender);
  Skip(CountFlee);
  Skip(CountAutodestruct);
  Skip(d_OpponentFireWeapon);
}

}  // namespace lf
