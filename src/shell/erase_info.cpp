// What a new game must not inherit from the one before it. The ship a new
// game begins with has no hull, no components fitted or stowed, no crew and
// an empty hold; StartNew then gives the money, the power settings and the
// repair shares, and generates the rest.
#include "shell/game_state.h"
#include "shell/saved_games.h"

namespace lf {
namespace {

void EraseShip() {
  G.HullRace = G.HullClass = 0;
  G.HullPoints = 0;
  G.HullPointsMax = 0;
  G.HardpointCount = 0;
  G.FreeMass = 0;
  G.FreeCargo = 0;
  G.FittedComp = {};
  G.FittedHealth = {};
  G.AmmoLeft = {};
  G.RepairCrew = {};
  G.RepairPool = 0;
  G.UpgradeJob = {};
  G.UnfittedComp = {};
  G.Cargo = {};
}

// The posts are emptied whole: a post that kept its person would hand the
// new game an officer of the new roster that nobody hired.
void EraseCrew() {
  G.CrewPost = {};
  G.TreatmentAlloc = {};
  G.MedicalPool = 0;
}

void ErasePower() {
  G.WeaponLevel = G.WeaponSetting = 0;
  G.ShieldLevel = G.ShieldSetting = 0;
  G.PropulsionLevel = G.PropulsionSetting = 0;
  G.SensorLevel = G.SensorSetting = 0;
  G.LifeSupportLevel = G.LifeSupportSetting = 0;
  G.SparePower = 0;
  G.GeneratorHeat = 0;
  G.HeatWarned = False;
}

// What was under way on the bridge: the ship's motion, a hail, a chase and
// a prompt waiting for its answer.
void EraseBridge() {
  G.ShipStepX = G.ShipStepY = 0;
  G.InNebula = G.InAsteroids = False;
  G.HailedShip = 0;
  G.FollowShip = 0;
  G.FollowMode = 0;
  G.FightShip = 0;
  G.MouseLook = False;
  G.MessagePending = G.QuestionPending = False;
  G.PromptLine = {};
  G.PromptAge = 0;
}

void EraseProgress() {
  G.StoryStage = {};
  G.ActiveMission = {};
  G.MissionProgress = {};
  G.MissionBoard = {};
  G.TranslatorOwned = {};
  G.StarLaneKnown = False;
  G.NextEventCountdown = 0;
  G.NextEventNumber = 0;
  G.ActiveMission = {};
  G.MissionProgress = {};
  G.Cash = 0;
  G.Reputation = 0;
}

// The loan, the chart, the guilds and every piece of special equipment,
// the pirates' goods with them.
void EraseHoldings() {
  static_cast<FleetState&>(G) = FleetState{};
  G.BlackDecoder = False;
  G.SecretCargo = False;
  G.ShrikeMissile = False;
}

}  // namespace

void EraseInfo() {
  G.LoadAfterStart = False;
  G.CurrentQuadrant = 1;
  EraseShip();
  EraseCrew();
  ErasePower();
  EraseBridge();
  EraseProgress();
  EraseHoldings();
}

}  // namespace lf
