#include <gtest/gtest.h>

#include "generation_util.h"
#include "universe/stocks.h"

namespace lf {
namespace {

void Station(int i, int type, int race) {
  G.Planet[i] = {};
  G.Planet[i].Type = static_cast<std::int16_t>(type);
  G.Planet[i].Race = static_cast<std::int16_t>(race);
  G.Planet[i].HasStation = 1;
}

class Stocks : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::FreshUniverse(11, 1);
    G.PlanetCount = 7;
    Station(1, 4, 1);  // Terran
    Station(2, 1, 1);  // Barren
    Station(3, 6, 2);  // gas giant
    Station(4, 4, 7);  // pirate base on a Terran world
    Station(5, 4, 2);  // a second Terran station
    G.Planet[6] = {};
    G.Planet[6].Type = 4;  // no station
    Station(7, 0, 1);      // a type that does not exist
    StationStockSpecs();
  }
};

TEST_F(Stocks, PricesComeFromTheTypeAlone) {
  EXPECT_EQ(G.StationStock[1].StationPrice[1], 18);  // Int(20 x 0.9)
  EXPECT_EQ(G.StationStock[2].StationPrice[1], 26);  // Int(20 x 1.3)
  EXPECT_EQ(G.StationStock[2].StationPrice[2], 7);   // Int(5 x 1.4)
  EXPECT_EQ(G.StationStock[1].StationPrice[6], 30);  // Int(25 x 1.2)
  EXPECT_EQ(G.StationStock[2].StationPrice[12], 64); // Int(80 x 0.8)
  // Two stations of one type: the same prices, other quantities.
  EXPECT_EQ(G.StationStock[1].StationPrice, G.StationStock[5].StationPrice);
  EXPECT_NE(G.StationStock[1].Quantity, G.StationStock[5].Quantity);
  // Every station buys the contraband at its price.
  EXPECT_EQ(G.StationStock[1].StationPrice[4], 50);
  EXPECT_EQ(G.StationStock[2].StationPrice[10], 65);  // Int(50 x 1.3)
}

TEST_F(Stocks, QuantitiesFollowTheTypeAndThePirateColumn) {
  const auto& terran = G.StationStock[1].Quantity;
  EXPECT_GE(terran[1], 2000);
  EXPECT_LT(terran[1], 2300);
  EXPECT_GE(terran[2], 700);
  EXPECT_LT(terran[2], 1700);
  EXPECT_EQ(terran[6], 0);  // a dash
  for (int c : {4, 5, 10}) {
    EXPECT_EQ(terran[c], 0);
    EXPECT_EQ(G.StationStock[2].Quantity[c], 0);
  }
  const auto& barren = G.StationStock[2].Quantity;
  EXPECT_EQ(barren[1], 0);
  EXPECT_EQ(barren[2], 0);

  // The pirate column replaces what the Terran column set.
  const auto& pirate = G.StationStock[4];
  EXPECT_GE(pirate.Quantity[4], 1000);
  EXPECT_LT(pirate.Quantity[4], 1200);
  EXPECT_GE(pirate.Quantity[5], 2000);
  EXPECT_GE(pirate.Quantity[10], 1000);
  EXPECT_EQ(pirate.Quantity[2], 0);
  EXPECT_EQ(pirate.StationPrice[4], 45);  // Int(50 x 0.9)
  EXPECT_EQ(pirate.StationPrice[1], 19);  // Int(20 x 0.95)
}

TEST_F(Stocks, GasGiantsUnknownTypesAndBodiesWithoutStationStayEmpty) {
  for (int body : {3, 6, 7}) {
    for (int c = 1; c <= 14; ++c) {
      EXPECT_EQ(G.StationStock[body].Quantity[c], 0) << body;
      EXPECT_EQ(G.StationStock[body].StationPrice[c], 0) << body;
    }
  }
}

TEST_F(Stocks, RollingAgainChangesQuantitiesNotPrices) {
  const auto before = G.StationStock[1];
  StationStockSpecs();
  EXPECT_EQ(G.StationStock[1].StationPrice, before.StationPrice);
  EXPECT_NE(G.StationStock[1].Quantity, before.Quantity);
  EXPECT_EQ(CommodityName(12), "GEMS & VALUABLE STONES");
  EXPECT_EQ(CommodityShortName(12), "MINERAL");
  EXPECT_EQ(CommodityName(15), "");
  double sum = 0;
  for (int c = 1; c <= 14; ++c) sum += G.BasePrice[c];
  EXPECT_EQ(sum, 505);
}

}  // namespace
}  // namespace lf
