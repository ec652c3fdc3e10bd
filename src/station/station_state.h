// The station's share of the Game record: money, reputation, the fleet
// office's holdings and the loan, the terminal and its prompt, the service
// menu, the owned special goods, and the selections of the station screens.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct StationState {
  double Cash = 0;
  double Reputation = 0;
  Table<Flag, 10> TranslatorOwned{};
  Flag StarLaneKnown = False;

  // The terminal: its text lines, how many are in use, and what it waits
  // for (0 nothing, 2 the medical question, 501..512 a notice whose OK
  // takes the next step).
  Table<std::string, 50> TermLine{};
  std::int16_t TermLineCount = 0;
  std::int16_t TermPrompt = 0;
  // The welcome has been reached: the service menu answers.
  Flag ServiceMenuOpen = False;
  // Set as a departure starts; a departure check that refuses clears it.
  Flag MayDepart = False;
  // The service menu, empty from the first free line on.
  Table<std::string, 10> StationService{};
  // A menu line is under the cursor; the map marker's frame 0 up to 7.
  Flag ServiceMarkerOn = False;
  double ServiceMarkerFrame = 0;

  // Special goods of the pirates' offer that the station checks.
  Flag BlackDecoder = False;
  Flag SecretCargo = False;

  // Selections of the screens behind the terminal. ServicePage is shared
  // by the lounge, the fleet office and the guilds.
  std::int16_t ServicePage = 0;
  std::int16_t LoungeSelection = 0;
  std::int16_t DealerGroup = 0;
  std::int16_t DealerSelection = 0;

  // The day of the month of the last news change.
  std::int16_t NewsDay = 0;
};

template <class V>
void VisitFields(V& v, StationState& s) {
  v("Cash", s.Cash);
  v("Reputation", s.Reputation);
  v("TranslatorOwned", s.TranslatorOwned);
  v("StarLaneKnown", s.StarLaneKnown);
  v("TermLine", s.TermLine);
  v("TermLineCount", s.TermLineCount);
  v("TermPrompt", s.TermPrompt);
  v("ServiceMenuOpen", s.ServiceMenuOpen);
  v("MayDepart", s.MayDepart);
  v("StationService", s.StationService);
  v("ServiceMarkerOn", s.ServiceMarkerOn);
  v("ServiceMarkerFrame", s.ServiceMarkerFrame);
  v("BlackDecoder", s.BlackDecoder);
  v("SecretCargo", s.SecretCargo);
  v("ServicePage", s.ServicePage);
  v("LoungeSelection", s.LoungeSelection);
  v("DealerGroup", s.DealerGroup);
  v("DealerSelection", s.DealerSelection);
  v("NewsDay", s.NewsDay);
}

}  // namespace lf
