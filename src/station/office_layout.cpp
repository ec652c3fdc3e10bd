#include "station/office_layout.h"

#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"
#include "station/data/office_data.h"
#include "station/station_lines.h"

namespace lf {

bool InRect(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

bool OnListLine(int x, int y, int n) {
  const int top = 70 + 14 * (n - 1);
  return InRect(x, y, 250, 400, top, top + 9);
}

int ListLineRow(int n, bool chosen) {
  if (chosen) return kChosenRow;
  return OnListLine(G.MouseX, G.MouseY, n) ? kBrightRow : kPlainRow;
}

void DrawListLine(int n, std::string_view text, bool chosen) {
  DrawFadeText(250, 70 + 14 * (n - 1), text, n, ListLineRow(n, chosen));
}

void DrawPageLine(int n, std::string_view text) { DrawFadeText(170, 270 + 15 * n, text, n, kPlainRow); }

bool OnChoice(int x, int y, int n) { return x > 430 && y > 269 + 15 * n && y < 280 + 15 * n; }

void DrawChoice(int n, std::string_view text, bool greyed, bool chosen) {
  int row = kPlainRow;
  if (greyed) row = kGreyRow;
  else if (chosen) row = kChosenRow;
  else if (OnChoice(G.MouseX, G.MouseY, n)) row = kBrightRow;
  DrawFadeText(430, 270 + 15 * n, text, n, row);
}

void DrawConfirmLabel(std::string_view label) {
  DrawFadeTextRight(555, 373, label, 0, kPlainRow);
  const bool hot = OnConfirm(G.MouseX, G.MouseY);
  SetSrc(hot ? 21 : 0, 0, hot ? 42 : 21, 21);
  BltFast(570, 367, GFX.StationYes3, true);
}

bool OnConfirm(int x, int y) { return InRect(x, y, 570, 591, 367, 388); }
bool OnExit(int x, int y) { return InRect(x, y, 505, 614, 424, 458); }

bool OnCrewLine(int x, int y, int post) {
  const int top = 70 + 24 * (post - 1);
  return InRect(x, y, 455, 610, top, top + 9);
}

bool OnCrewAshore(int x, int y, int post) {
  const int top = 70 + 24 * (post - 1);
  return InRect(x, y, 430, 450, top, top + 9);
}

int QuadrantRace(int line) {
  if (G.CurrentQuadrant < 1 || G.CurrentQuadrant > 4 || line < 1 || line > 4) return 0;
  return data::kQuadrantRaces[static_cast<std::size_t>(G.CurrentQuadrant - 1)][static_cast<std::size_t>(line - 1)];
}

}  // namespace lf
