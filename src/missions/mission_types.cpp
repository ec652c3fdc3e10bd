// The game's catalogue of missions, made once at a new game: slots 1..380
// hold nine missions of each type 1..38, the first 38 of them turned into
// the pirates' types 100..102. Every slot draws its own targets and pay.
#include <cmath>
#include <cstdlib>

#include "missions/mission_rules.h"
#include "missions/missions_procedures.h"
#include "shell/game_state.h"

namespace lf {
namespace {

constexpr int kCatalogueSlots = 380;
// A draw that cannot succeed (a quadrant with no station, a sector too small
// for a near point) gives up after this many tries and leaves the field 0.
constexpr int kDrawLimit = 20000;

int DrawPlanet() { return static_cast<int>(Int(Rnd() * 250)); }

int DestinationStation() {
  for (int tries = 0; tries < kDrawLimit; ++tries) {
    const int n = DrawPlanet();
    const PlanetRecord& p = G.Planet[n];
    if (p.HasStation != 0 && p.Race != 7) return n;
  }
  return 0;
}

int SurveyPlanet() {
  for (int tries = 0; tries < kDrawLimit; ++tries) {
    const int n = DrawPlanet();
    const PlanetRecord& p = G.Planet[n];
    if (p.Type != 6 && p.HasStation == 0 && p.Race != 7) return n;
  }
  return 0;
}

// A point at least 250 from where the ship starts on both axes, and at
// least 100 inside the sector's edges.
void NearPoint(MissionRecord& m) {
  for (int tries = 0; tries < kDrawLimit; ++tries) {
    const double dx = Int(Rnd() * 1000) - 500;
    const double dy = Int(Rnd() * 1000) - 500;
    if (std::abs(dx) <= 250 || std::abs(dy) <= 250) continue;
    const double x = CIntReal(G.ShipX + dx), y = CIntReal(G.ShipY + dy);
    if (x > 100 && x < G.SectorSize - 100 && y > 100 && y < G.SectorSize - 100) {
      m.TargetX = static_cast<std::int32_t>(x);
      m.TargetY = static_cast<std::int32_t>(y);
      return;
    }
  }
}

std::int32_t NavCoordinate() { return static_cast<std::int32_t>(Int(Rnd() * (G.SectorSize - 1000) + 500)); }

void FillByType(MissionRecord& m, const data::MissionSpec& spec) {
  m.Title = std::string(spec.Title);
  m.Guild = static_cast<std::int16_t>(spec.Guild);
  m.MinRank = static_cast<std::int16_t>(spec.MinRank);
  m.Class = static_cast<std::int16_t>(spec.Class);
  m.Threat = static_cast<std::int16_t>(spec.Threat);
  m.Tag = static_cast<std::int16_t>(spec.Tag);
  m.ReputationGain = static_cast<std::int16_t>(spec.ReputationGain);
  m.Reward = spec.Reward;
  using data::Target;
  switch (spec.Where) {
    case Target::Dest: m.TargetPlanet = static_cast<std::int16_t>(DestinationStation()); break;
    case Target::Survey: m.TargetPlanet = static_cast<std::int16_t>(SurveyPlanet()); break;
    case Target::Near: NearPoint(m); break;
    case Target::DestNear:
      m.TargetPlanet = static_cast<std::int16_t>(DestinationStation());
      NearPoint(m);
      break;
    case Target::Nav3:
    case Target::Nav2:
      for (int n = 1; n <= (spec.Where == Target::Nav3 ? 3 : 2); ++n) {
        m.NavX[n] = NavCoordinate();
        m.NavY[n] = NavCoordinate();
      }
      break;
    case Target::Kinds:
    case Target::Kind1:
      m.PlanetKind1 = static_cast<std::int16_t>(Int(Rnd() * 10) + 1);
      if (spec.Where == Target::Kinds) {
        do {
          m.PlanetKind2 = static_cast<std::int16_t>(Int(Rnd() * 10) + 1);
        } while (m.PlanetKind2 == m.PlanetKind1);
      }
      break;
    case Target::None: break;
  }
  if (spec.CargoHi > 0) {
    m.CargoUnits = static_cast<std::int16_t>(spec.CargoLo + Int(Rnd() * (spec.CargoHi - spec.CargoLo + 1)));
    m.CommodityNo = static_cast<std::int16_t>(spec.Commodity < 0 ? Int(Rnd() * 3) + 1 : spec.Commodity);
    m.Reward = CInt(m.CargoUnits * G.BasePrice[m.CommodityNo] * spec.PayFactor);
  }
  m.Flavour = static_cast<std::int16_t>(Int(Rnd() * 2) + 1);
}

}  // namespace

void DefineMissionSpecs() {
  G.Missions = {};
  for (int slot = 1; slot <= kCatalogueSlots; ++slot) {
    MissionRecord& m = G.Missions[slot];
    m.MissionType = static_cast<std::int16_t>(slot <= 38 ? 100 + (slot - 1) % 3 : 1 + (slot - 1) % 38);
    const data::MissionSpec* spec = data::FindMissionSpec(m.MissionType);
    if (spec == nullptr) continue;  // type 24: an empty slot, never dealt
    Skip([&] { FillByType(m, *spec); });
  }
}

}  // namespace lf
