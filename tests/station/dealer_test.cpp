// The ship dealer as a captain uses it: what each station sells, buying at
// the limits of cash, weight and hardpoints, hull changes with components
// aboard, selling, repairing, fitting, and presses in every state.
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "screens_fixture.h"

namespace lf::test {
namespace {

class DealerTest : public StationScreenTest {
 protected:
  // Screen places of the dealer's controls.
  static constexpr int kBuyX = 590, kFitX = 590, kSellUnfittedX = 564, kSellX = 262, kRepairX = 288;
  static constexpr int kButtonY = 300;

  void Group(int group) {
    static const std::map<int, std::pair<int, int>> kAt = {
        {10, {300, 176}}, {1, {300, 198}}, {3, {300, 222}}, {7, {424, 176}}, {4, {424, 198}},
        {5, {424, 222}},  {6, {550, 176}}, {2, {550, 198}}, {9, {550, 222}}};
    const auto [x, y] = kAt.at(group);
    PressDealer(x, y);
    ASSERT_EQ(G.DealerGroup, group);
  }
  void Line(int n) { PressDealer(400, 248 + 27 * n + 4); }
  void Slot(int n) { PressDealer(100, 248 + 9 * n + 4); }
  void Buy(int group, int line) {
    Group(group);
    Line(line);
    PressDealer(kBuyX, kButtonY);
  }
  void Sell(int slot) {
    Slot(slot);
    PressDealer(kSellX, kButtonY);
  }
  void Exit() { PressDealer(560, 440); }

  static std::vector<int> Models(int group) {
    std::vector<int> out;
    for (int n = 1; n <= 10 && G.StationEquip[group][n] != 0; ++n) out.push_back(G.StationEquip[group][n]);
    return out;
  }
};

TEST_F(DealerTest, WhatAStationSellsGoesByQuadrantAndRace) {
  a_DetermineStationEquip();
  EXPECT_EQ(Models(1), std::vector<int>{1}) << "a Human station of quadrant 1 sells no second beam weapon";
  EXPECT_EQ(Models(3), (std::vector<int>{1, 3}));
  EXPECT_EQ(Models(10), (std::vector<int>{1, 2, 3, 4}));

  DockAt(1, 2);
  a_DetermineStationEquip();
  EXPECT_EQ(Models(1), (std::vector<int>{1, 2}));
  EXPECT_EQ(Models(3), (std::vector<int>{1, 2, 3}));

  DockAt(4, 3);  // Jaytees: hulls of classes 3 and 4 only
  a_DetermineStationEquip();
  EXPECT_EQ(Models(1), (std::vector<int>{6, 7}));
  EXPECT_EQ(Models(10), (std::vector<int>{3, 4}));

  DockAt(5, 1);  // Markeen in quadrant 1: no set, but their own hulls
  a_DetermineStationEquip();
  for (int g = 1; g <= 7; ++g) EXPECT_TRUE(Models(g).empty()) << g;
  EXPECT_EQ(Models(10), (std::vector<int>{1, 2, 3}));

  for (int q = 1; q <= 4; ++q) {
    DockAt(7, q);
    a_DetermineStationEquip();
    EXPECT_EQ(Models(1), std::vector<int>{8});
    EXPECT_TRUE(Models(2).empty());
    EXPECT_TRUE(Models(6).empty());
    EXPECT_TRUE(Models(10).empty()) << "pirates sell no hulls";
  }
}

TEST_F(DealerTest, APirateStationsHullButtonsSellNothing) {
  DockAt(7, 1);
  a_DetermineStationEquip();
  Group(10);
  Line(1);
  EXPECT_EQ(G.DealerSelection, 0);
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.HullRace, 0);
  EXPECT_EQ(G.Cash, 50000);
}

TEST_F(DealerTest, BuyingAHullTradesTheOldOneInAtFullPriceWhateverItsState) {
  a_DetermineStationEquip();
  Group(10);
  Line(1);  // EXPLORER, 20000
  EXPECT_EQ(G.DealerSelection, 21);
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.HullRace, 1);
  EXPECT_EQ(G.HullClass, 1);
  EXPECT_EQ(G.Cash, 30000);
  EXPECT_EQ(G.HardpointCount, 8);
  EXPECT_EQ(G.FreeMass, 1000);
  EXPECT_EQ(G.FreeCargo, 1500);
  EXPECT_EQ(G.HullPoints, 500);

  G.HullPoints = 3;  // wrecked: still worth its list price
  Line(3);           // WARRIOR, 47000: 30000 + 20000 - 47000
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.HullClass, 3);
  EXPECT_EQ(G.Cash, 3000);
  EXPECT_EQ(G.HullPoints, 2500);

  Line(4);  // KNOX, 65000: 3000 + 47000 is not enough
  ClearMediaLog();
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.HullClass, 3);
  EXPECT_EQ(G.Cash, 3000);
  EXPECT_EQ(MediaLog().back(), Sound(13, 6));
}

