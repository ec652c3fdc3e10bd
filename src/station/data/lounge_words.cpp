// The lounge's words and the pirates' goods.
#include "station/data/station_data.h"

namespace lf::data {

const std::array<PirateGood, 3> kPirateGoods = {{
    {"BLACK DECODER", 7000},
    {"SECRET CARGO CONTAINER", 5000},
    {"SHRIKE BIOMISSILE", 1000},
}};

const std::array<std::string_view, 6> kPirateOfferText = {
    "HEY, FELLOW PIRATE MATE.",   "WE HAVE SOME NICE GOODIES",  "FOR YOUR DISPOSAL ON OUR",
    "STOCK. TAKE A LOOK-SEE AND", "SEE IF WE GOT ANYTHING YOU", "COULD USE...",
};

const std::array<std::string_view, 6> kFunctionWords = {
    "NAVIGATOR", "COMMUNICATOR", "TACTICIAN", "MEDICAL OFFICER", "SCIENCE OFFICER", "ENGINEER",
};

const std::array<std::string_view, 6> kPostPrefixes = {"NAV: ", "COM: ", "TAC: ", "MED: ", "SCI: ", "ENG: "};

}  // namespace lf::data
