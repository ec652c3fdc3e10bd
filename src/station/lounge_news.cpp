// The lounge's news: a new item each game day, on a cycle of seven.
#include "shell/game_state.h"
#include "station/data/station_data.h"
#include "station/dealer.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/lounge.h"
#include "station/station_lines.h"

namespace lf {

void a_ChangeNewsText() {
  ++G.NewsIndex;
  if (G.NewsIndex > 7 || G.NewsIndex < 1) G.NewsIndex = 1;
  for (int n = 1; n <= 10; ++n) {
    G.FederalNews[n].clear();
    G.PirateNews[n].clear();
  }
  const auto item = static_cast<std::size_t>(G.NewsIndex - 1);
  for (int n = 1; n <= 6; ++n) {
    G.FederalNews[n] = data::kFederalNews[item][static_cast<std::size_t>(n - 1)];
    G.PirateNews[n] = data::kPirateNews[item][static_cast<std::size_t>(n - 1)];
  }
}

void a_DrawStationNews() {
  const Table<std::string, 10>& news = IsPirateStation() ? G.PirateNews : G.FederalNews;
  for (int n = 1; n <= 10 && !news[n].empty(); ++n) DrawFadeText(170, 270 + 15 * n, news[n], n, 0);
}

}  // namespace lf
