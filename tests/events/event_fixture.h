// Test support for story events: a ship in flight on the bridge with a full
// crew and a sensor, an event raised and entered by the bridge frame, and
// clicks on the reply bands as a player makes them.
#pragma once

#include <cmath>

#include "events/event_effects.h"
#include "events/events_procedures.h"
#include "shell/loop_fixture.h"

namespace lf::test {

class EventTest : public LoopTest {
 protected:
  void SetUp() override {
    LoopTest::SetUp();
    Event3Played = False;
    OnBridge();
    G.HullPoints = G.HullPointsMax = 500;
    G.PlanetCount = 2;
    G.Planet[1] = {};
    G.Planet[1].X = 900;
    G.Planet[1].Y = 800;
    G.Planet[1].Width = 60;
    G.Planet[1].HasStation = 1;
    G.Planet[2] = {};
    G.Planet[2].X = 4000;
    G.Planet[2].Y = 4200;
    G.Planet[2].Width = 60;
    G.Planet[2].HasStation = 1;
  }
  void TearDown() override {
    Event3Played = False;
    LoopTest::TearDown();
  }

  // Back on the bridge in flight, event e raised, and the bridge frame
  // entering it.
  void Raise(int e) {
    ResetScreens();
    G.EventActive = G.MenuActive = G.FightActive = G.StationActive = False;
    G.BridgeActive = True;
    G.StatusSlot[DockedSlot].Active = False;
    Enter(RunLoop);
    G.StatusSlot[EventSlot].Active = True;
    G.StatusSlot[EventSlot].Value = static_cast<std::int16_t>(e);
    Frames(2);
  }
  static int Node(int e) { return G.EventScript[e].Node; }
  static int Running() { return G.StatusSlot[EventSlot].Value; }

  // The middle row of the band of choice k of the running node.
  static int BandY(int k) {
    const StoryEvent& s = G.EventScript[Running()];
    const auto& marks = s.ReplyStart[s.Node];
    const int top = 410 + (marks[k] - 1) * 9, bottom = 410 + (marks[k + 1] - 1) * 9;
    return (top + bottom) / 2;
  }
  // Clicks choice k and lets the frame take the click.
  void Choose(int k) {
    host.Click(320, BandY(k));
    Frames(1);
  }
  // Puts the running event at node n, as a walk would.
  static void At(int n) { G.EventScript[Running()].Node = static_cast<std::int16_t>(n); }

  static bool OnEventScreen() { return ScreenDepth() > 0 && TopScreen() == Screen::Event && G.EventActive == True; }
  static bool BackOnBridge() {
    return ScreenDepth() > 0 && TopScreen() == Screen::Bridge && G.BridgeActive == True && G.EventActive == 0 &&
           G.StatusSlot[EventSlot].Active == 0;
  }
};

}  // namespace lf::test
