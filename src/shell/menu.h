// Start-up, the main menu, a new game and the closing sequence.
#pragma once

namespace lf {

// Program entry: the logo clip, sound bank, screen, music, flags, the menu's
// bitmaps, and the menu.
void Form_Load();
// The closing sequence: releases everything and ends the program at once
// (throws ProgramEnd with status 0).
[[noreturn]] void Form_Unload();

// One frame of the menu loop: draw, cursor, yield, present.
void DrawMainMenuFrame();
// Draws the title and the six bands, the one under the cursor lit.
void b_DrawMainMenu();
// The band under row y: i when 120 + 60(i - 1) < y < 120 + 60i, else 0.
int MenuEntryAt(int y);
// Acts on a press in the menu.
void CheckMenuMouseDown();

// Builds the initial game and enters the bridge (or loads, after Load was
// chosen with no game running).
[[noreturn]] void StartNew();

}  // namespace lf
