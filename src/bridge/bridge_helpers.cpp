#include "bridge/bridge_helpers.h"

#include <algorithm>

#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"
#include "universe/catalogue.h"

namespace lf {

double AnchorX(double wx) { return 300 + wx - Int(G.ViewX); }
double AnchorY(double wy) { return 125 + wy - G.ViewY; }

bool DrawClipped(int left, int top, int w, int h, int srcLeft, int srcTop, const Bitmap& bitmap) {
  if (left + w <= kViewLeft || left >= kViewRight || top + h <= kViewTop || top >= kViewBottom)
    return false;
  int sl = srcLeft, st = srcTop, sr = srcLeft + w, sb = srcTop + h;
  if (left < kViewLeft) {
    sl += kViewLeft - left;
    left = kViewLeft;
  }
  if (left + (sr - sl) > kViewRight) sr -= left + (sr - sl) - kViewRight;
  if (top < kViewTop) {
    st += kViewTop - top;
    top = kViewTop;
  }
  if (top + (sb - st) > kViewBottom) sb -= top + (sb - st) - kViewBottom;
  SetSrc(sl, st, sr, sb);
  BltFast(left, top, bitmap, true);
  return true;
}

void DrawSmallText(int x, int y, std::string_view text, int row) {
  ForEachCell(text, [&](int k, int cell) {
    if (cell < 0) return;
    SetSrc(6 * cell, row, 6 * cell + 6, row + 6);
    BltFast(x + 6 * k, y, GFX.FontVsml, true);
  });
}

int FittedSlots() { return std::clamp<int>(G.HardpointCount, 0, decltype(G.FittedComp)::kHi); }

int SlotGroup(int slot) {
  return decltype(G.FittedComp)::InBounds(slot) ? G.FittedComp[slot][1] : 0;
}
int SlotModel(int slot) {
  return decltype(G.FittedComp)::InBounds(slot) ? G.FittedComp[slot][2] : 0;
}

namespace {

double SumOverGroup(int group) {
  double sum = 0;
  for (int i = 1; i <= FittedSlots(); ++i)
    if (SlotGroup(i) == group) sum += ComponentPowerDemand(group, SlotModel(i));
  return sum;
}

}  // namespace

double& SystemLevel(PowerSystem s) {
  switch (s) {
    case PowerSystem::Weapons: return G.WeaponLevel;
    case PowerSystem::Shields: return G.ShieldLevel;
    case PowerSystem::Propulsion: return G.PropulsionLevel;
    case PowerSystem::Sensor: return G.SensorLevel;
    case PowerSystem::LifeSupport: break;
  }
  return G.LifeSupportLevel;
}

double& SystemSetting(PowerSystem s) {
  switch (s) {
    case PowerSystem::Weapons: return G.WeaponSetting;
    case PowerSystem::Shields: return G.ShieldSetting;
    case PowerSystem::Propulsion: return G.PropulsionSetting;
    case PowerSystem::Sensor: return G.SensorSetting;
    case PowerSystem::LifeSupport: break;
  }
  return G.LifeSupportSetting;
}

double SystemDemand(PowerSystem s) {
  switch (s) {
    case PowerSystem::Weapons: return SumOverGroup(1);
    case PowerSystem::Shields: return SumOverGroup(7);
    case PowerSystem::Propulsion: return SumOverGroup(5);
    case PowerSystem::Sensor: return SumOverGroup(6);
    case PowerSystem::LifeSupport: break;
  }
  return 100;
}

double GeneratorOutput() { return SumOverGroup(4); }
double ComputerDraw() { return SumOverGroup(2); }

int GeneratorCount() {
  int n = 0;
  for (int i = 1; i <= FittedSlots(); ++i)
    if (SlotGroup(i) == 4) ++n;
  return n;
}

double EngineSpeed() {
  double sum = 0;
  for (int i = 1; i <= FittedSlots(); ++i)
    if (SlotGroup(i) == 5) sum += ComponentValue(5, SlotModel(i), 7);
  return sum;
}

double PowerUsed() {
  const double total = GeneratorOutput();
  if (total == 0) return 0;
  return (total - G.SparePower) / total * 100;
}

int OfficerSkill(int post) {
  int skill = 0;
  Skip([&] { skill = G.Character[G.CrewPost[post].Person].Skill; });
  return skill;
}

int OpenPage() {
  for (int p = 1; p <= 6; ++p)
    if (G.PageOpen[p] != 0) return p;
  return 0;
}

}  // namespace lf
