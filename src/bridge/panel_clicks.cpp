// Presses on the sliders and lists of the officers' panels: unfitted
// components, cargo, maintenance shares, power settings, medical shares and
// quarantine.
#include "bridge/panel_clicks.h"

#include <algorithm>

#include "bridge/bridge_helpers.h"
#include "media/media.h"
#include "shell/game_state.h"

namespace lf {

namespace {

bool Between(int v, int low, int high) { return v > low && v < high; }

// A share slider moves its share by `want` while the pool can pay for it;
// otherwise the share takes all that is left.
void TakeFromPool(std::int16_t& share, std::int16_t& pool, double want) {
  if (pool - want > 0) {
    Assign(share, share + want);
    Assign(pool, pool - want);
  } else {
    Assign(share, static_cast<double>(share) + pool);
    pool = 0;
  }
}
// The value a slider press asks for: 0 at the left end, 99 at x = 489.
double SliderValue(int x) { return Int((105 - (490 - x)) / 1.05); }

}  // namespace

void UnfittedListClick() {
  for (int i = 1; i <= 4; ++i) {
    if (Between(G.MouseX, 499, 507) && Between(G.MouseY, 286 + 7 * i, 292 + 7 * i)) {
      PlaySoundFx(5, 1);
      G.UnfittedComp[i][1] = 0;
      G.UnfittedComp[i][2] = 0;
    }
  }
}

void CargoListClick() {
  int row = 0;
  for (int c = 1; c <= 14; ++c) {
    if (G.Cargo[c] <= 0) continue;
    const int r = row++;
    if (!Between(G.MouseY, 286 + 7 * r, 292 + 7 * r)) continue;
    PlaySoundFx(c <= 7 ? 3 : 5, 1);
    int amount = 0;
    if (Between(G.MouseX, 489, 498)) amount = 1;
    if (Between(G.MouseX, 499, 507)) amount = std::min<int>(10, G.Cargo[c]);
    if (amount == 0) continue;
    G.Cargo[c] = static_cast<std::int16_t>(G.Cargo[c] - amount);
    Assign(G.FreeCargo, static_cast<double>(G.FreeCargo) + amount);
  }
}

void MaintenanceClick() {
  for (int i = 1; i <= FittedSlots(); ++i) {
    if (SlotGroup(i) == 0) continue;
    if (!(Between(G.MouseX, 385, 490) && Between(G.MouseY, 287 + 8 * i, 295 + 8 * i))) continue;
    const double want = SliderValue(G.MouseX) - G.RepairCrew[i];
    TakeFromPool(G.RepairCrew[i], G.RepairPool, want);
    PlaySoundFx(4, 1);
  }
}

void PowerSliderClick() {
  if (!Between(G.MouseX, 385, 490)) return;
  struct Row {
    PowerSystem system;
    int top;
    Flag missing;
  };
  const Row rows[] = {{PowerSystem::Weapons, 301, G.NoWeapon},
                      {PowerSystem::Shields, 317, G.NoShield},
                      {PowerSystem::Propulsion, 333, G.NoEngine},
                      {PowerSystem::Sensor, 349, G.NoSensor},
                      {PowerSystem::LifeSupport, 365, False}};
  for (const Row& row : rows) {
    if (!Between(G.MouseY, row.top, row.top + 8) || row.missing != 0) continue;
    double& setting = SystemSetting(row.system);
    const double want = Int((105 - (490 - G.MouseX)) / 1.05 * 2) - setting;
    const bool life = row.system == PowerSystem::LifeSupport;
    const double d = SystemDemand(row.system);
    const double cost = life ? want : want * d / 100;
    if (G.SparePower - cost > 0) {
      setting += want;
      G.SparePower -= cost;
    } else {
      if (life)
        setting += G.SparePower;
      else if (d != 0)  // a division by zero fails and the setting stays
        setting += G.SparePower / (d / 100);
      G.SparePower = 0;
    }
    PlaySoundFx(4, 1);
  }
}

void MedicalClick() {
  for (int i = 1; i <= 6; ++i) {
    if (!(Between(G.MouseX, 385, 490) && Between(G.MouseY, 283 + 16 * i, 292 + 16 * i))) continue;
    const double want = SliderValue(G.MouseX) - G.TreatmentAlloc[i];
    const bool hurt = G.CrewPost[i].Health < 100;
    if (!hurt) continue;
    TakeFromPool(G.TreatmentAlloc[i], G.MedicalPool, want);
    PlaySoundFx(4, 1);
  }
}

void QuarantineClick() {
  for (int i = 1; i <= 6; ++i) {
    CrewPostRecord& crew = G.CrewPost[i];
    if (!(crew.Health > 2 && crew.Infected != 0)) continue;
    if (!Between(G.MouseY, 302 + 17 * (i - 1), 310 + 17 * (i - 1))) continue;
    if (Between(G.MouseX, 381, 446)) {
      crew.Quarantined = crew.Quarantined != 0 ? False : True;
      PlaySoundFx(4, 1);
    } else if (Between(G.MouseX, 446, 511)) {
      crew.Infected = False;
      crew.Quarantined = False;
      PlaySoundFx(4, 1);
    }
  }
}

}  // namespace lf
