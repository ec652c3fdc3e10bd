// Test support for missions: the station screens' quadrant grown to a
// sector of 4000 with more stations (one of them the pirates'), the base
// prices of a new game, and a catalogue made for it.
#pragma once

#include <array>
#include <set>

#include "bridge/later_procedures.h"
#include "missions/mission_rules.h"
#include "missions/missions_procedures.h"
#include "station/screens_fixture.h"

namespace lf::test {

class MissionsTest : public StationScreenTest {
 protected:
  void SetUp() override {
    StationScreenTest::SetUp();
    G.SectorSize = 4000;
    G.PlanetCount = 6;
    Body(4, 3500, 500, 7, 1);   // the pirates' station
    Body(5, 500, 3500, 3, 1);   // a second lawful station
    Body(6, 2000, 2000, 0, 0);  // an empty world
    for (int i = 1; i <= 6; ++i) G.Planet[i].Name = "WORLD " + std::to_string(i);
    for (int i = 1; i <= 6; ++i) G.Planet[i].Type = static_cast<std::int16_t>(i);  // 6 a gas giant
    constexpr std::array<double, 14> kPrices{20, 5, 10, 50, 60, 25, 30, 60, 40, 50, 30, 80, 15, 30};
    for (int c = 1; c <= 14; ++c) G.BasePrice[c] = kPrices[static_cast<std::size_t>(c - 1)];
    G.ShipX = G.ShipY = 2000;
    DefineMissionSpecs();
    G.ShipX = G.ShipY = 1000;  // docked at planet 1
  }

  // The first catalogue slot of a type.
  static int SlotOfType(int type) {
    for (int s = 1; s <= 380; ++s)
      if (G.Missions[s].MissionType == type) return s;
    return 0;
  }
  // Puts a slot on a board line and opens its offer.
  static void Offer(int board, int line, int slot) {
    G.MissionBoard[board][line] = static_cast<std::int16_t>(slot);
    G.ServicePage = static_cast<std::int16_t>(99 + line);
  }
  static bool Sounded(int s, int c) {
    for (const MediaCall& m : MediaLog())
      if (m.kind == MediaCall::Kind::Sound && m.number == s && m.channel == c) return true;
    return false;
  }
  // Carries a slot in a place, as taken.
  static void Carry(int place, int slot, int progress = 0) {
    G.ActiveMission[place] = static_cast<std::int16_t>(slot);
    G.MissionProgress[place] = static_cast<std::int16_t>(progress);
  }
};

}  // namespace lf::test
