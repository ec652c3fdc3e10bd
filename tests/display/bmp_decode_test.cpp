// The quick reader of the game's own picture files must give exactly the
// pixels of the general reader followed by a conversion to 5-6-5, and must
// hand anything damaged back rather than read or write outside the file or
// the picture.
#include <SDL.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "display/bmp_decode.h"
#include "display/bmp_header.h"

namespace lf {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Pixels = std::vector<std::uint16_t>;

struct Picture {
  int w = 0, h = 0;
  Pixels pixels;
  bool operator==(const Picture&) const = default;
};

// The general reader: SDL's BMP loader and conversion.
std::optional<Picture> General(const Bytes& bytes) {
  SDL_Surface* raw = SDL_LoadBMP_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1);
  if (!raw) return std::nullopt;
  SDL_Surface* s = SDL_ConvertSurfaceFormat(raw, SDL_PIXELFORMAT_RGB565, 0);
  SDL_FreeSurface(raw);
  if (!s) return std::nullopt;
  Picture p{s->w, s->h, Pixels(static_cast<std::size_t>(s->w) * s->h)};
  for (int y = 0; y < s->h; ++y)
    std::memcpy(p.pixels.data() + static_cast<std::size_t>(y) * s->w,
                static_cast<const std::uint8_t*>(s->pixels) + static_cast<std::size_t>(y) * s->pitch,
                static_cast<std::size_t>(s->w) * 2);
  SDL_FreeSurface(s);
  return p;
}

// The quick reader, with a guard row around the picture to catch stray
// writes and a pitch wider than the picture.
std::optional<Picture> Quick(const Bytes& bytes) {
  const auto layout = PlainBmpLayout(bytes);
  if (!layout) return std::nullopt;
  const std::size_t pitch = static_cast<std::size_t>(layout->Width) + 3;
  constexpr std::uint16_t kGuard = 0xBEEF;
  Pixels buffer(pitch * (static_cast<std::size_t>(layout->Height) + 2), kGuard);
  if (!DecodePlainBmp(*layout, bytes, buffer.data() + pitch, pitch)) return std::nullopt;
  const auto w = static_cast<std::size_t>(layout->Width), h = static_cast<std::size_t>(layout->Height);
  Picture p{layout->Width, layout->Height, Pixels(w * h)};
  const auto untouched = [&](std::size_t from, std::size_t count) {
    for (std::size_t i = from; i < from + count; ++i)
      if (buffer[i] != kGuard) return false;
    return true;
  };
  EXPECT_TRUE(untouched(0, pitch)) << "a pixel written below the picture";
  EXPECT_TRUE(untouched(pitch * (h + 1), pitch)) << "a pixel written above the picture";
  for (std::size_t y = 0; y < h; ++y) {
    const std::uint16_t* row = buffer.data() + pitch * (y + 1);
    std::memcpy(p.pixels.data() + y * w, row, w * 2);
    EXPECT_TRUE(untouched(pitch * (y + 1) + w, pitch - w)) << "a pixel written past row " << y;
  }
  return p;
}

void Put16(Bytes& b, std::size_t at, std::uint32_t v) {
  b[at] = v & 0xFF;
  b[at + 1] = (v >> 8) & 0xFF;
}
void Put32(Bytes& b, std::size_t at, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) b[at + i] = (v >> (8 * i)) & 0xFF;
}

