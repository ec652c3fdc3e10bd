// Stand-in for the program's frame loop until the shell's own is merged:
// shows a black frame with a dot at the cursor, pumps input once a frame
// and ends on a window close or when the host ends the program.
#include <algorithm>
#include <cstdint>
#include <vector>

#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/program.h"

namespace lf {

int RunProgram() {
  Host& host = CurrentHost();
  std::vector<std::uint16_t> frame(640 * 480, 0);
  std::vector<InputEvent> input;
  try {
    for (;;) {
      std::fill(frame.begin(), frame.end(), 0);
      int cx = 0, cy = 0;
      host.GetCursorPos(cx, cy);
      for (int y = std::max(cy - 1, 0); y <= std::min(cy + 1, 479); ++y)
        for (int x = std::max(cx - 1, 0); x <= std::min(cx + 1, 639); ++x) frame[y * 640 + x] = 0xFFFF;
      host.Present(frame.data(), 640 * 2);
      host.PaceFrame();
      input.clear();
      host.PumpInput(input);
      for (const auto& e : input)
        if (e.kind == InputEvent::Kind::Close) return 0;
      ++G.Frame;
    }
  } catch (const ProgramEnd& end) {
    return end.status;
  }
}

}  // namespace lf
