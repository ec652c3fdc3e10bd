// Where the terminal's answer buttons and menu lines stand: the drawing
// and the press handler share these.
#pragma once

namespace lf {

struct TermButton {
  int x, y, width, height;
};
inline constexpr TermButton kNoButton{606, 103, 34, 30};
inline constexpr TermButton kYesButton{606, 133, 34, 36};
inline constexpr TermButton kOkButton{605, 126, 35, 42};

// Inside the button, edges excluded.
constexpr bool OnTermButton(const TermButton& b, int x, int y) {
  return x > b.x && x < b.x + b.width && y > b.y && y < b.y + b.height;
}

// Top of menu line i (1..10).
constexpr int ServiceLineTop(int i) { return 208 + 18 * (i - 1); }

}  // namespace lf
