// The words of the hail: the menu by kind of ship and relation band, and
// the replies, each as the six lines of a two-page message.
#pragma once

#include <array>
#include <string_view>

namespace lf::comms {

// Menu lines of one kind and band, in row order; empty entries end the list.
using MenuLines = std::array<std::string_view, 4>;
// Rows: 0 scout, 1 trader, 2 patrol or warship, 3 pirate. Columns: the bands
// 0..34, 35..65, 66..100.
extern const std::array<std::array<MenuLines, 3>, 4> kHailMenu;

inline constexpr std::string_view kGreet = "GREET";
inline constexpr std::string_view kTradeInfo = "TRADE INFO";
inline constexpr std::string_view kExchangeInfo = "EXCHANGE INFO";
inline constexpr std::string_view kTechnicalAssist = "TECHNICAL ASSIST";
inline constexpr std::string_view kCloseHail = "CLOSE HAIL";
inline constexpr std::string_view kBuyGoods = "BUY GOODS";
inline constexpr std::string_view kTradeGoods = "TRADE GOODS";
inline constexpr std::string_view kThreat = "THREAT";
inline constexpr std::string_view kEvade = "EVADE";
inline constexpr std::string_view kOfferAssistance = "OFFER ASSISTANCE";
inline constexpr std::string_view kPayFine = "PAY FINE";
inline constexpr std::string_view kRedeem = "REDEEM";

using Reply = std::array<std::string_view, 6>;

// Greetings: [0] patrol or warship, [1] pirate, [2] the others; by the
// relation as it stood, 65 or more, or below.
extern const std::array<Reply, 3> kGreetFriendly;
extern const std::array<Reply, 3> kGreetCool;

extern const Reply kTradeInfoReply;
extern const Reply kGoodsReply;
extern const Reply kExchangeInfoReply;
extern const Reply kEvadeReply;

// The threat: the first page, then the second by the answer.
extern const std::array<std::string_view, 3> kThreatAsk;
extern const std::array<std::string_view, 3> kThreatYield;
extern const std::array<std::string_view, 3> kThreatFlee;

// Fines: the player's words, then the two halves of the answer around the
// fine. [0] PAY FINE, [1] REDEEM.
struct FineWords {
  std::string_view ask, before, after;
};
extern const std::array<FineWords, 2> kFine;

// Technical assistance: none under way; done (the cost between the two
// halves of the third line); not enough credits.
extern const std::array<std::string_view, 3> kAssistNoResearch;
extern const std::array<std::string_view, 4> kAssistDone;
extern const std::array<std::string_view, 3> kAssistNoCredits;

// The trader's own call.
extern const std::array<std::string_view, 3> kTraderCall;

// The ship scanner.
inline constexpr std::string_view kScanNoPower = "WE DO NOT HAVE ENOUGH POWER ALLOCATED TO THE SENSOR SYSTEMS!";
inline constexpr std::string_view kScanHeading = "SCAN RESULTS SHOW:";
// By the scanner's bands 0..35, 36..65, 66..100.
extern const std::array<std::string_view, 3> kScanState;

// The panels' fixed words.
inline constexpr std::string_view kYourRelation = "YOUR RELATION IS:";
inline constexpr std::string_view kExitTrade = "EXIT TRADE";

}  // namespace lf::comms
