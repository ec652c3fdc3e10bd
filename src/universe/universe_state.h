// The universe's share of the Game record: the current quadrant's tables,
// the other ships, the characters and crew posts, and the player's fit.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct PlanetRecord {
  double X = 0, Y = 0;
  std::string Name;
  std::int16_t Race = 0;
  std::int16_t Type = 0;
  std::int16_t Size = 0;
  Flag SmallBody = False;
  double HasStation = 0;
  std::int16_t Society = 0;
  std::int16_t Ore = 0;
  std::int16_t LanderVisits = 0;
  Flag Infected = False;
  Flag Epidemic = False;
  Flag Marker = False;
  Flag Known = False;
  double Picture = 0;
  double Frame = 0;
  double Width = 0, Height = 0;
  double FramesPerRow = 0, LastFrame = 0, FrameStep = 0;
};
template <class V>
void VisitFields(V& v, PlanetRecord& r) {
  v("X", r.X); v("Y", r.Y); v("Name", r.Name); v("Race", r.Race); v("Type", r.Type);
  v("Size", r.Size); v("SmallBody", r.SmallBody); v("HasStation", r.HasStation);
  v("Society", r.Society); v("Ore", r.Ore); v("LanderVisits", r.LanderVisits);
  v("Infected", r.Infected); v("Epidemic", r.Epidemic); v("Marker", r.Marker);
  v("Known", r.Known); v("Picture", r.Picture); v("Frame", r.Frame); v("Width", r.Width);
  v("Height", r.Height); v("FramesPerRow", r.FramesPerRow); v("LastFrame", r.LastFrame);
  v("FrameStep", r.FrameStep);
}

struct OtherShipRecord {
  std::int16_t ShipClass = 0;
  double X = 0, Y = 0;
  std::int16_t TargetX = 0, TargetY = 0;
  std::int16_t HomeX = 0, HomeY = 0;
  double StepX = 0, StepY = 0;
  Flag WantsTrade = False;
  Flag Free = False;
  Flag Identified = False;
  Flag Greeted = False, InfoGiven = False, AssistGiven = False, TradeInfoGiven = False;
};
template <class V>
void VisitFields(V& v, OtherShipRecord& r) {
  v("ShipClass", r.ShipClass); v("X", r.X); v("Y", r.Y); v("TargetX", r.TargetX);
  v("TargetY", r.TargetY); v("HomeX", r.HomeX); v("HomeY", r.HomeY); v("StepX", r.StepX);
  v("StepY", r.StepY); v("WantsTrade", r.WantsTrade); v("Free", r.Free);
  v("Identified", r.Identified); v("Greeted", r.Greeted); v("InfoGiven", r.InfoGiven);
  v("AssistGiven", r.AssistGiven); v("TradeInfoGiven", r.TradeInfoGiven);
}

struct CharacterRecord {
  std::string Name;
  std::int16_t Post = 0;
  std::int16_t Skill = 0;
  std::int16_t Salary = 0;
};
template <class V>
void VisitFields(V& v, CharacterRecord& r) {
  v("Name", r.Name); v("Post", r.Post); v("Skill", r.Skill); v("Salary", r.Salary);
}

struct CrewPostRecord {
  double Health = 0;
  std::int16_t Person = 0;
  Flag Infected = False, Quarantined = False, Vaccinated = False, SalaryDue = False;
  std::int16_t SalaryBalance = 0;
};
template <class V>
void VisitFields(V& v, CrewPostRecord& r) {
  v("Health", r.Health); v("Person", r.Person); v("Infected", r.Infected);
  v("Quarantined", r.Quarantined); v("Vaccinated", r.Vaccinated); v("SalaryDue", r.SalaryDue);
  v("SalaryBalance", r.SalaryBalance);
}

// Research on a fitted slot's component.
struct UpgradeJobRecord {
  Flag Upgraded = False;
  double Progress = 0;
  double Bonus = 0;
  Flag Active = False;
};
template <class V>
void VisitFields(V& v, UpgradeJobRecord& r) {
  v("Upgraded", r.Upgraded); v("Progress", r.Progress); v("Bonus", r.Bonus); v("Active", r.Active);
}

struct HullRecord {
  std::string Name;
  std::int32_t Price = 0;
  std::int16_t HullPoints = 0;
  std::int16_t CarryAmount = 0;
  std::int16_t Hardpoints = 0;
  std::int16_t CargoHold = 0;
};
template <class V>
void VisitFields(V& v, HullRecord& r) {
  v("Name", r.Name); v("Price", r.Price); v("HullPoints", r.HullPoints);
  v("CarryAmount", r.CarryAmount); v("Hardpoints", r.Hardpoints); v("CargoHold", r.CargoHold);
}

struct NebulaRecord {
  double X = 0, Y = 0;
  std::int16_t Kind = 0;
};
template <class V>
void VisitFields(V& v, NebulaRecord& r) {
  v("X", r.X); v("Y", r.Y); v("Kind", r.Kind);
}

struct AsteroidFieldRecord {
  double X = 0, Y = 0;
};
template <class V>
void VisitFields(V& v, AsteroidFieldRecord& r) {
  v("X", r.X); v("Y", r.Y);
}

struct DebrisRecord {
  double X = 0, Y = 0;
  Flag Visible = False;
  Flag Virus = False;
};
template <class V>
void VisitFields(V& v, DebrisRecord& r) {
  v("X", r.X); v("Y", r.Y); v("Visible", r.Visible); v("Virus", r.Virus);
}

struct CargoPodRecord {
  double X = 0, Y = 0;
  Flag Virus = False;
};
template <class V>
void VisitFields(V& v, CargoPodRecord& r) {
  v("X", r.X); v("Y", r.Y); v("Virus", r.Virus);
}

