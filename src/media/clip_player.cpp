#include "media/clip_player.h"

#include <chrono>
#include <thread>
#include <vector>

#include "media/clip_decoder.h"
#include "shell/data_file.h"
#include "shell/paths.h"

namespace lf {
namespace {
ClipPresenter g_presenter;
}  // namespace

void SetClipPresenter(ClipPresenter presenter) { g_presenter = std::move(presenter); }
bool HasClipPresenter() { return static_cast<bool>(g_presenter); }

void PlayClipFile(const std::string& file) {
  if (!g_presenter) return;
  if (!IsRegularFile(file)) {
    ReportMissing(file, "missing or not a regular file");
    return;
  }
  ClipDecoder clip(file);
  if (!clip.Ok()) {
    ReportMissing(file, "missing or not a playable clip");
    return;
  }
  using Clock = std::chrono::steady_clock;
  const Clock::time_point start = Clock::now();
  std::vector<std::uint8_t> rgb;
  double seconds = 0;
  while (clip.NextFrame(rgb, seconds)) {
    std::this_thread::sleep_until(start + std::chrono::duration_cast<Clock::duration>(
                                              std::chrono::duration<double>(seconds)));
    if (!g_presenter(rgb.data(), ClipDecoder::kWidth, ClipDecoder::kHeight)) return;
  }
}

}  // namespace lf
