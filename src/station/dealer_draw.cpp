// The ship dealer's screen: the turning picture, the hardpoint list, the
// information on the selection, the groups, the goods, the buttons, and the
// cash and carry amount.
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "station/dealer.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/dealer_rules.h"
#include "station/station_lines.h"
#include "station/station_text.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

bool Inside(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

std::string_view HullName(int race, int hullClass) {
  const HullRecord* hull = nullptr;
  Skip([&] { hull = &G.Hull[race][hullClass]; });
  return hull ? std::string_view(hull->Name) : std::string_view();
}

// A text cell of the catalogue; empty outside it.
std::string_view ComponentName(int group, int model, int column) {
  std::string_view text;
  Skip([&] { text = G.ComponentTable[group][model][column]; });
  return text;
}

// The component the selection shows: a fitted slot, a line on sale or an
// unfitted line. Fitted says which price line follows.
struct Shown {
  int Group = 0, Model = 0, Slot = 0;
  bool Unfitted = false;
};

Shown ShownComponent() {
  Shown s;
  const int sel = G.DealerSelection, line = DealerLine();
  Skip([&] {
    if (sel >= 1 && sel <= 19) {
      s.Slot = sel;
      s.Group = G.FittedComp[sel][1];
      s.Model = G.FittedComp[sel][2];
    } else if (line >= 1 && line <= 10 && G.DealerGroup >= 1 && G.DealerGroup <= 7) {
      s.Group = G.DealerGroup;
      s.Model = G.StationEquip[G.DealerGroup][line];
    } else if (line >= 1 && line <= 4 && G.DealerGroup == 9) {
      s.Group = G.UnfittedComp[line][1];
      s.Model = G.UnfittedComp[line][2];
      s.Unfitted = true;
    }
  });
  if (s.Group < 1 || s.Group > 7) s.Group = 0;
  return s;
}

void DrawHullInfo(int race, int hullClass, bool own) {
  HullRecord hull;
  Skip([&] { hull = G.Hull[race][hullClass]; });
  std::string_view className;
  Skip([&] { className = G.HullClassName[hullClass]; });
  const int x = 272;
  auto line = [&](int n) { return FadeLine(x, 48 + 10 * n, n, kPlainRow); };
  line(1) << "TYPE:          " << className;
  line(2) << "CLASS:         " << std::string_view(hull.Name);
  line(3) << "COST:          Š" << NumberText(hull.Price);
  line(4) << "HARDPOINTS:   " << NumberText(hull.Hardpoints);
  line(5) << "HULLPOINTS:   " << NumberText(own ? G.HullPoints : hull.HullPoints);
  line(6) << "CARRY AMOUNT: " << NumberText(hull.CarryAmount);
  line(7) << "CARGO HOLD:   " << NumberText(hull.CargoHold);
}

}  // namespace

void a_DrawCompAnim() {
  if (!(G.CompAnimFrame >= 0 && G.CompAnimFrame <= 35)) G.CompAnimFrame = 0;
  const int frame = static_cast<int>(Int(G.CompAnimFrame));
  SetSrc(200 * frame, 0, 200 * frame + 200, 200);
  BltFast(14, 20, GFX.CompAnimBitmap, true);
  G.CompAnimFrame += 0.5;
  if (G.CompAnimFrame > 35) G.CompAnimFrame = 0;
}

void a_DrawHardPList() {
  ReadCursor();
  const int mx = G.MouseX, my = G.MouseY;
  const bool hasHull = G.HullRace != 0;

  auto rowFor = [&](int top, bool selected, bool grey) {
    if (Inside(mx, my, 20, 250, top, top + 9)) return kBrightRow;
    if (selected) return kChosenRow;
    return grey ? kGreyRow : kPlainRow;
  };

  int row = rowFor(248, G.DealerSelection == 99, !hasHull);
  if (hasHull) {
    FadeLine(40, 248, 0, row) << "HULL " << HullName(G.HullRace, G.HullClass);
    const double percent = G.HullPointsMax > 0 ? Int(G.HullPoints / G.HullPointsMax * 100) : 0;
    if (percent >= 100) {
      DrawFadeTextRight(230, 248, "100 %", 0, row);
    } else {
      const NumberText value(percent);
      FadeLine(230 - 6 * (static_cast<int>(value.Length) + 1), 248, 0, row) << value << "%";
    }
  } else {
    DrawFadeText(40, 248, "    --  --", 0, row);
    DrawFadeTextRight(230, 248, "----", 0, row);
  }

  for (int n = 1; n <= 15; ++n) {
    const int top = 248 + 9 * n;
    const int group = G.FittedComp[n][1], model = G.FittedComp[n][2];
    row = rowFor(top, G.DealerSelection == n, n > G.HardpointCount || !hasHull);
    if (group == 0) {
      DrawFadeText(40, top, n <= G.HardpointCount ? "    -- FREE HARDPOINT --" : "    --  --", 0, row);
      DrawFadeTextRight(230, top, "----", 0, row);
      continue;
    }
    DrawFadeText(40, top, ComponentName(group, model, 1), 0, row);
    Skip([&] {
      const NumberText value(HealthPercent(n));
      FadeLine(230 - 6 * (static_cast<int>(value.Length) + 2), top, 0, row) << value << " %";
    });
  }
}

