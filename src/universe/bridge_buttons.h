// The officer pages' button table as a new game sets it up, and where each
// button's animation sheet lies.
#pragma once

#include <string_view>

namespace lf {

// The sheet of button b on page p in the game's path notation
// ("\gfx\nav\01.bmp", "\gfx\bb.bmp" for a blank plate); empty for an entry
// that has no place on its page.
std::string_view ButtonSheetPath(int p, int b);

// Fills BridgeButton[1..6][1..15]: frame 0, frame step 0.25, hidden, place,
// size, label, frame count and presence; every state 0 but (3,8) at 2.
void FillBridgeButtons();

// Fills OfficerLine[1..6][0..3].
void FillOfficerLines();

}  // namespace lf
