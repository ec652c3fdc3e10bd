#include "station/station_text.h"

#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

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