// A BMP file with a 40-byte header; for 8 bits a full palette whose entry i
// is a colour no other entry shares.
Bytes File(int w, int h, int bits, std::uint32_t compression, const Bytes& pixels) {
  const std::size_t palette = bits == 8 ? 1024 : 0;
  Bytes b(54 + palette);
  b[0] = 'B';
  b[1] = 'M';
  Put32(b, 2, static_cast<std::uint32_t>(b.size() + pixels.size()));
  Put32(b, 10, static_cast<std::uint32_t>(54 + palette));
  Put32(b, 14, 40);
  Put32(b, 18, static_cast<std::uint32_t>(w));
  Put32(b, 22, static_cast<std::uint32_t>(h));
  Put16(b, 26, 1);
  Put16(b, 28, static_cast<std::uint32_t>(bits));
  Put32(b, 30, compression);
  Put32(b, 34, static_cast<std::uint32_t>(pixels.size()));
  if (bits == 8) {
    Put32(b, 46, 256);
    for (int i = 0; i < 256; ++i) {
      b[54 + 4 * i] = static_cast<std::uint8_t>(i * 7);        // blue
      b[54 + 4 * i + 1] = static_cast<std::uint8_t>(255 - i);  // green
      b[54 + 4 * i + 2] = static_cast<std::uint8_t>(i * 3);    // red
    }
  }
  b.insert(b.end(), pixels.begin(), pixels.end());
  return b;
}

// Rows of a plain 8-bit picture, bottom row first, each padded to four bytes.
Bytes Plain8(int w, int h) {
  const int stride = (w + 3) & ~3;
  Bytes px(static_cast<std::size_t>(stride) * h, 0xEE);  // padding the reader must skip
  for (int r = 0; r < h; ++r)
    for (int x = 0; x < w; ++x) px[static_cast<std::size_t>(r) * stride + x] = static_cast<std::uint8_t>(r * 31 + x * 17);
  return px;
}

Bytes Plain24(int w, int h) {
  const int stride = (w * 3 + 3) & ~3;
  Bytes px(static_cast<std::size_t>(stride) * h, 0xEE);
  for (int r = 0; r < h; ++r)
    for (int x = 0; x < 3 * w; ++x) px[static_cast<std::size_t>(r) * stride + x] = static_cast<std::uint8_t>(r * 13 + x * 29 + 5);
  return px;
}

// A coded 5x5 picture using every kind of code: runs, an odd literal
// stretch with its pad byte, an even one, a jump, rows ended early (their
// rest keeps index 0), and the end code.
Bytes Coded() {
  return {3, 9, 2, 200,              // bottom row: a run of three, a run of two
          0, 0,                      // end of row
          0, 3, 1, 2, 3, 0,          // an odd literal stretch, padded; the row's rest left alone
          0, 0,                      //
          0, 2, 1, 1,                // a jump one right and one up: the middle row left alone
          0, 4, 77, 88, 250, 251,    // an even literal stretch
          0, 0,                      //
          1, 44,                     // top row: one pixel, the rest left alone
          0, 1};
}

