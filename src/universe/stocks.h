// Station stocks and prices, and the fourteen commodities.
#pragma once

#include <string_view>

namespace lf {

// Rolls the stock and sets the prices of every station of the quadrant.
void StationStockSpecs();

// BasePrice[1..14] as a new game sets them.
void SetBasePrices();

// Commodity 1..14 as the exchange names it, and its short name; empty
// outside 1..14.
std::string_view CommodityName(int commodity);
std::string_view CommodityShortName(int commodity);

}  // namespace lf
