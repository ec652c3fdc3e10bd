#include "generate.h"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <thread>
#include <vector>

#include "bmp_writer.h"
#include "canvas.h"
#include "families.h"

namespace assetgen {

int NumberAfter(std::string_view s, std::string_view prefix) {
  if (!StartsWith(s, prefix)) return -1;
  int n = 0;
  size_t i = prefix.size();
  if (i >= s.size() || s[i] < '0' || s[i] > '9') return -1;
  for (; i < s.size() && s[i] >= '0' && s[i] <= '9'; ++i) n = n * 10 + (s[i] - '0');
  return n;
}

Image RenderBitmap(const BitmapSpec& spec) {
  Canvas cv(spec.width, spec.height);
  using Family = bool (*)(const BitmapSpec&, Canvas&);
  static constexpr Family kFamilies[] = {DrawFonts, DrawMenu,  DrawButtons, DrawSpace,  DrawPlanets, DrawShips,
                                         DrawFaces, DrawStation, DrawEvents, DrawFight, DrawBridgeUi};
  bool done = false;
  for (Family f : kFamilies) {
    if (f(spec, cv)) {
      done = true;
      break;
    }
  }
  if (!done) DrawFallback(spec, cv);
  return cv.Finish();
}

namespace {

// Large pictures go to 8 bits with a palette of their own; small ones and
// the full-screen backdrops of the menu, bridge and station stay 24-bit.
bool UsePalette(const BitmapSpec& spec) {
  const long px = long(spec.width) * spec.height;
  if (px <= 307200 && spec.frames == 1 && !StartsWith(spec.path, "gfx/events/") &&
      !StartsWith(spec.path, "gfx/orbits/") && !StartsWith(spec.path, "gfx/hail/"))
    return false;
  return px > 65536;
}

class Progress {
 public:
  explicit Progress(size_t total) : total_(total), tty_(isatty(2) != 0) {}
  void Step(const char* path) {
    std::lock_guard<std::mutex> lock(mutex_);
    ++done_;
    if (tty_) {
      const int width = 40;
      const int fill = int(done_ * width / total_);
      std::fprintf(stderr, "\r[%.*s%*s] %4zu/%zu %-40.40s", fill, "========================================",
                   width - fill, "", done_, total_, path);
      if (done_ == total_) std::fprintf(stderr, "\n");
    } else if (done_ * 4 / total_ != (done_ - 1) * 4 / total_ || done_ == total_) {
      std::fprintf(stderr, "assetgen: %zu of %zu bitmaps written\n", done_, total_);
    }
    std::fflush(stderr);
  }
  void Abort() {
    std::lock_guard<std::mutex> lock(mutex_);
    if (tty_ && done_ < total_) std::fprintf(stderr, "\n");
  }

 private:
  size_t total_, done_ = 0;
  bool tty_;
  std::mutex mutex_;
};

}  // namespace

namespace {

// Looks up every face the pictures use once, before the two workers start:
// the font library's first lookups are not safe to race, and a lost race
// could give a picture another face.
void WarmUpFonts() {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 8, 8);
  cairo_t* cr = cairo_create(surface);
  for (bool mono : {false, true})
    for (bool bold : {false, true}) TextWidth(cr, "A", 10, bold, mono);
  cairo_destroy(cr);
  cairo_surface_destroy(surface);
}

}  // namespace

bool GenerateBitmaps(const std::string& dataDir, const std::string& onlyPrefix) {
  std::vector<const BitmapSpec*> todo;
  for (const BitmapSpec& b : Manifest()) {
    if (onlyPrefix.empty() || StartsWith(b.path, onlyPrefix)) todo.push_back(&b);
  }
  if (todo.empty()) return true;
  // Folders first, in one thread.
  for (const BitmapSpec* b : todo) {
    std::error_code ec;
    const std::filesystem::path p = std::filesystem::path(dataDir) / b->path;
    std::filesystem::create_directories(p.parent_path(), ec);
    if (ec) {
      std::fprintf(stderr, "assetgen: cannot create %s: %s\n", p.parent_path().c_str(), ec.message().c_str());
      return false;
    }
  }
  WarmUpFonts();
  Progress progress(todo.size());
  std::atomic<size_t> next{0};
  std::atomic<bool> failed{false};
  std::mutex errorMutex;
  std::string firstError;
  auto worker = [&] {
    for (;;) {
      if (failed) return;
      const size_t i = next++;
      if (i >= todo.size()) return;
      const BitmapSpec& spec = *todo[i];
      const Image image = RenderBitmap(spec);
      std::string error;
      if (!WriteBmp(dataDir + "/" + spec.path, image, UsePalette(spec), &error)) {
        std::lock_guard<std::mutex> lock(errorMutex);
        if (!failed.exchange(true)) firstError = error;
        return;
      }
      progress.Step(spec.path);
    }
  };
  std::thread second(worker);
  worker();
  second.join();
  if (failed) {
    progress.Abort();
    std::fprintf(stderr, "assetgen: %s\n", firstError.c_str());
    return false;
  }
  return true;
}

}  // namespace assetgen
