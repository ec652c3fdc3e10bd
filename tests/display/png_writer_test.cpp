#include <png.h>

#include <vector>

#include "display/png_writer.h"
#include "display_fixture.h"

namespace lf::test {
namespace {

TEST_F(DisplayTest, ScreenshotOfThePresentedFrameReadsBackAsEightBitRgb) {
  WriteSolid(R"(\gfx\w.bmp)", 1, 1, 0xFFFFFF);
  WriteSolid(R"(\gfx\c.bmp)", 1, 1, 0x088010);
  Bitmap w = LoadBitmapIntoDXS(R"(\gfx\w.bmp)");
  Bitmap c = LoadBitmapIntoDXS(R"(\gfx\c.bmp)");
  SetSrc(0, 0, 1, 1);
  BltFast(639, 0, w, false);
  BltFast(0, 479, c, false);
  FlipBuffers();

  const std::string file = (dir_ / "shot.png").string();
  ASSERT_TRUE(WritePng(file, PresentedPixels(), kScreenWidth * 2));

  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  ASSERT_TRUE(png_image_begin_read_from_file(&image, file.c_str()));
  EXPECT_EQ(image.width, 640u);
  EXPECT_EQ(image.height, 480u);
  image.format = PNG_FORMAT_RGB;
  std::vector<std::uint8_t> px(PNG_IMAGE_SIZE(image));
  ASSERT_TRUE(png_image_finish_read(&image, nullptr, px.data(), 0, nullptr));
  auto at = [&](int x, int y) { return &px[(static_cast<std::size_t>(y) * 640 + x) * 3]; };
  EXPECT_EQ(at(639, 0)[0], 255);  // white stays full white
  EXPECT_EQ(at(639, 0)[1], 255);
  EXPECT_EQ(at(639, 0)[2], 255);
  EXPECT_EQ(at(0, 479)[0], 8);
  EXPECT_EQ(at(0, 479)[1], 130);  // 6 bits of 128, widened
  EXPECT_EQ(at(0, 479)[2], 16);
  EXPECT_EQ(at(320, 240)[0], 0);

  EXPECT_FALSE(WritePng((dir_ / "no" / "such" / "dir.png").string(), PresentedPixels(), 1280));
  EXPECT_FALSE(WritePng(file, nullptr, 1280));
}

}  // namespace
}  // namespace lf::test
