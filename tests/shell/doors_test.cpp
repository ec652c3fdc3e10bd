#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "display/gfx.h"
#include "shell/doors.h"
#include "support/shell_fixture.h"

namespace lf {
namespace {

using test::BlitsOf;
using test::RecordedBlits;
using ButtonMap = std::map<std::pair<int, int>, int>;

constexpr std::int16_t kUntouched = 9;

class DoorsTest : public test::ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    for (int p = 1; p <= 6; ++p)
      for (int b = 1; b <= 15; ++b) {
        auto& button = G.BridgeButton[p][b];
        button.State = button.Present = button.Visible = kUntouched;
      }
    G.ShipX = 1234.5;
    G.ShipY = 777;
  }
  // One frame that finishes the doors of the given change.
  void Finish(int state) {
    G.OrbitState = static_cast<std::int16_t>(state);
    G.BigDoorPos = 199;
    G.BigDoorStep = 1;
    DrawBigDoors();
    EXPECT_EQ(G.BigDoorPos, 200);
    EXPECT_EQ(G.BigDoorStep, 0);
  }
  // Every button's field against what is expected; all others untouched.
  static void ExpectButtons(std::int16_t BridgeButtonRecord::*field, const ButtonMap& expected,
                            const char* what) {
    for (int p = 1; p <= 6; ++p)
      for (int b = 1; b <= 15; ++b) {
        const auto it = expected.find({p, b});
        const int want = it == expected.end() ? kUntouched : it->second;
        EXPECT_EQ(G.BridgeButton[p][b].*field, want) << what << " (" << p << "," << b << ")";
      }
  }
  static ButtonMap HailButtons(int value) {
    ButtonMap m;
    for (auto pb : {std::pair{1, 1}, {1, 4}, {1, 5}, {1, 6}, {1, 9}, {1, 10}, {2, 3}, {2, 5}, {2, 7},
                    {3, 5}, {4, 2}, {4, 3}, {5, 1}, {5, 6}, {6, 3}})
      m[pb] = value;
    m[{2, 1}] = 0;
    m[{2, 2}] = 0;
    return m;
  }
};

TEST_F(DoorsTest, ACycleIsTwoHundredFramesClosingAndTwoHundredOpening) {
  G.OrbitState = 2;
  G.BigDoorPos = 200;
  G.BigDoorStep = 0;
  DrawBigDoors();  // the doors start to close
  EXPECT_EQ(G.BigDoorPos, 199);
  EXPECT_EQ(G.BigDoorStep, -1);
  int frames = 0;
  while (G.OrbitState == 2 && frames < 1000) {
    DrawBigDoors();
    ++frames;
    if (frames == 199) {
      EXPECT_EQ(G.BigDoorPos, 0);
    }
    if (frames == 200) {
      EXPECT_EQ(G.BigDoorPos, 0);  // shut, and turning
      EXPECT_EQ(G.BigDoorStep, 1);
    }
  }
  EXPECT_EQ(frames, 400);
  EXPECT_EQ(G.OrbitState, 3);
  EXPECT_EQ(G.BigDoorPos, 200);

  // A still door that was never opened does not move.
  G.OrbitState = 4;
  G.BigDoorPos = 0;
  G.BigDoorStep = 0;
  DrawBigDoors();
  EXPECT_EQ(G.BigDoorPos, 0);
}

