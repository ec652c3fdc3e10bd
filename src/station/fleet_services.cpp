// What the fleet office's confirm buttons buy: translators, loans, fines,
// star charts and the star lane's location.
#include <algorithm>
#include <cmath>

#include "media/media.h"
#include "shell/game_state.h"
#include "station/data/office_data.h"
#include "station/fleet_office.h"
#include "station/office_layout.h"

namespace lf {

namespace {

// Draws of a random planet that give up when the quadrant has none to hit.
constexpr int kMaxDraws = 100000;

int RandomPlanet() { return G.PlanetCount >= 1 ? RandomInt(G.PlanetCount) : 0; }

}  // namespace

void a_BuyTranslator() {
  if (G.Cash < 10000) {
    PlaySoundFx(13, 5);
    return;
  }
  const int race = QuadrantRace(G.ServicePage - 50);
  if (race < 1 || race > 6 || G.TranslatorOwned[race] != 0) return;
  PlaySoundFx(4, 1);
  G.TranslatorOwned[race] = True;
  G.Cash -= 10000;
  G.ServicePage = 1;
}

void a_TakeOrRepayLoan() {
  if (IsSet(G.LoanActive)) {
    // Repayment is whole or not at all.
    const double due = std::max<double>(G.LoanDue, 0);
    if (G.Cash >= due) {
      PlaySoundFx(4, 1);
      G.Cash -= due;
      G.LoanActive = False;
      G.LoanMonthsLeft = 0;
      G.LoanDue = 0;
    } else {
      PlaySoundFx(13, 5);
    }
    return;
  }
  PlaySoundFx(4, 1);
  const int line = G.ServicePage - 100;
  if (line < 1 || line > 5) return;
  const data::LoanOffer& o = data::kLoanOffers[static_cast<std::size_t>(line - 1)];
  G.Cash += o.PaidOut;
  G.LoanActive = True;
  G.LoanMonthsLeft = static_cast<std::int16_t>(o.Months);
  G.LoanDue = o.Due;
  G.ServicePage = 2;
}

void a_PayFine() {
  PlaySoundFx(4, 1);
  const int race = QuadrantRace(G.ServicePage - 120);
  if (race < 1 || race > 6 || G.RaceRelation[race] > 35) return;
  // The worst standing costs 350; a purse too small is emptied.
  G.Cash = std::max(0.0, G.Cash - (35.0 - G.RaceRelation[race]) * 10.0);
  G.RaceRelation[race] = 36;
}

int ChartPrice() { return G.ChartKind >= 1 && G.ChartKind <= 3 ? 5000 : 20000; }

void RevealChart() {
  const int kind = G.ChartKind;
  if (kind >= 1 && kind <= 3) {
    constexpr int kTypeOfKind[4] = {0, 1, 4, 2};  // barren, terran, tundra
    const int type = kTypeOfKind[kind];
    bool any = false;
    for (int p = 1; p <= G.PlanetCount && p <= 250; ++p) any = any || G.Planet[p].Type == type;
    if (!any) return;
    for (int draw = 1; draw <= 10; ++draw) {
      for (int tries = 0; tries < kMaxDraws; ++tries) {
        const int p = RandomPlanet();
        if (p >= 1 && p <= 250 && G.Planet[p].Type == type) {
          G.Planet[p].Known = True;
          break;
        }
      }
    }
    return;
  }
  for (int p = 1; p <= G.PlanetCount && p <= 250; ++p)
    if (G.Planet[p].HasStation != 0 && G.Planet[p].Race != 7) G.Planet[p].Known = True;
}

void a_BuyStarChart() {
  const int price = ChartPrice();
  if (G.Cash < price) {
    PlaySoundFx(13, G.ChartKind == 1 || G.ChartKind == 2 ? 6 : 5);
    return;
  }
  PlaySoundFx(4, 1);
  G.ChartBought = True;
  G.Cash -= price;
  RevealChart();
}

void PlaceStarLane() {
  const double span = G.SectorSize - 200;
  for (int tries = 0; tries < kMaxDraws; ++tries) {
    const int x = static_cast<int>(Int(Rnd() * span + 100));
    const int y = static_cast<int>(Int(Rnd() * span + 100));
    if (x <= 100 || x >= 3000 || y <= 100 || y >= 3000) continue;
    for (int p = 1; p <= G.PlanetCount && p <= 250; ++p) {
      if (std::hypot(G.Planet[p].X - x, G.Planet[p].Y - y) < 200) {
        G.StarLaneX = x;
        G.StarLaneY = y;
        return;
      }
    }
  }
  // No point fits (a quadrant of our own making): beside the first planet.
  G.StarLaneX = static_cast<std::int32_t>(std::clamp(G.Planet[1].X + 100, 101.0, 2999.0));
  G.StarLaneY = static_cast<std::int32_t>(std::clamp(G.Planet[1].Y, 101.0, 2999.0));
}

void a_BuyStarLane() {
  if (G.Cash < 50000) {
    PlaySoundFx(13, 5);
    return;
  }
  PlaySoundFx(4, 1);
  G.Cash -= 50000;
  G.StarLaneKnown = True;
  PlaceStarLane();
}

}  // namespace lf
