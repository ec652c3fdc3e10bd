// The boards on the lounge's and the guilds' screens: the lines, and the
// open offer with its text, the confirm button and the board's picture.
#include "display/gfx.h"
#include "display/screen.h"
#include "missions/data/offer_texts.h"
#include "missions/mission_rules.h"
#include "shell/game_state.h"
#include "station/lounge.h"
#include "station/mission_board.h"
#include "station/office_layout.h"
#include "station/station_common.h"
#include "station/station_lines.h"
#include "station/station_procedures.h"

namespace lf {
namespace {

const data::OfferText* FindOffer(int type) {
  for (const data::OfferText& o : data::kOfferTexts)
    if (o.Type == type) return &o;
  return nullptr;
}

void StreamPoint(FadeLine& line, double x, double y) {
  line << "(" << NumberText(x / 100) << "," << NumberText(y / 100) << ")";
}

// One piece in braces of an offer line, written as its value.
void StreamValue(FadeLine& line, std::string_view name, const MissionRecord& m) {
  if (name == "Reward") line << NumberText(m.Reward);
  else if (name == "CargoUnits") line << NumberText(m.CargoUnits);
  else if (name == "PlanetName") {
    if (m.TargetPlanet >= 0 && m.TargetPlanet <= decltype(G.Planet)::kHi) line << G.Planet[m.TargetPlanet].Name;
  } else if (name == "Kind1") line << PlanetKindName(m.PlanetKind1);
  else if (name == "Kind2") line << PlanetKindName(m.PlanetKind2);
  else if (name == "Point") StreamPoint(line, m.TargetX, m.TargetY);
  else if (name == "Nav1") StreamPoint(line, m.NavX[1], m.NavY[1]);
  else if (name == "Nav2") StreamPoint(line, m.NavX[2], m.NavY[2]);
}

void DrawOfferLine(int n, std::string_view text, const MissionRecord& m) {
  FadeLine line(170, 270 + 15 * n, n, kPlainRow);
  while (!text.empty()) {
    const std::size_t open = text.find('{');
    line << text.substr(0, open);
    if (open == std::string_view::npos) break;
    const std::size_t close = text.find('}', open);
    if (close == std::string_view::npos) break;
    StreamValue(line, text.substr(open + 1, close - open - 1), m);
    text.remove_prefix(close + 1);
  }
}

}  // namespace

int BoardListLine(int board, int line) {
  if (board >= 2 && board <= 4) return line + 2;
  const int offer = OfferLine();
  return (offer != 0 ? offer : NewsLine()) + line;
}

int BoardOfScreen(int board) { return board == 1 && IsPirateStation() ? 5 : board; }

void a_DrawGuildMissions(int board) {
  if (board < 1 || board > 5) return;
  for (int line = 1; line <= 10; ++line) {
    const MissionRecord* m = MissionInSlot(MissionOnBoardLine(board, line));
    if (m == nullptr) continue;
    DrawListLine(BoardListLine(board, line), m->Title, G.ServicePage == 99 + line);
  }
}

void a_DrawGuildMissionDesc(int board) {
  if (board < 1 || board > 5) return;
  if (board >= 2 && board <= 4 && G.GuildMember[board - 1] == 0) {
    G.ServicePage = 201;
    return;
  }
  const int line = G.ServicePage - 99;
  if (line < 1 || line > 10) return;
  // The rank is tested on the board as the screen names it: at a pirate
  // station the lounge's board 1 is empty, so the pirates' offers are open
  // to every rank.
  const MissionRecord* asked = MissionInSlot(G.MissionBoard[board][line]);
  if (asked != nullptr && asked->MinRank > MissionRank(G.Reputation)) {
    G.ServicePage = 203;
    G.LoungeSelection = 0;
    return;
  }
  board = BoardOfScreen(board);
  if (G.ActiveMission[1] != 0 && G.ActiveMission[2] != 0) {
    G.ServicePage = 200;
    return;
  }
  const MissionRecord* m = MissionInSlot(MissionOnBoardLine(board, line));
  if (m == nullptr) return;  // a line emptied under an open offer
  const data::OfferText* offer = FindOffer(m->MissionType);
  if (offer != nullptr) {
    int n = 0;
    for (std::string_view text : offer->Lines) {
      if (text.empty()) break;
      DrawOfferLine(++n, text, *m);
    }
  }
  DrawConfirmLabel("ACCEPT MISSION?");
  Skip([board] {
    SetSrc((board - 1) * 80, 0, board * 80, 100);
    BltFast(58, 270, GFX.GuildsPicture, false);
  });
}

}  // namespace lf
