// The fixed tables of the universe, as plain rows: hulls, components, ship
// classes, stocks, names, body pictures and the bridge buttons. The
// Define... and Randomize... procedures copy them into the Game record.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace lf::data {

// --- Hulls: one row per existing cell of the race x class table.
struct HullRow {
  int Race;
  int Class;
  std::string_view Name;
  std::int32_t Price;
  std::int16_t HullPoints, CarryAmount, Hardpoints, CargoHold;
};
extern const std::array<HullRow, 19> kHullRows;
extern const std::array<std::string_view, 6> kHullClassNames;  // 1..5
extern const std::array<std::string_view, 8> kRaceNames;       // 1..7

// --- Components: columns 1.. of one model, as text.
inline constexpr int kComponentColumnsListed = 11;
struct ComponentRow {
  int Group;
  int Model;
  std::array<std::string_view, kComponentColumnsListed> Cells;  // column 1 at [0]
};
extern const std::array<ComponentRow, 58> kComponentRows;

// --- Ship classes: race, hull class, kind text, hull name and loadout.
struct LoadoutSlot {
  int Group, Model;
};
struct ShipClassRow {
  int Class;
  int Race;
  int HullClass;
  std::string_view Kind;
  std::string_view Hull;
  int SlotCount;
  std::array<LoadoutSlot, 16> Slots;  // slots 1.. at [0]
};
extern const std::array<ShipClassRow, 19> kShipClassRows;

// --- Stocks: columns by planet type, and the pirate column last.
inline constexpr int kStockColumns = 10;
inline constexpr int kPirateColumn = 9;
struct StockRoll {
  int Low;   // -1: none in stock
  int Span;
};
extern const std::array<std::array<StockRoll, kStockColumns>, 14> kStockQuantity;
extern const std::array<std::array<double, kStockColumns>, 14> kStockPriceFactor;
// Column of a planet type in the stock tables; -1 for a type without one.
constexpr int StockColumn(int type) {
  constexpr std::array<int, 11> kColumn = {-1, 0, 1, 2, 3, 4, -1, 5, 6, 7, 8};
  return (type >= 0 && type <= 10) ? kColumn[static_cast<std::size_t>(type)] : -1;
}

struct CommodityRow {
  std::string_view Name;
  std::string_view ShortName;
  double BasePrice;
};
extern const std::array<CommodityRow, 15> kCommodities;  // 1..14

// --- Names.
inline constexpr int kPlanetNameRows = 318;
extern const std::array<std::string_view, kPlanetNameRows + 1> kPlanetNames;
extern const std::array<std::string_view, 145> kCharacterNames;

// Skill range [race 1..6][post 1..6].
struct SkillRange {
  int Lo, Hi;
};
extern const std::array<std::array<SkillRange, 6>, 6> kSkillRanges;

// --- Body pictures 1..26: file under "\gfx\planets\" and frame size.
struct PictureRow {
  std::string_view File;
  int Size;
};
extern const std::array<PictureRow, 27> kPictures;  // 1..26

// --- Bridge buttons: one row per entry that has a place.
struct ButtonRow {
  int Page, Button;
  std::string_view Label;
  std::string_view Sheet;
  int Column, Row;  // place: columns 1..4, rows 1..2
  bool Present;
  int FrameCount;
};
extern const std::array<ButtonRow, 51> kButtonRows;

// Officers' lines [page 1..6][line 0..3].
extern const std::array<std::array<std::string_view, 4>, 7> kOfficerLines;

}  // namespace lf::data