TEST_F(DealerTest, ComponentsAtTheLimitsOfCashAndWeight) {
  a_DetermineStationEquip();
  OwnHull(1, 1);  // EXPLORER: carries 1000
  G.FreeMass = 200;
  G.Cash = 5000;  // the generator costs 5000 and weighs 200: it just fits
  Buy(4, 1);
  EXPECT_EQ(G.FittedComp[1][1], 4);
  EXPECT_EQ(G.FittedHealth[1], 590);
  EXPECT_EQ(G.Cash, 0) << "buying the last affordable component leaves nothing";
  EXPECT_EQ(G.FreeMass, 0);

  G.Cash = 10000;
  G.FreeMass = 199;  // one unit too heavy
  ClearMediaLog();
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.FittedComp[2][1], 0);
  EXPECT_EQ(G.Cash, 10000);
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(16, 5)});

  G.FreeMass = 1000;
  G.Cash = 4999;  // one credit short
  ClearMediaLog();
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.FittedComp[2][1], 0);
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(13, 6)});
}

TEST_F(DealerTest, ALauncherComesLoadedAndAFullHullRefusesWithTwoSounds) {
  a_DetermineStationEquip();
  OwnHull(1, 1);
  Buy(3, 2);  // B-12A Tomahawk: 5 rounds
  EXPECT_EQ(G.FittedComp[1][1], 3);
  EXPECT_EQ(G.AmmoLeft[1], 5);
  for (int slot = 2; slot <= 8; ++slot) G.FittedComp[slot][1] = 6;
  const double cash = G.Cash;
  const std::int16_t mass = G.FreeMass;
  ClearMediaLog();
  PressDealer(kBuyX, kButtonY);
  EXPECT_EQ(G.Cash, cash);
  EXPECT_EQ(G.FreeMass, mass);
  EXPECT_EQ(MediaLog(), (std::vector<MediaCall>{Sound(4, 1), Sound(15, 7)}));
}

TEST_F(DealerTest, ASmallerHullLeavesComponentsBeyondItsHardpointsUntilSomethingIsSold) {
  a_DetermineStationEquip();
  OwnHull(1, 3);  // WARRIOR: ten hardpoints, carries 2500
  for (int slot = 1; slot <= 10; ++slot) Fit(slot, 6, 1);  // sensors, 130 each by column 6
  EXPECT_EQ(G.FreeMass, 1200);
  G.Cash = 0;
  Group(10);
  Line(1);  // EXPLORER: 8 hardpoints, carries 1000; 47000 back, 20000 out
  PressDealer(kBuyX, kButtonY);
  ASSERT_EQ(G.HullClass, 1);
  EXPECT_EQ(G.Cash, 27000);
  EXPECT_EQ(G.FreeMass, 1000 - 1300) << "all ten still weigh on the new hull";
  EXPECT_EQ(G.FittedComp[9][1], 6);
  EXPECT_EQ(G.FittedComp[10][1], 6);

  Exit();
  EXPECT_EQ(G.DealerGroup, 10) << "no exit while the hull carries too much";

  Sell(2);  // a sensor weighs the same going off as coming on
  EXPECT_EQ(G.FreeMass, -300 + 130);
  EXPECT_EQ(G.Cash, 27000 + 1200);
  EXPECT_EQ(G.FittedComp[2][1], 6) << "slot 9's sensor moved down onto the freed hardpoint";
  EXPECT_EQ(G.FittedComp[9][1], 0);
  EXPECT_EQ(G.FittedComp[10][1], 6);
  Sell(3);
  Sell(4);
  EXPECT_EQ(G.FittedComp[10][1], 0);
  EXPECT_EQ(G.FreeMass, 90);
  Exit();
  EXPECT_EQ(G.DealerGroup, 0);
  EXPECT_EQ(StationPage(), 1);
}

TEST_F(DealerTest, SellingAFittedComponentPaysForItsHealthAndFreesTheSlot) {
  OwnHull(1, 1);
  Fit(3, 1, 2);  // M-406 Ambrams: 2700, health 210
  G.FittedHealth[3] = 104;  // a little under half
  G.UpgradeJob[3].Upgraded = True;
  G.UpgradeJob[3].Progress = 40;
  const std::int16_t mass = G.FreeMass;
  Sell(3);
  EXPECT_EQ(G.Cash, 50000 + 1337) << "Int(2700 x 104 / 210)";
  EXPECT_EQ(G.FreeMass, mass + 300);
  EXPECT_EQ(G.FittedComp[3][1], 0);
  EXPECT_EQ(G.DealerSelection, 0);
  EXPECT_EQ(G.UpgradeJob[3].Upgraded, False);
  EXPECT_EQ(G.UpgradeJob[3].Progress, 0);

  Fit(3, 1, 2);
  G.FittedHealth[3] = 105;  // exactly half
  Sell(3);
  EXPECT_EQ(G.Cash, 50000 + 1337 + 1350);
}

