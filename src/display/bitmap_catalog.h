// The files of every bitmap set, in the order each set loads them, with the
// handle each file goes into; and every file the game can ever load, for
// checking a data folder (or the data generator's manifest) against it.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "display/gfx.h"

namespace lf {

struct BitmapFile {
  std::string Path;  // in the game's notation, "\gfx\back.bmp"
  Bitmap* Handle;
};
using BitmapSet = std::vector<BitmapFile>;

// Form_Load's set: the cursor, the menu bands, the full pictures (16 files).
BitmapSet MenuSet(Gfx& g);
// The kept set, loaded at a new game and held to the end (26 files).
BitmapSet KeptSet(Gfx& g);
// The bridge set (191 files).
BitmapSet BridgeSet(Gfx& g);
// The station set for a quadrant (21 files).
BitmapSet StationSet(Gfx& g, int quadrant);
// The fixed part of the fight set: the loading picture, the static, the
// fight pictures and the small font (23 files). The opponent and the weapon
// lines come on top, by the fight.
BitmapSet FightSetFixed(Gfx& g);

// Bridge-set handles that UnloadMainBitmaps leaves loaded: the cursor (the
// station and the fight draw it), the strip font and the progress bar.
bool StaysThroughUnload(const Gfx& g, const Bitmap* handle);

// Ship class pictures 1..18 under "\gfx\ships\" (element 0 unused).
extern const std::array<std::string_view, 19> kShipClassFile;

// The sensor ring sheet for a sensor range (120, 100, 80, 50, 30); an empty
// handle for any other range.
const Bitmap& SensorRingFor(double sensorRange);

// Every file the game can load, each once, in the game's notation.
std::vector<std::string> AllBitmapPaths();

}  // namespace lf
