// Test support: records every blit through the blit observer, with the
// shared source rectangle at the time of the call.
#pragma once

#include <vector>

#include "display/bitmap.h"
#include "display/blit_observer.h"
#include "shell/game_state.h"

namespace lf::test {

struct BlitRecord {
  int x = 0, y = 0;
  const Bitmap* bitmap = nullptr;
  bool keyed = false;
  int left = 0, top = 0, right = 0, bottom = 0;
};

inline std::vector<BlitRecord>& RecordedBlits() {
  static std::vector<BlitRecord> blits;
  return blits;
}

inline void RecordBlit(int x, int y, const Bitmap& bitmap, bool keyed) {
  RecordedBlits().push_back({x, y, &bitmap, keyed, G.SrcLeft, G.SrcTop, G.SrcRight, G.SrcBottom});
}

// Blits of one bitmap, in order.
inline std::vector<BlitRecord> BlitsOf(const Bitmap& bitmap) {
  std::vector<BlitRecord> out;
  for (const BlitRecord& b : RecordedBlits())
    if (b.bitmap == &bitmap) out.push_back(b);
  return out;
}

// Starts recording on a fresh record; stops when it goes out of scope.
struct BlitRecording {
  BlitRecording() {
    RecordedBlits().clear();
    g_blit_observer = &RecordBlit;
  }
  ~BlitRecording() { g_blit_observer = nullptr; }
  BlitRecording(const BlitRecording&) = delete;
  BlitRecording& operator=(const BlitRecording&) = delete;
};

}  // namespace lf::test
