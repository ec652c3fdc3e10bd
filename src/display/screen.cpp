#include "display/screen.h"

#include "display/blit_observer.h"

#include <SDL.h>
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "display/bitmap_sets.h"
#include "display/bmp_decode.h"
#include "display/bmp_header.h"
#include "display/picture_files.h"
#include "shell/game_state.h"
#include "shell/data_file.h"
#include "shell/host.h"
#include "shell/paths.h"

namespace lf {
namespace {

struct SurfaceFree {
  void operator()(SDL_Surface* s) const { SDL_FreeSurface(s); }
};

std::unique_ptr<SDL_Surface, SurfaceFree> g_back;
// The last presented frame, 640x480 with no row padding.
std::vector<std::uint16_t> g_presented;

// The back surface, opened on first use so that a test or tool that never
// called InicializeDirectDraw still draws somewhere.
SDL_Surface* Back() {
  if (!g_back) InicializeDirectDraw();
  return g_back.get();
}

// Bitmap sets are swapped whole: the pictures of one set are freed and
// those of the next allocated at once. Memory handed back to the system
// comes back as fresh pages that fault in one by one, which cost more than
// reading the pictures; so freed picture memory stays with the program, and
// large pictures come from the same heap instead of pages of their own.
void KeepPictureMemory() {
  static const bool kept = [] {
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 512 << 20);
    return true;
  }();
  (void)kept;
}

// The game's own kinds of picture file, read straight into 5-6-5 pixels;
// null for any other kind or a damaged coded stream, which the general
// reader then takes.
SDL_Surface* ReadPlainBmp(const std::vector<std::uint8_t>& bytes) {
  const auto layout = PlainBmpLayout(bytes);
  if (!layout) return nullptr;
  SDL_Surface* s = SDL_CreateRGBSurfaceWithFormat(0, layout->Width, layout->Height, 16, SDL_PIXELFORMAT_RGB565);
  if (!s) return nullptr;
  if (!DecodePlainBmp(*layout, bytes, static_cast<std::uint16_t*>(s->pixels), static_cast<std::size_t>(s->pitch) / 2)) {
    SDL_FreeSurface(s);
    return nullptr;
  }
  return s;
}

void Keyed(SDL_Surface* s, const std::string& file) {
  SDL_SetColorKey(s, SDL_TRUE, 0);
  // Keyed pictures are run-length coded by SDL on their first keyed
  // blit: transparent runs are skipped and opaque runs copied whole.
  SDL_SetSurfaceRLE(s, 1);
  NotePictureFile(s, file);
}

}  // namespace

void InicializeDirectDraw() {
  KeepPictureMemory();
  if (!g_back) {
    g_back.reset(SDL_CreateRGBSurfaceWithFormat(0, kScreenWidth, kScreenHeight, 16,
                                                SDL_PIXELFORMAT_RGB565));
    if (!g_back) {
      // Without a back surface nothing can be drawn at all; this is not a
      // missing file but a broken machine.
      std::fprintf(stderr, "lanefarer: cannot create the back surface: %s\n", SDL_GetError());
      std::abort();
    }
  }
  SDL_FillRect(g_back.get(), nullptr, 0);
  g_presented.assign(static_cast<std::size_t>(kScreenWidth) * kScreenHeight, 0);
}

Bitmap BitmapFromBytes(const std::vector<std::uint8_t>& bytes, const std::string& file) {
  // The header is looked at before SDL's reader sees the file: the reader
  // allocates whatever size a header declares.
  if (const auto fault = BmpHeaderFault(bytes)) {
    ReportMissing(file, *fault);
    return {};
  }
  if (SDL_Surface* quick = ReadPlainBmp(bytes)) {
    Keyed(quick, file);
    return Bitmap::Adopt(quick);
  }
  SDL_Surface* raw = SDL_LoadBMP_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1);
  if (!raw) {
    ReportMissing(file, std::string("unreadable: ") + SDL_GetError());
    return {};
  }
  SDL_Surface* converted = SDL_ConvertSurfaceFormat(raw, SDL_PIXELFORMAT_RGB565, 0);
  SDL_FreeSurface(raw);
  if (!converted) {
    ReportMissing(file, std::string("cannot convert: ") + SDL_GetError());
    return {};
  }
  Keyed(converted, file);
  return Bitmap::Adopt(converted);
}

