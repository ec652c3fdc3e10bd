#include "shell/save_layout.h"

#include <cctype>
#include <cstdint>

#include "shell/save_text.h"

namespace lf {

const std::array<std::string_view, kSaveFileCount> kSaveFileNames = {
    "general.sav", "quadrants.sav", "debris.sav",  "planets.sav",    "se.sav",       "upgrade.sav",
    "buttons.sav", "crew.sav",      "sinfo1.sav",  "sinfo2.sav",     "sinfo3.sav",   "sinfo4.sav",
    "characters.sav", "missions.sav", "oships.sav", "stations.sav"};

namespace {

// Fields whose variable has another type than the file's field: an int
// field over a real, a real field over an integer. The writer's values read
// back to the same number.
void IntField(SaveWriter& w, double& v) {
  std::int16_t i = 0;
  if (!Assign(i, v)) i = v < 0 ? INT16_MIN : INT16_MAX;
  w.I16(i);
}
void IntField(SaveReader& r, double& v) {
  std::int16_t i = 0;
  r.I16(i);
  v = i;
}
template <class I>
void RealField(SaveWriter& w, I& v) {
  double d = v;
  w.R(d);
}
template <class I>
void RealField(SaveReader& r, I& v) {
  double d = 0;
  r.R(d);
  if (!Assign(v, d)) throw SaveFormatError("HAS A NUMBER TOO LARGE");
}

// Fields the game writes with a fixed value and never reads back.
void ReservedInt(SaveWriter& w, std::int16_t value) { w.I16(value); }
void ReservedInt(SaveReader& r, std::int16_t) {
  std::int16_t ignored = 0;
  r.I16(ignored);
}
void ReservedFlag(SaveWriter& w) { w.F(False); }
void ReservedFlag(SaveReader& r) {
  Flag ignored = False;
  r.F(ignored);
}
void ReservedString(SaveWriter& w) { w.S({}); }
void ReservedString(SaveReader& r) {
  std::string ignored;
  r.S(ignored);
}

// A count that sizes later reads: beyond its table it would run off the end.
void CheckCount(SaveWriter&, int, int) {}
void CheckCount(SaveReader&, int n, int hi) {
  if (n < 0 || n > hi) throw SaveFormatError("HAS A BAD COUNT");
}

template <class IO>
void GeneralSav(IO& io, Game& g) {
  io.I16(g.CurrentQuadrant); io.End();
  io.I16(g.HullRace); io.I16(g.HullClass); io.End();
  for (int i = 1; i <= 10; ++i) { io.F(g.StoryStage[i]); io.End(); }
  for (int i = 1; i <= 10; ++i) { io.F(g.TranslatorOwned[i]); io.End(); }
  io.F(g.ChartBought); io.End();
  io.F(g.LoanActive); io.End();
  io.I16(g.LoanMonthsLeft); io.End();
  RealField(io, g.LoanDue); io.End();
  io.F(g.LoanMonthMarked); io.End();
  io.R(g.NextEventCountdown); io.End();
  io.I16(g.NextEventNumber); io.End();
  io.F(g.NoGameRunning); io.End();
  for (int i = 1; i <= 3; ++i) { io.F(g.GuildMember[i]); io.End(); }
  io.R(g.ShipX); io.R(g.ShipY); io.End();
  io.R(g.ShipStepX); io.R(g.ShipStepY); io.End();
  io.F(g.BridgeActive); io.End();
  io.F(g.StationActive); io.End();
  io.F(g.EventActive); io.End();
  io.F(g.ShowGrid); io.End();
  io.R(g.DestX); io.R(g.DestY); io.End();
  io.R(g.ViewX); io.I16(g.ViewY); io.End();
  for (int i = 1; i <= 7; ++i) { io.I16(g.RaceRelation[i]); io.End(); }
  io.R(g.Cash); io.End();
  io.R(g.Reputation); io.End();
  io.R(g.GameHours); io.End();
  io.R(g.TimeStep); io.End();
  ReservedInt(io, 0); io.End();
  ReservedInt(io, 1); io.End();
  io.F(g.StarLaneKnown); io.End();
}

template <class IO>
void QuadrantsSav(IO& io, Game& g) {
  RealField(io, g.NebulaCount); io.End();
  CheckCount(io, g.NebulaCount, 250);
  RealField(io, g.AsteroidFieldCount); io.End();
  CheckCount(io, g.AsteroidFieldCount, 250);
  io.I16(g.PlanetCount); io.End();
  CheckCount(io, g.PlanetCount, 250);
  for (int i = 1; i <= 350; ++i) { io.S(g.PlanetNames[i]); io.End(); }
}

template <class IO>
void DebrisSav(IO& io, Game& g) {
  io.L32(g.StarLaneX); io.L32(g.StarLaneY); io.End();
  for (int i = 1; i <= 50; ++i) {
    auto& d = g.Debris[i];
    auto& p = g.CargoPod[i];
    IntField(io, d.X); IntField(io, d.Y); io.F(d.Visible);
    IntField(io, p.X); IntField(io, p.Y); io.F(p.Virus); io.F(d.Virus);
    io.End();
  }
}

template <class IO>
void PlanetsSav(IO& io, Game& g) {
  for (int i = 1; i <= 250; ++i) {
    auto& p = g.Planet[i];
    io.R(p.X); io.R(p.Y); io.R(p.Frame); io.R(p.Picture); io.R(p.LastFrame); io.R(p.FrameStep);
    io.R(p.Height); io.R(p.Width); io.R(p.FramesPerRow);
    io.F(p.Known); ReservedFlag(io);
    io.I16(p.Type); io.I16(p.Size); io.I16(p.Race); io.I16(p.Society);
    io.F(p.SmallBody);
    io.I16(p.Ore); io.I16(p.LanderVisits);
    io.F(p.Infected); io.F(p.Epidemic); io.F(p.Marker);
    io.R(g.Nebula[i].X); io.R(g.Nebula[i].Y); RealField(io, g.Nebula[i].Kind);
    io.R(g.AsteroidField[i].X); io.R(g.AsteroidField[i].Y);
    io.End();
  }
}

template <class IO>
void SeSav(IO& io, Game& g) {
  for (Flag* f : {&g.BlackDecoder, &g.SecretCargo, &g.CountermeasureRack, &g.ComputerVirus,
                  &g.ExtraCargoContainer, &g.VirusProtection, &g.AutoRepairUnit, &g.ElectronicCM,
                  &g.ElectronicCCM, &g.RapierMissile, &g.DragonIonBeam, &g.ShrikeMissile,
                  &g.TargetingComputer}) {
    io.F(*f);
    io.End();
  }
}

template <class IO>
void UpgradeSav(IO& io, Game& g) {
  for (int i = 1; i <= 20; ++i) {
    auto& u = g.UpgradeJob[i];
    io.F(u.Upgraded); io.End();
    io.R(u.Progress); io.End();
    io.R(u.Bonus); io.End();
    io.F(u.Active); io.End();
  }
}

template <class IO>
void ButtonsSav(IO& io, Game& g) {
  for (int page = 1; page <= 6; ++page) {
    for (int b = 1; b <= 15; ++b) {
      auto& r = g.BridgeButton[page][b];
      io.F(r.Present); io.End();
      io.F(r.Visible); io.End();
      io.I16(r.State); io.End();
    }
  }
}

template <class IO>
void CrewSav(IO& io, Game& g) {
  for (int i = 1; i <= 6; ++i) {
    auto& c = g.CrewPost[i];
    io.R(c.Health); io.End();
    io.I16(c.Person); io.End();
    io.F(c.Infected); io.End();
    io.F(c.Quarantined); io.End();
    io.F(c.Vaccinated); io.End();
    io.F(c.SalaryDue); io.End();
    io.I16(c.SalaryBalance); io.End();
  }
}

template <class IO>
void Sinfo1Sav(IO& io, Game& g) {
  io.F(g.HasLander); io.End();
  ReservedInt(io, 0); io.End();
  ReservedString(io); io.End();
  io.I16(g.HullPointsMax); io.End();
  io.R(g.HullPoints); io.End();
  io.I16(g.FreeMass); io.End();
  io.I16(g.HardpointCount); io.End();
  io.I16(g.FreeCargo); io.End();
}

template <class IO>
void Sinfo2Sav(IO& io, Game& g) {
  for (int i = 1; i <= 20; ++i) {
    io.R(g.FittedHealth[i]); io.End();
    io.I16(g.AmmoLeft[i]); io.End();
    io.I16(g.RepairCrew[i]); io.End();
  }
  for (int i = 1; i <= 20; ++i) {
    io.I16(g.FittedComp[i][1]); io.End();
    io.I16(g.FittedComp[i][2]); io.End();
  }
}

template <class IO>
void Sinfo3Sav(IO& io, Game& g) {
  io.I16(g.RepairPool); io.End();
  io.I16(g.MedicalPool); io.End();
  for (int i = 1; i <= 6; ++i) { RealField(io, g.TreatmentAlloc[i]); io.End(); }
  for (int i = 1; i <= 14; ++i) { io.I16(g.Cargo[i]); io.End(); }
}

template <class IO>
void Sinfo4Sav(IO& io, Game& g) {
  for (double* d : {&g.WeaponLevel, &g.WeaponSetting, &g.ShieldLevel, &g.ShieldSetting, &g.PropulsionLevel,
                    &g.PropulsionSetting, &g.SensorLevel, &g.SensorSetting, &g.LifeSupportLevel,
                    &g.LifeSupportSetting, &g.SparePower}) {
    io.R(*d);
    io.End();
  }
  for (int i = 1; i <= 4; ++i) {
    io.I16(g.UnfittedComp[i][1]); io.End();
    io.I16(g.UnfittedComp[i][2]); io.End();
  }
}

template <class IO>
void CharactersSav(IO& io, Game& g) {
  for (int i = 1; i <= 144; ++i) {
    auto& c = g.Character[i];
    io.S(c.Name); io.End();
    io.I16(c.Post); io.End();
    io.I16(c.Skill); io.End();
    io.I16(c.Salary); io.End();
  }
}

template <class IO>
void MissionsSav(IO& io, Game& g) {
  for (int i = 1; i <= 500; ++i) {
    auto& m = g.Missions[i];
    io.I16(m.PlanetKind1); io.End();
    io.I16(m.PlanetKind2); io.End();
    io.F(m.Spare1); io.End();
    io.S(m.Title); io.End();
    io.I16(m.Flavour); io.End();
    io.I16(m.MissionType); io.End();
    io.I16(m.MinRank); io.End();
    io.S(m.Spare2); io.End();
    io.I16(m.Guild); io.End();
    io.I16(m.CommodityNo); io.End();
    io.I16(m.CargoUnits); io.End();
    io.I16(m.Class); io.End();
    io.L32(m.TargetX); io.End();
    io.L32(m.TargetY); io.End();
    io.I16(m.TargetPlanet); io.End();
    io.L32(m.Reward); io.End();
    io.I16(m.Threat); io.End();
    io.I16(m.ReputationGain); io.End();
    io.I16(m.Tag); io.End();
    io.I16(m.Spare3); io.End();
    for (int n = 1; n <= 3; ++n) {
      io.L32(m.NavX[n]); io.End();
      io.L32(m.NavY[n]); io.End();
    }
  }
  for (int i = 1; i <= 2; ++i) {
    io.I16(g.ActiveMission[i]); io.End();
    io.I16(g.MissionProgress[i]); io.End();
  }
}

template <class IO>
void OshipsSav(IO& io, Game& g) {
  io.I16(g.OtherShipCount); io.End();
  CheckCount(io, g.OtherShipCount, 500);
  for (int i = 1; i <= g.OtherShipCount; ++i) {
    auto& s = g.OtherShip[i];
    io.I16(s.ShipClass); io.End();
    io.R(s.X); io.End();
    io.R(s.Y); io.End();
    io.F(s.Free); io.End();
    io.I16(s.TargetX); io.End();
    io.I16(s.TargetY); io.End();
    io.I16(s.HomeX); io.End();
    io.I16(s.HomeY); io.End();
    io.R(s.StepX); io.End();
    io.R(s.StepY); io.End();
    ReservedFlag(io); io.End();
    io.F(s.Greeted); io.End();
    io.F(s.InfoGiven); io.End();
    io.F(s.AssistGiven); io.End();
    io.F(s.TradeInfoGiven); io.End();
    io.F(s.Identified); io.End();
    io.F(s.WantsTrade); io.End();
  }
}

template <class IO>
void StationsSav(IO& io, Game& g) {
  for (int i = 1; i <= 250; ++i) {
    io.R(g.Planet[i].HasStation); io.I16(g.Planet[i].Race); io.End();
  }
}

// One file's reader or writer over the record.
template <class IO>
void FileFields(int file, IO& io, Game& g) {
  switch (file) {
    case 0: GeneralSav(io, g); break;
    case 1: QuadrantsSav(io, g); break;
    case 2: DebrisSav(io, g); break;
    case 3: PlanetsSav(io, g); break;
    case 4: SeSav(io, g); break;
    case 5: UpgradeSav(io, g); break;
    case 6: ButtonsSav(io, g); break;
    case 7: CrewSav(io, g); break;
    case 8: Sinfo1Sav(io, g); break;
    case 9: Sinfo2Sav(io, g); break;
    case 10: Sinfo3Sav(io, g); break;
    case 11: Sinfo4Sav(io, g); break;
    case 12: CharactersSav(io, g); break;
    case 13: MissionsSav(io, g); break;
    case 14: OshipsSav(io, g); break;
    case 15: StationsSav(io, g); break;
    default: break;
  }
}

}  // namespace

std::string UpperName(int file) {
  std::string name(kSaveFileNames[static_cast<std::size_t>(file)]);
  for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return name;
}

PositionTexts WritePosition(Game& g) {
  PositionTexts out;
  for (int f = 0; f < kSaveFileCount; ++f) {
    SaveWriter w;
    FileFields(f, w, g);
    out[static_cast<std::size_t>(f)] = w.Take();
  }
  return out;
}

std::string ReadPositionFile(Game& g, int file, std::string_view text) {
  SaveReader r(text);
  try {
    FileFields(file, r, g);
  } catch (const SaveFormatError& e) {
    return UpperName(file) + " " + e.what();
  } catch (const StatementFailed&) {
    return UpperName(file) + " IS OUT OF BOUNDS";
  }
  return {};
}

std::string ReadPosition(Game& g, const PositionTexts& texts) {
  for (int f = 0; f < kSaveFileCount; ++f) {
    std::string problem = ReadPositionFile(g, f, texts[static_cast<std::size_t>(f)]);
    if (!problem.empty()) return problem;
  }
  // The bodies carry their names beside the name table, as a new quadrant
  // gives them.
  for (int i = 1; i <= g.PlanetCount; ++i) g.Planet[i].Name = g.PlanetNames[i];
  return {};
}

}  // namespace lf
