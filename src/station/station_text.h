// The station's large 12x14 font (the 8x8 letters of ocr.bmp are drawn by
// station_lines.h).
#pragma once

#include <string_view>

namespace lf {

inline constexpr int kImpAdvance = 12;
inline constexpr int kImpLitRow = 14;   // the large font's lit row

// Letter n (from 1) of `text` in the large font at x + 12n, y, from `row`.
void DrawImpText(int x, int y, std::string_view text, int row = 0);
// The large font right-aligned: the last letter's left edge at `right`.
void DrawImpTextRight(int right, int y, std::string_view text, int row = 0);

}  // namespace lf
