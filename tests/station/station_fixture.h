// Test support for the station: the ship docked at planet 2 of a small
// quadrant (planet 1 lies far away), a Human station of a Terran world with
// a stocked exchange, a crewed ship with a hull, a generator and an engine,
// and presses that go through the station's mouse routing.
#pragma once

#include <string>
#include <vector>

#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/screens.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "support/shell_fixture.h"

namespace lf::test {

class StationTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    ResetScreens();
    G.CurrentQuadrant = 1;
    G.PlanetCount = 3;
    G.Planet[1] = Station(500, 500, "FARAWAY", 1);
    G.Planet[2] = Station(1000, 1000, "KALLISTO", 1);
    G.Planet[3] = Station(4000, 4000, "TORTUGA", 7);
    G.ShipX = 1010;
    G.ShipY = 1000;
    for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
    G.Cash = 50000;
    G.HasLander = True;
    G.CrewPost[1].Person = 11;
    G.HullRace = 1;
    G.HardpointCount = 4;
    G.FittedComp[1][1] = 4;  // generator
    G.FittedComp[2][1] = 5;  // engine
    G.FreeCargo = 100;
    for (int i = 1; i <= 14; ++i) {
      G.StationStock[2].Quantity[i] = 500;
      G.StationStock[2].StationPrice[i] = 20;
    }
    G.StatusSlot[DockedSlot].Active = True;
    G.StationActive = True;
    StationPage() = 1;
    a_DetermineStationComps();
  }
  void TearDown() override {
    ResetScreens();
    ShellTest::TearDown();
  }

  static PlanetRecord Station(double x, double y, const std::string& name, int race) {
    PlanetRecord p;
    p.X = x;
    p.Y = y;
    p.Name = name;
    p.Race = static_cast<std::int16_t>(race);
    p.Type = 4;
    p.HasStation = 1;
    p.Width = 60;
    return p;
  }
  // Moves the ship onto the pirate station.
  static void DockAtPirates() {
    G.ShipX = 4000;
    G.ShipY = 4000;
    a_DetermineStationComps();
  }

  // A press at (x, y) as the mouse dispatcher hands it over; true when the
  // press left the station loop (the departure).
  bool Press(int x, int y) {
    PointAt(x, y);
    try {
      a_CheckStationMouseDown();
    } catch (const ScreenChange&) {
      return true;
    }
    return false;
  }
  bool PressOk() { return Press(620, 150); }
  bool PressExit() { return Press(150, 420); }
  bool PressYes() { return Press(620, 160); }
  bool PressNo() { return Press(620, 115); }

  // Starts the arrival chain as docking leaves it: the arrival text typing.
  static void ArrivalTyping() {
    G.TermPrompt = 501;
    G.ServiceMenuOpen = False;
    G.MayDepart = True;
  }

  static std::vector<std::string> Lines() {
    std::vector<std::string> out;
    for (int i = 1; i <= G.TermLineCount; ++i) out.push_back(G.TermLine[i]);
    return out;
  }
  static bool Sounded(int s, int c) {
    for (const MediaCall& m : MediaLog())
      if (m.kind == MediaCall::Kind::Sound && m.number == s && m.channel == c) return true;
    return false;
  }
};

}  // namespace lf::test
