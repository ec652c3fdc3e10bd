// The fight screen's panels: background, warning lamps, energy gauges,
// crew and system bars, special systems, weapon lines, target buttons, the
// opponent's ship and gauges, the surrender lamp and the static.
#include <algorithm>
#include <charconv>
#include <cmath>

#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {
namespace {

bool Within(double v, double lo, double hi) { return v > lo && v < hi; }

void Blit(int x, int y, int srcX, int srcY, int w, int h, const Bitmap& b, bool keyed = true) {
  SetSrc(srcX, srcY, srcX + w, srcY + h);
  BltFast(x, y, b, keyed);
}

// Letters of the 6x6 font, letter k (from 1) at x + 6k, from the band at
// `row`.
void Letters(int x, int y, std::string_view text, int row) {
  ForEachCell(text, [&](int k, int cell) {
    if (cell < 0) return;
    Blit(x + 6 * k, y, 6 * cell, row, 6, 6, GFX.FontVsml);
  });
}

// A bar of indi_large: the empty bar, then `width` of the filled one.
void LargeBar(int y, double width) {
  Blit(35, y, 0, 0, 65, 15, GFX.FightIndiLarge);
  const int w = static_cast<int>(std::clamp(width, 0.0, 65.0));
  if (w > 0) Blit(35, y, 0, 15, w, 15, GFX.FightIndiLarge);
}

// Health of a group's slots in percent, or -1 when the group has none.
int GroupPercent(int group) {
  double health = 0, full = 0;
  const int last = std::clamp<int>(G.HardpointCount, 0, decltype(G.FittedComp)::kHi);
  for (int i = 1; i <= last; ++i) {
    if (G.FittedComp[i][1] != group) continue;
    health += G.FittedHealth[i];
    full += ComponentFullHealth(group, G.FittedComp[i][2]);
  }
  if (full == 0) return -1;
  return static_cast<int>(Int(std::clamp(health / full * 100, -1.0, 1000.0)));
}

// The special systems' rows.
constexpr int kSpecialY[6] = {0, 347, 371, 395, 419, 443};
constexpr int kSpecialTop[6] = {0, 347, 371, 395, 419, 443};
constexpr int kSpecialBottom[6] = {0, 367, 395, 419, 443, 467};

// The name on a weapon line.
std::string_view LineName(int line) {
  switch (RackValue(line)) {
    case kDragon: return "DRAGON ION BEAM";
    case kRapier: return "RAPIER MISSILE";
    case kShrike: return "SHRIKE MISSILE";
    default: break;
  }
  const int group = LineGroup(line);
  if (group != 1 && group != 3) return {};
  return FightComponentName(group, LineModel(line));
}

void Gauge(int x, int column, double fraction) {
  const int h = static_cast<int>(Int(std::clamp(fraction, 0.0, 1.0) * 100));
  if (h > 0) Blit(x, 446 - h, column, 100 - h, 20, h, GFX.FightEnergy);
}

void Marker(int x, double set, double max) {
  if (max <= 0) return;
  const double y = set > max ? 346 : 446 - set / max * 100;
  Blit(x, static_cast<int>(Int(y)) - 4, 0, 0, 24, 6, GFX.FightEnergyMarker);
}

void OpponentBar(int labelX, int labelY, int labelRow, int barX, int barY, double value, double full) {
  Blit(labelX, labelY, 0, labelRow * 11, 25, 11, GFX.FightComps);
  Blit(barX, barY, 0, 0, 50, 12, GFX.FightIndiSmall);
  double w = full != 0 ? Int(value / full * 50) : 1;
  w = std::clamp(w, 1.0, 50.0);
  Blit(barX, barY, 0, 12, static_cast<int>(w), 12, GFX.FightIndiSmall);
}

}  // namespace

void d_DrawFightBack() { Blit(0, 0, 0, 0, 640, 480, GFX.FightBack, false); }

void d_DrawWarnings() {
  bool missileComing = false;
  for (int i = 1; i <= std::clamp<int>(G.EnemyWeaponSlot[0], 0, 10); ++i)
    if (LoadoutGroup(G.EnemyWeaponSlot[i]) == 3 && G.EnemyReload[i] > 1) missileComing = true;
  for (int i = 1; i <= 5; ++i)
    if (G.Warning[i] > 0 || (i == 1 && missileComing)) Blit(11, 324 + (i - 1) * 29, 0, (i - 1) * 29, 95, 29, GFX.FightWarnings);
}

void d_DrawEnergy() {
  if (G.PowerTotal > 0) Gauge(446, 0, static_cast<double>(G.PowerFree) / G.PowerTotal);
  if (G.WeaponEnergyMax > 0) Gauge(473, 20, G.WeaponEnergy / G.WeaponEnergyMax);
  if (G.ShieldEnergyMax > 0) Gauge(500, 40, G.ShieldEnergy / G.ShieldEnergyMax);
  Marker(470, G.WeaponPowerSet, G.WeaponEnergyMax);
  Marker(497, G.ShieldPowerSet, G.ShieldEnergyMax);
}