Bitmap LoadBitmapIntoDXS(std::string_view gamePath) {
  const std::string file = DataPath(gamePath);
  Bitmap result;
  std::string why;
  const auto bytes = ReadDataFile(file, kLargestPictureFile, &why);
  if (!bytes)
    ReportMissing(file, why);
  else
    result = BitmapFromBytes(*bytes, file);
  Assign(G.ProgressCount, G.ProgressCount + 1.0);
  if (G.ProgressMode != 0 && G.ProgressCount > 5) DrawProgressBar();
  return result;
}

void SetSrc(int left, int top, int right, int bottom) {
  G.SrcLeft = left;
  G.SrcTop = top;
  G.SrcRight = right;
  G.SrcBottom = bottom;
}

bool BltFast(int x, int y, const Bitmap& bitmap, bool keyed) {
  if (g_blit_observer) g_blit_observer(x, y, bitmap, keyed);
  SDL_Surface* src = bitmap.Surface();
  if (!src) return false;
  // Widths in 64 bits: the rectangle comes from game arithmetic.
  const long long left = G.SrcLeft, top = G.SrcTop;
  const long long w = static_cast<long long>(G.SrcRight) - left;
  const long long h = static_cast<long long>(G.SrcBottom) - top;
  if (w <= 0 || h <= 0) return false;
  if (left < 0 || top < 0 || left + w > src->w || top + h > src->h) {
    // The picture is smaller than what the game cuts from it: a damaged or
    // foreign file. Skipped, and named once.
    if (Verbose()) {
      const std::string& file = PictureFile(bitmap);
      if (!file.empty() && !ReportWouldBeSilent(file))
        ReportMissing(file, "smaller (" + std::to_string(src->w) + "x" + std::to_string(src->h) +
                                ") than a rectangle drawn from it");
    }
    return false;
  }
  if (x < 0 || y < 0 || x + w > kScreenWidth || y + h > kScreenHeight) return false;

  // Most pictures are always drawn the same way, so the key is switched
  // only when the way changes (switching it rebuilds SDL's blit mapping).
  const SDL_bool want = keyed ? SDL_TRUE : SDL_FALSE;
  if (SDL_HasColorKey(src) != want) SDL_SetColorKey(src, want, 0);

  SDL_Rect s{static_cast<int>(left), static_cast<int>(top), static_cast<int>(w), static_cast<int>(h)};
  SDL_Rect d{x, y, static_cast<int>(w), static_cast<int>(h)};
  // The rectangle has been checked against both surfaces, so the lower
  // blit, which does no clipping of its own, is safe.
  return SDL_LowerBlit(src, &s, Back(), &d) == 0;
}

void FlipBuffers() {
  SDL_Surface* back = Back();
  CurrentHost().Present(BackPixels(), back->pitch);
  const auto* rows = static_cast<const std::uint8_t*>(back->pixels);
  const std::size_t rowBytes = static_cast<std::size_t>(kScreenWidth) * sizeof(std::uint16_t);
  for (int y = 0; y < kScreenHeight; ++y)
    std::memcpy(g_presented.data() + static_cast<std::size_t>(y) * kScreenWidth,
                rows + static_cast<std::size_t>(y) * back->pitch, rowBytes);
  SDL_FillRect(back, nullptr, 0);
}

const std::uint16_t* BackPixels() { return static_cast<const std::uint16_t*>(Back()->pixels); }

int BackPitchBytes() { return Back()->pitch; }

std::uint16_t BackPixel(int x, int y) {
  if (x < 0 || y < 0 || x >= kScreenWidth || y >= kScreenHeight) return 0;
  const auto* rows = static_cast<const std::uint8_t*>(Back()->pixels);
  std::uint16_t p;
  std::memcpy(&p, rows + static_cast<std::size_t>(y) * Back()->pitch + 2 * static_cast<std::size_t>(x), 2);
  return p;
}

const std::uint16_t* PresentedPixels() {
  Back();
  return g_presented.data();
}

}  // namespace lf
