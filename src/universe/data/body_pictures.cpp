// The 26 body pictures: file under "\gfx\planets\" and the square frame size.
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<PictureRow, 27> kPictures = {{
    {"", 0},                     // 0
    {"barren_vsmall.bmp", 45},   // 1
    {"barren_small.bmp", 50},    // 2
    {"desert_small.bmp", 50},    // 3
    {"desert_vsmall.bmp", 45},   // 4
    {"gasgiant.bmp", 64},        // 5
    {"genesis_medium.bmp", 58},  // 6
    {"genesis_small.bmp", 50},   // 7
    {"ocean_medium.bmp", 58},    // 8
    {"ocean_small.bmp", 50},     // 9
    {"radiated_medium.bmp", 58}, // 10
    {"radiated_small.bmp", 50},  // 11
    {"radiated_vsmall.bmp", 45}, // 12
    {"swamp_medium.bmp", 58},    // 13
    {"swamp_small.bmp", 50},     // 14
    {"tundra_large.bmp", 64},    // 15
    {"terran_large.bmp", 64},    // 16
    {"terran_medium.bmp", 58},   // 17
    {"terran_small.bmp", 50},    // 18
    {"toxic_medium.bmp", 58},    // 19
    {"toxic_small.bmp", 50},     // 20
    {"toxic_vsmall.bmp", 45},    // 21
    {"tundra_medium.bmp", 58},   // 22
    {"station_1.bmp", 64},       // 23
    {"station_2.bmp", 64},       // 24
    {"station_3.bmp", 64},       // 25
    {"station_4.bmp", 64},       // 26
}};

}  // namespace lf::data
