// Lines of the station's screens in the 8x8 letters of ocr.bmp, which fade
// in letter by letter (the terminal types itself out this way), written in
// pieces (a label, a name, a number) so that no frame builds a string.
#pragma once

#include <array>
#include <string_view>

namespace lf {

// Font rows of ocr.bmp added to the fade row: plain, bright (under the
// cursor), chosen, greyed.
inline constexpr int kPlainRow = 0, kBrightRow = 32, kChosenRow = 64, kGreyRow = 72;

// A number as the game shows it, Int() of the value, in a buffer of its own.
struct NumberText {
  explicit NumberText(double value);
  std::string_view View() const { return {Chars.data(), Length}; }
  std::array<char, 32> Chars{};
  std::size_t Length = 0;
};

// One line of 8x8 letters: letter k (from 1) at x + 6k, in fade state
// PromptFade[fadeLine][k] (fade line 0: fully shown). A letter shows once
// its state is above 1, from the font's row (state - 1) x 8 + rowOffset.
class FadeLine {
 public:
  FadeLine(int x, int y, int fadeLine, int rowOffset) : x_(x), y_(y), line_(fadeLine), row_(rowOffset) {}
  FadeLine& operator<<(std::string_view text);
  FadeLine& operator<<(const NumberText& number) { return *this << number.View(); }

 private:
  int x_, y_, line_, row_;
  int letters_ = 0;
};

// A whole line of 8x8 letters, one whose last letter stands at x = right,
// and one centred on `centre`.
void DrawFadeText(int x, int y, std::string_view text, int fadeLine, int rowOffset);
void DrawFadeTextRight(int right, int y, std::string_view text, int fadeLine, int rowOffset);
void DrawFadeTextCentred(int centre, int y, std::string_view text, int fadeLine, int rowOffset);

}  // namespace lf
