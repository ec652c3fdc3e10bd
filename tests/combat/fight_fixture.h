// Test support for the fight: the bridge ship of the loop fixture with a
// beam (slot 1), a computer (2), a launcher with 20 rounds (3), a generator,
// an engine, a sensor and a shield, weapons and shields set at 100, and one
// other ship far off in the sector; a fight against it entered through
// d_FightLoop.
#pragma once

#include <functional>
#include <string>

#include "combat/combat_procedures.h"
#include "combat/fight_procedures.h"
#include "shell/clocks.h"
#include "shell/loop_fixture.h"

namespace lf::test {

class FightTest : public LoopTest {
 protected:
  void SetUp() override {
    LoopTest::SetUp();
    OnBridge();
    G.HullPoints = G.HullPointsMax = 2500;
    G.AmmoLeft[3] = 20;
    G.WeaponSetting = G.WeaponLevel = 100;
    G.ShieldSetting = G.ShieldLevel = 100;
    G.SensorRange = 120;
    G.OtherShipCount = 1;
    for (int r = 1; r <= 7; ++r) G.RaceRelation[r] = 50;
    Park(1, 3);
  }

  // Ship i of class c, far from the player.
  static void Park(int i, int shipClass) {
    G.OtherShip[i].ShipClass = static_cast<std::int16_t>(shipClass);
    G.OtherShip[i].X = 500;
    G.OtherShip[i].Y = 500;
    G.OtherShip[i].Free = True;
  }

  // A fight against ship 1 of class c.
  void Fight(int shipClass = 3) {
    G.OtherShip[1].ShipClass = static_cast<std::int16_t>(shipClass);
    G.FightShip = 1;
    Enter(d_FightLoop);
  }

  // A press at (x, y) on the fight screen, as Form_MouseDown passes it.
  void Press(int x, int y) {
    host.cursorX = x;
    host.cursorY = y;
    try {
      d_CheckMouseDown();
    } catch (const ScreenChange&) {
    }
  }

  // Runs frames until the condition holds (at most n); true if it did.
  bool FramesUntil(const std::function<bool()>& done, int n = 2000) {
    for (int i = 0; i < n; ++i) {
      if (done()) return true;
      Frames(1);
    }
    return done();
  }

  static std::string Log(int line) { return G.FightLog[line]; }
};

}  // namespace lf::test
