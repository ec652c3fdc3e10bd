#include "platform/monkey_host.h"

#include <algorithm>

#include "platform/headless_host.h"
#include "shell/game_state.h"
#include "shell/program.h"

namespace lf {

MonkeyHost::MonkeyHost(std::int64_t frames, std::uint64_t seed) : frames_(frames), seed_(seed), rng_(seed) {
  zones_.reserve(64);
}

int MonkeyHost::Between(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng_); }

void MonkeyHost::CurrentZones() {
  zones_.clear();
  if (G.MenuActive == True) {
    // The six bands under the title, Exit (the last) left out.
    for (int i = 1; i <= 5; ++i) zones_.push_back({20, 121 + 60 * (i - 1), 620, 179 + 60 * (i - 1)});
    return;
  }
  if (G.FightActive == True || G.EventActive == True) {
    // Their controls sit along the foot and the right of the screen.
    zones_.push_back({0, 300, 639, 479});
    zones_.push_back({440, 0, 639, 479});
    return;
  }
  if (G.StationActive == True) {
    zones_.push_back({40, 397, 292, 439});    // the terminal's exit
    zones_.push_back({606, 127, 639, 167});   // OK
    zones_.push_back({607, 104, 639, 132});   // No
    zones_.push_back({607, 134, 639, 168});   // Yes
    zones_.push_back({380, 209, 590, 208 + 18 * 7});  // the services
    zones_.push_back({506, 425, 613, 457});   // back to the terminal
    zones_.push_back({90, 113, 540, 380});    // rows and lists of the other screens
    return;
  }
  // The bridge: the buttons of the open page, the faces, the strip's
  // answers and the sector view.
  for (int p = 1; p <= 6; ++p)
    for (int b = 1; b <= 15; ++b) {
      const BridgeButtonRecord& r = G.BridgeButton[p][b];
      if (r.Visible == True && r.Width > 2 && r.Height > 2)
        zones_.push_back({r.X + 1, r.Y + 1, r.X + r.Width - 2, r.Y + r.Height - 2});
    }
  for (int post = 1; post <= 6; ++post)
    if (G.FaceWidth[post] > 2 && G.FaceHeight[post] > 2)
      zones_.push_back({G.FaceX[post] + 1, G.FaceY[post] + 1, G.FaceX[post] + G.FaceWidth[post] - 2,
                        G.FaceY[post] + G.FaceHeight[post] - 2});
  zones_.push_back({0, 0, 639, 280});     // the sector view
  zones_.push_back({380, 400, 639, 479});  // the prompt strip and its answers
}

void MonkeyHost::PickPoint(int& x, int& y) {
  CurrentZones();
  std::erase_if(zones_, [](const Zone& z) {
    return z.left > z.right || z.top > z.bottom || z.right < 0 || z.bottom < 0 || z.left > 639 || z.top > 479;
  });
  if (zones_.empty() || Between(0, 99) < 30) {
    x = Between(0, 639);
    y = Between(0, 479);
    // Exit ends the run: the menu's last band is kept out of reach.
    if (G.MenuActive == True && y > 420) y = Between(0, 420);
    return;
  }
  const Zone& z = zones_[static_cast<std::size_t>(Between(0, static_cast<int>(zones_.size()) - 1))];
  x = std::clamp(Between(z.left, z.right), 0, 639);
  y = std::clamp(Between(z.top, z.bottom), 0, 479);
}

void MonkeyHost::PumpInput(std::vector<InputEvent>& out) {
  if (yields_ >= frames_) throw ProgramEnd{0};
  ++yields_;
  const int roll = Between(0, 999);
  if (roll < 120) {  // a left click
    PickPoint(cursorX_, cursorY_);
    out.push_back(InputEvent{InputEvent::Kind::MouseDown, 1, 0});
  } else if (roll < 135) {  // a right click
    PickPoint(cursorX_, cursorY_);
    out.push_back(InputEvent{InputEvent::Kind::MouseDown, 2, 0});
  } else if (roll < 185) {  // the cursor wanders (hovers, tool tips)
    PickPoint(cursorX_, cursorY_);
  } else if (roll < 195) {  // an arrow
    out.push_back(InputEvent{InputEvent::Kind::KeyDown, 1, Between(37, 40)});
  } else if (roll < 197) {  // Escape, into the menu (Resume or New brings it back)
    out.push_back(InputEvent{InputEvent::Kind::KeyDown, 1, 27});
  }
}

void MonkeyHost::GetCursorPos(int& x, int& y) {
  x = cursorX_;
  y = cursorY_;
}

void MonkeyHost::SetCursorPos(int x, int y) {
  cursorX_ = std::clamp(x, 0, 639);
  cursorY_ = std::clamp(y, 0, 479);
}

std::uint64_t MonkeyHost::ClockSeed() { return HeadlessSeed(seed_, G.Frame); }

}  // namespace lf
