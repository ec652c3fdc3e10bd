#include <gtest/gtest.h>

#include "platform/frame_pacer.h"
#include "platform/letterbox.h"

namespace lf {
namespace {

TEST(Letterbox, ScalesByWholeNumbersAndCentres) {
  EXPECT_EQ(FitFrame(640, 480), (Letterbox{0, 0, 640, 480, 1}));
  EXPECT_EQ(FitFrame(1280, 960), (Letterbox{0, 0, 1280, 960, 2}));
  // 1920x1080: height allows 2 (960), bars of 60 above and below, 320 at the sides.
  EXPECT_EQ(FitFrame(1920, 1080), (Letterbox{320, 60, 1280, 960, 2}));
  // Just short of the next scale stays at the lower one.
  EXPECT_EQ(FitFrame(1919, 1439), (Letterbox{319, 239, 1280, 960, 2}));
  EXPECT_EQ(FitFrame(1920, 1440), (Letterbox{0, 0, 1920, 1440, 3}));
  // Tall window: width limits.
  EXPECT_EQ(FitFrame(700, 2000), (Letterbox{30, 760, 640, 480, 1}));
}

TEST(Letterbox, ShrinksInWindowsSmallerThanTheScreen) {
  const auto box = FitFrame(320, 480);
  EXPECT_EQ(box.scale, 0);
  EXPECT_EQ(box.w, 320);
  EXPECT_EQ(box.h, 240);
  EXPECT_EQ(box.y, 120);
  const auto zero = FitFrame(0, 0);  // a minimised window
  EXPECT_GE(zero.w, 1);
  EXPECT_GE(zero.h, 1);
  int sx, sy;
  WindowToScreen(zero, 0, 0, sx, sy);
  EXPECT_EQ(sx, 0);
}

TEST(Letterbox, MapsWindowPointsToTheScreenAndBack) {
  const auto box = FitFrame(1920, 1080);  // scale 2 at (320, 60)
  int sx, sy, wx, wy;
  WindowToScreen(box, 320, 60, sx, sy);
  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 0);
  WindowToScreen(box, 321, 61, sx, sy);  // still the first screen pixel
  EXPECT_EQ(sx, 0);
  WindowToScreen(box, 322, 62, sx, sy);
  EXPECT_EQ(sx, 1);
  EXPECT_EQ(sy, 1);
  WindowToScreen(box, 320 + 1279, 60 + 959, sx, sy);
  EXPECT_EQ(sx, 639);
  EXPECT_EQ(sy, 479);
  // Points on the bars are held at the screen's edge.
  WindowToScreen(box, 10, 5, sx, sy);
  EXPECT_EQ(sx, 0);
  EXPECT_EQ(sy, 0);
  WindowToScreen(box, 1919, 1079, sx, sy);
  EXPECT_EQ(sx, 639);
  EXPECT_EQ(sy, 479);

  ScreenToWindow(box, 0, 420, wx, wy);
  EXPECT_EQ(wx, 321);
  EXPECT_EQ(wy, 60 + 840 + 1);
  // Every screen point survives the round trip at every scale, and in a shrunk window.
  for (const auto& b : {FitFrame(640, 480), box, FitFrame(1920, 1440), FitFrame(2000, 1500), FitFrame(400, 300)}) {
    const bool shrunk = b.scale == 0;
    for (int x = 0; x < 640; x += shrunk ? 2 : 1) {
      const int y = (x * 3) % 480;
      ScreenToWindow(b, x, y, wx, wy);
      WindowToScreen(b, wx, wy, sx, sy);
      if (shrunk) {
        EXPECT_NEAR(sx, x, 1);
        EXPECT_NEAR(sy, y, 1);
      } else {
        ASSERT_EQ(sx, x) << b.w;
        ASSERT_EQ(sy, y) << b.w;
      }
    }
  }
}

TEST(Letterbox, OpensAtTheLargestScaleThatFitsUpToThree) {
  EXPECT_EQ(OpeningScale(1920, 1040, 0), 2);
  EXPECT_EQ(OpeningScale(1366, 728, 0), 1);
  EXPECT_EQ(OpeningScale(3840, 2100, 0), 3);  // never above 3 by itself
  EXPECT_EQ(OpeningScale(2560, 1440, 0), 2);  // 1440 leaves no room for the title bar
  EXPECT_EQ(OpeningScale(800, 400, 0), 1);    // too small still opens at 1
  EXPECT_EQ(OpeningScale(800, 600, 5), 5);    // asked for
}

TEST(FramePacer, HoldsSixtyFramesASecondAndRestartsAfterAStall) {
  FramePacer p(6000, 60);  // 100 counter ticks a frame
  EXPECT_EQ(p.NextStart(1000), 1100);
  EXPECT_EQ(p.NextStart(1100), 1200);
  // A frame that took longer than its slot starts at once, and the next
  // keeps to the original grid.
  EXPECT_EQ(p.NextStart(1250), 1300);
  EXPECT_EQ(p.NextStart(1301), 1400);
  // More than a tenth of a second behind: the count starts again from now.
  EXPECT_EQ(p.NextStart(2500), 2500);
  EXPECT_EQ(p.NextStart(2500), 2600);
  // Fractional periods do not drift: 60 frames take exactly one second.
  FramePacer q(1000, 60);
  std::uint64_t t = 0;
  for (int i = 0; i < 60; ++i) t = q.NextStart(t);
  EXPECT_EQ(t, 1000u);
}

}  // namespace
}  // namespace lf