Bytes ReadFile(const std::filesystem::path& p) {
  Bytes bytes(std::filesystem::file_size(p));
  std::ifstream in(p, std::ios::binary);
  in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

TEST(QuickPictureReader, GivesTheGeneralReadersPixelsForEveryKindItTakes) {
  const struct {
    const char* what;
    Bytes file;
  } cases[] = {
      {"8-bit, width padded", File(5, 3, 8, 0, Plain8(5, 3))},
      {"8-bit, top row first", File(6, -4, 8, 0, Plain8(6, 4))},
      {"24-bit, width padded", File(3, 5, 24, 0, Plain24(3, 5))},
      {"24-bit, top row first", File(2, -3, 24, 0, Plain24(2, 3))},
      {"8-bit coded", File(5, 5, 8, 1, Coded())},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    ASSERT_FALSE(BmpHeaderFault(c.file).has_value());
    const auto general = General(c.file);
    const auto quick = Quick(c.file);
    ASSERT_TRUE(general.has_value()) << SDL_GetError();
    ASSERT_TRUE(quick.has_value());
    EXPECT_EQ(*quick, *general);
  }
}

TEST(QuickPictureReader, LeavesOtherKindsToTheGeneralReader) {
  Bytes fewColours = File(4, 2, 8, 0, Plain8(4, 2));
  Put32(fewColours, 46, 16);  // an index past colour 16 makes the file unreadable
  Bytes codedTopFirst = File(5, -5, 8, 1, Coded());
  Bytes sixteenBits = File(4, 2, 16, 0, Bytes(16, 1));
  Bytes oldHeader = File(4, 2, 24, 0, Plain24(4, 2));
  Put32(oldHeader, 14, 12);
  for (const Bytes* f : {&fewColours, &codedTopFirst, &sixteenBits, &oldHeader})
    EXPECT_FALSE(PlainBmpLayout(*f).has_value());
}

TEST(QuickPictureReader, RefusesDamagedCodedStreams) {
  const struct {
    const char* what;
    Bytes stream;
  } cases[] = {
      {"a run past the row's end", {6, 1, 0, 1}},
      {"a literal past the row's end", {3, 1, 0, 3, 1, 2, 3, 0, 0, 1}},
      {"a jump past the row's end", {0, 2, 5, 0, 1, 1, 0, 1}},
      {"rows past the top", {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 1}},
      {"a jump past the top", {0, 2, 0, 4, 1, 1, 0, 1}},
      {"no end code", {2, 1, 0, 0}},
      {"a literal cut short", {0, 5, 1, 2}},
      {"a jump cut short", {0, 2, 1}},
      {"nothing at all", {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const Bytes file = File(5, 4, 8, 1, c.stream);
    EXPECT_FALSE(Quick(file).has_value());
  }
}

// Damaged files of every kind taken here, made by flipping bytes of sound
// ones: the quick reader either hands the file back or reads what the
// general reader reads, and never strays (the guard rows, and the address
// checker in the test build).
TEST(QuickPictureReader, DamagedFilesAreHandedBackOrReadAlike) {
  const Bytes sound[] = {File(5, 5, 8, 1, Coded()), File(7, 3, 8, 0, Plain8(7, 3)), File(3, 3, 24, 0, Plain24(3, 3))};
  std::mt19937 rng(1234);
  int agreed = 0, handedBack = 0;
  for (const Bytes& original : sound) {
    for (int trial = 0; trial < 3000; ++trial) {
      Bytes f = original;
      const int flips = 1 + static_cast<int>(rng() % 4);
      for (int i = 0; i < flips; ++i) {
        // Mostly the pixels and the size fields, where damage matters.
        const std::size_t at = rng() % 3 == 0 ? 18 + rng() % 36 : 54 + 1024 * (f[28] == 8) + rng() % 40;
        if (at < f.size()) f[at] = static_cast<std::uint8_t>(rng());
      }
      if (rng() % 5 == 0) f.resize(rng() % f.size());
      if (BmpHeaderFault(f)) continue;  // never given to either reader
      const auto quick = Quick(f);
      if (!quick) {
        ++handedBack;
        continue;
      }
      const auto general = General(f);
      ASSERT_TRUE(general.has_value()) << "read a file the general reader refuses, trial " << trial;
      ASSERT_EQ(*quick, *general) << "trial " << trial;
      ++agreed;
    }
  }
  EXPECT_GT(agreed, 1000);
  EXPECT_GT(handedBack, 100);
}

// Every picture of the generated data set is one the quick reader takes,
// with the general reader's pixels.
TEST(QuickPictureReader, ReadsEveryPictureOfTheDataSetAsTheGeneralReaderDoes) {
  const char* data = std::getenv("LANEFARER_TEST_DATA");
  if (!data) GTEST_SKIP() << "LANEFARER_TEST_DATA is not set (./dev test sets it)";
  int pictures = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(data)) {
    if (entry.path().extension() != ".bmp") continue;
    SCOPED_TRACE(entry.path().string());
    const Bytes file = ReadFile(entry.path());
    ASSERT_FALSE(BmpHeaderFault(file).has_value());
    const auto quick = Quick(file);
    ASSERT_TRUE(quick.has_value()) << "left to the general reader";
    const auto general = General(file);
    ASSERT_TRUE(general.has_value());
    ASSERT_EQ(*quick, *general);
    ++pictures;
  }
  EXPECT_GT(pictures, 500);
}

}  // namespace
}  // namespace lf
