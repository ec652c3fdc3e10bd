// The officer page's buttons: drawing and animation, hover, the press, and
// the tool icons of the top strip.
#include "bridge/bridge_procedures.h"
#include "bridge/bridge_helpers.h"
#include "bridge/button_rules.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"

namespace lf {

namespace {

bool Shown(const BridgeButtonRecord& b) { return b.Visible != 0 && b.Present != 0; }

bool Inside(const BridgeButtonRecord& b, int height) {
  return b.X < G.MouseX && G.MouseX < b.X + 50 && b.Y < G.MouseY && G.MouseY < b.Y + height;
}

void WrapFrame(BridgeButtonRecord& b) {
  if (b.Frame >= b.FrameCount) b.Frame = 0;
}

// Buttons that go back to idle when their page is not open.
struct Range {
  int page, first, last;
};
constexpr Range kClosing[] = {{1, 1, 2}, {1, 9, 10}, {2, 4, 7}, {3, 3, 7},
                              {4, 1, 4}, {5, 1, 8},  {6, 1, 4}};

}  // namespace

void DrawButtons() {
  const int p = OpenPage();
  if (p == 0) return;
  for (int i = 1; i <= 10; ++i) {
    BridgeButtonRecord& b = G.BridgeButton[p][i];
    if (!Shown(b)) continue;
    const int frame = CInt(Int(b.Frame));
    SetSrc(50 * frame, 0, 50 * frame + 50, 50);
    BltFast(b.X, b.Y, GFX.ButtonPicture[p][i], true);
    SetSrc(60 * b.State, 0, 60 * b.State + 60, 60);
    BltFast(b.X - 8, b.Y - 8, GFX.ButtState, true);
    if (b.State == 1) {
      b.Frame += 0.3;
      WrapFrame(b);
    }
  }
}

void CheckMouseOverButton() {
  const int p = OpenPage();
  if (p == 0) return;
  ReadCursor();
  for (int i = 1; i <= 10; ++i) {
    BridgeButtonRecord& b = G.BridgeButton[p][i];
    if (!Shown(b)) continue;
    if (Inside(b, b.Height)) {
      G.TooltipText = b.Label;
      G.TooltipVisible = True;
      b.Frame += 0.5;
      WrapFrame(b);
    } else if (b.Frame > 0 && b.State != 1) {
      b.Frame += 0.5;
    }
    WrapFrame(b);
  }
}

void DrawToolsIcons() {
  ReadCursor();
  const auto icon = [](int n, int x) {
    SetSrc(0, 0, 12, 15);
    BltFast(x, 4, GFX.ToolIcon[n], true);
  };
  const auto pointed = [](int x) {
    return G.MouseX >= x && G.MouseX <= x + 11 && G.MouseY >= 4 && G.MouseY <= 18;
  };
  if (G.ShowSensorRange == True) icon(1, 375);
  if (G.ShowGrid == True) icon(2, 404);
  if (pointed(433)) icon(3, 433);
  if (pointed(462)) icon(4, 462);
}

void CheckButton() {
  for (const Range& r : kClosing) {
    if (G.PageOpen[r.page] != 0) continue;
    for (int b = r.first; b <= r.last; ++b)
      if (ButtonState(r.page, b) != 2) ButtonState(r.page, b) = 0;
  }
  const int p = OpenPage();
  if (p == 0) return;
  for (int i = 1; i <= 10; ++i) {
    BridgeButtonRecord& b = G.BridgeButton[p][i];
    if (b.Present == 0) continue;
    if (b.State == 2) {
      PlaySoundFx(1, 1);
      continue;
    }
    if (Inside(b, 50) && ApplyButtonRule(p, i)) return;
  }
}

}  // namespace lf
