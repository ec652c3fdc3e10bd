// The station's share of the Game record: money, reputation and the fleet
// office's holdings.
#pragma once

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct StationState {
  double Cash = 0;
  double Reputation = 0;
  Table<Flag, 10> TranslatorOwned{};
  Flag StarLaneKnown = False;
};

template <class V>
void VisitFields(V& v, StationState& s) {
  v("Cash", s.Cash);
  v("Reputation", s.Reputation);
  v("TranslatorOwned", s.TranslatorOwned);
  v("StarLaneKnown", s.StarLaneKnown);
}

}  // namespace lf
