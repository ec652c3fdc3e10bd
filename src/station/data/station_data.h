// The station's fixed tables: what each dealer sells, the news of both
// tables, the pirates' goods and the lounge's words.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace lf::data {

// A set of goods: by group 1..7, the models on the lines, 0 for none.
struct EquipSet {
  char Name;
  std::array<std::array<std::int16_t, 3>, 8> Models;  // [group][line 0..2]
};
extern const std::array<EquipSet, 9> kEquipSets;

// Which set a station of (quadrant, race) sells; race 7 sells the pirates'
// set in any quadrant. Any other pair sells nothing.
struct EquipSetByStation {
  int Quadrant;  // 0: any
  int Race;
  char Set;
};
extern const std::array<EquipSetByStation, 11> kEquipSetByStation;

// The news of day 1..7 of the cycle: up to six lines each.
using NewsItem = std::array<std::string_view, 6>;
extern const std::array<NewsItem, 7> kFederalNews;
extern const std::array<NewsItem, 7> kPirateNews;

// The pirates' goods, items 1..3 of the special offer.
struct PirateGood {
  std::string_view Line;
  int Price;
};
extern const std::array<PirateGood, 3> kPirateGoods;
// The six lines above the pirates' goods.
extern const std::array<std::string_view, 6> kPirateOfferText;

// Lounge words: functions 1..6, crew column prefixes by post 1..6.
extern const std::array<std::string_view, 6> kFunctionWords;
extern const std::array<std::string_view, 6> kPostPrefixes;

}  // namespace lf::data
