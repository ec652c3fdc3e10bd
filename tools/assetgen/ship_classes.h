// Race and hull class of the other ships' classes 1..19.
#pragma once

namespace assetgen {

struct ShipClassInfo {
  int race;       // 1..7, 7 the pirates
  int hullClass;  // 1 scout .. 4 destroyer, 5 pirate
};

constexpr ShipClassInfo ClassInfo(int shipClass) {
  constexpr ShipClassInfo kClasses[20] = {{1, 1}, {1, 1}, {1, 2}, {1, 3}, {1, 4}, {7, 5}, {2, 1},
                                          {2, 3}, {7, 5}, {3, 1}, {3, 2}, {3, 4}, {4, 3}, {4, 4},
                                          {5, 1}, {5, 2}, {5, 3}, {6, 2}, {6, 4}, {7, 5}};
  return kClasses[shipClass >= 1 && shipClass <= 19 ? shipClass : 0];
}

constexpr const char* RaceName(int race) {
  constexpr const char* kNames[8] = {"", "HUMAN", "HAGEL", "LAGEW", "JAYTEES", "MARKEEN", "WOOT-AM", "PIRATES"};
  return kNames[race >= 1 && race <= 7 ? race : 0];
}

}  // namespace assetgen
