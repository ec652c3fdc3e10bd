// The fleet office's and the guilds' fixed texts and tables.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "shell/numeric.h"

namespace lf {
struct FleetState;
}

namespace lf::data {

// The fleet office's menu, line 2 being the loan office or, with a loan
// running, its repayment.
extern const std::array<std::string_view, 5> kFedMenu;
extern const std::string_view kFedRepayLoanLine;

// The races of each quadrant 1..4 on the translator and fine pages, 0 after
// the last.
extern const std::array<std::array<int, 4>, 4> kQuadrantRaces;

extern const std::array<std::string_view, 7> kTranslatorText;
// Translator lines by race 1..6.
extern const std::array<std::string_view, 6> kTranslatorLines;

extern const std::array<std::string_view, 6> kLoanOfferText;
extern const std::array<std::string_view, 6> kLoanRunningText;
struct LoanOffer {
  std::string_view Line;
  int PaidOut;
  int Months;
  int Due;
  double GreyBelow;   // drawn grey while Reputation is below this
  double SelectFrom;  // selectable when Reputation is at least this...
  bool Above;         // ...or, when true, above it
};
extern const std::array<LoanOffer, 5> kLoanOffers;

extern const std::array<std::string_view, 7> kFineText;
// Race names on the fine page by race 1..6.
extern const std::array<std::string_view, 6> kFineRaceNames;

extern const std::array<std::string_view, 4> kChartText;
extern const std::string_view kChartStationsOffer;
extern const std::array<std::string_view, 3> kChartClassNames;  // kinds 1..3

extern const std::array<std::string_view, 6> kStarLaneText;

// The loan office's notices in the arrival chain.
extern const std::array<std::string_view, 9> kLoanReminderTwoMonths;
extern const std::array<std::string_view, 8> kLoanReminderLastMonth;
extern const std::array<std::string_view, 8> kLoanSeizure;

// The guilds 1 exploration, 2 merchant, 3 mercenary.
struct GuildInfo {
  double ReputationNeeded;
  std::string_view JoinLine;
  std::string_view Welcome;
  std::array<std::string_view, 6> Membership;  // empty lines after the last
};
extern const std::array<GuildInfo, 3> kGuilds;

// The lines above every guild's equipment after its welcome line.
extern const std::array<std::string_view, 5> kGuildOfferText;

struct GuildItem {
  int Guild;  // 1..3
  int Line;   // 1..5
  std::string_view Name;
  int Price;
  Flag FleetState::*Owned;
};
extern const std::array<GuildItem, 10> kGuildItems;

}  // namespace lf::data
