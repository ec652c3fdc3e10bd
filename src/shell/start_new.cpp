// A new game: the starting values, the generated universe, the opening
// picture, and the bridge (whose first frame docks at the start station).
#include "bridge/bridge_procedures.h"
#include "display/bitmap_sets.h"
#include "events/events_procedures.h"
#include "media/media.h"
#include "missions/missions_procedures.h"
#include "shell/clocks.h"
#include "shell/death.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/menu.h"
#include "shell/saved_games.h"
#include "shell/screens.h"
#include "universe/new_game.h"
#include "universe/stocks.h"

namespace lf {
namespace {

void ClearSlotsAndStory() {
  for (int i = 1; i <= 20; ++i) G.StatusSlot[i].Active = False;
  for (int i = 1; i <= 10; ++i) G.StoryStage[i] = False;
}

void DockAtStart() {
  G.StatusSlot[DockedSlot].Active = True;
  G.StatusSlot[DockedSlot].Value = 0;
  G.OrbitState = 3;
  G.CurrentQuadrant = 1;
  G.ProgressCount = 0;
  G.HasLander = True;
}

void StartClockAndEvents() {
  SeedRandom(G.Random, CurrentHost().ClockSeed());
  G.NextEventCountdown = 10000;
  G.ShowGrid = True;
  G.NextEventNumber = 1;
}

void GiveTranslators() {
  for (int i = 1; i <= 10; ++i) G.TranslatorOwned[i] = False;
  G.TranslatorOwned[1] = True;  // Human
  G.TranslatorOwned[7] = True;  // pirates
}

void SetMoneyAndPower() {
  G.Cash = 50000;
  G.SparePower = 0;
  Skip(DistributeEnergy);
  G.PropulsionLevel = G.PropulsionSetting = 200;
  G.SensorLevel = G.SensorSetting = 100;
  G.LifeSupportLevel = G.LifeSupportSetting = 100;
  G.SparePower -= 100;
}

void ResetRelations() {
  G.ScrollDelay = 0;
  for (int i = 1; i <= 7; ++i) G.RaceRelation[i] = 50;
  for (int i = 1; i <= 500; ++i) {
    G.OtherShip[i].Greeted = False;
    G.OtherShip[i].InfoGiven = False;
    G.OtherShip[i].TradeInfoGiven = False;
  }
}

// Every fitted slot starts with a share of 5 of the engineer's effort.
void ShareRepairEffort() {
  Assign(G.RepairPool, G.HardpointCount * 40.0);
  for (int i = 1; i <= 20; ++i) {
    if (G.FittedComp[i][1] == 0) continue;
    G.RepairCrew[i] = 5;
    Assign(G.RepairPool, G.RepairPool - 5.0);
  }
}

void LoadInsteadOfOpening() {
  // Used once: a later New shows the opening picture and starts docked.
  G.LoadAfterStart = False;
  G.StatusSlot[DockedSlot].Active = False;
  G.ProgressCount = 0;
  G.ProgressMode = 1;
  Skip(LoadMainBitmaps);
  G.ProgressMode = 0;
  // With nothing saved yet, Load begins the new game on the bridge without a
  // word; a position that is there but damaged says why it was not loaded.
  if (SavedPositionExists()) Skip(LoadGame);
}

}  // namespace

void StartNew() {
  LoadSoundBank();
  Skip(ClearSlotsAndStory);
  Skip(DockAtStart);
  Skip(StartClockAndEvents);
  Skip(GiveTranslators);
  Skip([] {
    G.Reputation = 0;
    G.TradeOpen = False;
  });
  Skip(SetBasePrices);
  G.ViewDetached = False;
  Skip(RandomGame);
  Skip(RandomizeCharacters);
  Skip(DefineHero);  // the survivor whom events 3 and 10 may bring aboard
  Skip(DefineShipSpecs);
  Skip(SetMoneyAndPower);
  Skip(ResetRelations);
  Skip(ShareRepairEffort);
  StartTimer1();
  G.TimeStep = 0.1;
  G.GameHours = 0;
  G.BridgeActive = True;
  Skip(DefineMissionSpecs);
  if (G.LoadAfterStart == 0)
    DrawSingle(2);  // the opening story picture
  else
    LoadInsteadOfOpening();
  RunLoop();
}

}  // namespace lf
