// The station's two fonts: the terminal's 8x8 glyphs of ocr.bmp, whose
// letters fade in by PromptFade, and the large 12x14 font.
#pragma once

#include <string_view>

namespace lf {

// Letter advance of the terminal font, and the rows of ocr.bmp.
inline constexpr int kOcrAdvance = 6;
inline constexpr int kOcrLitRows = 32;  // the bright rows, 32 pixels lower
inline constexpr int kImpAdvance = 12;
inline constexpr int kImpLitRow = 14;   // the large font's lit row

// Letter n (from 1) of `text` at x + 6n, y, shown once PromptFade[fadeLine][n]
// is above 1, from the fade row (state - 1) x 8 to the nearest pixel, plus
// `rowOffset`. A fade line outside the table shows nothing.
void DrawOcrText(int x, int y, std::string_view text, int fadeLine, int rowOffset = 0);
// The same, right-aligned so that its last letter stands at `right`.
void DrawOcrTextRight(int right, int y, std::string_view text, int fadeLine, int rowOffset = 0);
// Centred on `centre`.
void DrawOcrTextCentred(int centre, int y, std::string_view text, int fadeLine, int rowOffset = 0);

// Letter n (from 1) of `text` in the large font at x + 12n, y, from `row`.
void DrawImpText(int x, int y, std::string_view text, int row = 0);
// The large font right-aligned: the last letter's left edge at `right`.
void DrawImpTextRight(int right, int y, std::string_view text, int row = 0);

}  // namespace lf
