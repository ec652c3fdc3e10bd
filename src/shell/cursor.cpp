#include "shell/cursor.h"

#include <array>
#include <cmath>
#include <string_view>

#include "bridge/ship_pick.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/host.h"

namespace lf {
namespace {

constexpr int kCursorCell = 23;

// Cells of the cursor sheet, by source x.
constexpr int kArrow = 0;
constexpr int kViewArrow = 23;
constexpr int kCourse = 46;
constexpr int kCourseOnBody = 92;
constexpr int kScrollLeft = 115;
constexpr int kScrollRight = 138;
constexpr int kScrollDown = 161;
constexpr int kScrollUp = 183;

// The selection marker: 50x30 cells, six a row, looping 8..23.
constexpr int kSelWidth = 50;
constexpr int kSelHeight = 30;
constexpr int kSelPerRow = 6;

constexpr int kTipLetter = 6;

bool Inside(int x, int y, int left, int right, int top, int bottom) {
  return x >= left && x <= right && y >= top && y <= bottom;
}
bool Strictly(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

// A 23x23 cell of the cursor sheet at (x, y), cut short at the screen's
// right and bottom edges so that the blit still fits.
void DrawCursorCell(int sourceX, int x, int y) {
  const int width = x > kScreenWidth - kCursorCell ? kScreenWidth - x : kCursorCell;
  const int height = y > kScreenHeight - kCursorCell ? kScreenHeight - y : kCursorCell;
  SetSrc(sourceX, 0, sourceX + width, height);
  BltFast(x, y, GFX.CursorBitmap, true);
}

bool PageOn(int page, int button) {
  return G.PageOpen[page] != 0 && G.BridgeButton[page][button].State == 1;
}

// The selection marker on the first ship under the cursor and in reach.
bool MarkShip() {
  const int i = PickShip();
  if (i == 0) return false;
  DrawShipSelection(CInt(ShipScreenX(i)), CInt(ShipScreenY(i)));
  return true;
}

// A body whose centre on the screen lies within 10 of the cursor.
bool BodyUnderCursor() {
  for (int i = 1; i <= G.PlanetCount && i <= decltype(G.Planet)::kHi; ++i) {
    const double px = 300 + G.Planet[i].X - Int(G.ViewX) + 12;
    const double py = 125 + G.Planet[i].Y - G.ViewY + 7;
    const double dx = px - G.MouseX, dy = py - G.MouseY;
    if (std::sqrt(dx * dx + dy * dy) < 10) return true;
  }
  return false;
}

// The cursor inside the view with a page's pointing mode on; false when
// no rule drew.
bool DrawPointingCursor(int x, int y) {
  if (PageOn(3, 4) && MarkShip()) return true;
  if (PageOn(1, 1)) {
    if (MarkShip()) return true;
    DrawCursorCell(BodyUnderCursor() ? kCourseOnBody : kCourse, x - 11, y - 11);
    return true;
  }
  if (PageOn(2, 1) && G.SensorLevel >= 100 && MarkShip()) return true;
  return false;
}

struct ToolArea {
  int left, right, top, bottom;
  std::string_view text;
};
constexpr std::array<ToolArea, 5> kToolAreas = {{
    {375, 386, 4, 18, "SCANNER RANGE"},
    {404, 415, 4, 18, "COORDINATE GRID"},
    {433, 444, 4, 18, "CENTER ON SHIP"},
    {462, 473, 4, 18, "CENTER ON DESTINATION"},
    {517, 530, 264, 274, "HELP"},
}};
constexpr std::array<std::string_view, 7> kFaceTips = {
    "", "NAVIGATOR", "COMMUNICATOR", "TACTICAL OFFICER", "MEDICAL OFFICER", "SCIENCE OFFICER", "ENGINEER"};

void ShowTip(std::string_view text) {
  G.TooltipText = text;
  G.TooltipVisible = True;
}

}  // namespace

void ReadCursor() {
  int x = 0, y = 0;
  CurrentHost().GetCursorPos(x, y);
  G.MouseX = x;
  G.MouseY = y;
}

void MoveCursor(int x, int y) {
  CurrentHost().SetCursorPos(x, y);
  G.MouseX = x;
  G.MouseY = y;
}

void a_DrawCursor() {
  ReadCursor();
  DrawCursorCell(kArrow, G.MouseX, G.MouseY);
}

void DrawCursor() {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;
  bool drawn = true;
  if (G.OrbitState == 0 || G.OrbitState == 1) {
    if (Inside(x, y, 120, 146, 50, 240)) {
      DrawCursorCell(kScrollLeft, x, y);
    } else if (Inside(x, y, 495, 520, 50, 240)) {
      DrawCursorCell(kScrollRight, x, y);
    } else if (Inside(x, y, 146, 495, 25, 50)) {
      DrawCursorCell(kScrollUp, x, y);
    } else if (Inside(x, y, 146, 495, 240, 265)) {
      DrawCursorCell(kScrollDown, x, y);
    } else {
      drawn = Inside(x, y, 146, 495, 51, 239) && DrawPointingCursor(x, y);
    }
  } else {
    drawn = false;
  }
  if (drawn) return;
  if (Inside(x, y, 146, 495, 51, 239)) {
    DrawCursorCell(kViewArrow, x, y);
    G.CursorFrame = 0;
  } else {
    DrawCursorCell(kArrow, x, y);
  }
}

void DrawShipSelection(int x, int y) {
  const int cell = static_cast<int>(Int(G.CursorFrame));
  const int left = (cell % kSelPerRow) * kSelWidth;
  const int top = (cell / kSelPerRow) * kSelHeight;
  SetSrc(left, top, left + kSelWidth, top + kSelHeight);
  BltFast(x - 11, y - 8, GFX.ShipSel, true);
  G.CursorFrame += 0.8;
  if (G.CursorFrame > 23) G.CursorFrame = 8;
}

void CheckOverTool() {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;
  for (const ToolArea& a : kToolAreas) {
    if (Strictly(x, y, a.left, a.right, a.top, a.bottom)) ShowTip(a.text);
  }
  for (int post = 1; post <= 6; ++post) {
    const int left = G.FaceX[post], top = G.FaceY[post];
    if (Strictly(x, y, left, left + G.FaceWidth[post], top, top + G.FaceHeight[post]))
      ShowTip(kFaceTips[post]);
  }
}

void DrawToolTip() {
  const int n = CodePointCount(G.TooltipText);
  int x = G.MouseX + 15;
  const int y = G.MouseY + 15;
  if (x + kTipLetter * n > 633) x = kScreenWidth - (kTipLetter * n + kTipLetter);
  if (y + kTipLetter <= kScreenHeight) {
    ForEachCell(G.TooltipText, [&](int k, int cell) {
      if (cell < 0) return;
      SetSrc(kTipLetter * cell, 0, kTipLetter * cell + kTipLetter, kTipLetter);
      BltFast(x + kTipLetter * k, y, GFX.FontVsml, true);
    });
  }
  G.TooltipVisible = False;
}

void CheckToolTip() {
  if (!Strictly(G.MouseX, G.MouseY, 517, 530, 264, 274)) return;
  PlaySoundFx(2, 2);
  G.TooltipsOn = G.TooltipsOn == True ? False : True;
}

}  // namespace lf
