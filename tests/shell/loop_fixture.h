// A fresh game record, an empty machine and a scripted host for every test,
// with the calls of the bridge frame and the mouse dispatcher recorded.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "media/media.h"
#include "shell/call_trace.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/program.h"
#include "shell/screens.h"
#include "universe/new_game.h"

namespace lf::test {

inline std::vector<std::string>& Calls() {
  static std::vector<std::string> calls;
  return calls;
}

// Menu bands: the middle row of entry i.
constexpr int BandY(int entry) { return 90 + 60 * entry; }

class LoopTest : public ::testing::Test {
 protected:
  ScriptedHost host;

  void SetUp() override {
    ResetGame();
    ResetScreens();
    ClearMediaLog();
    Calls().clear();
    host.yieldBudget = 20000;  // a test that would hang ends instead
    SetHost(&host);
    SetCallProbe([](const char* name) { Calls().push_back(name); });
  }
  void TearDown() override {
    SetCallProbe(nullptr);
    SetHost(nullptr);
    ResetScreens();
  }

  void Frames(int n) {
    for (int i = 0; i < n; ++i) RunNextFrame();
  }

  // Calls a loop as a handler would: the call never comes back.
  template <class F>
  static void Enter(F loop) {
    try {
      loop();
    } catch (const ScreenChange&) {
    }
  }

  // A game in flight on the bridge, crew at every post, ship mid-sector.
  void OnBridge() {
    G.NoGameRunning = False;
    G.BridgeActive = True;
    G.TooltipsOn = True;
    G.SectorSize = 5000;
    G.TimeStep = 0.1;
    for (int i = 1; i <= 6; ++i) {
      G.CrewPost[i].Person = static_cast<std::int16_t>(i);
      G.CrewPost[i].Health = 100;
      G.Character[i].Skill = 3;
    }
    G.ShipX = G.DestX = 2500;
    G.ShipY = G.DestY = 2500;
    // One component of each group 1..7 fitted, every system set where it
    // stands, so that the power rules leave levels and buttons alone.
    DefineShipSpecs();
    G.HardpointCount = 7;
    for (int slot = 1; slot <= 7; ++slot) {
      G.FittedComp[slot][1] = static_cast<std::int16_t>(slot);
      G.FittedComp[slot][2] = 1;
      G.FittedHealth[slot] = 1000;
    }
    G.SensorSetting = G.SensorLevel = 100;
    G.LifeSupportSetting = G.LifeSupportLevel = 100;
    Enter(RunLoop);
  }

  static int Count(const std::string& name) {
    return static_cast<int>(std::count(Calls().begin(), Calls().end(), name));
  }
  static bool Called(const std::string& name) { return Count(name) > 0; }

  static int CountMedia(MediaCall::Kind kind, int number, int channel = 0) {
    const MediaCall want{kind, number, channel, {}};
    return static_cast<int>(std::count(MediaLog().begin(), MediaLog().end(), want));
  }
  static int Sounds(int s, int c) { return CountMedia(MediaCall::Kind::Sound, s, c); }
  static int Tracks(int n) { return CountMedia(MediaCall::Kind::Track, n); }
};

}  // namespace lf::test
