// The layout shared by the fleet office and the guild halls: the left list
// of services, the page text below it with its choices on the right, the
// confirm button, and the crew column.
#pragma once

#include <string_view>

namespace lf {

// Presses and hovers test exclusive bounds: left < x < right.
bool InRect(int x, int y, int left, int right, int top, int bottom);

// Line n (from 1) of the left list, at y = 70 + 14(n - 1).
bool OnListLine(int x, int y, int n);
// The font row of a left-list line: chosen, under the cursor, or plain.
int ListLineRow(int n, bool chosen);
void DrawListLine(int n, std::string_view text, bool chosen);

// Row n (from 1) of the page: the text at x 170, choices at x 430, y 270 + 15n.
void DrawPageLine(int n, std::string_view text);
bool OnChoice(int x, int y, int n);
// A choice: greyed, chosen, under the cursor, or plain.
void DrawChoice(int n, std::string_view text, bool greyed, bool chosen);

// The label ending at x 555 and the confirm button at (570, 367).
void DrawConfirmLabel(std::string_view label);
bool OnConfirm(int x, int y);
// The way out of the office and the halls, x 505..614, y 424..458.
bool OnExit(int x, int y);

// The crew column: post 1..6 at y = 70 + 24(post - 1), hit x 455..610.
bool OnCrewLine(int x, int y, int post);
// The small button left of a crew line, x 430..450.
bool OnCrewAshore(int x, int y, int post);

// The race on line 1..4 of this quadrant's translator and fine pages, 0 for
// none.
int QuadrantRace(int line);

}  // namespace lf
