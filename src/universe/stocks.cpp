#include "universe/stocks.h"

#include <algorithm>

#include "shell/game_state.h"
#include "universe/data/universe_data.h"

namespace lf {

namespace {

// Fills one station's row from a column of the stock tables: quantities
// rolled commodity by commodity, prices from the base price and the factor.
void FillFromColumn(StationStockRecord& stock, int column) {
  for (int c = 1; c <= 14; ++c) {
    const data::StockRoll roll = data::kStockQuantity[static_cast<std::size_t>(c - 1)]
                                                     [static_cast<std::size_t>(column)];
    if (roll.Low < 0) {
      stock.Quantity[c] = 0;
    } else {
      stock.Quantity[c] = static_cast<std::int16_t>(roll.Low + Int(Rnd() * roll.Span));
    }
    const double factor = data::kStockPriceFactor[static_cast<std::size_t>(c - 1)]
                                                 [static_cast<std::size_t>(column)];
    stock.StationPrice[c] = Int(G.BasePrice[c] * factor);
  }
}

}  // namespace

void StationStockSpecs() {
  const int bodies = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= bodies; ++i) {
    const PlanetRecord& p = G.Planet[i];
    if (p.HasStation == 0) continue;
    StationStockRecord& stock = G.StationStock[i];
    stock = {};
    const int column = data::StockColumn(p.Type);
    if (column >= 0) FillFromColumn(stock, column);
    if (p.Race == 7) FillFromColumn(stock, data::kPirateColumn);
  }
}

void SetBasePrices() {
  for (int c = 1; c <= 14; ++c) G.BasePrice[c] = data::kCommodities[static_cast<std::size_t>(c)].BasePrice;
}

std::string_view CommodityName(int commodity) {
  return (commodity >= 1 && commodity <= 14) ? data::kCommodities[static_cast<std::size_t>(commodity)].Name
                                             : "";
}

std::string_view CommodityShortName(int commodity) {
  return (commodity >= 1 && commodity <= 14)
             ? data::kCommodities[static_cast<std::size_t>(commodity)].ShortName
             : "";
}

}  // namespace lf
