// Race names, hull class names and the commodities.
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<std::string_view, 8> kRaceNames = {
    "",         // 0
    "HUMAN",    // 1
    "HAGEL",    // 2
    "LAGEW",    // 3
    "JAYTEES",  // 4
    "MARKEEN",  // 5
    "WOOT-AM",  // 6
    "PIRATES",  // 7
};

const std::array<std::string_view, 6> kHullClassNames = {
    "",           // 0
    "SCOUT",      // 1
    "TRADER",     // 2
    "FRIGATE",    // 3
    "DESTROYER",  // 4
    "PIRATE",     // 5
};

const std::array<CommodityRow, 15> kCommodities = {{
    {"", "", 0},                                  // 0
    {"FOOD SUPPLIES", "FOOD", 20},                // 1
    {"WATER AND OTHER FLUIDS", "WATER", 5},       // 2
    {"ORE DEPOSIT", "ORE", 10},                   // 3
    {"SLAVE LABOUR", "SLAVES", 50},               // 4
    {"PERSONAL FIRE ARMS", "FIRE ARMS", 60},      // 5
    {"RADIOACTIVE MATERIALS", "RADIOAC", 25},     // 6
    {"CHEMICAL COMPONENTS", "CHEMS", 30},         // 7
    {"COMPUTER TECHNOLOGY", "COMP", 60},          // 8
    {"MACHINERY & TOOLS", "MACH", 40},            // 9
    {"DRUGS & NARCOTICS", "DRUGS", 50},           // 10
    {"MEDICAL SUPPLIES", "MEDICS", 30},           // 11
    {"GEMS & VALUABLE STONES", "MINERAL", 80},    // 12
    {"PLASTIC MATERIAL", "PLASTICS", 15},         // 13
    {"ALCOHOL", "ALCOHOL", 30},                   // 14
}};

}  // namespace lf::data
