// Taking the open offer of a board into one of the captain's two places.
#include "media/media.h"
#include "missions/mission_rules.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/mission_board.h"
#include "station/station_procedures.h"

namespace lf {
void a_MissionSelection(int board) {
  if (board < 1 || board > 5) return;
  const int line = G.ServicePage - 99;
  if (line < 1 || line > 10) return;
  // The offer's own tests, once more: a confirm pressed before the offer
  // was ever drawn must not take what the offer would have refused.
  if (board >= 2 && board <= 4 && G.GuildMember[board - 1] == 0) {
    G.ServicePage = 201;
    return;
  }
  const MissionRecord* asked = MissionInSlot(G.MissionBoard[board][line]);
  if (asked != nullptr && asked->MinRank > MissionRank(G.Reputation)) {
    G.ServicePage = 203;
    return;
  }
  board = BoardOfScreen(board);
  const int slot = MissionOnBoardLine(board, line);
  const MissionRecord* m = MissionInSlot(slot);
  if (m == nullptr) return;
  if (G.FreeCargo < m->CargoUnits) {
    PlaySoundFx(17, 4);
    G.ServicePage = 202;
    a_ClearTermScreen();
    return;
  }
  const int place = G.ActiveMission[1] == 0 ? 1 : G.ActiveMission[2] == 0 ? 2 : 0;
  if (place == 0) return;
  if (MissionTakesCargo(m->MissionType)) G.FreeCargo = static_cast<std::int16_t>(G.FreeCargo - m->CargoUnits);
  G.ActiveMission[place] = static_cast<std::int16_t>(slot);
  G.MissionBoard[board][line] = 0;
  G.MissionProgress[place] = 0;
  Skip([slot] { a_MissionInitialize(slot); });
  G.ServicePage = 0;
  PlaySoundFx(4, 1);
}

}  // namespace lf
