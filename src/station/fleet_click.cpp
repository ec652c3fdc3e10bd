// A press in the fleet office.
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/data/office_data.h"
#include "station/fleet_office.h"
#include "station/office_layout.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {

namespace {

// Puts the officer of a post ashore: he waits in this station's lounge, on
// its first free place. With no free place he stays aboard.
void PutAshore(int post) {
  const int planet = DockedPlanet();
  if (planet == 0) return;
  for (int place = 1; place <= 10; ++place) {
    if (G.StationPeople[planet][place] != 0) continue;
    G.StationPeople[planet][place] = G.CrewPost[post].Person;
    G.CrewPost[post].Person = 0;
    G.ServicePage = 0;
    return;
  }
  PlaySoundFx(8, 1);
}

bool LoanSelectable(int line) {
  const data::LoanOffer& o = data::kLoanOffers[static_cast<std::size_t>(line - 1)];
  return o.Above ? G.Reputation > o.SelectFrom : G.Reputation >= o.SelectFrom;
}

void Choose(int page) {
  G.ServicePage = static_cast<std::int16_t>(page);
  PlaySoundFx(4, 1);
}

}  // namespace

void a_CheckMouseDown5() {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;

  if (OnExit(x, y)) {
    PlaySoundFx(2, 1);
    ReturnToTerminal(false);
    G.ServicePage = 0;
    return;
  }

  for (int post = 1; post <= 6; ++post) {
    if (G.CrewPost[post].Person == 0) continue;
    if (OnCrewLine(x, y, post)) {
      G.ServicePage = static_cast<std::int16_t>(20 + post);
      PlaySoundFx(4, 1);
      a_ClearTermScreen();
      return;
    }
    if (OnCrewAshore(x, y, post)) {
      PutAshore(post);
      return;
    }
  }

  const int page = FedPage();
  for (int n = 1; n <= 5; ++n) {
    if (!OnListLine(x, y, n) || page == n) continue;
    Choose(n);
    a_ClearTermScreen();
    return;
  }

  switch (page) {
    case 1:
      for (int line = 1; line <= 4; ++line)
        if (OnChoice(x, y, line) && QuadrantRace(line) != 0) Choose(50 + line);
      if (OnConfirm(x, y)) a_BuyTranslator();
      break;
    case 2:
      if (!IsSet(G.LoanActive))
        for (int line = 1; line <= 5; ++line)
          if (OnChoice(x, y, line) && LoanSelectable(line)) Choose(100 + line);
      if (OnConfirm(x, y)) a_TakeOrRepayLoan();
      break;
    case 3:
      for (int line = 1; line <= 4; ++line)
        if (OnChoice(x, y, line) && QuadrantRace(line) != 0) Choose(120 + line);
      if (OnConfirm(x, y)) a_PayFine();
      break;
    case 4:
      if (OnConfirm(x, y)) a_BuyStarChart();
      break;
    case 5:
      if (OnConfirm(x, y)) a_BuyStarLane();
      break;
    default:
      break;
  }
}

}  // namespace lf
