// SHIP STATUS (5,7): cash, cargo space, hardpoints and hull, and the
// captain's rank.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/panel_text.h"
#include "display/gfx.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

namespace {

struct RankRow {
  double from;
  const char* name;
};
constexpr RankRow kRanks[] = {{0, "SEAMAN "},           {1000, "EXPLORER "},
                              {2000, "TRADER "},        {4000, "PRIVATEER "},
                              {6000, "ENSIGN "},        {9000, "LIEUTENANT "},
                              {13000, "LIEUTENANT-COMMANDER "}, {16000, "COMMANDER "},
                              {21000, "CAPTAIN "},      {30000, "FLEET ADMIRAL "}};

// The last rank whose limit is reached; below 0 the first.
const char* RankName(double reputation) {
  const char* name = kRanks[0].name;
  for (const RankRow& row : kRanks)
    if (reputation >= row.from) name = row.name;
  return name;
}

int UsedSlots() {
  int used = 0;
  for (int i = 1; i <= FittedSlots(); ++i)
    if (SlotGroup(i) != 0) ++used;
  return used;
}

}  // namespace

void DrawShipStatus() {
  DrawPanelBack(GFX.PanelPicture[10]);
  DrawSmallCentred(440, 299, "CASH:");
  // The fonts' credit sign stands for money.
  DrawSmallCentred(440, 308, IntText(G.Cash) + "Š");
  DrawSmallCentred(440, 322, "CARGO SPACE:");
  DrawSmallCentred(440, 331, std::to_string(G.FreeCargo));
  DrawSmallCentred(440, 345, "USED HARDPOINTS:");
  if (G.HullPointsMax != 0)
    DrawSmallCentred(440, 354,
                     std::to_string(UsedSlots()) + "/" + std::to_string(G.HardpointCount) + "  HULL: " +
                         IntText(G.HullPoints / G.HullPointsMax * 100) + "%");
  DrawSmallCentred(440, 369, "EXPERIENCE:");
  const std::string rank = RankName(G.Reputation);
  const std::string experience = "(" + IntText(G.Reputation) + ")";
  if (CodePointCount(rank + experience) <= 20) {
    DrawSmallCentred(440, 378, rank + experience);
  } else {
    // Wider than the panel: the number goes under the rank.
    DrawSmallCentred(440, 378, rank.substr(0, rank.size() - 1));
    DrawSmallCentred(440, 387, experience);
  }
}

}  // namespace lf