TEST_F(DealerTest, RepairStepsCostAndTheWholeStepIsFree) {
  OwnHull(1, 1);
  Fit(1, 4, 1);  // D-12 Ra: 5000, health 590: a step costs 5000/142 and mends 59
  G.FittedHealth[1] = 0;
  Slot(1);
  for (int i = 0; i < 9; ++i) PressDealer(kRepairX, kButtonY);
  EXPECT_NEAR(G.FittedHealth[1], 531, 1e-9);
  EXPECT_NEAR(G.Cash, 50000 - 9 * 5000.0 / 142, 1e-6);
  PressDealer(kRepairX, kButtonY);  // the tenth makes it whole, and is free
  EXPECT_EQ(G.FittedHealth[1], 590);
  EXPECT_NEAR(G.Cash, 50000 - 9 * 5000.0 / 142, 1e-6);

  G.FittedHealth[1] = 100;
  G.Cash = 35;  // a step costs 35.2
  ClearMediaLog();
  PressDealer(kRepairX, kButtonY);
  EXPECT_EQ(G.FittedHealth[1], 100);
  EXPECT_EQ(G.Cash, 35);
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(13, 6)});
}

TEST_F(DealerTest, OnlyTheFirstEightHardpointsCanBeRepairedHere) {
  OwnHull(1, 3);
  Fit(9, 1, 1);
  G.FittedHealth[9] = 10;
  Slot(9);
  ASSERT_EQ(G.DealerSelection, 9);
  PressDealer(kRepairX, kButtonY);
  EXPECT_EQ(G.FittedHealth[9], 10);
  EXPECT_EQ(G.Cash, 50000);
}

TEST_F(DealerTest, HullRepairTakesAHundredthPerStep) {
  OwnHull(1, 1);  // EXPLORER, 20000: a step costs 44.8
  G.HullPoints = 250;
  PressDealer(100, 252);
  ASSERT_EQ(G.DealerSelection, 99);
  PressDealer(kRepairX, kButtonY);
  EXPECT_EQ(G.HullPoints, 255);
  EXPECT_NEAR(G.Cash, 50000 - 44.8, 1e-9);
  G.Cash = 44;
  ClearMediaLog();
  PressDealer(kRepairX, kButtonY);
  EXPECT_EQ(G.HullPoints, 255);
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(13, 5)});
  G.Cash = 1000;
  G.HullPoints = 500;
  ClearMediaLog();
  PressDealer(kRepairX, kButtonY);
  EXPECT_EQ(G.Cash, 1000) << "a whole hull costs nothing";
  EXPECT_EQ(MediaLog(), std::vector<MediaCall>{Sound(4, 1)});
}

TEST_F(DealerTest, UnfittedComponentsFitDamagedAndSellForATenth) {
  OwnHull(1, 1);
  G.UnfittedComp[1] = {0, 1, 1};  // beam 1
  G.UnfittedComp[2] = {0, 4, 2};  // generator 2
  G.UnfittedComp[3] = {0, 6, 3};  // sensor 3
  const std::int16_t mass = G.FreeMass;
  Group(9);
  Line(2);
  ASSERT_EQ(G.DealerSelection, 22);
  PressDealer(kSellUnfittedX, kButtonY);
  EXPECT_EQ(G.Cash, 50800);
  EXPECT_EQ(G.FreeMass, mass + 450);
  EXPECT_EQ(G.UnfittedComp[2][1], 0) << "the sold line stays blank";
  EXPECT_EQ(G.UnfittedComp[3][1], 6);
  EXPECT_EQ(G.DealerSelection, 0);

  Line(2);
  EXPECT_EQ(G.DealerSelection, 0) << "a blank line cannot be chosen";
  Line(3);
  PressDealer(kFitX, kButtonY);
  EXPECT_EQ(G.FittedComp[1][1], 6);
  EXPECT_EQ(G.FittedComp[1][2], 3);
  EXPECT_GE(G.FittedHealth[1], 5);
  EXPECT_LE(G.FittedHealth[1], 14);
  EXPECT_EQ(G.FreeMass, mass + 450) << "an unfitted component already weighs";
  Line(1);
  PressDealer(kFitX, kButtonY);
  EXPECT_EQ(G.FittedComp[2][1], 1);
  EXPECT_EQ(G.UnfittedComp[1][1], 0);
  EXPECT_EQ(G.UnfittedComp[2][1], 0);
}

TEST_F(DealerTest, TheSixteenthHardpointHoldsButCannotBeChosen) {
  DockAt(4, 3);
  a_DetermineStationEquip();
  OwnHull(4, 4);  // JAYSOON: 16 hardpoints
  for (int slot = 1; slot <= 16; ++slot) Fit(slot, 2, 4);
  Slot(15);
  EXPECT_EQ(G.DealerSelection, 15);
  PressDealer(100, 248 + 9 * 16 + 4);
  EXPECT_EQ(G.DealerSelection, 15);
}

TEST_F(DealerTest, ChoosingAGroupClearsTheSelectionAndTheLineShowsItsPicture) {
  a_DetermineStationEquip();
  Group(4);
  Line(1);
  EXPECT_EQ(G.DealerSelection, 21);
  Line(2);  // set A has one generator
  EXPECT_EQ(G.DealerSelection, 0);
  Line(1);
  Group(5);
  EXPECT_EQ(G.DealerSelection, 0);
}

}  // namespace
}  // namespace lf::test
