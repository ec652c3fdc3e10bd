// The fight's loop: its entry steps, one frame, the fight's bitmaps, and
// the fight's share of the mouse.
#include "combat/combat_procedures.h"
#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "display/bitmap_catalog.h"
#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/clocks.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/screens.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

std::string N(long long n) { return std::to_string(n); }

// The shot picture of weapon line i, "" for an empty line.
std::string WeaponFile(int line) {
  const int v = RackValue(line);
  if (v == kDragon) return R"(\gfx\fight\wpns\dragon.bmp)";
  if (v == kRapier) return R"(\gfx\fight\wpns\rapier.bmp)";
  if (v == kShrike) return R"(\gfx\fight\wpns\shrike.bmp)";
  if (LineGroup(line) == 1) return R"(\gfx\fight\wpns\l_)" + N(LineModel(line)) + ".bmp";
  if (LineGroup(line) == 3) return R"(\gfx\fight\wpns\r_)" + N(LineModel(line)) + ".bmp";
  return "";
}

void ResetFight() {
  G.SurrenderTimer = 0;
  G.SurrenderOffered = 0;
  G.AutodestructTimer = 0;
  G.FleeTimer = 0;
  G.SpecialTimer.Items.fill(0);
  G.Warning.Items.fill(0);
  G.WeaponSelected = 0;
  G.TargetSelected = 0;
  G.FiredWeapon = 0;
  for (std::int16_t* v : {&G.EnemyHull, &G.EnemyShields, &G.EnemyPower, &G.EnemyPropulsion, &G.EnemyWeapons,
                          &G.EnemyComputer, &G.EnemyHullMax, &G.EnemyShieldsMax, &G.EnemyPowerMax,
                          &G.EnemyPropulsionMax, &G.EnemyWeaponsMax, &G.EnemyComputerMax})
    *v = 0;
  for (std::string& line : G.FightLog) line.clear();
}

}  // namespace

void d_FightLoopBegin() {
  Skip([] { PlayTrack(2); });
  ResetFight();
  Skip(UnloadStationBitmaps);
  Skip(UnloadMainBitmaps);
  G.FightActive = True;
  if (G.FightShip == 0) Assign(G.FightShip, Int(Rnd() * G.OtherShipCount));
  Skip(d_OpponentsWeapons);
  Skip(d_CalculateOpponent);
  G.WeaponEnergy = G.ShieldEnergy = 0;
  G.WeaponEnergyMax = G.ShieldEnergyMax = 0;
  G.OrderedRange = G.EnemyRangeGoal = G.FightRange = 0;
  Skip(d_CalculateEnergyLevels);
  G.AnimMissile = G.AnimBeam = G.AnimImpact = -1;
  G.AnimEnemyShield = G.AnimOwnShield = G.AnimExplosion = -1;
  StopTimer1();
  StartTimer2();
  Skip(d_DetermineWeapons);
  G.ProgressCount = 0;
  G.ProgressMode = 4;
  Skip(d_LoadFightGfx);
  Skip(d_FightShipConfig);
}

void d_FightLoopFrame() {
  StartTimer2();
  Skip(d_CheckOShipMovement);
  Skip(d_OShipMovement);
  Skip(d_CalculateProbabilities);
  Skip(d_CheckWeaponRange);
  Skip(d_UpdateEnergy);

  Skip(d_DrawFightBack);
  Skip(d_DrawWarnings);
  Skip(d_DrawEnergy);
  Skip(d_DrawCrewHealth);
  Skip(d_DrawComponentStatus);
  Skip(d_DrawSpecialComponents);
  Skip(d_DrawShipWeapons);
  Skip(d_DrawTargets);
  if (G.EnemyHull > 0 || G.AnimExplosion == 0) Skip(d_DrawOtherShip);
  Skip(d_DrawSurrenderSelection);
  Skip(d_DrawWeapon);
  Skip(d_DrawOpponentGauges);
  Skip(d_DrawFightTxt);
  if (G.HullPoints <= G.HullPointsMax / 5.0) Skip(d_DrawStatic);
  Skip(a_DrawCursor);

  Skip(d_AddToLetterCount);
  Yield();
  FlipBuffers();
}

void d_LoadFightGfx() {
  for (const BitmapFile& f : FightSetFixed(GFX)) *f.Handle = LoadBitmapIntoDXS(f.Path);
  const ShipClassInfo info = ClassInfo(OpponentClass());
  GFX.FightOShip = LoadBitmapIntoDXS(R"(\gfx\fight\oship\)" + N(info.Race) + "_" + N(info.HullClass) + ".bmp");
  for (int line = 1; line <= decltype(GFX.WeaponPicture)::kHi; ++line) {
    const std::string file = line <= G.WeaponRack[0] ? WeaponFile(line) : "";
    if (file.empty())
      GFX.WeaponPicture[line].Reset();
    else
      GFX.WeaponPicture[line] = LoadBitmapIntoDXS(file);
  }
  // Every fight costs the opponent's race 20 points of its relation.
  if (info.Race >= 1 && info.Race <= 7) Assign(G.RaceRelation[info.Race], std::max(0, G.RaceRelation[info.Race] - 20));
}

void UnloadFightBitmaps() {
  for (const BitmapFile& f : FightSetFixed(GFX))
    if (f.Handle != &GFX.ProgressBarPicture) f.Handle->Reset();
  GFX.FightOShip.Reset();
  for (Bitmap& b : GFX.WeaponPicture) b.Reset();
}

void d_FightShipConfig() { G.FightHullClass = static_cast<std::int16_t>(ClassInfo(OpponentClass()).HullClass); }

void d_CheckMouseDown() {
  ReadCursor();
  Skip(d_CheckPowerDistribution);
  Skip(d_CheckShipMovement);
  Skip([] {
    if (G.AnimMissile == -1 && G.AnimBeam == -1 && G.WeaponSelected != 0 && G.WeaponReload[G.WeaponSelected] < 0)
      d_CheckTargetSelection();
  });
  if (G.AnimMissile == -1 && G.AnimBeam == -1) Skip(d_CheckWeaponSelection);
  Skip(d_CheckSpecialSelection);
  Skip(d_CheckSurrenderSelection);
}

}  // namespace lf
