// Test support for the station's screens: the catalogue, a quadrant of our
// own making with the ship docked at body 1, a few persons, and presses
// that go through the screen handlers.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "display/gfx.h"
#include "shell/game_state.h"
#include "station/dealer.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/lounge.h"
#include "support/shell_fixture.h"
#include "universe/catalogue.h"
#include "universe/new_game.h"

namespace lf::test {

class StationScreenTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    DefineShipSpecs();
    G.CurrentQuadrant = 1;
    G.PlanetCount = 3;
    G.ShipX = G.ShipY = 1000;
    Body(1, 1000, 1000, 1, 1);  // the station, Human
    Body(2, 3000, 1000, 1, 0);  // a Human world without a station
    Body(3, 3000, 3000, 2, 0);  // a Hagel world
    for (int c = 1; c <= 144; ++c) {
      G.Character[c].Name = "PERSON " + std::to_string(c);
      G.Character[c].Post = static_cast<std::int16_t>((c - 1) % 24 / 4 + 1);
      G.Character[c].Skill = 3;
      G.Character[c].Salary = 300;
    }
    G.StationActive = True;
    G.Cash = 50000;
  }

  static void Body(int i, double x, double y, int race, double station) {
    G.Planet[i].X = x;
    G.Planet[i].Y = y;
    G.Planet[i].Width = 50;
    G.Planet[i].Race = static_cast<std::int16_t>(race);
    G.Planet[i].HasStation = station;
  }

  // The docked station's race (7 makes it a pirate station) and quadrant.
  static void DockAt(int race, int quadrant) {
    G.Planet[1].Race = static_cast<std::int16_t>(race);
    G.CurrentQuadrant = static_cast<std::int16_t>(quadrant);
  }

  // A hull of the catalogue, as bought, with nothing fitted.
  static void OwnHull(int race, int hullClass) {
    const HullRecord& h = G.Hull[race][hullClass];
    G.HullRace = static_cast<std::int16_t>(race);
    G.HullClass = static_cast<std::int16_t>(hullClass);
    G.HullPoints = G.HullPointsMax = h.HullPoints;
    G.HardpointCount = h.Hardpoints;
    G.FreeMass = h.CarryAmount;
    G.FreeCargo = h.CargoHold;
  }

  // A component in a slot at full health, its weight taken from FreeMass.
  static void Fit(int slot, int group, int model) {
    G.FittedComp[slot][1] = static_cast<std::int16_t>(group);
    G.FittedComp[slot][2] = static_cast<std::int16_t>(model);
    G.FittedHealth[slot] = ComponentFullHealth(group, model);
    Assign(G.FreeMass, G.FreeMass - ComponentWeight(group, model));
  }

  // Every letter typed out in full.
  static void FadeAllIn() {
    for (auto& line : G.PromptFade)
      for (double& letter : line) letter = 3;
  }

  // The text that the last draws wrote in the 8x8 font on the row at y,
  // between x from and to, blanks restored from the gaps; and the font row
  // of its first letter (its fade row taken off).
  static std::string OcrText(int y, int from = 0, int to = 640) {
    static const char* const kSet[] = {" ", "1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "A", "B",
                                       "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O",
                                       "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", ".", ",",
                                       "?", "!", ":", "-", "(", ")", "%", "Š", "+", "&", "/", " "};
    std::vector<BlitRecord> letters = Letters(y, from, to);
    std::string text;
    int last = letters.empty() ? 0 : letters.front().x - 6;
    for (const BlitRecord& b : letters) {
      for (int gap = (b.x - last) / 6 - 1; gap > 0; --gap) text += ' ';
      text += kSet[b.left / 8 + 1];
      last = b.x;
    }
    return text;
  }
  static int OcrRow(int y, int from = 0, int to = 640) {
    const std::vector<BlitRecord> letters = Letters(y, from, to);
    return letters.empty() ? -1 : letters.front().top - 16;
  }
  static std::vector<BlitRecord> Letters(int y, int from, int to) {
    std::vector<BlitRecord> out;
    for (const BlitRecord& b : BlitsOf(GFX.StationFontOcr))
      if (b.y == y && b.x >= from && b.x < to) out.push_back(b);
    std::stable_sort(out.begin(), out.end(), [](const BlitRecord& a, const BlitRecord& b) { return a.x < b.x; });
    return out;
  }

  void PressDealer(int x, int y) {
    PointAt(x, y);
    a_CheckMouseDown4();
  }
  void PressLounge(int x, int y) {
    PointAt(x, y);
    a_CheckMouseDown2();
  }
};

}  // namespace lf::test
