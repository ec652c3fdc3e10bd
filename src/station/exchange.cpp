// The commodity exchange: fourteen rows, one per commodity, each with its
// station stock, the two prices and the hold; buying and selling by one or
// ten. The station buys at its price and sells at a tenth above it.
#include <string>

#include "media/media.h"
#include "shell/game_state.h"
#include "station/station_common.h"
#include "station/station_lines.h"
#include "station/station_procedures.h"
#include "station/station_text.h"
#include "universe/stocks.h"

namespace lf {
namespace {

constexpr int kRows = 14;

int RowTop(int i) { return 119 + 19 * (i - 1); }
int BandTop(int i) { return 113 + 19 * (i - 1); }
bool InBand(int i, int y) { return y > BandTop(i) && y < BandTop(i) + 20; }
int RowShade(int i) { return InBand(i, G.MouseY) ? kBrightRow : 0; }

// What the station asks for one unit: a tenth above its price, one credit
// more under 10.
double BuyingPrice(double p) {
  const double price = Int(p * 1.1);
  return price < 10 ? price + 1 : price;
}

std::string Whole(double x) { return IntText(x); }

// The store of the docked station, or none.
StationStockRecord* Store() {
  const int planet = DockedPlanet();
  return planet == 0 ? nullptr : &G.StationStock[planet];
}

void Move(std::int16_t& c, std::int16_t& s, double units, double cashChange, double freeChange) {
  Assign(c, c + units);
  Assign(s, s - units);
  Assign(G.FreeCargo, G.FreeCargo + freeChange);
  G.Cash += cashChange;
}

void SellTen(std::int16_t& c, std::int16_t& s, double p) {
  if (c <= 0) {
    PlaySoundFx(8, 1);
    return;
  }
  const double units = c >= 10 ? 10 : c;
  PlaySoundFx(4, 1);
  Move(c, s, -units, units * p, units);
}

void SellOne(std::int16_t& c, std::int16_t& s, double p) {
  if (c < 1) {
    PlaySoundFx(8, 1);
    return;
  }
  PlaySoundFx(4, 1);
  Move(c, s, -1, p, 1);
}

void BuyOne(std::int16_t& c, std::int16_t& s, double p) {
  if (s >= 1 && G.Cash - Int(p * 1.1) - 1 >= 0 && G.FreeCargo > 0) {
    PlaySoundFx(4, 1);
    Move(c, s, 1, -BuyingPrice(p), -1);
  } else if (s < 1) {
    PlaySoundFx(8, 1);
  } else if (G.Cash - Int(p * 1.1) - 1 < 0) {
    PlaySoundFx(13, 7);
  } else {
    PlaySoundFx(14, 7);
  }
}

// One lot of ten at 11p; short of that, whatever part of it the stock, the
// money or the hold allows, at p a unit.
void BuyTen(std::int16_t& c, std::int16_t& s, double p) {
  const bool affordable = G.Cash - 11 * p - 1 >= 0;
  const int free = G.FreeCargo;
  if (s >= 10 && affordable && free >= 10) {
    PlaySoundFx(4, 1);
    Move(c, s, 10, -11 * p, -10);
  } else if (affordable && free >= 10 && s < 10) {
    PlaySoundFx(4, 1);
    const double units = s > 0 ? s : 0;
    Move(c, s, units, -p * units, -units);
    s = 0;
  } else if (s >= 10 && free >= 10 && !affordable) {
    if (!(p > 0) || G.Cash < 0) return;  // nothing to divide by, or nothing to pay with
    PlaySoundFx(4, 1);
    const double units = Int(G.Cash / (p * 1.1));
    Move(c, s, units, -p * units, -units);
  } else if (affordable && s >= 10 && free >= 1 && free <= 9) {
    PlaySoundFx(4, 1);
    Move(c, s, free, -p * free - 1, 0);
    G.FreeCargo = 0;
  }
}

}  // namespace

void a_DrawCommodityNames() {
  if (Store() == nullptr) return;
  for (int i = 1; i <= kRows; ++i) DrawFadeTextCentred(320, RowTop(i), CommodityName(i), i, RowShade(i));
}

void a_DrawStockStates() {
  StationStockRecord* store = Store();
  if (store == nullptr) return;
  for (int i = 1; i <= kRows; ++i) {
    DrawFadeTextRight(74, RowTop(i), NumberText(store->Quantity[i]).View(), i, RowShade(i));
    DrawFadeTextRight(588, RowTop(i), NumberText(G.Cargo[i]).View(), i, RowShade(i));
  }
}

void a_DrawStockPrices() {
  StationStockRecord* store = Store();
  if (store == nullptr) return;
  for (int i = 1; i <= kRows; ++i) {
    const double p = store->StationPrice[i];
    DrawFadeTextRight(199, RowTop(i), Whole(p), i, RowShade(i));
    DrawFadeTextRight(458, RowTop(i), Whole(BuyingPrice(p)), i, RowShade(i));
  }
}

void a_DrawCashCargo() {
  DrawImpTextRight(88, 435, Whole(G.Cash));
  DrawImpTextRight(212, 435, std::to_string(G.FreeCargo));
}

void a_CheckMouseDown3() {
  const int x = G.MouseX, y = G.MouseY;
  if (x > 505 && x < 614 && y > 424 && y < 458) {
    ReturnToTerminal(false);
    return;
  }
  StationStockRecord* store = Store();
  if (store == nullptr) return;
  for (int i = 1; i <= kRows; ++i) {
    if (!InBand(i, y)) continue;
    std::int16_t& c = G.Cargo[i];
    std::int16_t& s = store->Quantity[i];
    const double p = store->StationPrice[i];
    if (x > 98 && x < 117)
      SellTen(c, s, p);
    else if (x > 125 && x < 139)
      SellOne(c, s, p);
    else if (x > 494 && x < 508)
      BuyOne(c, s, p);
    else if (x > 516 && x < 535)
      BuyTen(c, s, p);
    return;
  }
}

}  // namespace lf
