// Player conveniences that reach into the game: the F12 screenshot and
// whether tool tips are on when the program starts.
#pragma once

namespace lf {

// The key code the hosts give F12.
inline constexpr int kScreenshotKey = 123;

// Saves the frame last shown through the host and tells the player: a
// passing line on the bridge's prompt strip when it is free, the click
// sound elsewhere; the file (or why there is none) in one line on stderr.
void TakeScreenshot();

// Tool tips at start (on unless the player's settings say otherwise).
void SetTooltipsAtStart(bool on);
bool TooltipsAtStart();

}  // namespace lf
