// Test support: a fresh Game record, a scripted host for the cursor, an
// empty media log and a recording of every blit.
#pragma once

#include <gtest/gtest.h>

#include "media/media.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "support/blit_recorder.h"

namespace lf::test {

class ShellTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetGame();
    ClearMediaLog();
    SetHost(&host);
  }
  void TearDown() override { SetHost(nullptr); }

  void PointAt(int x, int y) {
    host.cursorX = x;
    host.cursorY = y;
    G.MouseX = x;
    G.MouseY = y;
  }
  static MediaCall Sound(int s, int c) { return {MediaCall::Kind::Sound, s, c, {}}; }

  ScriptedHost host;
  BlitRecording recording;
};

}  // namespace lf::test
