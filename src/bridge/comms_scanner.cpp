// The ship scanner, which marks every ship in sensor range as identified
// and reports on the hailed one, and the DIPLOMACY panel of the races.
#include <algorithm>
#include <cmath>
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/comms.h"
#include "bridge/comms_texts.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {

namespace {

int ScannerBand(int relation) {
  const int r = std::clamp(relation, 0, 100);
  if (r <= 35) return 0;
  if (r <= 65) return 1;
  return 2;
}

// The words' colours: hostile, neutral, friendly.
int WordBand(const std::string_view word) {
  if (word == "FRIENDLY") return 0;
  if (word == "NEUTRAL") return 18;
  return 12;
}

}  // namespace

void Butt_2_4() {
  if (G.SensorLevel < 100) {
    PlaySoundFx(8, 2);
    SetMessage("", std::string(comms::kScanNoPower), "", 2);
    return;
  }
  if (G.InNebula == 0) {
    const int last = std::min<int>(G.OtherShipCount, decltype(G.OtherShip)::kHi);
    for (int i = 1; i <= last; ++i) {
      OtherShipRecord& ship = G.OtherShip[i];
      if (std::hypot(ship.X - G.ShipX, ship.Y - G.ShipY) < G.SensorRange) {
        ship.Identified = True;
        PlaySoundFx(11, 5);
      }
    }
  }
  if (G.HailedShip == 0) return;
  Skip([] {
    const int race = ShipRaceOf(G.HailedShip);
    const ShipClassInfo info = ClassInfo(G.OtherShip[G.HailedShip].ShipClass);
    PlaySoundFx(11, 5);
    const std::string what = std::string(RaceName(race)) + " " + std::string(KindLabel(info.Kind));
    const int relation = G.RaceRelation[race];
    SetMessage(std::string(comms::kScanHeading), what,
               std::string(comms::kScanState[static_cast<std::size_t>(ScannerBand(relation))]), 2);
  });
}

void DrawDiplomacy() {
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[3], false);
  });
  for (int race = 1; race <= 7; ++race) {
    const int y = 286 + 11 * race;
    DrawSmallText(380, y, RaceName(race));
    const std::string_view word = DiplomacyWord(G.RaceRelation[race]);
    DrawSmallText(500 - 6 * CodePointCount(word) - 6, y, word, WordBand(word));
  }
}

}  // namespace lf