TEST_F(DoorsTest, EnteringOrbit) {
  G.PageOpen[1] = 1;
  G.PlanetCount = 3;
  G.Planet[1] = {};
  G.Planet[1].X = 1234.5 + 30;
  G.Planet[1].Y = 777;
  G.Planet[1].Width = 30;  // exactly its width away: not near
  G.Planet[2].X = 1234.5;
  G.Planet[2].Y = 777 + 29;
  G.Planet[2].Width = 30;
  G.Planet[3].X = 1200;
  G.Planet[3].Y = 777;
  G.Planet[3].Width = 58;
  Finish(2);
  EXPECT_EQ(G.OrbitState, 3);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1 / 60);
  EXPECT_EQ(G.OrbitOfferOpen, True);
  EXPECT_EQ(G.Planet[1].Known, False);
  EXPECT_EQ(G.Planet[2].Known, True);
  EXPECT_EQ(G.Planet[3].Known, True);
  ExpectButtons(&BridgeButtonRecord::State,
                {{{1, 1}, 2}, {{2, 1}, 2}, {{3, 4}, 2}, {{1, 5}, 2}, {{1, 9}, 2},
                 {{4, 2}, 0}, {{5, 1}, 0}, {{1, 7}, 0}, {{1, 6}, 0}}, "State");
  ExpectButtons(&BridgeButtonRecord::Present, {{{1, 5}, 0}, {{1, 6}, -1}}, "Present");
  ExpectButtons(&BridgeButtonRecord::Visible, {{{1, 5}, -1}, {{1, 6}, -1}}, "Visible");
}

TEST_F(DoorsTest, LeavingOrbitWithTheNavigatorClosed) {
  G.PageOpen[2] = 1;
  G.OrbitOfferOpen = True;
  Finish(4);
  EXPECT_EQ(G.OrbitState, 1);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(G.OrbitOfferOpen, False);
  EXPECT_EQ(G.DestX, 1234.5);
  EXPECT_EQ(G.DestY, 777);
  ExpectButtons(&BridgeButtonRecord::State,
                {{{2, 1}, 0}, {{3, 4}, 0}, {{1, 1}, 0}, {{1, 2}, 0}, {{1, 5}, 0}, {{4, 2}, 0},
                 {{2, 3}, 1}, {{1, 6}, 2}, {{5, 1}, 2}}, "State");
  ExpectButtons(&BridgeButtonRecord::Present, {{{1, 5}, -1}, {{1, 6}, 0}}, "Present");
  ExpectButtons(&BridgeButtonRecord::Visible, {}, "Visible");
}

TEST_F(DoorsTest, OpeningAHail) {
  Finish(5);
  EXPECT_EQ(G.OrbitState, 6);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1 / 60);
  ExpectButtons(&BridgeButtonRecord::State, HailButtons(2), "State");
  ExpectButtons(&BridgeButtonRecord::Present, {{{2, 1}, 0}, {{2, 2}, -1}}, "Present");
  ExpectButtons(&BridgeButtonRecord::Visible, {{{2, 1}, 0}, {{2, 2}, -1}}, "Visible");
}

TEST_F(DoorsTest, ClosingAHail) {
  G.PageOpen[2] = 1;
  Finish(7);
  EXPECT_EQ(G.OrbitState, 0);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(G.DestX, 1234.5);
  ExpectButtons(&BridgeButtonRecord::State, HailButtons(0), "State");
  ExpectButtons(&BridgeButtonRecord::Present, {{{2, 1}, -1}, {{2, 2}, 0}}, "Present");
  ExpectButtons(&BridgeButtonRecord::Visible, {{{2, 1}, -1}, {{2, 2}, 0}}, "Visible");

  // Page 2 closed: visibility is left alone at the end...
  SetUp();
  Finish(7);
  ExpectButtons(&BridgeButtonRecord::Visible, {}, "Visible");
  // ...but every closing frame shows the hail button.
  G.OrbitState = 7;
  G.BigDoorPos = 100;
  G.BigDoorStep = -1;
  DrawBigDoors();
  ExpectButtons(&BridgeButtonRecord::Visible, {{{2, 1}, -1}, {{2, 2}, 0}}, "Visible");
}

