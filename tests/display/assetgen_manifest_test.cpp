// The default data set: the manifest's own consistency, the generated files
// against it, determinism and the generator's failures.
#include <SDL.h>
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "manifest.h"

namespace {

namespace fs = std::filesystem;
using assetgen::BitmapSpec;
using assetgen::FindBitmap;
using assetgen::Manifest;

const BitmapSpec& Entry(const char* path) {
  const BitmapSpec* b = FindBitmap(path);
  if (!b) throw std::runtime_error(std::string("not in the manifest: ") + path);
  return *b;
}

TEST(AssetgenManifest, PathsAreUniqueLowerCaseBitmaps) {
  std::set<std::string> seen;
  for (const BitmapSpec& b : Manifest()) {
    const std::string p = b.path;
    EXPECT_TRUE(seen.insert(p).second) << "twice: " << p;
    EXPECT_EQ(p.rfind("gfx/", 0), 0u) << p;
    EXPECT_EQ(p.substr(p.size() - 4), ".bmp") << p;
    for (char c : p) {
      EXPECT_FALSE(c == '\\' || (c >= 'A' && c <= 'Z')) << p;
    }
  }
}

TEST(AssetgenManifest, FramesFitTheirSheets) {
  for (const BitmapSpec& b : Manifest()) {
    ASSERT_GT(b.frameW, 0) << b.path;
    ASSERT_GT(b.frameH, 0) << b.path;
    EXPECT_LE(b.frameW, b.width) << b.path;
    EXPECT_LE(b.frameH, b.height) << b.path;
    EXPECT_GE((b.width / b.frameW) * (b.height / b.frameH), b.frames) << b.path;
    EXPECT_GE(b.frames, 1) << b.path;
  }
}

TEST(AssetgenManifest, SizesTheGameDrawsFrom) {
  // menu bands: plain rows 0..59, lit rows 60..119
  for (const char* p : {"gfx/main/1.bmp", "gfx/main/6.bmp"}) {
    EXPECT_EQ(Entry(p).width, 640);
    EXPECT_EQ(Entry(p).height, 120);
    EXPECT_EQ(Entry(p).frameH, 60);
  }
  // fonts: 49 glyph cells; the strip font holds 16 brightness steps in two colours
  EXPECT_EQ(Entry("gfx/fonts/font_sml.bmp").width, 256);
  EXPECT_EQ(Entry("gfx/fonts/font_sml.bmp").height, 49 * 8);
  EXPECT_GE(Entry("gfx/fonts/font_vsml.bmp").width, 49 * 6);
  EXPECT_GE(Entry("gfx/fonts/font_vsml.bmp").height, 30);  // bands at y 0..24
  EXPECT_GE(Entry("gfx/fonts/led.bmp").width, 29 * 8);
  EXPECT_GE(Entry("gfx/station/a_fonts/ocr.bmp").height, 96);  // offset 72 at fade state 3
  // the cursor cell at source x 183 must fit
  EXPECT_GE(Entry("gfx/cursor.bmp").width, 183 + 23);
  // the bar is drawn up to 611 wide and 46 high
  EXPECT_GE(Entry("gfx/loading/progressbar.bmp").width, 611);
  EXPECT_GE(Entry("gfx/loading/progressbar.bmp").height, 46);
  // body strips: ten a row, frames up to 89
  const BitmapSpec& gas = Entry("gfx/planets/gasgiant.bmp");
  EXPECT_EQ(gas.width, 640);
  EXPECT_GE((gas.height / 64) * 10, 90);
  EXPECT_EQ(Entry("gfx/planets/barren_vsmall.bmp").frameW, 45);
  // star lane and unknown marker, frames up to 89 ten a row; the fade sheet reaches x 448
  EXPECT_GE(Entry("gfx/sl.bmp").height, 9 * 64);
  EXPECT_GE(Entry("gfx/uknfade.bmp").width, 448 + 64);
  // the asteroid field steps through 36 frames of 200
  EXPECT_GE(Entry("gfx/nebulas/ast_field.bmp").width, 36 * 200);
  EXPECT_GE(Entry("gfx/nebulas/ast_field.bmp").height, 200);
  // the research list's icons: four of 15x7 from x 0, 15, 30, 45
  EXPECT_GE(Entry("gfx/misc/upgrade.bmp").width, 60);
  EXPECT_GE(Entry("gfx/misc/upgrade.bmp").height, 7);
  // treatment and quarantine buttons share one size
  EXPECT_EQ(Entry("gfx/misc/treatment_up.bmp").width, Entry("gfx/misc/quarantine_up.bmp").width);
  EXPECT_EQ(Entry("gfx/misc/treatment_down.bmp").height, Entry("gfx/misc/quarantine_down.bmp").height);
  // sensor rings: frames 0..8 of 2R
  EXPECT_GE(Entry("gfx/srange_huge.bmp").width, 9 * 240);
  EXPECT_GE(Entry("gfx/srange_vsmall.bmp").width, 9 * 60);
  // selection marker: cells up to 23, six a row
  EXPECT_GE(Entry("gfx/ships/sel.bmp").width, 300);
  EXPECT_GE(Entry("gfx/ships/sel.bmp").height, 120);
  // destination marker frames up to 24
  EXPECT_GE(Entry("gfx/dest.bmp").width, 25 * 34);
  // faces: closed and open page side by side
  EXPECT_EQ(Entry("gfx/faces/144.bmp").width, 160);
  EXPECT_EQ(Entry("gfx/faces/144.bmp").height, 100);
  EXPECT_EQ(Entry("gfx/faces/lik6b.bmp").width, 34);
  // fight: the opponent by range 0..49, the explosion up to frame 49
  EXPECT_GE(Entry("gfx/fight/oship/7_5.bmp").width, 50 * 322);
  EXPECT_GE(Entry("gfx/fight/explo.bmp").width, 50 * 200);
  EXPECT_GE(Entry("gfx/fight/wpns/r_11.bmp").width, 49 * 270);
  // dealer turntables, frames up to 35
  EXPECT_GE(Entry("gfx/station/comps/10_1_4.bmp").width, 36 * 200);
}

TEST(AssetgenManifest, EveryPatternIsExpanded) {
  for (int i = 1; i <= 144; ++i) EXPECT_NE(FindBitmap(("gfx/faces/" + std::to_string(i) + ".bmp").c_str()), nullptr) << i;
  for (int c = 1; c <= 19; ++c) {
    for (int v = 1; v <= 5; ++v) {
      const std::string p = "gfx/hail/oship_" + std::to_string(c) + "_" + std::to_string(v) + ".bmp";
      EXPECT_NE(FindBitmap(p.c_str()), nullptr) << p;
    }
  }
  for (int t = 1; t <= 10; ++t) {
    for (int r = 1; r <= 3; ++r) {
      const std::string p = "gfx/orbits/" + std::to_string(t) + "_" + std::to_string(r) + ".bmp";
      EXPECT_NE(FindBitmap(p.c_str()), nullptr) << p;
    }
    for (int q = 1; q <= 4; ++q) {
      const std::string p = "gfx/orbits/" + std::to_string(t) + "_0_" + std::to_string(q) + ".bmp";
      EXPECT_NE(FindBitmap(p.c_str()), nullptr) << p;
    }
  }
  // group sizes of the component catalogue
  const int models[] = {0, 11, 6, 11, 7, 8, 5, 10};
  for (int g = 1; g <= 7; ++g) {
    for (int m = 1; m <= models[g]; ++m) {
      const std::string p = "gfx/station/comps/" + std::to_string(g) + "_" + std::to_string(m) + ".bmp";
      EXPECT_NE(FindBitmap(p.c_str()), nullptr) << p;
    }
  }
  for (int m = 1; m <= 11; ++m) {
    EXPECT_NE(FindBitmap(("gfx/fight/wpns/l_" + std::to_string(m) + ".bmp").c_str()), nullptr);
    EXPECT_NE(FindBitmap(("gfx/fight/wpns/r_" + std::to_string(m) + ".bmp").c_str()), nullptr);
  }
  // the opponents: every race and hull class a ship class has
  for (const char* rc : {"1_1", "1_2", "1_3", "1_4", "2_1", "2_3", "3_1", "3_2", "3_4", "4_3", "4_4", "5_1", "5_2",
                         "5_3", "6_2", "6_4", "7_5"}) {
    EXPECT_NE(FindBitmap(("gfx/fight/oship/" + std::string(rc) + ".bmp").c_str()), nullptr) << rc;
  }
}

// ---- the generated set -----------------------------------------------------

std::string ReadFile(const fs::path& p) {
  std::ifstream f(p, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(f), {});
}

struct TempDir {
  fs::path path;
  TempDir() {
    path = fs::temp_directory_path() / ("assetgen_test_" + std::to_string(::getpid()) + "_" + std::to_string(counter++));
    fs::remove_all(path);
  }
  ~TempDir() {
    std::error_code ec;
    fs::remove_all(path, ec);
  }
  static inline int counter = 0;
};

int RunAssetgen(const std::string& args, std::string* errors) {
  TempDir log;
  fs::create_directories(log.path);
  const fs::path err = log.path / "stderr.txt";
  // fontconfig keeps its caches to the end of the process: not our leak
  const std::string cmd = "ASAN_OPTIONS=detect_leaks=0 " + std::string(ASSETGEN_BINARY) + " " + args + " 2>" + err.string();
  const int status = std::system(cmd.c_str());
  if (errors) *errors = ReadFile(err);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(AssetgenFiles, EveryEntryLoadsAtItsSizeAndKeepsOpaqueOffTheKey) {
  const char* data = std::getenv("LANEFARER_TEST_DATA");
  if (!data) GTEST_SKIP() << "LANEFARER_TEST_DATA is not set (./dev test sets it)";
  for (const BitmapSpec& b : Manifest()) {
    const fs::path p = fs::path(data) / b.path;
    SDL_Surface* s = SDL_LoadBMP(p.c_str());
    ASSERT_NE(s, nullptr) << b.path << ": " << SDL_GetError();
    EXPECT_EQ(s->w, b.width) << b.path;
    EXPECT_EQ(s->h, b.height) << b.path;
    SDL_Surface* rgb = SDL_ConvertSurfaceFormat(s, SDL_PIXELFORMAT_RGB888, 0);
    SDL_Surface* r565 = SDL_ConvertSurfaceFormat(s, SDL_PIXELFORMAT_RGB565, 0);
    ASSERT_TRUE(rgb && r565);
    int turned = 0;
    for (int y = 0; y < rgb->h; ++y) {
      const auto* a = reinterpret_cast<const uint32_t*>(static_cast<const char*>(rgb->pixels) + y * rgb->pitch);
      const auto* c = reinterpret_cast<const uint16_t*>(static_cast<const char*>(r565->pixels) + y * r565->pitch);
      for (int x = 0; x < rgb->w; ++x) turned += (a[x] & 0xffffff) != 0 && c[x] == 0;
    }
    EXPECT_EQ(turned, 0) << b.path << ": opaque pixels that become the key in 16 bits";
    SDL_FreeSurface(r565);
    SDL_FreeSurface(rgb);
    SDL_FreeSurface(s);
  }
}

// The 16-bit pixels of a generated picture, or an empty surface.
struct Pixels {
  SDL_Surface* s = nullptr;
  explicit Pixels(const fs::path& p) {
    if (SDL_Surface* raw = SDL_LoadBMP(p.c_str())) {
      s = SDL_ConvertSurfaceFormat(raw, SDL_PIXELFORMAT_RGB565, 0);
      SDL_FreeSurface(raw);
    }
  }
  ~Pixels() { SDL_FreeSurface(s); }
  uint16_t At(int x, int y) const {
    return reinterpret_cast<const uint16_t*>(static_cast<const char*>(s->pixels) + y * s->pitch)[x];
  }
};

// The sector backdrop is drawn keyed over the nebulae and the asteroid
// fields: most of it must be the key, or it hides them.
TEST(AssetgenFiles, TheSectorBackdropLeavesMostOfItselfToTheKey) {
  const char* data = std::getenv("LANEFARER_TEST_DATA");
  if (!data) GTEST_SKIP() << "LANEFARER_TEST_DATA is not set (./dev test sets it)";
  const Pixels back(fs::path(data) / "gfx/back2.bmp");
  ASSERT_TRUE(back.s);
  long key = 0;
  for (int y = 0; y < back.s->h; ++y)
    for (int x = 0; x < back.s->w; ++x) key += back.At(x, y) == 0;
  EXPECT_GT(key * 100 / (long(back.s->w) * back.s->h), 80);
}

// A ring of 2R is drawn at the ship's anchor less (R - 13, R - 11) and the
// ship, 35 square, at the anchor less (17, 10): the ring's middle must be
// the ship's, (R - 12.5, R - 3.5) of each frame.
TEST(AssetgenFiles, SensorRingsAreCentredOnTheShip) {
  const char* data = std::getenv("LANEFARER_TEST_DATA");
  if (!data) GTEST_SKIP() << "LANEFARER_TEST_DATA is not set (./dev test sets it)";
  for (const char* name : {"huge", "large", "medium", "small", "vsmall"}) {
    const Pixels ring(fs::path(data) / ("gfx/srange_" + std::string(name) + ".bmp"));
    ASSERT_TRUE(ring.s) << name;
    const int d = ring.s->h;
    for (int frame = 0; frame < 9; ++frame) {
      int left = d, right = -1, top = d, bottom = -1;
      for (int y = 0; y < d; ++y)
        for (int x = 0; x < d; ++x)
          if (ring.At(frame * d + x, y) != 0) {
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
          }
      ASSERT_GE(right, 0) << name << " frame " << frame << " is empty";
      EXPECT_NEAR((left + right + 1) / 2.0, d / 2.0 - 12.5, 1.5) << name << " frame " << frame;
      EXPECT_NEAR((top + bottom + 1) / 2.0, d / 2.0 - 3.5, 1.5) << name << " frame " << frame;
    }
  }
}

TEST(AssetgenFiles, SameBytesOnEveryRun) {
  // fonts (glyph rendering), a body strip (noise, spheres) and a nebula (palette coding)
  const std::string prefixes[] = {"gfx/fonts/", "gfx/planets/barren_vsmall", "gfx/nebulas/nebula_1"};
  TempDir a, b;
  for (const std::string& prefix : prefixes) {
    ASSERT_EQ(RunAssetgen(a.path.string() + " --only " + prefix, nullptr), 0);
    ASSERT_EQ(RunAssetgen(b.path.string() + " --only " + prefix, nullptr), 0);
  }
  int compared = 0;
  for (const BitmapSpec& e : Manifest()) {
    const fs::path pa = a.path / e.path;
    if (!fs::exists(pa)) continue;
    const std::string bytes = ReadFile(pa);
    EXPECT_FALSE(bytes.empty()) << e.path;
    EXPECT_EQ(bytes, ReadFile(b.path / e.path)) << e.path;
    ++compared;
  }
  EXPECT_EQ(compared, 6);  // four fonts, one strip, one nebula
  // no temporary files are left behind
  for (const auto& f : fs::recursive_directory_iterator(a.path)) EXPECT_NE(f.path().extension(), ".tmp");
}

TEST(AssetgenFiles, FailuresAreOneLineWithTheirStatus) {
  TempDir dir;
  fs::create_directories(dir.path);
  std::ofstream(dir.path / "plain_file") << "x";
  std::string errors;
  EXPECT_EQ(RunAssetgen((dir.path / "plain_file" / "data").string() + " --only gfx/fonts/", &errors), 1);
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
  EXPECT_EQ(RunAssetgen("", &errors), 2);
  EXPECT_EQ(RunAssetgen(dir.path.string() + " --bogus", &errors), 2);
  EXPECT_EQ(RunAssetgen(dir.path.string() + " --only", &errors), 2);
}

}  // namespace
