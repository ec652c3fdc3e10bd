// The chief engineer's page: repair of the fitted components by their
// shares of the engineer's effort, and the lists of the maintenance shares,
// the hold, the special equipment and the unfitted components.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/crew.h"
#include "bridge/panel_text.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

// The lowest health percentage an engineer of each skill mends at full rate.
constexpr int kMendableFrom[6] = {0, 80, 70, 50, 30, 20};

// The engineer's skill; an empty post works as skill 1.
int EngineerSkill() { return PostSkill(6); }

// Whether a component at this health percentage mends at full rate.
bool Mendable(double percent) {
  if (IsSet(G.AutoRepairUnit)) return true;
  const int skill = EngineerSkill();
  if (skill < 1 || skill > 5) return false;
  return percent >= kMendableFrom[skill];
}

// Repairs slot i for one frame; true when the slot was completed.
bool RepairSlot(int i) {
  bool done = false;
  Skip([&] {
    const int group = G.FittedComp[i][1], model = G.FittedComp[i][2];
    const bool mendable = Mendable(HealthPercent(i));
    const double skill = EngineerSkill();
    const double share = G.RepairCrew[i];
    if (share > 0) {
      if (mendable)
        G.FittedHealth[i] += share / 700 + skill / 50;
      else
        G.FittedHealth[i] += share / 30000 + skill / 30000;
    }
    if (HealthPercent(i) <= 100) return;
    G.FittedHealth[i] = ComponentFullHealth(group, model);
    Assign(G.RepairPool, static_cast<double>(G.RepairPool) + G.RepairCrew[i]);
    G.RepairCrew[i] = 0;
    done = true;
    if (group == 0) return;
    PlaySoundFx(2, 2);
    SetLine("", ComponentName(group, model) + " HAS BEEN SUCCESSFULLY REPAIRED!", "", 6);
  });
  return done;
}

constexpr const char* kCommodityRow[15] = {"",          "FOOD",      "WATER",    "ORE",   "SLAVES",
                                           "FIRE ARMS", "RADIOACT.", "CHEMICAL", "COMPUTERS",
                                           "MACHINERY", "DRUGS",     "MEDICALS", "GEMS",
                                           "PLASTICS",  "ALCOHOL"};

// One row of the hold: name, quantity and the two jettison buttons.
void DrawCargoList2(int commodity, int y) {
  DrawSmallText(393, y, kCommodityRow[commodity]);
  DrawSmallRight(480, y, std::to_string(G.Cargo[commodity]));
  SetSrc(0, 0, 9, 6);
  BltFast(489, y, GFX.JobArrow[1], true);
  SetSrc(0, 0, 9, 6);
  BltFast(499, y, GFX.JobArrow[2], true);
}

// Cargo of a trade or delivery mission travels in the hold.
bool CarriesMissionCargo() {
  for (int k = 1; k <= 2; ++k) {
    bool carries = false;
    Skip([&] {
      const int type = G.Missions[G.ActiveMission[k]].MissionType;
      carries = (type >= 1 && type <= 5) || (type >= 25 && type <= 28);
    });
    if (carries) return true;
  }
  return false;
}

}  // namespace

void UpdateRepair() {
  if (G.TimeStep != 0.1) return;
  for (int i = 1; i <= FittedSlots(); ++i)
    if (RepairSlot(i)) return;  // one completion a frame
}

void DrawMaintnanceList() {
  DrawPanelBack(GFX.PanelPicture[4]);
  for (int i = 1; i <= FittedSlots(); ++i) {
    const int group = SlotGroup(i);
    if (group == 0) continue;
    const int y = 287 + 8 * i;
    DrawShareBar(385, y + 4, G.RepairCrew[i]);
    Skip([&] {
      const int percent = HealthPercent(i);
      const int band = Mendable(percent) ? kBandPlain : kBandGreyed;
      const std::string value = std::to_string(percent) + "%";
      // A long name stops a letter short of the percentage.
      const int room = (107 - 6 * CodePointCount(value)) / 6;
      DrawSmallText(385, y + 1, Truncated(ComponentLabel(group, SlotModel(i)), room), band);
      DrawSmallRight(504, y + 1, value, band);
    });
  }
  DrawSmallCentred(440, 395, "TIME:" + std::to_string(G.RepairPool));
}

void DrawCargoList() {
  DrawPanelBack(GFX.PanelPicture[6]);
  int row = 0;
  for (int c = 1; c <= 14; ++c) {
    if (G.Cargo[c] <= 0) continue;
    DrawCargoList2(c, 286 + 7 * row);
    ++row;
  }
  if (CarriesMissionCargo()) DrawSmallText(393, 286 + 7 * (row + 1), "MISSION CARGO");
  DrawSmallCentred(439, 395, "SPACE " + std::to_string(G.FreeCargo));
}

void DrawEngineerAdd() {
  DrawPanelBack(GFX.SpecialBack);
  const struct {
    Flag owned;
    const char* name;
  } items[] = {{G.CountermeasureRack, "COUNTERM. RACK"},
               {G.ExtraCargoContainer, "CARGO CONTAINER"},
               {G.AutoRepairUnit, "AUTO REPAIR UNIT"},
               {G.ElectronicCM, "ELEC. COUNTERMEASURE"},
               {G.ElectronicCCM, "ELEC. COUNTER-CM"},
               {G.RapierMissile, "RAPIER MISSILE"},
               {G.DragonIonBeam, "DRAGON ION BEAM"},
               {G.ShrikeMissile, "SHRIKE BIOMISSILE"},
               {G.BlackDecoder, "BLACK DECODER"},
               {G.SecretCargo, "SECRET CARGO CONT."},
               {G.TargetingComputer, "TARGETING COMP."}};
  int row = 0;
  for (const auto& item : items) {
    if (!IsSet(item.owned)) continue;
    DrawSmallText(380, 286 + 7 * row, item.name);
    ++row;
  }
}

void DrawUnfitted() {
  DrawPanelBack(GFX.UnfittedBack);
  for (int i = 1; i <= 4; ++i) {
    const int group = G.UnfittedComp[i][1];
    if (group == 0) continue;
    const int y = 286 + 7 * i;
    DrawSmallText(380, y, ComponentLabel(group, G.UnfittedComp[i][2]));
    SetSrc(0, 0, 9, 6);
    BltFast(499, y, GFX.JobArrow[2], true);
  }
}

}  // namespace lf
