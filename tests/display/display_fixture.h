// A fresh screen, a fresh record and an empty data folder of its own for
// each display test, with helpers to write small BMP files into it.
#pragma once

#include <SDL.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include <unistd.h>

#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/paths.h"

namespace lf::test {

class DisplayTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ResetGame();
    ReleaseAllBitmaps();
    static int serial = 0;
    dir_ = std::filesystem::temp_directory_path() /
           ("lanefarer_display_" + std::to_string(::getpid()) + "_" + std::to_string(serial++));
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
    SetDataFolder(dir_.string());
    InicializeDirectDraw();
    SetHost(&host_);
  }
  void TearDown() override {
    SetHost(nullptr);
    SetVerbose(false);
    ReleaseAllBitmaps();
    std::filesystem::remove_all(dir_);
  }

  // Writes a 24-bit BMP at a path in the game's notation; pixel(x, y)
  // gives its colour as 0xRRGGBB.
  void WriteBmp(const std::string& gamePath, int w, int h,
                const std::function<std::uint32_t(int, int)>& pixel) {
    SDL_Surface* s = SDL_CreateRGBSurfaceWithFormat(0, w, h, 24, SDL_PIXELFORMAT_BGR24);
    ASSERT_NE(s, nullptr);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        const std::uint32_t c = pixel(x, y);
        auto* p = static_cast<std::uint8_t*>(s->pixels) + y * s->pitch + 3 * x;
        p[0] = c & 0xFF;          // blue
        p[1] = (c >> 8) & 0xFF;   // green
        p[2] = (c >> 16) & 0xFF;  // red
      }
    Save(s, gamePath);
  }
  void WriteSolid(const std::string& gamePath, int w, int h, std::uint32_t rgb) {
    WriteBmp(gamePath, w, h, [rgb](int, int) { return rgb; });
  }

  void Save(SDL_Surface* s, const std::string& gamePath) {
    const std::filesystem::path file = DataPath(gamePath);
    std::filesystem::create_directories(file.parent_path());
    ASSERT_EQ(SDL_SaveBMP(s, file.string().c_str()), 0) << SDL_GetError();
    SDL_FreeSurface(s);
  }

  static std::uint16_t C565(std::uint32_t rgb) {
    return Rgb565((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
  }

  // A checksum of the back surface, to see that a skipped blit drew nothing.
  static std::uint64_t BackSum() {
    std::uint64_t sum = 0;
    for (int y = 0; y < kScreenHeight; ++y)
      for (int x = 0; x < kScreenWidth; ++x) sum = sum * 1099511628211ull + BackPixel(x, y) + 1;
    return sum;
  }

  std::filesystem::path dir_;
  ScriptedHost host_;
};

}  // namespace lf::test
