#include <SDL.h>

#include <fstream>

#include "display/screen.h"
#include "display_fixture.h"

namespace lf::test {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kNearBlack = 0x080408;  // survives 16 bits as non-zero
constexpr std::uint32_t kRed = 0xF80000;

class ScreenTest : public DisplayTest {
 protected:
  // A white 640x480 backdrop, drawn opaque, to see what a keyed blit leaves.
  void WhiteBackdrop() {
    WriteSolid(R"(\gfx\white.bmp)", 640, 480, kWhite);
    white_ = LoadBitmapIntoDXS(R"(\gfx\white.bmp)");
    SetSrc(0, 0, 640, 480);
    ASSERT_TRUE(BltFast(0, 0, white_, false));
  }
  Bitmap white_;
};

TEST_F(ScreenTest, TrueColourBmpKeysColourZeroOnlyAndOpaqueDrawsIt) {
  // Row 0: black, near-black, red; row 1: red, black, white.
  WriteBmp(R"(\gfx\Sprite.BMP)", 3, 2, [](int x, int y) {
    const std::uint32_t rows[2][3] = {{0x000000, kNearBlack, kRed}, {kRed, 0x000000, kWhite}};
    return rows[y][x];
  });
  Bitmap b = LoadBitmapIntoDXS(R"(\gfx\Sprite.BMP)");
  ASSERT_TRUE(b.Loaded());
  EXPECT_EQ(b.Width(), 3);
  EXPECT_EQ(b.Height(), 2);
  EXPECT_EQ(G.ProgressCount, 1);

  WhiteBackdrop();
  SetSrc(0, 0, 3, 2);
  ASSERT_TRUE(BltFast(100, 50, b, true));
  EXPECT_EQ(BackPixel(100, 50), C565(kWhite)) << "colour 0 is left out";
  EXPECT_EQ(BackPixel(101, 50), C565(kNearBlack)) << "near-black is a colour";
  EXPECT_NE(C565(kNearBlack), 0);
  EXPECT_EQ(BackPixel(102, 50), C565(kRed));
  EXPECT_EQ(BackPixel(101, 51), C565(kWhite));

  // The same picture opaque draws its black; keyed again leaves it out.
  ASSERT_TRUE(BltFast(200, 50, b, false));
  EXPECT_EQ(BackPixel(200, 50), 0);
  EXPECT_EQ(BackPixel(201, 51), 0);
  ASSERT_TRUE(BltFast(300, 50, b, true));
  EXPECT_EQ(BackPixel(300, 50), C565(kWhite));

  // A sub-rectangle: the right column only.
  SetSrc(2, 0, 3, 2);
  ASSERT_TRUE(BltFast(400, 60, b, false));
  EXPECT_EQ(BackPixel(400, 60), C565(kRed));
  EXPECT_EQ(BackPixel(400, 61), C565(kWhite));
  EXPECT_EQ(BackPixel(401, 60), C565(kWhite)) << "nothing beyond the rectangle";
}

TEST_F(ScreenTest, PaletteBmpKeysBlackNotPaletteIndexZero) {
  SDL_Surface* s = SDL_CreateRGBSurfaceWithFormat(0, 2, 1, 8, SDL_PIXELFORMAT_INDEX8);
  ASSERT_NE(s, nullptr);
  const SDL_Color colours[2] = {{248, 0, 0, 255}, {0, 0, 0, 255}};  // index 0 red, 1 black
  SDL_SetPaletteColors(s->format->palette, colours, 0, 2);
  static_cast<std::uint8_t*>(s->pixels)[0] = 0;
  static_cast<std::uint8_t*>(s->pixels)[1] = 1;
  Save(s, R"(\gfx\pal.bmp)");

  Bitmap b = LoadBitmapIntoDXS(R"(\gfx\pal.bmp)");
  ASSERT_TRUE(b.Loaded());
  WhiteBackdrop();
  SetSrc(0, 0, 2, 1);
  ASSERT_TRUE(BltFast(10, 10, b, true));
  EXPECT_EQ(BackPixel(10, 10), C565(kRed));
  EXPECT_EQ(BackPixel(11, 10), C565(kWhite));
}

TEST_F(ScreenTest, BlitThatDoesNotFitIsSkippedWhole) {
  WriteSolid(R"(\gfx\block.bmp)", 50, 40, kRed);
  Bitmap b = LoadBitmapIntoDXS(R"(\gfx\block.bmp)");
  ASSERT_TRUE(b.Loaded());
  const std::uint64_t empty = BackSum();

  struct Case {
    int l, t, r, btm, x, y;
    const char* why;
  };
  const Case skipped[] = {
      {0, 0, 50, 40, 591, 0, "one pixel over the right edge"},
      {0, 0, 50, 40, 0, 441, "one pixel over the bottom"},
      {0, 0, 50, 40, -1, 10, "left of the screen"},
      {0, 0, 50, 40, 10, -1, "above the screen"},
      {0, 0, 51, 40, 10, 10, "wider than the source"},
      {0, 1, 50, 41, 10, 10, "below the source"},
      {-1, 0, 49, 40, 10, 10, "left of the source"},
      {10, 0, 10, 40, 10, 10, "no width"},
      {20, 0, 10, 40, 10, 10, "right before left"},
  };
  for (const Case& c : skipped) {
    SetSrc(c.l, c.t, c.r, c.btm);
    EXPECT_FALSE(BltFast(c.x, c.y, b, true)) << c.why;
    EXPECT_FALSE(BltFast(c.x, c.y, b, false)) << c.why;
    EXPECT_EQ(BackSum(), empty) << c.why << ": nothing drawn";
  }

  // Exactly at the corner it fits.
  SetSrc(0, 0, 50, 40);
  EXPECT_TRUE(BltFast(590, 440, b, false));
  EXPECT_EQ(BackPixel(639, 479), C565(kRed));
  EXPECT_EQ(BackPixel(589, 479), 0);
}

TEST_F(ScreenTest, EmptyHandleDrawsNothing) {
  Bitmap never;
  SetSrc(0, 0, 10, 10);
  EXPECT_FALSE(BltFast(0, 0, never, true));
  EXPECT_FALSE(BltFast(0, 0, never, false));
  EXPECT_EQ(BackPixel(0, 0), 0);
}

TEST_F(ScreenTest, MissingTruncatedAndGarbageFilesGiveEmptyHandlesAndOneReportEach) {
  WriteSolid(R"(\gfx\whole.bmp)", 40, 40, kRed);
  const auto whole = std::filesystem::file_size(DataPath(R"(\gfx\whole.bmp)"));
  std::filesystem::copy_file(DataPath(R"(\gfx\whole.bmp)"), DataPath(R"(\gfx\cut.bmp)"));
  std::filesystem::resize_file(DataPath(R"(\gfx\cut.bmp)"), whole / 2);
  {
    std::ofstream junk(DataPath(R"(\gfx\junk.bmp)"), std::ios::binary);
    junk << "BM this is no picture at all, only words";
  }
  { std::ofstream empty(DataPath(R"(\gfx\empty.bmp)"), std::ios::binary); }

  SetVerbose(true);
  const char* files[] = {R"(\gfx\gone.bmp)", R"(\gfx\cut.bmp)", R"(\gfx\junk.bmp)", R"(\gfx\empty.bmp)"};
  for (const char* f : files) {
    ::testing::internal::CaptureStderr();
    Bitmap b = LoadBitmapIntoDXS(f);
    Bitmap again = LoadBitmapIntoDXS(f);
    const std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_FALSE(b.Loaded()) << f;
    EXPECT_FALSE(again.Loaded()) << f;
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << f << ": " << err;
    EXPECT_NE(err.find(DataPath(f)), std::string::npos) << err;
    SetSrc(0, 0, 1, 1);
    EXPECT_FALSE(BltFast(0, 0, b, true));
  }
  // Every attempt counts as a load, read or not.
  EXPECT_EQ(G.ProgressCount, 8);
  EXPECT_EQ(BackPixel(0, 0), 0);
}

TEST_F(ScreenTest, FlipPresentsTheFrameThenClearsTheBack) {
  WriteSolid(R"(\gfx\dot.bmp)", 2, 2, kWhite);
  Bitmap b = LoadBitmapIntoDXS(R"(\gfx\dot.bmp)");
  SetSrc(0, 0, 2, 2);
  ASSERT_TRUE(BltFast(639 - 1, 479 - 1, b, false));

  struct Recorder : ScriptedHost {
    std::uint16_t seen = 0;
    int pitch = 0;
    void Present(const std::uint16_t* px, int pitchBytes) override {
      ScriptedHost::Present(px, pitchBytes);
      pitch = pitchBytes;
      seen = px[(479 * pitchBytes) / 2 + 639];
    }
  } host;
  SetHost(&host);
  FlipBuffers();
  EXPECT_EQ(host.presented, 1);
  EXPECT_EQ(host.seen, C565(kWhite)) << "the host saw the frame before the clear";
  EXPECT_EQ(host.pitch, BackPitchBytes());
  EXPECT_EQ(PresentedPixels()[479 * 640 + 639], C565(kWhite));
  EXPECT_EQ(BackPixel(639, 479), 0);

  FlipBuffers();
  EXPECT_EQ(host.presented, 2);
  EXPECT_EQ(PresentedPixels()[479 * 640 + 639], 0);
}

TEST_F(ScreenTest, LoadDrawsTheProgressBarFromTheSixthLoadOfALoadUnderWay) {
  WriteSolid(R"(\gfx\x.bmp)", 1, 1, kRed);
  G.ProgressMode = 0;
  for (int i = 0; i < 8; ++i) (void)LoadBitmapIntoDXS(R"(\gfx\x.bmp)");
  EXPECT_EQ(host_.presented, 0);

  G.ProgressCount = 0;
  G.ProgressMode = 2;
  for (int i = 0; i < 5; ++i) (void)LoadBitmapIntoDXS(R"(\gfx\x.bmp)");
  EXPECT_EQ(host_.presented, 0);
  (void)LoadBitmapIntoDXS(R"(\gfx\x.bmp)");
  (void)LoadBitmapIntoDXS(R"(\gfx\x.bmp)");
  EXPECT_EQ(host_.presented, 2);
  EXPECT_EQ(G.ProgressCount, 7);
}

}  // namespace
}  // namespace lf::test
