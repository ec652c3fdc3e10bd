// The families of pictures. Each draws the entries it knows into a canvas
// of the entry's size and returns true; false leaves the entry to the next.
#pragma once

#include <string_view>

#include "canvas.h"
#include "manifest.h"

namespace assetgen {

bool DrawFonts(const BitmapSpec& spec, Canvas& cv);
bool DrawMenu(const BitmapSpec& spec, Canvas& cv);
bool DrawBridgeUi(const BitmapSpec& spec, Canvas& cv);
bool DrawButtons(const BitmapSpec& spec, Canvas& cv);
bool DrawSpace(const BitmapSpec& spec, Canvas& cv);
bool DrawPlanets(const BitmapSpec& spec, Canvas& cv);
bool DrawShips(const BitmapSpec& spec, Canvas& cv);
bool DrawFaces(const BitmapSpec& spec, Canvas& cv);
bool DrawStation(const BitmapSpec& spec, Canvas& cv);
bool DrawEvents(const BitmapSpec& spec, Canvas& cv);
bool DrawFight(const BitmapSpec& spec, Canvas& cv);
// A plain bevelled plate with the file's name: what nothing else draws.
void DrawFallback(const BitmapSpec& spec, Canvas& cv);

inline bool StartsWith(std::string_view s, std::string_view p) { return s.substr(0, p.size()) == p; }
// The number after a prefix ("gfx/faces/" + "12.bmp" -> 12), or -1.
int NumberAfter(std::string_view s, std::string_view prefix);

}  // namespace assetgen
