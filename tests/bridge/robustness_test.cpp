// Bad input never stops the bridge: clicks anywhere in any state, and
// restored states with values beyond the tables.
#include "bridge_fixture.h"
#include "shell/screens.h"

namespace lf::test {
namespace {

using RobustnessTest = BridgeTest;

void ClickEverywhere(RobustnessTest& t, int button) {
  for (int x = -5; x <= 645; x += 23)
    for (int y = -5; y <= 485; y += 19) {
      try {
        t.PointAtPublic(x, y);
        CheckBridgeMouseDown(button);
      } catch (const ScreenChange&) {
        // an attack opens the fight screen: the handler chain ends there
      }
    }
}

}  // namespace


TEST_F(RobustnessTest, BadRestoredValuesKeepEveryProcedureRunning) {
  G.HardpointCount = 30;
  G.FittedComp[1][2] = 99;  // a generator model beyond the catalogue
  G.FittedComp[2][1] = 12;
  G.SparePower = -50;
  G.PlanetCount = 400;
  G.NebulaCount = 300;
  G.Nebula[1].Kind = 9;
  G.Planet[1].Known = True;
  G.Planet[1].FramesPerRow = 0;
  G.Planet[2].Known = True;
  G.Planet[2].FramesPerRow = 3;
  G.Planet[2].Picture = 500;
  G.Planet[3].Type = 77;
  G.Planet[3].Race = -4;
  G.OtherShipCount = 900;
  G.CrewPost[1].Person = 400;
  G.CrewPost[2].Person = -3;
  G.SensorRange = 77;
  G.ShowSensorRange = True;
  G.SensorLevel = 150;
  G.PageOpen[3] = 1;
  ButtonState(3, 3) = 1;
  ButtonState(3, 2) = 9;
  G.PageOpen[5] = 7;
  G.ShipX = 1e300;
  for (int i = 0; i < 3; ++i) {
    EXPECT_NO_THROW(Frame());
    DistributeEnergy();
    EXPECT_NO_THROW(UpdateEnergy());
  }
}

TEST_F(RobustnessTest, ClicksAnywhereInAnyStateNeverFail) {
  G.OtherShipCount = 2;
  G.OtherShip[1].X = 2550;
  G.OtherShip[1].Y = 2500;
  G.OtherShip[1].ShipClass = 40;
  for (int page = 1; page <= 6; ++page) {
    G.PageOpen = {};
    G.PageOpen[page] = 1;
    for (int b = 1; b <= 10; ++b) G.BridgeButton[page][b].Visible = True;
    for (int state = 0; state <= 2; ++state) {
      for (int b = 1; b <= 10; ++b)
        if (!(page == 5 && b == 6)) ButtonState(page, b) = static_cast<std::int16_t>(state);
      for (int orbit : {0, 3, 6}) {
        G.OrbitState = static_cast<std::int16_t>(orbit);
        G.MessagePending = orbit == 6 ? True : False;
        EXPECT_NO_THROW(ClickEverywhere(*this, 1));
        EXPECT_NO_THROW(ClickEverywhere(*this, 2));
      }
    }
  }
}

}  // namespace lf::test
