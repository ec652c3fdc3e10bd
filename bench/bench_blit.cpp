// A frame of keyed 50x50 blits and the present step, as a busy bridge frame
// draws them; and the same with the plain copy, for comparison.
#include <SDL.h>
#include <benchmark/benchmark.h>

#include <filesystem>

#include "display/bitmap.h"
#include "display/screen.h"
#include "shell/host.h"
#include "shell/paths.h"

namespace {

// A 400x50 sheet of eight 50x50 frames: a disc in each, black around it.
lf::Bitmap Sheet() {
  SDL_Surface* s = SDL_CreateRGBSurfaceWithFormat(0, 400, 50, 16, SDL_PIXELFORMAT_RGB565);
  for (int y = 0; y < 50; ++y)
    for (int x = 0; x < 400; ++x) {
      const int dx = x % 50 - 25, dy = y - 25;
      const auto v = static_cast<std::uint16_t>(dx * dx + dy * dy < 400 ? 0x7BEF + x : 0);
      static_cast<std::uint16_t*>(s->pixels)[y * (s->pitch / 2) + x] = v;
    }
  SDL_SetColorKey(s, SDL_TRUE, 0);
  return lf::Bitmap::Adopt(s);
}

void Frame(benchmark::State& state, bool keyed) {
  lf::InicializeDirectDraw();
  const lf::Bitmap sheet = Sheet();
  const int blits = static_cast<int>(state.range(0));
  for (auto _ : state) {
    for (int i = 0; i < blits; ++i) {
      const int frame = i % 8;
      lf::SetSrc(frame * 50, 0, frame * 50 + 50, 50);
      lf::BltFast((i * 37) % 590, (i * 53) % 430, sheet, keyed);
    }
    lf::FlipBuffers();
  }
  state.SetItemsProcessed(state.iterations() * blits);
}

void BM_KeyedFrame(benchmark::State& state) { Frame(state, true); }
void BM_OpaqueFrame(benchmark::State& state) { Frame(state, false); }

}  // namespace

BENCHMARK(BM_KeyedFrame)->Arg(100)->Arg(300)->Arg(600);
BENCHMARK(BM_OpaqueFrame)->Arg(300);

namespace {

// For comparison only: the same frame with a plain keyed loop on the raw
// pixels instead of SDL's blitter (the game does not use this).
void BM_KeyedFramePlainLoop(benchmark::State& state) {
  lf::InicializeDirectDraw();
  const lf::Bitmap sheet = Sheet();
  const SDL_Surface* src = sheet.Surface();
  auto* back = const_cast<std::uint16_t*>(lf::BackPixels());
  const int backStride = lf::BackPitchBytes() / 2, srcStride = src->pitch / 2;
  const int blits = static_cast<int>(state.range(0));
  for (auto _ : state) {
    for (int i = 0; i < blits; ++i) {
      const int frame = i % 8, x0 = (i * 37) % 590, y0 = (i * 53) % 430;
      for (int y = 0; y < 50; ++y) {
        const auto* s = static_cast<const std::uint16_t*>(src->pixels) + y * srcStride + frame * 50;
        std::uint16_t* d = back + (y0 + y) * backStride + x0;
        for (int x = 0; x < 50; ++x)
          if (s[x] != 0) d[x] = s[x];
      }
    }
    lf::FlipBuffers();
  }
  state.SetItemsProcessed(state.iterations() * blits);
}

}  // namespace

BENCHMARK(BM_KeyedFramePlainLoop)->Arg(300);
