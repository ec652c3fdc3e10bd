// The fleet office's screen: its menu and the page of the chosen service.
#include <algorithm>

#include "shell/cursor.h"
#include "shell/game_state.h"
#include "station/data/office_data.h"
#include "station/fleet_office.h"
#include "station/office_layout.h"
#include "station/station_procedures.h"
#include "station/station_lines.h"

namespace lf {

int FedPage() {
  const int p = G.ServicePage;
  if (p == 1 || (p >= 51 && p <= 59)) return 1;
  if (p == 2 || (p >= 101 && p <= 109)) return 2;
  if (p == 3 || (p >= 121 && p <= 139)) return 3;
  if (p == 4 || p == 5) return p;
  return 0;
}

void a_DrawFedText() {
  ReadCursor();
  const int page = FedPage();
  for (int n = 1; n <= 5; ++n) {
    std::string_view line = data::kFedMenu[static_cast<std::size_t>(n - 1)];
    if (n == 2 && IsSet(G.LoanActive)) line = data::kFedRepayLoanLine;
    DrawListLine(n, line, page == n);
  }
}

void a_DrawFedTrans() {
  for (int n = 1; n <= 7; ++n) DrawPageLine(n, data::kTranslatorText[static_cast<std::size_t>(n - 1)]);
  for (int line = 1; line <= 4; ++line) {
    const int race = QuadrantRace(line);
    if (race < 1 || race > 6) continue;
    DrawChoice(line, data::kTranslatorLines[static_cast<std::size_t>(race - 1)], G.TranslatorOwned[race] != 0,
               G.ServicePage == 50 + line);
  }
  const int chosen = G.ServicePage - 50;
  const int race = QuadrantRace(chosen);
  if (race >= 1 && race <= 6 && G.TranslatorOwned[race] == 0) DrawConfirmLabel("PURCHASE TRANSLATOR");
}

void a_DrawFedLoan() {
  if (IsSet(G.LoanActive)) {
    for (int n = 1; n <= 6; ++n) DrawPageLine(n, data::kLoanRunningText[static_cast<std::size_t>(n - 1)]);
    // "REPAY LOAN (Š" + the due sum + ")", built without allocating.
    const NumberText due(G.LoanDue);
    char label[64];
    std::size_t len = 0;
    for (char c : std::string_view("REPAY LOAN (Š")) label[len++] = c;
    for (char c : due.View()) label[len++] = c;
    label[len++] = ')';
    DrawConfirmLabel(std::string_view(label, len));
    return;
  }
  for (int n = 1; n <= 6; ++n) DrawPageLine(n, data::kLoanOfferText[static_cast<std::size_t>(n - 1)]);
  for (int line = 1; line <= 5; ++line) {
    const data::LoanOffer& o = data::kLoanOffers[static_cast<std::size_t>(line - 1)];
    DrawChoice(line, o.Line, G.Reputation < o.GreyBelow, G.ServicePage == 100 + line);
  }
  if (G.ServicePage >= 101 && G.ServicePage <= 105) DrawConfirmLabel("TAKE LOAN");
}

void a_DrawFedPayFine() {
  for (int n = 1; n <= 7; ++n) DrawPageLine(n, data::kFineText[static_cast<std::size_t>(n - 1)]);
  for (int line = 1; line <= 4; ++line) {
    const int race = QuadrantRace(line);
    if (race < 1 || race > 6) continue;
    DrawChoice(line, data::kFineRaceNames[static_cast<std::size_t>(race - 1)], G.RaceRelation[race] >= 35,
               G.ServicePage == 120 + line);
  }
  const int race = QuadrantRace(G.ServicePage - 120);
  if (race >= 1 && race <= 6 && G.RaceRelation[race] <= 35) DrawConfirmLabel("PAY FINE");
}

void a_DrawFedCharts() {
  for (int n = 1; n <= 4; ++n) DrawPageLine(n, data::kChartText[static_cast<std::size_t>(n - 1)]);
  const int kind = G.ChartKind;
  if (kind >= 1 && kind <= 3) {
    FadeLine(170, 270 + 15 * 5, 5, kPlainRow) << "SEVERAL PLANETS OF THE "
                                              << data::kChartClassNames[static_cast<std::size_t>(kind - 1)]
                                              << " CLASS FOR Š5000.";
  } else {
    DrawPageLine(5, data::kChartStationsOffer);
  }
  DrawConfirmLabel("PURCHASE STARCHART");
}

void a_DrawFedStarLane() {
  for (int n = 1; n <= 6; ++n) DrawPageLine(n, data::kStarLaneText[static_cast<std::size_t>(n - 1)]);
  DrawConfirmLabel("PURCHASE SL LOCATION");
}

}  // namespace lf
