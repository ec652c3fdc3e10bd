// The draw of an event in flight: each of events 1..11 needs a sensor and
// its own officers aboard.
#include <array>
#include <initializer_list>

#include "events/events_procedures.h"
#include "shell/game_state.h"

namespace lf {
namespace {

// The posts that must be filled for events 1..11.
const std::array<std::initializer_list<int>, 12> kNeededPosts = {{
    {},
    {1, 2, 5, 6},
    {1, 2, 4},
    {1, 2, 5},
    {1, 2, 3, 5},
    {1, 2, 3, 5},
    {1, 3, 5},
    {1, 2, 3, 5, 6},
    {1, 2, 3},
    {1, 2, 3, 5},
    {1, 2, 3, 4, 5, 6},
    {1, 2, 3, 5},
}};

bool SensorFitted() {
  for (int i = 1; i <= G.HardpointCount && i <= 20; ++i)
    if (G.FittedComp[i][1] == 6) return true;
  return false;
}

}  // namespace

void CheckNextEvent(int n) {
  if (n < 1 || n > 11 || !SensorFitted()) return;
  for (int post : kNeededPosts[static_cast<std::size_t>(n)])
    if (G.CrewPost[post].Person == 0) return;
  if (n == 3) {
    if (Event3Played != False) return;
    Event3Played = True;
  }
  G.StatusSlot[EventSlot].Active = True;
  G.StatusSlot[EventSlot].Value = static_cast<std::int16_t>(n);
}

}  // namespace lf
