// Generator power and the five systems that draw on it: the pool, the
// levels creeping towards their settings, heat, and the backup generator.
#include <algorithm>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "shell/screens.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

namespace {

constexpr PowerSystem kDrawnSystems[] = {PowerSystem::Weapons, PowerSystem::Shields,
                                         PowerSystem::Propulsion, PowerSystem::Sensor};

// A message in the strip's three lines; a second page already waiting in
// lines 4..6 stays.
void Warn(const char* l1, const char* l2, const char* l3) {
  G.PromptLine[1] = l1;
  G.PromptLine[2] = l2;
  G.PromptLine[3] = l3;
  G.MessagePending = True;
  G.QuestionPending = False;
  G.PromptAge = -1;
}

void AllSettingsToZero() {
  for (int s = 1; s <= 5; ++s) SystemSetting(static_cast<PowerSystem>(s)) = 0;
}

// Generator slot i, its health worn by the heat; true when it blew up.
bool WearGenerator(int i) {
  G.FittedHealth[i] -= (G.GeneratorHeat - 100) / 500;
  if (G.FittedHealth[i] > 2) return false;
  G.FittedComp[i][1] = 0;
  G.FittedComp[i][2] = 0;
  return true;
}

void GeneratorLost() {
  PlaySoundFx(8, 2);
  SetMessage("CAPTAIN! DUE TO EQUIPMENT MALFUNCTION WE HAVE LOST",
             "ONE OF OUR GENERATORS THAT HAS BEEN CAUGHT IN", "AN EXPLOSION AND WAS DESTROYED!");
  DistributeEnergy();
  if (G.SparePower < 0) {
    PlaySoundFx(8, 2);
    G.PromptLine[4] = "_I THINK IT WOULD BE ADVISEABLE TO INIITIALIZE";
    G.PromptLine[5] = "THE BACKUP GENERATOR FOR THE PURPOSE OF SUSTAINING";
    G.PromptLine[6] = "LIFE SUPPORT AND SEND OUT A DISTRESS SIGNAL!";
  }
  AllSettingsToZero();
  ButtonState(3, 8) = 0;
}

}  // namespace

void DistributeEnergy() { G.SparePower = GeneratorOutput() - ComputerDraw(); }

void a_ResetEnergy() {
  for (PowerSystem s : kDrawnSystems) {
    SystemLevel(s) = 0;
    SystemSetting(s) = 0;
  }
  G.LifeSupportSetting = 100;
  DistributeEnergy();
  G.SparePower -= 100;
  G.DestX = G.ShipX;
  G.DestY = G.ShipY;
  CheckDirection();
}

void UpdateEnergy() {
  if (G.TimeStep != 0.1) return;
  bool hailing = false;
  Skip([&] { hailing = ButtonState(2, 1) == 1; });
  if (hailing) return;
  for (PowerSystem s : kDrawnSystems) {
    double& level = SystemLevel(s);
    const double setting = SystemSetting(s);
    if (setting > level) {
      const double demand = SystemDemand(s);
      if (demand == 0) continue;  // no component of the group: the level stays
      level += 300 / demand;
      if (s == PowerSystem::Propulsion) {
        if (G.ShipStepX > 0 || G.ShipStepY > 0) CheckDirection();
        if (G.PropulsionLevel >= 120) CheckDirection();
      }
    } else {
      level = setting;
    }
  }
  if (G.LifeSupportSetting > G.LifeSupportLevel)
    G.LifeSupportLevel += 2;
  else
    G.LifeSupportLevel = G.LifeSupportSetting;
}

void CheckPowerOverload() {
  const double used = PowerUsed();
  if (used > 90)
    G.GeneratorHeat = std::min(G.GeneratorHeat + (used - 90) / 100, 200.0);
  else
    G.GeneratorHeat = std::max(G.GeneratorHeat - 0.5, 0.0);

  if (G.GeneratorHeat > 100) {
    for (int i = 1; i <= FittedSlots(); ++i) {
      if (SlotGroup(i) != 4) continue;
      if (WearGenerator(i)) {
        GeneratorLost();
        break;
      }
    }
  }
  if (G.GeneratorHeat <= 100) G.HeatWarned = False;
  if (G.GeneratorHeat == 100) {
    PlaySoundFx(8, 2);
    Warn("OUR POWER GENERATORS ARE BEGINING TO OVERHEAT!",
         "WE MAY EXPERIENCE SOME DAMAGE ON THE POWER CORE!", "");
  }
  if (G.GeneratorHeat >= 150 && G.HeatWarned == False) {
    PlaySoundFx(8, 2);
    Warn("CAPTAIN! I DO NOT THINK IT IS ADVISABLE TO CONTINUE",
         "WITH THE OVERUSE OF OUR GENERATORS!", "THE DAMAGE IS INCREASING RAPIDLY!");
    G.HeatWarned = True;
  }
}

void CheckMissingComponents() {
  G.NoComputer = G.NoSensor = G.NoWeapon = G.NoEngine = G.NoShield = True;
  for (int i = 1; i <= FittedSlots(); ++i) {
    switch (SlotGroup(i)) {
      case 2: G.NoComputer = False; break;
      case 6: G.NoSensor = False; break;
      case 1: G.NoWeapon = False; break;
      case 5: G.NoEngine = False; break;
      case 7: G.NoShield = False; break;
      default: break;
    }
  }
  if (G.NoComputer) ButtonState(1, 2) = 2;
  if (G.NoSensor) {
    ButtonState(2, 4) = 2;
    ButtonState(4, 2) = 2;
    ButtonState(5, 1) = 2;
  }
  if (G.NoEngine) ButtonState(1, 1) = 2;
  if (G.NoShield) ButtonState(3, 2) = 2;
  if (G.NoWeapon) ButtonState(3, 1) = 2;
  if (G.CrewPost[5].Person == 0) ButtonState(5, 2) = 2;

  const bool doors = G.OrbitState == 2 || G.OrbitState == 3 || G.OrbitState == 4;
  ButtonState(5, 6) = (G.HailedShip != 0 || doors) ? 2 : 0;
  for (auto [p, b] : {std::pair{1, 8}, std::pair{3, 4}}) {
    if (doors)
      ButtonState(p, b) = 2;
    else if (ButtonState(p, b) == 2)
      ButtonState(p, b) = 0;
  }
}

void Butt_3_4() {
  std::int16_t& state = ButtonState(3, 4);
  if (state == 0) {
    PlaySoundFx(12, 6);
    state = 1;
    if (G.HailedShip != 0) {
      G.FightShip = G.HailedShip;
      d_FightLoop();
    }
  } else if (state == 1) {
    PlaySoundFx(12, 6);
    state = 0;
  }
}

void Butt_3_8() {
  std::int16_t& state = ButtonState(3, 8);
  if (state == 0) {
    PlaySoundFx(11, 5);
    SetLine("", "BACKUP GENERATORS HAVE BEEN BOOTED AND ARE FUNCTIONAL!", "", 3);
    state = 1;
    G.SparePower += 145;
  } else if (state == 1) {
    PlaySoundFx(11, 5);
    SetLine("", "BACKUP GENERATORS SHUTDOWN!", "", 3);
    DistributeEnergy();
    state = G.SparePower <= 30 ? 0 : 2;
    for (int s = 1; s <= 5; ++s) {
      SystemLevel(static_cast<PowerSystem>(s)) = 0;
      SystemSetting(static_cast<PowerSystem>(s)) = 0;
    }
  }
}

}  // namespace lf