void d_DrawCrewHealth() {
  for (int post = 1; post <= 6; ++post) {
    const CrewPostRecord& crew = G.CrewPost[post];
    // An empty post shows an empty bar, whatever health it last had.
    LargeBar(189 + (post - 1) * 20, crew.Person != 0 ? Int(crew.Health / 100 * 65) : 0);
  }
}

void d_DrawComponentStatus() {
  double hull = 0;
  if (G.HullPointsMax > 0) hull = Int(G.HullPoints / G.HullPointsMax * 65);
  LargeBar(69, hull);
  constexpr int kGroups[5] = {7, 4, 5, 1, 6};  // shields, generators, engines, beams, sensors
  for (int k = 0; k < 5; ++k) {
    const int percent = GroupPercent(kGroups[k]);
    LargeBar(89 + 20 * k, percent > 2 ? Int(percent * 0.65) : 0);
  }
}

void d_DrawSpecialComponents() {
  for (int i = 1; i <= 5; ++i) {
    if (!SpecialSystemOwned(i)) continue;
    const int y = kSpecialY[i];
    int column = 0;
    if (Within(G.MouseX, 130, 230) && Within(G.MouseY, kSpecialTop[i], kSpecialBottom[i])) column = 88;
    if (G.SpecialTimer[i] > 0) column = 176;
    Blit(140, y, column, (i - 1) * 24, 88, 24, GFX.FightSpecs);
    Blit(123, y + 5, G.SpecialTimer[i] != 0 ? 6 : 0, 0, 6, 6, GFX.FightReadyButton);
  }
}

void d_DrawShipWeapons() {
  const int lines = std::clamp<int>(G.WeaponRack[0], 0, 10);
  for (int i = 1; i <= lines; ++i) {
    const int y = 350 + (i - 1) * 11;
    const std::string_view name = LineName(i);
    if (name.empty()) continue;
    int row = 0;
    if (i == G.WeaponSelected) row = 6;
    if (Within(G.MouseX, 254, 360) && Within(G.MouseY, 348 + (i - 1) * 11, 348 + i * 11)) row = 18;
    Blit(254, y, G.WeaponReload[i] < 0 ? 6 : 0, 0, 6, 6, GFX.FightReadyButton);
    Letters(260, y, name, row);
  }
  // The selected launcher's rounds.
  const int v = RackValue(G.WeaponSelected);
  if (v == kRapier || v == kShrike) {
    Letters(265, 450, "AMMO: 1", 0);
  } else if (LineGroup(G.WeaponSelected) == 3 && decltype(G.AmmoLeft)::InBounds(v)) {
    char text[16] = "AMMO: ";
    const auto end = std::to_chars(text + 6, text + sizeof text, G.AmmoLeft[v]).ptr;
    Letters(265, 450, std::string_view(text, static_cast<std::size_t>(end - text)), 0);
  }
}

void d_DrawTargets() {
  for (int i = 1; i <= 5; ++i) {
    const int y = 346 + (i - 1) * 23;
    const bool hot = Within(G.MouseX, 376, 426) && Within(G.MouseY, y, y + 23);
    Blit(376, y, (i - 1) * 50, hot ? 0 : 20, 50, 20, GFX.FightTargetButt);
  }
}

void d_DrawOtherShip() {
  const int frame = static_cast<int>(Int(std::clamp(std::abs(G.FightRange), 0.0, 49.0)));
  Blit(152, 104, frame * 322, 0, 322, 144, GFX.FightOShip);
  G.EnemyFrameIcon += 0.2;
  if (!(G.EnemyFrameIcon >= 0 && G.EnemyFrameIcon < 8)) G.EnemyFrameIcon = 0;
  Blit(565, 55 + static_cast<int>(Int(frame * 6.2)), static_cast<int>(Int(G.EnemyFrameIcon)) * 25, 0, 25, 25,
       GFX.FightEnemyIcon);
}

void d_DrawSurrenderSelection() { Blit(18, 39, 0, G.SurrenderOffered != 0 ? 9 : 0, 90, 9, GFX.FightSurrender); }

void d_DrawOpponentGauges() {
  OpponentBar(148, 10, 0, 176, 9, G.EnemyHull, G.EnemyHullMax);
  OpponentBar(148, 28, 1, 176, 26, G.EnemyShields, G.EnemyShieldsMax);
  OpponentBar(280, 10, 2, 308, 9, G.EnemyPower, G.EnemyPowerMax);
  OpponentBar(280, 28, 3, 308, 26, G.EnemyPropulsion, G.EnemyPropulsionMax);
  OpponentBar(412, 10, 4, 440, 9, G.EnemyWeapons, G.EnemyWeaponsMax);
  OpponentBar(412, 28, 5, 440, 26, G.EnemyComputer, G.EnemyComputerMax);
}

void d_DrawStatic() {
  if (G.StaticOn == 0) return;
  const int h = static_cast<int>(Int(Rnd() * 60)) + 1;
  const int pic = std::clamp<int>(G.StaticFrame, 1, 5);
  Blit(118, G.StaticY, 0, 0, 400, h, GFX.StaticBig[pic]);
  // The crackle is asked for now and then, not restarted every frame.
  if (Rnd() < 0.1) PlaySoundFx(6, -1);
}

}  // namespace lf
