#include "station/station_text.h"

#include <type_traits>

#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

void DrawOcrText(int x, int y, std::string_view text, int fadeLine, int rowOffset) {
  if (!decltype(G.PromptFade)::InBounds(fadeLine)) return;
  const auto& fade = G.PromptFade[fadeLine];
  ForEachCell(text, [&](int n, int cell) {
    if (cell < 0 || n > std::remove_reference_t<decltype(fade)>::kHi) return;
    const double state = fade[n];
    if (!(state > 1)) return;
    const int top = static_cast<int>(CIntReal((state - 1) * 8)) + rowOffset;
    SetSrc(8 * cell, top, 8 * cell + 8, top + 8);
    BltFast(x + kOcrAdvance * n, y, GFX.StationFontOcr, true);
  });
}

void DrawOcrTextRight(int right, int y, std::string_view text, int fadeLine, int rowOffset) {
  DrawOcrText(right - kOcrAdvance * CodePointCount(text), y, text, fadeLine, rowOffset);
}

void DrawOcrTextCentred(int centre, int y, std::string_view text, int fadeLine, int rowOffset) {
  DrawOcrText(centre - kOcrAdvance * CodePointCount(text) / 2 - kOcrAdvance, y, text, fadeLine, rowOffset);
}

void DrawImpText(int x, int y, std::string_view text, int row) {
  ForEachCell(text, [&](int n, int cell) {
    if (cell < 0) return;
    SetSrc(12 * cell, row, 12 * cell + 12, row + 14);
    BltFast(x + kImpAdvance * n, y, GFX.StationFontImp, true);
  });
}

void DrawImpTextRight(int right, int y, std::string_view text, int row) {
  DrawImpText(right - kImpAdvance * CodePointCount(text), y, text, row);
}

}  // namespace lf
