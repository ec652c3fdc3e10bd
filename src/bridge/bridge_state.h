// The bridge's share of the Game record: the ship on the map and the view,
// the officer pages and their buttons, power, and the helm's flags.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct BridgeButtonRecord {
  double Frame = 0;
  double FrameStep = 0;
  std::int16_t X = 0, Y = 0;
  std::int16_t Width = 0, Height = 0;
  std::int16_t FrameCount = 0;
  Flag Present = False;
  Flag Visible = False;
  std::int16_t State = 0;
  std::string Label;
};
template <class V>
void VisitFields(V& v, BridgeButtonRecord& r) {
  v("Frame", r.Frame); v("FrameStep", r.FrameStep); v("X", r.X); v("Y", r.Y);
  v("Width", r.Width); v("Height", r.Height); v("FrameCount", r.FrameCount);
  v("Present", r.Present); v("Visible", r.Visible); v("State", r.State); v("Label", r.Label);
}

struct BridgeState {
  // Ship, destination and view on the map.
  double ShipX = 0, ShipY = 0;
  double ShipStepX = 0, ShipStepY = 0;
  double DestX = 0, DestY = 0;
  double ViewX = 0;
  std::int16_t ViewY = 0;
  Flag ViewDetached = False;
  std::int16_t ScrollDelay = 0;
  Flag ShowGrid = False;
  Flag ShowSensorRange = False;
  Flag InNebula = False;
  Flag InAsteroids = False;

  // Officer pages: BridgeButton[page 1..6][button 1..15].
  Table<Table<BridgeButtonRecord, 15>, 6> BridgeButton{};
  Table<std::int16_t, 6> PageOpen{};

  // Power: levels and settings 0..200 of the five systems.
  double WeaponLevel = 0, WeaponSetting = 0;
  double ShieldLevel = 0, ShieldSetting = 0;
  double PropulsionLevel = 0, PropulsionSetting = 0;
  double SensorLevel = 0, SensorSetting = 0;
  double LifeSupportLevel = 0, LifeSupportSetting = 0;
  double SparePower = 0;

  // Helm, maintenance, hails and science.
  Flag HasLander = False;
  Flag TradeOpen = False;
  std::int16_t RepairPool = 0;
  Flag ScanRequested = False;
  Table<std::int16_t, 7> RaceRelation{};
  // The hail menu's lines of this frame, and what the hailed trader offers.
  Table<std::string, 30> HailLine{};
  Table<std::int16_t, 14> ShipOffer{};

  // Animation frames of the sector view.
  double ShipFrame = 0;
  double DestMarkerFrame = 0;
  double SensorRingFrame = 0;
  double AsteroidFrame = 0;

  // Generator heat and the missing-component flags, recomputed every frame.
  double GeneratorHeat = 0;
  Flag HeatWarned = False;
  Flag NoComputer = False, NoSensor = False, NoWeapon = False, NoShield = False, NoEngine = False;

  // The autopilot list: bodies 1.. by number, the rows and the first row
  // shown; the ship a click attacks.
  Table<std::int16_t, 100> AutopilotList{};
  std::int16_t AutopilotCount = 0;
  std::int16_t AutopilotTop = 0;
  std::int16_t FightShip = 0;

  // The medical officer's effort and its shares by crew post.
  std::int16_t MedicalPool = 0;
  Table<std::int16_t, 6> TreatmentAlloc{};
  // A virus may spread on the next even day.
  Flag VirusSpreadArmed = False;

  // Ore brought up by the last lander; the star lane's place and its
  // animation frame.
  std::int16_t LanderLoad = 0;
  std::int32_t StarLaneX = 0, StarLaneY = 0;
  double StarLaneFrame = 0;
};

template <class V>
void VisitFields(V& v, BridgeState& s) {
  v("ShipX", s.ShipX); v("ShipY", s.ShipY);
  v("ShipStepX", s.ShipStepX); v("ShipStepY", s.ShipStepY);
  v("DestX", s.DestX); v("DestY", s.DestY);
  v("ViewX", s.ViewX); v("ViewY", s.ViewY);
  v("ViewDetached", s.ViewDetached);
  v("ScrollDelay", s.ScrollDelay);
  v("ShowGrid", s.ShowGrid);
  v("ShowSensorRange", s.ShowSensorRange);
  v("InNebula", s.InNebula);
  v("InAsteroids", s.InAsteroids);
  v("BridgeButton", s.BridgeButton);
  v("PageOpen", s.PageOpen);
  v("WeaponLevel", s.WeaponLevel); v("WeaponSetting", s.WeaponSetting);
  v("ShieldLevel", s.ShieldLevel); v("ShieldSetting", s.ShieldSetting);
  v("PropulsionLevel", s.PropulsionLevel); v("PropulsionSetting", s.PropulsionSetting);
  v("SensorLevel", s.SensorLevel); v("SensorSetting", s.SensorSetting);
  v("LifeSupportLevel", s.LifeSupportLevel); v("LifeSupportSetting", s.LifeSupportSetting);
  v("SparePower", s.SparePower);
  v("HasLander", s.HasLander);
  v("TradeOpen", s.TradeOpen);
  v("RepairPool", s.RepairPool);
  v("ScanRequested", s.ScanRequested);
  v("RaceRelation", s.RaceRelation);
  v("HailLine", s.HailLine);
  v("ShipOffer", s.ShipOffer);
  v("ShipFrame", s.ShipFrame);
  v("DestMarkerFrame", s.DestMarkerFrame);
  v("SensorRingFrame", s.SensorRingFrame);
  v("AsteroidFrame", s.AsteroidFrame);
  v("GeneratorHeat", s.GeneratorHeat);
  v("HeatWarned", s.HeatWarned);
  v("NoComputer", s.NoComputer); v("NoSensor", s.NoSensor); v("NoWeapon", s.NoWeapon);
  v("NoShield", s.NoShield); v("NoEngine", s.NoEngine);
  v("AutopilotList", s.AutopilotList);
  v("AutopilotCount", s.AutopilotCount);
  v("AutopilotTop", s.AutopilotTop);
  v("FightShip", s.FightShip);
  v("MedicalPool", s.MedicalPool);
  v("TreatmentAlloc", s.TreatmentAlloc);
  v("VirusSpreadArmed", s.VirusSpreadArmed);
  v("LanderLoad", s.LanderLoad);
  v("StarLaneX", s.StarLaneX);
  v("StarLaneY", s.StarLaneY);
  v("StarLaneFrame", s.StarLaneFrame);
}

}  // namespace lf
