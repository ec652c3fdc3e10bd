// Test support for the bridge: a Human explorer with a generator, an engine,
// a sensor, a shield and a beam weapon, in a quadrant of our own making, and
// a free-flight frame that calls the bridge's procedures in the frame's order.
#pragma once

#include <algorithm>
#include <cmath>

#include "bridge/bridge_procedures.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "support/shell_fixture.h"
#include "universe/bridge_buttons.h"
#include "universe/new_game.h"

namespace lf::test {

class BridgeTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    DefineShipSpecs();
    FillBridgeButtons();
    FillOfficerLines();
    constexpr std::int16_t kFaceY[3] = {29, 155, 289};
    for (int post = 1; post <= 6; ++post) {
      G.FaceX[post] = post <= 3 ? 24 : 538;
      G.FaceY[post] = kFaceY[(post - 1) % 3];
      G.FaceWidth[post] = 80;
      G.FaceHeight[post] = 100;
    }
    G.SectorSize = 5000;
    G.SensorRange = 100;
    G.TimeStep = 0.1;
    G.BridgeActive = True;
    G.ShowGrid = True;
    G.HullPoints = G.HullPointsMax = 500;
    G.HardpointCount = 6;
    Fit(1, 4, 1);  // generator, 1200 KW
    Fit(2, 5, 1);  // engine, demand 100, speed 2
    Fit(3, 6, 1);  // sensor, demand 50
    Fit(4, 7, 1);  // shield, demand 400
    Fit(5, 1, 1);  // beam weapon, energy 220
    G.ShipX = G.DestX = 2500;
    G.ShipY = G.DestY = 2500;
    G.ViewX = 2500;
    G.ViewY = 2500;
    DistributeEnergy();
    G.SparePower -= 100;
    G.LifeSupportLevel = G.LifeSupportSetting = 100;
  }

  static void Fit(int slot, int group, int model) {
    G.FittedComp[slot][1] = static_cast<std::int16_t>(group);
    G.FittedComp[slot][2] = static_cast<std::int16_t>(model);
    G.FittedHealth[slot] = 500;
  }

  static void Crew(int post, int person, int skill) {
    G.CrewPost[post].Person = static_cast<std::int16_t>(person);
    G.CrewPost[post].Health = 100;
    G.Character[person].Skill = static_cast<std::int16_t>(skill);
  }

  // Full propulsion: setting and level 200.
  static void FullPropulsion() { G.PropulsionLevel = G.PropulsionSetting = 200; }


 public:
  void PointAtPublic(int x, int y) { PointAt(x, y); }

 protected:

  void Press(int x, int y, int button = 1) {
    PointAt(x, y);
    CheckBridgeMouseDown(button);
  }

  // The face of post p (its middle).
  void PressFace(int post) { Press(G.FaceX[post] + 40, G.FaceY[post] + 50); }

  // A button of the open page (its middle).
  void PressButton(int p, int b) {
    Press(G.BridgeButton[p][b].X + 25, G.BridgeButton[p][b].Y + 25);
  }

  // One bridge frame in free flight, in the frame's order, with the ship's
  // motion and the view's clamps written as the frame does them.
  void Frame() {
    CheckStopAvailability();
    CheckMissingComponents();
    if (std::hypot(G.ShipX - G.DestX, G.ShipY - G.DestY) < 5) G.ShipStepX = G.ShipStepY = 0;
    if (FreeBridge()) UpdateEnergy();
    if (ButtonState(2, 1) != 1 && (G.OrbitState == 0 || G.OrbitState == 1) && FreeBridge() &&
        G.StatusSlot[DockedSlot].Active == 0) {
      if (G.ShipX > 0) G.ShipX += G.ShipStepX; else G.ShipX = 0;
      if (G.ShipX < G.SectorSize) G.ShipX += G.ShipStepX; else G.ShipX = G.SectorSize;
      if (G.ShipY < G.SectorSize) G.ShipY += G.ShipStepY; else G.ShipY = G.SectorSize;
      if (G.ShipY > 0) G.ShipY += G.ShipStepY; else G.ShipY = 0;
    }
    if (G.ViewDetached == 0) {
      G.ViewX = G.ShipX;
      Assign(G.ViewY, G.ShipY);
    }
    G.DestX = std::clamp(G.DestX, 0.0, G.SectorSize);
    G.DestY = std::clamp(G.DestY, 0.0, G.SectorSize);
    G.ViewX = std::clamp(G.ViewX, 200.0, G.SectorSize - 200);
    G.ViewY = static_cast<std::int16_t>(std::clamp<double>(G.ViewY, 120, G.SectorSize - 120));
    DrawNebulas();
    DrawQuadBack();
    DrawStars();
    if (G.ShowGrid == True) DrawGrid();
    if (G.ShowSensorRange == True && G.SensorLevel >= 100 && G.InNebula == 0) DrawSensorRange();
    DrawPlans();
    DrawToolsIcons();
    DrawShip();
    DrawDistance();
    DrawDestination();
    DrawCoords();
    DrawButtons();
    if (NoPrompt()) CheckMouseOverButton();
    if ((G.OrbitState == 0 || G.OrbitState == 1) && FreeBridge()) CheckScroll();
    DrawFaces();
    if ((G.OrbitState == 0 || G.OrbitState == 1) && FreeBridge()) CheckDistance();
    DrawHealth();
    if (ButtonState(3, 3) == 1) DrawEnergyList();
    if (FreeBridge()) CheckPowerOverload();
  }
};

}  // namespace lf::test
