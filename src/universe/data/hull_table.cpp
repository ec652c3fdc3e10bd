// The hulls: race, class, name, price, hull points, carry amount,
// hardpoints, cargo hold. The cells not listed do not exist (empty name).
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<HullRow, 19> kHullRows = {{
    // race class name          price  points carry hardpoints cargo
    {1, 1, "EXPLORER", 20000, 500, 1000, 8, 1500},
    {1, 2, "MERCHANT", 35000, 1000, 1500, 8, 5000},
    {1, 3, "WARRIOR", 47000, 2500, 2500, 10, 1000},
    {1, 4, "KNOX", 65000, 3500, 2700, 13, 1200},
    {2, 1, "HOREN", 22000, 1200, 1000, 8, 1000},
    {2, 3, "HOWRAD", 40000, 2700, 2000, 11, 2000},
    {3, 1, "ANTILOPE", 23000, 1700, 1800, 9, 1700},
    {3, 2, "TATRA", 38000, 1200, 1900, 8, 6000},
    {3, 4, "GOLEM", 60000, 3000, 2300, 11, 1300},
    {4, 3, "JAYCOON", 52000, 2900, 2700, 13, 1000},
    {4, 4, "JAYSOON", 75000, 4000, 3000, 16, 1300},
    {5, 1, "CATALINA", 18000, 1000, 1000, 8, 1000},
    {5, 2, "ELEPHANT", 19000, 1200, 1200, 8, 4000},
    {5, 3, "KOBRA", 42000, 2200, 2000, 11, 1400},
    {6, 2, "WOOT-RABA", 40000, 1700, 2200, 10, 7000},
    {6, 4, "WOOT-LIE", 60000, 4000, 2500, 12, 1700},
    {7, 1, "TRINIDAD", 300, 2700, 2500, 12, 3500},
    {7, 2, "WOOT-HAR", 360, 3200, 2200, 11, 3800},
    {7, 5, "ONE-EYE", 320, 2500, 2500, 10, 3000},
}};

}  // namespace lf::data
