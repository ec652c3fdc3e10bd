// Who takes a mouse press, and the queue that delivers presses and keys.
#include "shell/input.h"

#include <gtest/gtest.h>

#include "shell/event_queue.h"
#include "loop_fixture.h"

namespace lf::test {
namespace {

using Input = LoopTest;

std::vector<std::string> PressWith(Flag fight, Flag menu, Flag event, Flag station) {
  G.FightActive = fight;
  G.MenuActive = menu;
  G.EventActive = event;
  G.StationActive = station;
  Calls().clear();
  Form_MouseDown(1);
  return Calls();
}

TEST_F(Input, EachPressGoesToTheScreensItsFlagsName) {
  using V = std::vector<std::string>;
  host.cursorY = 5;  // on the title: the menu does nothing
  EXPECT_EQ(PressWith(0, 0, 0, 0), V{"CheckBridgeMouseDown"});
  EXPECT_EQ(PressWith(0, 0, 0, True), V{"a_CheckStationMouseDown"});
  EXPECT_EQ(PressWith(0, 0, True, 0), V{"c_CheckEventMouseDown"});
  EXPECT_EQ(PressWith(0, True, True, 0), V{"CheckMenuMouseDown"});
  EXPECT_EQ(PressWith(True, 0, 0, 0), V{"d_CheckMouseDown"});
  EXPECT_EQ(PressWith(True, True, 0, 0), (V{"d_CheckMouseDown", "CheckMenuMouseDown"}));
  // A station and an event at once: neither takes it, and neither does the bridge.
  EXPECT_EQ(PressWith(0, 0, True, True), V{});
  // A set flag that is not -1 keeps the press from the others but takes none.
  EXPECT_EQ(PressWith(1, 0, 0, 0), V{});
  EXPECT_EQ(G.ClickSeen, True);
}

TEST_F(Input, EachTestSeesWhatTheHandlersBeforeItLeft) {
  // Resume from a menu over an event screen whose event has already ended:
  // the menu lets go, and the same press then reaches the event screen.
  G.NoGameRunning = False;
  host.cursorY = BandY(2);
  EXPECT_EQ(PressWith(0, True, True, 0),
            (std::vector<std::string>{"CheckMenuMouseDown", "c_CheckEventMouseDown"}));
  EXPECT_EQ(G.MenuActive, False);
}

TEST_F(Input, EscapeOpensTheMenuOverAnyScreen) {
  OnBridge();
  G.StatusSlot[DockedSlot].Active = True;
  Frames(1);
  ASSERT_EQ(TopScreen(), Screen::Station);
  ClearMediaLog();
  EXPECT_THROW(Form_KeyDown(27), ScreenChange);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(ScreenAt(0), Screen::Station);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  EXPECT_EQ(MediaLog(),
            (std::vector<MediaCall>{{MediaCall::Kind::Sound, 2, 1, {}}, {MediaCall::Kind::Track, 2, 0, {}}}));
}

TEST_F(Input, AScreenChangeLeavesTheRestOfTheYieldQueued) {
  OnBridge();
  G.ViewDetached = True;
  G.ViewX = 1000;
  host.Send({{InputEvent::Kind::KeyDown, 1, 27}, {InputEvent::Kind::KeyDown, 1, 39}});
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  EXPECT_EQ(QueuedEvents(), 1);
  EXPECT_EQ(G.ViewX, 1000);
  Frames(1);  // the menu's yield runs what was left
  EXPECT_EQ(QueuedEvents(), 0);
  EXPECT_EQ(G.ViewX, 1007);
}

TEST_F(Input, EveryBridgeFrameYieldsAndPresentsOnce) {
  OnBridge();
  const auto before = G.Frame;
  Frames(4);
  EXPECT_EQ(G.Frame, before + 4);
  EXPECT_EQ(host.presented, 4);
}

}  // namespace
}  // namespace lf::test
