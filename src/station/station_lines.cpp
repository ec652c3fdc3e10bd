#include "station/station_lines.h"

#include <cstdio>
#include <type_traits>

#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

namespace {

// A letter past the fade table's lines or columns never shows.
double FadeState(int line, int letter) {
  if (line == 0) return 3;
  if (!decltype(G.PromptFade)::InBounds(line)) return 0;
  const auto& fade = G.PromptFade[line];
  return std::remove_reference_t<decltype(fade)>::InBounds(letter) ? fade[letter] : 0;
}

}  // namespace

NumberText::NumberText(double value) {
  const double whole = Int(value);
  const int n = std::isfinite(whole) ? std::snprintf(Chars.data(), Chars.size(), "%.0f", whole) : 0;
  Length = n > 0 ? std::min<std::size_t>(static_cast<std::size_t>(n), Chars.size() - 1) : 0;
}

FadeLine& FadeLine::operator<<(std::string_view text) {
  const int first = letters_;
  ForEachCell(text, [&](int k, int cell) {
    const int letter = first + k;
    letters_ = letter;
    const double state = FadeState(line_, letter);
    if (cell < 0 || !(state > 1)) return;
    const int top = CInt((state - 1) * 8) + row_;
    SetSrc(8 * cell, top, 8 * cell + 8, top + 8);
    BltFast(x_ + 6 * letter, y_, GFX.StationFontOcr, true);
  });
  return *this;
}

void DrawFadeText(int x, int y, std::string_view text, int fadeLine, int rowOffset) {
  FadeLine(x, y, fadeLine, rowOffset) << text;
}

void DrawFadeTextRight(int right, int y, std::string_view text, int fadeLine, int rowOffset) {
  DrawFadeText(right - 6 * CodePointCount(text), y, text, fadeLine, rowOffset);
}

void DrawFadeTextCentred(int centre, int y, std::string_view text, int fadeLine, int rowOffset) {
  DrawFadeText(centre - 6 * CodePointCount(text) / 2 - 6, y, text, fadeLine, rowOffset);
}

}  // namespace lf
