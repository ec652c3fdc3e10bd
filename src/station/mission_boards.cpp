// Dealing the boards at a docking: catalogue slots drawn by guild and rank
// onto the lounge's and the guilds' boards, or the pirates' three offers.
#include "missions/mission_rules.h"
#include "shell/game_state.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {
namespace {

constexpr int kDealTries = 500;

int DrawSlot(int hi) { return static_cast<int>(Int(Rnd() * hi)) + 1; }

// The next free line of a board takes a slot of guild g and the asked
// rank; a line whose draws run out stays empty but is used.
class BoardDealer {
 public:
  explicit BoardDealer(int board) : board_(board) {}
  void Deal(int rank, bool orBelow) {
    ++line_;
    for (int tries = 0; tries < kDealTries; ++tries) {
      const int slot = DrawSlot(500);
      const MissionRecord& m = G.Missions[slot];
      if (m.Guild != board_) continue;
      if (orBelow ? m.MinRank <= rank : m.MinRank == rank) {
        G.MissionBoard[board_][line_] = static_cast<std::int16_t>(slot);
        return;
      }
    }
  }

 private:
  int board_;
  int line_ = 0;
};

// The pirates' types and the exploration guild's type 20 are always in the
// catalogue; a damaged one gives up rather than hang the docking.
int DrawSlotWhere(bool (*wanted)(int type)) {
  for (int tries = 0; tries < 100000; ++tries) {
    const int slot = DrawSlot(380);
    if (wanted(G.Missions[slot].MissionType)) return slot;
  }
  return 0;
}

}  // namespace

void a_StationMissionRandomize() {
  for (int b = 1; b <= 4; ++b) G.MissionBoard[b] = {};
  const int planet = DockedPlanet();
  if (planet != 0 && G.Planet[planet].Race == 7) {
    for (int line = 1; line <= 3; ++line)
      G.MissionBoard[5][line] = static_cast<std::int16_t>(DrawSlotWhere([](int t) { return t >= 100; }));
  } else {
    const int r = MissionRank(G.Reputation);
    BoardDealer public1(1);
    if (r >= 2 && r <= 6) public1.Deal(r - 1, false);
    if (r <= 5) {
      public1.Deal(r, false);
      public1.Deal(r, false);
    }
    public1.Deal(r <= 4 ? r + 1 : 5, false);

    BoardDealer exploration(2);
    if (r <= 3) exploration.Deal(2, false);
    if (r == 3) {
      exploration.Deal(3, true);
      exploration.Deal(3, true);
    }

    BoardDealer merchant(3);
    merchant.Deal(r >= 5 && r <= 7 ? r - 1 : 4, false);
    if (r >= 4 && r <= 6) {
      merchant.Deal(r, false);
      merchant.Deal(r, false);
    }
    merchant.Deal(r == 4 || r == 5 ? r + 1 : 6, false);

    BoardDealer mercenary(4);
    mercenary.Deal(r >= 7 && r <= 9 ? r - 1 : 6, false);
    if (r >= 6 && r <= 8) {
      mercenary.Deal(r, false);
      mercenary.Deal(r, false);
    }
    mercenary.Deal(r == 6 || r == 7 ? r + 1 : 8, false);
  }
  // The exploration guild always offers a planet to scan on its first line.
  G.MissionBoard[2][1] = static_cast<std::int16_t>(DrawSlotWhere([](int t) { return t == 20; }));
}

int MissionOnBoardLine(int board, int line) {
  if (board < 1 || board > 5 || line < 1 || line > 10) return 0;
  const int slot = G.MissionBoard[board][line];
  return MissionInSlot(slot) != nullptr ? slot : 0;
}

}  // namespace lf
