// Trade with a hailed ship: a list of the fourteen commodities at the plain
// base price, what the ship offers on the left, the hold on the right, and
// arrows to sell or buy one or ten.
#include <algorithm>
#include <array>
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/comms.h"
#include "bridge/comms_texts.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "universe/stocks.h"

namespace lf {

namespace {

// Most of each commodity a ship carries; 0: never on offer.
constexpr std::array<int, 15> kOfferLimit = {0, 40, 70, 30, 0, 0, 5, 4, 40, 10, 2, 30, 3, 0, 5};

constexpr int kFirstRowY = 286;
constexpr int kRowPitch = 7;
constexpr int kLetter = 6;

int RowTop(int row) { return kFirstRowY + kRowPitch * row; }
bool OnRowBand(int row) { return G.MouseY > RowTop(row) && G.MouseY < RowTop(row) + 6; }

// Letters of the 6x6 font `pitch` apart, letter i (from 1) at x + pitch * i.
void DrawLetters(int x, int y, std::string_view text, int pitch, int band) {
  ForEachCell(text, [&](int i, int cell) {
    if (cell < 0) return;
    SetSrc(kLetter * cell, band, kLetter * cell + kLetter, band + kLetter);
    BltFast(x + pitch * i, y, GFX.FontVsml, true);
  });
}

void DrawCentred(int centre, int y, std::string_view text, int band) {
  DrawSmallText(centre - 3 * CodePointCount(text) - 6, y, text, band);
}

void DrawArrow(int x, int y, int n) {
  Skip([&] {
    SetSrc(0, 0, 9, 6);
    BltFast(x, y, GFX.JobArrow[n], true);
  });
}

// A 16-bit count changed by d; the change is skipped if it would not fit.
void Add(std::int16_t& v, double d) { Assign(v, static_cast<double>(v) + d); }

void BuyOne(std::int16_t& o, std::int16_t& c, double p) {
  if (o >= 1 && G.Cash - p >= 0) {
    Add(c, 1);
    Add(o, -1);
    Add(G.FreeCargo, -1);
    G.Cash -= p;
  }
}

void BuyTen(std::int16_t& o, std::int16_t& c, double p) {
  std::int16_t& f = G.FreeCargo;
  if (o >= 10 && G.Cash - 10 * p >= 0) {
    Add(c, 10);
    Add(o, -10);
    Add(f, -10);
    G.Cash -= 10 * p;
  } else if (o >= 10 && f >= 10) {
    // What the money covers; a debt buys nothing.
    if (p <= 0) return;
    const double q = std::max(0.0, Int(G.Cash / p));
    Add(c, q);
    Add(o, -q);
    Add(f, -q);
    G.Cash -= p * q;
  } else if (G.Cash - 10 * p >= 0 && f >= 10) {
    const double all = o;
    Add(c, all);
    Add(f, -all);
    G.Cash -= p * all;
    o = 0;
  } else if (o >= 10 && f >= 1 && f <= 9 && G.Cash >= p * f) {
    const double room = f;
    Add(c, room);
    Add(o, -room);
    G.Cash -= p * room;
    f = 0;
  }
}

void SellOne(std::int16_t& o, std::int16_t& c, double p) {
  if (c >= 1) {
    Add(c, -1);
    Add(o, 1);
    Add(G.FreeCargo, 1);
    G.Cash += p;
  }
}

void SellTen(std::int16_t& o, std::int16_t& c, double p) {
  if (c >= 10) {
    Add(c, -10);
    Add(o, 10);
    Add(G.FreeCargo, 10);
    G.Cash += 10 * p;
  } else {
    const double all = c;
    Add(G.FreeCargo, all);
    G.Cash += p * all;
    Add(o, all);
    c = 0;
  }
}

}  // namespace

void RollShipOffer() {
  for (int i = 1; i <= 14; ++i) {
    G.ShipOffer[i] = 0;
    if (kOfferLimit[i] == 0) continue;
    if (Rnd() > 0.5) G.ShipOffer[i] = static_cast<std::int16_t>(Int(Rnd() * kOfferLimit[i]));
  }
}

void DrawTradeList2(int row, const char* name, int offer, int cargo) {
  const int y = RowTop(row);
  if (G.MouseX > 419 && G.MouseX < 469 && OnRowBand(row))
    DrawCentred(437, y, "Š" + IntText(G.BasePrice[row + 1]), 6);
  else
    DrawCentred(437, y, name, 0);
  DrawLetters(373, y, std::to_string(offer), 5, 0);
  const std::string held = std::to_string(cargo);
  DrawLetters(507 - kLetter * static_cast<int>(held.size()), y, held, 5, 0);
  DrawArrow(399, y, 3);
  DrawArrow(409, y, 4);
  DrawArrow(469, y, 1);
  DrawArrow(479, y, 2);
}

void DrawTradeList() {
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[11], false);
  });
  ReadCursor();
  for (int row = 0; row <= 13; ++row) {
    const std::string name(CommodityShortName(row + 1));
    DrawTradeList2(row, name.c_str(), G.ShipOffer[row + 1], G.Cargo[row + 1]);
  }
  DrawCentred(439, 395, "Š" + IntText(G.Cash) + "   SPACE:" + std::to_string(G.FreeCargo), 0);
  DrawCentred(439, 386, comms::kExitTrade, 12);
}

void CheckTradeSel() {
  ReadCursor();
  const int x = G.MouseX;
  for (int row = 0; row <= 13; ++row) {
    if (!OnRowBand(row)) continue;
    std::int16_t& o = G.ShipOffer[row + 1];
    std::int16_t& c = G.Cargo[row + 1];
    const double p = G.BasePrice[row + 1];
    if (x > 469 && x < 479) {
      PlaySoundFx(2, 2);
      BuyOne(o, c, p);
    }
    if (x > 479 && x < 489) {
      PlaySoundFx(2, 2);
      BuyTen(o, c, p);
    }
    if (x > 409 && x < 419) {
      PlaySoundFx(2, 2);
      SellOne(o, c, p);
    }
    if (x > 399 && x < 409) {
      PlaySoundFx(2, 2);
      SellTen(o, c, p);
    }
  }
}

}  // namespace lf
