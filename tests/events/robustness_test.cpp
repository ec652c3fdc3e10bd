// Bad input on the event screen: clicks anywhere in every node, events and
// nodes that do not exist, the menu over an event and back.
#include <gtest/gtest.h>

#include "event_fixture.h"

namespace lf::test {
namespace {

using EventInput = EventTest;

TEST_F(EventInput, ClicksAnywhereInEveryNodeLeaveAKnownNodeOrAKnownScreen) {
  G.OtherShipCount = 19;
  for (int s = 1; s <= 19; ++s) G.OtherShip[s].ShipClass = static_cast<std::int16_t>(s);
  const int rows[] = {0, 14, 79, 80, 300, 399, 405, 409, 410, 411, 415, 418, 419, 420, 424, 427, 428, 429,
                      433, 436, 437, 438, 442, 445, 446, 447, 451, 454, 455, 456, 460, 463, 464, 465, 470, 479};
  int moved = 0;
  for (int e = 1; e <= 18; ++e) {
    for (const NodeRule& r : EventRules(e)) {
      for (int y : rows) {
        SCOPED_TRACE("event " + std::to_string(e) + " node " + std::to_string(r.node) + " y " + std::to_string(y));
        if (!OnEventScreen() || Running() != e) Raise(e);
        ASSERT_TRUE(OnEventScreen());
        At(r.node);
        for (int p = 1; p <= 6; ++p) G.CrewPost[p].Person = static_cast<std::int16_t>(p);
        host.Click(y % 2 ? 639 : 0, y);
        Frames(1);
        if (OnEventScreen()) {
          EXPECT_NE(FindNodeRule(e, Node(e)), nullptr);
          moved += Node(e) != r.node;
        } else {
          const Screen top = TopScreen();
          EXPECT_TRUE(top == Screen::Bridge || top == Screen::Menu || top == Screen::Fight);
          EXPECT_EQ(G.StatusSlot[EventSlot].Active, 0);
        }
      }
    }
  }
  EXPECT_GT(moved, 100);
}

TEST_F(EventInput, AnEventOrNodeThatDoesNotExistEndsCleanlyOnTheBridge) {
  for (int e : {0, -3, 19, 50, 99, 32000}) {
    SCOPED_TRACE("event " + std::to_string(e));
    G.Reputation = 7;
    Raise(e);
    Frames(3);
    EXPECT_TRUE(BackOnBridge());
    EXPECT_EQ(G.Reputation, 7);
  }
  for (int node : {11, 0, -1, 21, 99}) {
    SCOPED_TRACE("node " + std::to_string(node));
    Raise(1);
    ASSERT_TRUE(OnEventScreen());
    At(node);
    host.Click(320, 414);
    Frames(2);
    EXPECT_TRUE(BackOnBridge());
  }
}

TEST_F(EventInput, ResumeBringsTheEventBackAtTheSameNode) {
  Raise(5);
  Choose(3);  // TRY TO PREFORM THE SCAN
  ASSERT_EQ(Node(5), 4);
  host.Key(27);
  Frames(2);
  ASSERT_EQ(TopScreen(), Screen::Menu);
  host.Click(320, ::lf::test::BandY(2));
  Frames(2);
  EXPECT_TRUE(OnEventScreen());
  EXPECT_EQ(Node(5), 4);
  EXPECT_EQ(Tracks(3), 1);
}

TEST_F(EventInput, ResumeBeforeAWaitingEventIsEnteredGoesBackToTheBridgeWhichEntersIt) {
  Raise(1);
  ResetScreens();
  G.EventActive = False;
  G.BridgeActive = True;
  G.StatusSlot[EventSlot].Active = True;
  G.MessagePending = True;  // the event waits for the message
  Enter(RunLoop);
  Frames(1);
  host.Key(27);
  Frames(2);
  ASSERT_EQ(TopScreen(), Screen::Menu);
  host.Click(320, ::lf::test::BandY(2));
  Frames(2);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  G.MessagePending = False;
  Frames(2);
  EXPECT_TRUE(OnEventScreen());
  EXPECT_EQ(Node(1), 1);
}

}  // namespace
}  // namespace lf::test
