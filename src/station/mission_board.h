// The layout of the mission boards on the station's screens.
#pragma once

namespace lf {

// The left-list line (from 1) on which line 1..10 of a board stands: under
// the guild's two service lines, or under the lounge's people, NEWS and the
// pirates' SPECIAL OFFER.
int BoardListLine(int board, int line);
// The board a screen's board stands for: the lounge shows the pirates'
// board 5 at a pirate station.
int BoardOfScreen(int board);

}  // namespace lf
