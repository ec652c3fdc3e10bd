// What the officers' list panels share: the 130x130 panel picture, the
// small font placed right-aligned or centred, and component names.
#pragma once

#include <string>
#include <string_view>

#include "display/bitmap.h"

namespace lf {

// The small font's bands: 0 plain, 6 active, 12 greyed or out of reach.
inline constexpr int kBandPlain = 0, kBandActive = 6, kBandGreyed = 12;

// A panel picture at (380,277), 130 by 130, opaque.
void DrawPanelBack(const Bitmap& picture);
// Small-font text whose last letter ends at x = right.
void DrawSmallRight(int right, int y, std::string_view text, int band = kBandPlain);
// Small-font text centred on x = centre.
void DrawSmallCentred(int centre, int y, std::string_view text, int band = kBandPlain);
// A bar 105 by 4 at (x, y), filled Int(1.05 x value) from the left.
void DrawShareBar(int x, int y, double value);

// The first `letters` characters of a text.
std::string_view Truncated(std::string_view text, int letters);
// ASCII letters in capitals.
std::string Capitals(std::string_view text);
// The name of a component of the catalogue in capitals ("" for none).
std::string ComponentName(int group, int model);
// The same name as the catalogue holds it, for the fonts, which draw
// letters in capitals whatever their case ("" for none).
std::string_view ComponentLabel(int group, int model);

}  // namespace lf