void a_DrawCompInfo() {
  if (G.DealerSelection == 99) {
    DrawHullInfo(G.HullRace, G.HullClass, true);
    return;
  }
  if (G.DealerGroup == 10 && DealerLine() >= 1 && DealerLine() <= 10) {
    Skip([] { DrawHullInfo(StationRace(), G.StationEquip[10][DealerLine()], false); });
    return;
  }
  const Shown s = ShownComponent();
  if (s.Group == 0) return;
  const int g = s.Group, m = s.Model;
  int n = 0;
  auto line = [&]() {
    ++n;
    return FadeLine(272, 48 + 15 * n, n, kPlainRow);
  };
  line() << "NAME:          " << ComponentName(g, m, 1);
  line() << "DESCRIPTION:   " << ComponentName(g, m, 2);
  line() << "COST:          Š" << NumberText(ComponentCost(g, m));
  line() << "WEIGHT:        " << NumberText(ComponentWeight(g, m));
  switch (g) {
    case 1: line() << "EFFICIENCY:    " << GradeName(static_cast<int>(ComponentValue(1, m, 10))); break;
    case 3: line() << "AMMO QUANTITY: " << NumberText(ComponentValue(3, m, kAmmoColumn)); break;
    case 4: line() << "POWER OUTPUT:  " << NumberText(ComponentValue(4, m, 7)) << " KW"; break;
    case 5: line() << "AGILITY:       " << GradeName(static_cast<int>(ComponentValue(5, m, 9))); break;
    case 6: line() << "RANGE:         " << GradeName(static_cast<int>(ComponentValue(6, m, 7))); break;
    case 7: line() << "EFFICIENCY:    " << GradeName(static_cast<int>(ComponentValue(7, m, 8))); break;
    default: break;
  }
  if (s.Slot != 0) {
    double value = 0;
    Skip([&] { value = SellValue(s.Slot); });
    line() << "SELL PRICE:  " << NumberText(value);
  } else if (s.Unfitted) {
    line() << "SELL PRICE:    Š" << NumberText(CIntReal(ComponentCost(g, m) / 10));
  }
}

void a_DrawGroupSelection() {
  struct Marker {
    int Group, X, Y;
  };
  static constexpr Marker kMarkers[] = {{10, 236, 169}, {1, 236, 192}, {3, 236, 217}, {7, 363, 169}, {4, 363, 192},
                                        {5, 363, 217},  {6, 489, 169}, {2, 489, 192}, {9, 489, 217}};
  for (const Marker& m : kMarkers) {
    if (m.Group != G.DealerGroup) continue;
    SetSrc(0, 0, 122, 14);
    BltFast(m.X, m.Y, GFX.DealerSelect, true);
  }
}

void a_DrawStationEquip() {
  ReadCursor();
  const int group = G.DealerGroup;
  for (int n = 1; n <= 10; ++n) {
    const int top = 248 + 27 * n;
    std::string_view name;
    Skip([&] {
      if (group >= 1 && group <= 7) {
        name = ComponentName(group, G.StationEquip[group][n], 1);
      } else if (group == 9 && n <= 4) {
        name = ComponentName(G.UnfittedComp[n][1], G.UnfittedComp[n][2], 1);
      } else if (group == 10) {
        const int race = StationRace();
        if (race >= 1 && race <= 6) name = HullName(race, G.StationEquip[10][n]);
      }
    });
    if (name.empty()) continue;
    int row = kPlainRow;
    if (G.DealerSelection == 20 + n) row = kChosenRow;
    else if (Inside(G.MouseX, G.MouseY, 350, 500, top, top + 9)) row = kBrightRow;
    DrawFadeText(352, top, name, n, row);
  }
}

void a_DrawDealerButts() {
  ReadCursor();
  auto button = [](int x, int source) {
    const bool hot = Inside(G.MouseX, G.MouseY, x, x + 20, 245, 395);
    SetSrc(source, hot ? 150 : 0, source + 20, hot ? 300 : 150);
    BltFast(x, 245, GFX.DealerButts, true);
  };
  const int group = G.DealerGroup;
  if ((group >= 1 && group <= 7) || group == 10) button(580, 0);
  if (group == 9) {
    button(580, 20);
    button(554, 40);
  }
  button(252, 40);
  button(278, 60);
}

void a_DrawCashCarry() {
  DrawImpTextRight(88, 435, NumberText(G.Cash).View());
  DrawImpTextRight(212, 435, NumberText(G.FreeMass).View());
}

}  // namespace lf
