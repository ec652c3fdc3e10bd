#include "display/bitmap_sets.h"
#include "display_fixture.h"

namespace lf::test {
namespace {

constexpr std::uint32_t kLoading = 0x0000F8;
constexpr std::uint32_t kBar = 0xF8F800;

class ProgressTest : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    WriteSolid(R"(\gfx\loading\loadingpic.bmp)", 640, 480, kLoading);
    WriteSolid(R"(\gfx\loading\progressbar.bmp)", 611, 46, kBar);
    GFX.LoadingPicture = LoadBitmapIntoDXS(R"(\gfx\loading\loadingpic.bmp)");
    GFX.ProgressBarPicture = LoadBitmapIntoDXS(R"(\gfx\loading\progressbar.bmp)");
  }
  static std::uint16_t Shown(int x, int y) { return PresentedPixels()[y * kScreenWidth + x]; }
  // The bar's width as shown: bar colour from x = 10 on.
  static int ShownWidth() {
    int w = 0;
    while (10 + w < kScreenWidth && Shown(10 + w, 396) == C565(kBar)) ++w;
    return w;
  }
};

TEST_F(ProgressTest, BarWidthByModeAndCount) {
  struct Case {
    int mode, count, width;
  };
  const Case cases[] = {
      {1, 191, 611}, {1, 100, 319}, {1, 1, 3},   {2, 21, 611}, {2, 1, 29},  {2, 10, 290},
      {3, 360, 611}, {3, 1, 1},     {3, 0, 1},   {3, 180, 305}, {4, 35, 611}, {4, 17, 296},
  };
  for (const Case& c : cases) {
    G.ProgressMode = static_cast<std::int16_t>(c.mode);
    G.ProgressCount = static_cast<std::int16_t>(c.count);
    const long before = host_.presented;
    DrawProgressBar();
    EXPECT_EQ(host_.presented, before + 1);
    EXPECT_EQ(ShownWidth(), c.width) << "mode " << c.mode << " count " << c.count;
    // 46 rows from y = 396, the loading picture around it.
    EXPECT_EQ(Shown(10, 441), C565(kBar));
    EXPECT_EQ(Shown(10, 442), C565(kLoading));
    EXPECT_EQ(Shown(9, 400), C565(kLoading));
    EXPECT_EQ(Shown(10 + c.width, 400), C565(kLoading));
    EXPECT_EQ(BackPixel(10, 400), 0) << "presented and cleared";
  }
}

TEST_F(ProgressTest, CountBeyondTheBarDrawsTheLoadingPictureOnly) {
  // A new game that loads more than 360: the rectangle outgrows the bar
  // picture and the blit is skipped.
  G.ProgressMode = 3;
  G.ProgressCount = 361;
  DrawProgressBar();
  EXPECT_EQ(ShownWidth(), 0);
  EXPECT_EQ(Shown(10, 400), C565(kLoading));

  // An unknown mode shows the picture without a bar.
  G.ProgressMode = 7;
  G.ProgressCount = 10;
  DrawProgressBar();
  EXPECT_EQ(ShownWidth(), 0);
  EXPECT_EQ(Shown(0, 0), C565(kLoading));
}

TEST_F(ProgressTest, BackdropIsDrawnOpaque) {
  WriteSolid(R"(\gfx\back.bmp)", 640, 480, 0);
  GFX.Back = LoadBitmapIntoDXS(R"(\gfx\back.bmp)");
  SetSrc(0, 0, 640, 480);
  BltFast(0, 0, GFX.LoadingPicture, false);
  DrawBack();
  EXPECT_EQ(BackPixel(320, 240), 0) << "black backdrop covers what was there";
}

}  // namespace
}  // namespace lf::test
