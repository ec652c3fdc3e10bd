// The menu as drawn: each band lights by the cursor's row alone, from the
// band bitmaps' lower half; rows on a band's edge light none.
#include "display/bitmap_sets.h"
#include "display/screen.h"
#include "display_fixture.h"
#include "shell/menu.h"

namespace lf::test {
namespace {

// Band i's plain half is (i, 0, 0) x 32 in red, its lit half the same in green.
std::uint32_t Plain(int i) { return static_cast<std::uint32_t>(i * 32) << 16; }
std::uint32_t Lit(int i) { return static_cast<std::uint32_t>(i * 32) << 8; }

class MenuBands : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    WriteSolid(R"(\gfx\main\0.bmp)", 640, 120, 0x203040);
    for (int i = 1; i <= 6; ++i)
      WriteBmp(R"(\gfx\main\)" + std::to_string(i) + ".bmp", 640, 120,
               [i](int, int y) { return y < 60 ? Plain(i) : Lit(i); });
    LoadMenuBitmaps();
  }
  // Draws the menu with the cursor at row y and tells which band is lit.
  int LitBandAt(int x, int y) {
    host_.cursorX = x;
    host_.cursorY = y;
    b_DrawMainMenu();
    int lit = 0;
    for (int i = 1; i <= 6; ++i) {
      const int row = 120 + 60 * (i - 1) + 30;
      const std::uint16_t p = BackPixel(320, row);
      if (p == C565(Lit(i))) {
        EXPECT_EQ(lit, 0) << "two bands lit";
        lit = i;
      } else {
        EXPECT_EQ(p, C565(Plain(i))) << "band " << i;
      }
    }
    EXPECT_EQ(BackPixel(5, 5), C565(0x203040)) << "the title stands at the top";
    return lit;
  }
};

TEST_F(MenuBands, TheRowAloneLightsOneBandAndEdgesLightNone) {
  EXPECT_EQ(LitBandAt(320, 150), 1);
  EXPECT_EQ(LitBandAt(0, 121), 1);   // any column
  EXPECT_EQ(LitBandAt(639, 179), 1);
  EXPECT_EQ(LitBandAt(320, 180), 0);  // exactly between bands 1 and 2
  EXPECT_EQ(LitBandAt(320, 181), 2);
  EXPECT_EQ(LitBandAt(320, 120), 0);
  EXPECT_EQ(LitBandAt(320, 300), 0);
  EXPECT_EQ(LitBandAt(320, 450), 6);
  EXPECT_EQ(LitBandAt(320, 479), 6);
  EXPECT_EQ(LitBandAt(320, 60), 0);  // over the title
}

}  // namespace
}  // namespace lf::test
