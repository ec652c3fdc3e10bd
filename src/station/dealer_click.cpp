// A press on the ship dealer's screen.
#include <string>

#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/dealer.h"
#include "station/dealer_rules.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {

namespace {

bool Inside(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

struct GroupButton {
  int Group, Left, Right, Top, Bottom;
};
constexpr GroupButton kGroupButtons[] = {
    {10, 240, 353, 168, 184}, {1, 240, 353, 190, 207}, {3, 240, 353, 214, 230},
    {7, 368, 480, 168, 184},  {4, 368, 480, 190, 207}, {5, 368, 480, 214, 230},
    {6, 494, 606, 168, 184},  {2, 494, 606, 190, 207}, {9, 494, 606, 214, 230},
};

void LoadCompAnim(const std::string& name) {
  GFX.CompAnimBitmap = LoadBitmapIntoDXS("\\gfx\\station\\comps\\" + name + ".bmp");
  // One frame of the strip is cut out each frame, far from its left edge.
  GFX.CompAnimBitmap.KeepPlainRows();
  G.CompAnimFrame = 0;
}

void LoadComponentAnim(int group, int model) {
  LoadCompAnim(std::to_string(group) + "_" + std::to_string(model));
}

// The right list's line n was pressed: it becomes the selection, or the
// selection is cleared when the line holds nothing.
void SelectListLine(int n) {
  PlaySoundFx(4, 1);
  G.DealerSelection = static_cast<std::int16_t>(20 + n);
  const int group = G.DealerGroup;
  int model = 0;
  if (group >= 1 && group <= 7) {
    model = G.StationEquip[group][n];
    if (model != 0) LoadComponentAnim(group, model);
  } else if (group == 9) {
    if (n <= 4 && G.UnfittedComp[n][1] != 0) {
      model = G.UnfittedComp[n][2];
      LoadComponentAnim(G.UnfittedComp[n][1], model);
    }
  } else if (group == 10) {
    const int race = StationRace();
    model = race >= 1 && race <= 6 ? G.StationEquip[10][n] : 0;
    if (model != 0) LoadCompAnim("10_" + std::to_string(race) + "_" + std::to_string(model));
  }
  if (model == 0) G.DealerSelection = 0;
  a_ClearTermScreen();
}

bool OnUnfittedLine() {
  const int line = DealerLine();
  return G.DealerGroup == 9 && line >= 1 && line <= 4 && G.UnfittedComp[line][1] != 0;
}

}  // namespace

void a_CheckMouseDown4() {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;

  // Leaving: not while the components aboard weigh more than the hull carries.
  if (Inside(x, y, 505, 614, 424, 458)) {
    if (G.FreeMass >= 0) {
      PlaySoundFx(2, 1);
      ReturnToTerminal(false);
      G.DealerSelection = 0;
      G.DealerGroup = 0;
    }
    return;
  }

  for (const GroupButton& b : kGroupButtons) {
    if (!Inside(x, y, b.Left, b.Right, b.Top, b.Bottom)) continue;
    PlaySoundFx(4, 1);
    G.DealerGroup = static_cast<std::int16_t>(b.Group);
    G.DealerSelection = 0;
    a_ClearTermScreen();
  }

  // The hardpoint lines 1..15 of the left list.
  for (int n = 1; n <= 15; ++n) {
    if (!Inside(x, y, 20, 250, 248 + 9 * n, 257 + 9 * n)) continue;
    if (G.FittedComp[n][1] == 0 || G.DealerSelection == n) continue;
    PlaySoundFx(4, 1);
    G.DealerSelection = static_cast<std::int16_t>(n);
    a_ClearTermScreen();
    LoadComponentAnim(G.FittedComp[n][1], G.FittedComp[n][2]);
  }

  // The hull line answers at any x.
  if (y > 248 && y < 257 && G.HullRace != 0 && G.DealerSelection != 99) {
    PlaySoundFx(4, 1);
    G.DealerSelection = 99;
    LoadCompAnim("10_" + std::to_string(G.HullRace) + "_" + std::to_string(G.HullClass));
    a_ClearTermScreen();
  }

  for (int n = 1; n <= 10; ++n)
    if (Inside(x, y, 350, 500, 248 + 27 * n, 257 + 27 * n) && G.DealerSelection != 20 + n) SelectListLine(n);

  // The tall buttons.
  if (!(y > 245 && y < 395)) return;
  const int group = G.DealerGroup, sel = G.DealerSelection;
  const bool onSaleLine = sel >= 21 && sel <= 30 && LineModel() != 0;
  if (x > 580 && x < 600 && OnUnfittedLine()) a_CheckFit();
  else if (x > 554 && x < 574 && OnUnfittedLine()) a_SellUnfitted();
  else if (x > 580 && x < 600 && group >= 1 && group <= 7 && onSaleLine) a_BuyComp();
  else if (x > 252 && x < 272 && sel >= 1 && sel <= 19) a_CompSell();
  else if (x > 278 && x < 298 && sel >= 1 && sel <= 8) a_CompRepair();
  else if (x > 278 && x < 298 && sel == 99) a_HullRepair();
  else if (x > 580 && x < 600 && group == 10 && onSaleLine) a_PurchaseShipHull();

  // A slot emptied under the selection (sold, or moved down onto a free
  // hardpoint) leaves nothing selected.
  if (G.DealerSelection >= 1 && G.DealerSelection <= 19 && G.FittedComp[G.DealerSelection][1] == 0)
    G.DealerSelection = 0;
}

}  // namespace lf
