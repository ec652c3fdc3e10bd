// The story told by reputation: five pictures, each shown once at the first
// docking after its threshold, the last one giving the way out of the
// quadrant.
#include <array>

#include "shell/death.h"
#include "shell/game_state.h"
#include "station/fleet_office.h"
#include "station/station_procedures.h"

namespace lf {

void a_CheckStoryPass() {
  static constexpr std::array<double, 5> kThreshold{3000, 7000, 13000, 19000, 25000};
  for (int stage = 1; stage <= 5; ++stage) {
    if (G.Reputation < kThreshold[static_cast<std::size_t>(stage - 1)] || G.StoryStage[stage] != 0) continue;
    G.StoryStage[stage] = True;
    if (stage == 5) {
      // A lane never bought in this quadrant is placed as the fleet office
      // places the one it sells.
      if (G.StarLaneKnown == 0 || (G.StarLaneX == 0 && G.StarLaneY == 0)) Skip(PlaceStarLane);
      G.StarLaneKnown = True;
    }
    DrawSingle(stage + 2);
  }
}

}  // namespace lf
