// The meeting lounge's share of the Game record beside the selections that
// the station keeps: the news, and the pirates' biomissile.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct LoungeState {
  // Item 1..7 of the news cycle, and the lines of both tables.
  std::int16_t NewsIndex = 0;
  Table<std::string, 10> FederalNews{};
  Table<std::string, 10> PirateNews{};
  // The pirates' third good (the other two stand with the station's checks).
  Flag ShrikeMissile = False;
};

template <class V>
void VisitFields(V& v, LoungeState& s) {
  v("NewsIndex", s.NewsIndex);
  v("FederalNews", s.FederalNews);
  v("PirateNews", s.PirateNews);
  v("ShrikeMissile", s.ShrikeMissile);
}

}  // namespace lf
