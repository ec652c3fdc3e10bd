// The 144 persons: names, posts, skills, salaries and faces, and who stands
// at which station of the quadrant.
#pragma once

#include "display/bitmap.h"
#include "shell/table.h"

namespace lf {

// Draws who stands at each station of the current quadrant (StationPeople).
void DetermineStationPeople();

// The face picture of person 1..144 ("\gfx\faces\" + row + ".bmp"), loaded
// by RandomizeCharacters. A handle, not state: it follows from the row.
Table<Bitmap, 144>& CharacterFace();

// Race 1..6 and post 1..6 of a person row 1..144 (0 outside).
int CharacterRace(int row);
int CharacterPostOfRow(int row);

}  // namespace lf