TEST_F(DoorsTest, LeavesAndWhatTheyUncover) {
  G.OrbitState = 2;
  G.BigDoorPos = 49;
  G.BigDoorStep = 1;
  DrawBigDoors();
  ASSERT_EQ(RecordedBlits().size(), 3u);
  const auto under = BlitsOf(GFX.OrbitPicture);
  ASSERT_EQ(under.size(), 1u);
  EXPECT_EQ(RecordedBlits()[0].bitmap, &GFX.OrbitPicture);
  EXPECT_EQ(under[0].x, 121);
  EXPECT_EQ(under[0].y, 25);
  EXPECT_EQ(under[0].right, 400);
  EXPECT_EQ(under[0].bottom, 240);
  EXPECT_FALSE(under[0].keyed);
  const auto leaves = BlitsOf(GFX.Slider);
  ASSERT_EQ(leaves.size(), 2u);
  EXPECT_EQ(leaves[0].x, 121);
  EXPECT_EQ(leaves[0].left, 50);
  EXPECT_EQ(leaves[0].right, 200);
  EXPECT_EQ(leaves[0].bottom, 240);
  EXPECT_EQ(leaves[1].x, 371);
  EXPECT_EQ(leaves[1].left, 200);
  EXPECT_EQ(leaves[1].right, 350);
  EXPECT_FALSE(leaves[1].keyed);

  // Closing in 2: the leaves close over the sector view.
  RecordedBlits().clear();
  G.BigDoorStep = -1;
  DrawBigDoors();
  EXPECT_TRUE(BlitsOf(GFX.OrbitPicture).empty());
  EXPECT_EQ(BlitsOf(GFX.Slider).size(), 2u);

  // Closing in 4: they close over the orbit picture.
  RecordedBlits().clear();
  G.OrbitState = 4;
  DrawBigDoors();
  EXPECT_EQ(BlitsOf(GFX.OrbitPicture).size(), 1u);

  // The frame that completes entering orbit still shows the picture.
  RecordedBlits().clear();
  G.OrbitState = 2;
  G.BigDoorPos = 199;
  G.BigDoorStep = 1;
  DrawBigDoors();
  EXPECT_EQ(G.OrbitState, 3);
  EXPECT_EQ(BlitsOf(GFX.OrbitPicture).size(), 1u);
}

TEST_F(DoorsTest, HailDoorsAreStatic) {
  G.OrbitState = 5;
  G.BigDoorPos = 100;
  G.BigDoorStep = -1;
  G.StaticOn = False;
  DrawBigDoors();
  EXPECT_TRUE(RecordedBlits().empty());  // closing over the sector view, no leaves

  G.StaticOn = True;
  G.StaticFrame = 2;
  G.StaticY = 120;
  G.BigDoorStep = 1;
  DrawBigDoors();
  ASSERT_FALSE(RecordedBlits().empty());
  EXPECT_EQ(RecordedBlits()[0].bitmap, &GFX.HailPicture);
  const auto burst = BlitsOf(GFX.StaticBig[2]);
  ASSERT_EQ(burst.size(), 1u);
  EXPECT_EQ(burst[0].y, 120);
  EXPECT_TRUE(burst[0].keyed);
  EXPECT_GE(burst[0].bottom, 1);
  EXPECT_LE(burst[0].bottom, 60);
  const auto& full = RecordedBlits().back();
  bool isBig2 = false;
  for (int i = 1; i <= 5; ++i) isBig2 |= full.bitmap == &GFX.StaticBig2[i];
  EXPECT_TRUE(isBig2);
  EXPECT_FALSE(full.keyed);
  EXPECT_EQ(full.right, 400);
  EXPECT_EQ(full.bottom, 240);
  EXPECT_TRUE(BlitsOf(GFX.Slider).empty());
}

TEST_F(DoorsTest, HailViewBurstsOfStatic) {
  G.StaticOn = False;
  DrawHailView();
  ASSERT_EQ(RecordedBlits().size(), 1u);
  EXPECT_EQ(RecordedBlits()[0].bitmap, &GFX.HailPicture);
  EXPECT_EQ(RecordedBlits()[0].x, 121);

  G.StaticOn = True;
  G.StaticFrame = 9;  // no such picture: the burst is skipped
  RecordedBlits().clear();
  DrawHailView();
  EXPECT_EQ(RecordedBlits().size(), 1u);

  // Now and then the static crackles.
  G.StaticFrame = 1;
  ClearMediaLog();
  for (int i = 0; i < 100 && MediaLog().empty(); ++i) DrawHailView();
  ASSERT_FALSE(MediaLog().empty());
  EXPECT_EQ(MediaLog().back(), Sound(6, 7));
}

}  // namespace
}  // namespace lf
