// Docking: what the hand-over from the bridge leaves behind, and the loop
// it starts.
#include <gtest/gtest.h>

#include <cstdio>

#include "display/gfx.h"
#include "shell/clocks.h"
#include "station/station_fixture.h"

namespace lf::test {
namespace {

class Entering : public StationTest {
 protected:
  void Dock() {
    try {
      a_EnteringStation();
    } catch (const ScreenChange&) {
    }
  }
};

TEST_F(Entering, DockingStopsTimeTypesTheArrivalTextAndStartsTheLoop) {
  StartTimer1();
  G.TermLine[8] = "KEPT FROM BEFORE";
  G.ServiceMenuOpen = True;
  G.MayDepart = False;
  StationPage() = 5;
  G.StationActive = False;
  Dock();
  EXPECT_EQ(G.Timer1Enabled, False);
  int major = -1, minor = -1, dims = -1;
  ASSERT_EQ(std::sscanf(G.TermLine[1].c_str(), "DOCKER V%d.%d %dD NOW", &major, &minor, &dims), 3) << G.TermLine[1];
  EXPECT_TRUE(major >= 0 && major <= 2 && minor >= 1 && minor <= 500 && dims >= 4 && dims <= 8) << G.TermLine[1];
  EXPECT_EQ(G.TermLine[4], "LOGGIN ONTO STATION MAINFRAME COMPUTER");
  EXPECT_EQ(G.TermLine[8], "KEPT FROM BEFORE");
  EXPECT_EQ(G.TermLineCount, 8);
  EXPECT_EQ(G.TermPrompt, 501);
  EXPECT_EQ(G.ServiceMenuOpen, False);
  EXPECT_EQ(G.MayDepart, True);
  EXPECT_EQ(StationPage(), 1);
  EXPECT_EQ(G.ProgressMode, 0);
  EXPECT_EQ(G.StationActive, True);
  EXPECT_EQ(TopScreen(), Screen::Station);
  ASSERT_GE(MediaLog().size(), 2u);
  EXPECT_EQ(MediaLog().front(), Sound(4, 1));
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Track, 3, 0, {}}));
}

TEST_F(Entering, APirateStationDealsThreeServices) {
  DockAtPirates();
  Dock();
  EXPECT_EQ(G.StationService[3], "SHIP DEALER");
  EXPECT_EQ(G.StationService[4], "");
}

}  // namespace
}  // namespace lf::test
