// The ship dealer's share of the Game record beside the selections that
// the station keeps: what the docked station sells, and the turning
// picture's frame.
#pragma once

#include <cstdint>

#include "shell/table.h"

namespace lf {

struct DealerState {
  // [group 1..10][line 1..10]: the models on sale (hull classes in group 10),
  // 0 from the first empty line on.
  Table<Table<std::int16_t, 10>, 10> StationEquip{};
  // Frame 0 up to 35 of the selected item's turning picture.
  double CompAnimFrame = 0;
};

template <class V>
void VisitFields(V& v, DealerState& s) {
  v("StationEquip", s.StationEquip);
  v("CompAnimFrame", s.CompAnimFrame);
}

}  // namespace lf
