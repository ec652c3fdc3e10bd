// What the bridge's procedures share: the view's anchor and sprite clipping,
// the small 6x6 font, the fitted slots and the power sums over them.
#pragma once

#include <string_view>

#include "display/bitmap.h"

namespace lf {

// The view window on the screen: x 121..519, y 25..263.
inline constexpr int kViewLeft = 121, kViewRight = 519, kViewTop = 25, kViewBottom = 263;

// Screen place of a map point: (300 + wx - Int(ViewX), 125 + wy - ViewY).
double AnchorX(double wx);
double AnchorY(double wy);

// A map sprite of w x h at top-left (left, top), its source at (srcLeft,
// srcTop), clipped to the view window and drawn with the colour key.
// Returns false when it lies wholly outside the window (nothing is drawn).
bool DrawClipped(int left, int top, int w, int h, int srcLeft, int srcTop, const Bitmap& bitmap);

// Text in the 6x6 font, letter k (from 1) at x + 6k, from the font's row
// at `row` (0 first colour, 6 second).
void DrawSmallText(int x, int y, std::string_view text, int row = 0);

// Slots 1..HardpointCount that a table can hold (a count beyond 20 stops
// at 20, a negative count holds none).
int FittedSlots();
// Group and model of a slot; 0 for an empty slot or one outside the table.
int SlotGroup(int slot);
int SlotModel(int slot);

// The five systems of the power panel, in the panel's order.
enum class PowerSystem { Weapons = 1, Shields = 2, Propulsion = 3, Sensor = 4, LifeSupport = 5 };
double& SystemLevel(PowerSystem s);
double& SystemSetting(PowerSystem s);
// Demand D: the sum over the fitted components of the system's group (100
// for life support).
double SystemDemand(PowerSystem s);
// The sum of a column over the fitted components of a group.
double GeneratorOutput();
int GeneratorCount();
double ComputerDraw();
double EngineSpeed();
// How much of the generators' output is allotted, in percent; 0 without
// output (counts as below 90).
double PowerUsed();

// The skill of the officer at a post (Character 0 for an empty post).
int OfficerSkill(int post);

// The open officer page, or 0.
int OpenPage();

}  // namespace lf
