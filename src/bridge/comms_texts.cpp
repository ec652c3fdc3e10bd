// The hail's words exactly as the ships say them, typos included.
#include "bridge/comms_texts.h"

namespace lf::comms {

const std::array<std::array<MenuLines, 3>, 4> kHailMenu = {{
    // scout
    {{{kEvade},
      {kGreet, kTradeInfo, kCloseHail},
      {kGreet, kExchangeInfo, kTechnicalAssist, kCloseHail}}},
    // trader
    {{{kThreat, kCloseHail},
      {kGreet, kBuyGoods, kCloseHail},
      {kGreet, kTradeGoods, kCloseHail}}},
    // patrol or warship
    {{{kPayFine},
      {kGreet, kOfferAssistance, kCloseHail},
      {kGreet, kCloseHail}}},
    // pirate
    {{{kRedeem},
      {kGreet, kOfferAssistance, kCloseHail},
      {kGreet, kCloseHail}}},
}};

const std::array<Reply, 3> kGreetFriendly = {{
    {"", "GREETINGS, CAPTAIN!", "", "_", " THIS IS FEDERAL PATROL. HOW CAN WE BE OF SERVICE?", ""},
    {"", "ARGHH!", "", "_", " ARGHH, MATIE!", ""},
    {"", "HELLO, FRIENDLY TRAVELLER!", "", "_", " FELLOW GREETINGS, FRIEND!", ""},
}};

const std::array<Reply, 3> kGreetCool = {{
    {"", "GREETINGS, CAPTAIN.", "", "_", " THIS IS FEDERAL PATROL. WHAT SEEMS TO BE YOUR PROBLEM?", ""},
    {"", "GREETINGS!", "", "_", " SAME TO YOU BUDDY!", ""},
    {"", "GREETINGS!", "", "_", " HELLO CAPTAIN!", ""},
}};

const Reply kTradeInfoReply = {"", "WE HAVE SOME NAVIGATION INFO FOR YOU.", "", "_", " MOST KIND, CAPTAIN.", ""};

const Reply kGoodsReply = {"", "WHAT KIND OF COMMODITIES ARE YOU OFFERING?", "", "_",
                           " HOPE YOU WILL FIND SOMETHING INTERESTING.", ""};

const Reply kExchangeInfoReply = {"", "WE ARE INTERESTING IN NAVIGATION DATA EXCHANGE.", "", "_",
                                  " WERY WELL. HERE IS OUR DATA.", ""};

const Reply kEvadeReply = {"", "WE ARE JUST MINDING OUR OWN BUSINESS!", "", "_",
                           " GOOD THINKING. RESUMING PRESENT COURSE.", ""};

const std::array<std::string_view, 3> kThreatAsk = {"", "DUMP YOUR CARGO OR ELSE...", ""};
const std::array<std::string_view, 3> kThreatYield = {"_", " OK. NO PROBLEM. DUMPING CARGO.", ""};
const std::array<std::string_view, 3> kThreatFlee = {"_", " NOT A CHANCE! THE LAW WILL DEAL WITH YOU!", ""};

const std::array<FineWords, 2> kFine = {{
    {"I WOULD LIKE TO PAY FOR MY CRIMES NOW.", " SMART CHOICE. ", " CREDITS WERE TAKEN FROM YOUR ACCOUNT!"},
    {"I WANT TO MAKE UP FOR THE MESS I CAUSED!", " RIGHT! I AM TAKING ", " CREDITS AWAY FROM YOU!"},
}};

const std::array<std::string_view, 3> kAssistNoResearch = {
    " PROVIDED YOUR SCIENTIST IS CURRENTLY NOT RESEARCHING",
    " ANY OF YOUR COMPONENTS, OUR HELP TO YOU IS CURRENTLY",
    " NOT AVAILABLE.",
};
const std::array<std::string_view, 4> kAssistDone = {
    " CAPTAIN, WE HAVE ASSISTED YOUR SCIENCE OFFICER IN",
    " HIS ATTEMPT TO UPGRADE ONE OF YOUR COMPONENTS.",
    " WE HAVE ALSO TAKEN Š",
    " FOR COMPENSATION!",
};
const std::array<std::string_view, 3> kAssistNoCredits = {
    " WE ARE SORRY, BUT WE ARE UNABLE TO ASSIST YOU!",
    " YOU NEED MORE CREDITS TO COMPENSATE FOR OUR SERVICES!",
    " ",
};

const std::array<std::string_view, 3> kTraderCall = {
    "HELLO, FRIENDLY TRAVELLER!",
    "WE WERE WONDERING IF YOU WERE INTERESTING IN A",
    "COMMODITY EXCHANGE?",
};

const std::array<std::string_view, 3> kScanState = {
    "SHIELDS UP, WEAPONS ARMED",
    "SHIELDS UP, WEAPONS DISARMED",
    "SHIELDS DOWN, WEAPONS DISARMED",
};

}  // namespace lf::comms