struct StationStockRecord {
  Table<std::int16_t, 14> Quantity{};
  Table<double, 14> StationPrice{};
};
template <class V>
void VisitFields(V& v, StationStockRecord& r) {
  v("Quantity", r.Quantity); v("StationPrice", r.StationPrice);
}

struct UniverseState {
  double SectorSize = 0;
  double SensorRange = 0;
  std::int16_t CurrentQuadrant = 0;
  std::int16_t PlanetCount = 0;
  Table<PlanetRecord, 250> Planet{};
  std::int16_t OtherShipCount = 0;
  Table<OtherShipRecord, 500> OtherShip{};
  Table<CharacterRecord, 144> Character{};
  Table<CrewPostRecord, 6> CrewPost{};
  Table<Table<std::int16_t, 10>, 250> StationPeople{};

  // The player's ship and its fit; slots 0..20, [slot][1 group, 2 model].
  std::int16_t HullRace = 0, HullClass = 0;
  double HullPoints = 0;
  std::int16_t HullPointsMax = 0;
  std::int16_t HardpointCount = 0;
  std::int16_t FreeMass = 0;
  std::int16_t FreeCargo = 0;
  Table<Table<std::int16_t, 2>, 20> FittedComp{};
  Table<double, 20> FittedHealth{};
  Table<std::int16_t, 20> AmmoLeft{};
  Table<std::int16_t, 20> RepairCrew{};
  Table<UpgradeJobRecord, 20> UpgradeJob{};
  Table<Table<std::int16_t, 2>, 4> UnfittedComp{};

  // Commodities: base prices and the hold.
  Table<double, 14> BasePrice{};
  Table<std::int16_t, 14> Cargo{};

  // Stock and prices of every station of the quadrant, by body.
  Table<StationStockRecord, 250> StationStock{};

  // Nebulas, asteroid fields, debris and pods of the quadrant; the names.
  std::int16_t NebulaCount = 0;
  Table<NebulaRecord, 250> Nebula{};
  std::int16_t AsteroidFieldCount = 0;
  Table<AsteroidFieldRecord, 250> AsteroidField{};
  Table<DebrisRecord, 50> Debris{};
  Table<CargoPodRecord, 50> CargoPod{};
  Table<std::string, 350> PlanetNames{};

  // Body pictures 1..26: frame size and strip geometry.
  Table<double, 26> PictureWidth{};
  Table<double, 26> PictureHeight{};
  Table<double, 26> PictureFramesPerRow{};
  Table<double, 26> PictureLastFrame{};
  Table<double, 26> PictureFrameStep{};

  // Officer faces: areas by post, and what each officer says.
  Table<std::int16_t, 6> FaceX{};
  Table<std::int16_t, 6> FaceY{};
  Table<std::int16_t, 6> FaceWidth{};
  Table<std::int16_t, 6> FaceHeight{};
  Table<Table<std::string, 3>, 6> OfficerLine{};

  // The catalogue: hull classes, hulls [race 1..7][class 1..5], components
  // [group][model][column] as text, and loadouts [class][slot][1 group, 2 model].
  Table<std::string, 5> HullClassName{};
  Table<Table<HullRecord, 5>, 7> Hull{};
  Table<Table<Table<std::string, 15>, 12>, 10> ComponentTable{};
  Table<Table<Table<std::int16_t, 2>, 16>, 19> ShipLoadout{};
};

template <class V>
void VisitFields(V& v, UniverseState& s) {
  v("SectorSize", s.SectorSize);
  v("SensorRange", s.SensorRange);
  v("CurrentQuadrant", s.CurrentQuadrant);
  v("PlanetCount", s.PlanetCount);
  v("Planet", s.Planet);
  v("OtherShipCount", s.OtherShipCount);
  v("OtherShip", s.OtherShip);
  v("Character", s.Character);
  v("CrewPost", s.CrewPost);
  v("StationPeople", s.StationPeople);
  v("HullRace", s.HullRace);
  v("HullClass", s.HullClass);
  v("HullPoints", s.HullPoints);
  v("HullPointsMax", s.HullPointsMax);
  v("HardpointCount", s.HardpointCount);
  v("FreeMass", s.FreeMass);
  v("FreeCargo", s.FreeCargo);
  v("FittedComp", s.FittedComp);
  v("FittedHealth", s.FittedHealth);
  v("AmmoLeft", s.AmmoLeft);
  v("RepairCrew", s.RepairCrew);
  v("UpgradeJob", s.UpgradeJob);
  v("UnfittedComp", s.UnfittedComp);
  v("BasePrice", s.BasePrice);
  v("Cargo", s.Cargo);
  v("StationStock", s.StationStock);
  v("NebulaCount", s.NebulaCount);
  v("Nebula", s.Nebula);
  v("AsteroidFieldCount", s.AsteroidFieldCount);
  v("AsteroidField", s.AsteroidField);
  v("Debris", s.Debris);
  v("CargoPod", s.CargoPod);
  v("PlanetNames", s.PlanetNames);
  v("PictureWidth", s.PictureWidth);
  v("PictureHeight", s.PictureHeight);
  v("PictureFramesPerRow", s.PictureFramesPerRow);
  v("PictureLastFrame", s.PictureLastFrame);
  v("PictureFrameStep", s.PictureFrameStep);
  v("FaceX", s.FaceX);
  v("FaceY", s.FaceY);
  v("FaceWidth", s.FaceWidth);
  v("FaceHeight", s.FaceHeight);
  v("OfficerLine", s.OfficerLine);
  v("HullClassName", s.HullClassName);
  v("Hull", s.Hull);
  v("ComponentTable", s.ComponentTable);
  v("ShipLoadout", s.ShipLoadout);
}

}  // namespace lf
