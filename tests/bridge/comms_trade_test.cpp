// Trade with a hailed ship: the offer's limits, buying and selling one or
// ten against cash, hold and the ship's goods, and leaving the list.
#include <gmock/gmock.h>

#include "bridge/comms.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "bridge_fixture.h"

namespace lf::test {
namespace {

class ShipTradeTest : public BridgeTest {
 protected:
  void SetUp() override {
    BridgeTest::SetUp();
    G.OtherShipCount = 2;
    G.OtherShip[1].ShipClass = 2;
    G.HailedShip = 1;
    G.OrbitState = 6;
    ButtonState(2, 8) = 1;
    G.TradeOpen = True;
    for (int i = 1; i <= 14; ++i) G.BasePrice[i] = 10 * i;
    G.Cash = 100000;
    G.FreeCargo = 100;
  }

  // A click on one of the four arrows of commodity i (1..14).
  void Click(int i, int arrowX) {
    PointAt(arrowX, 289 + 7 * (i - 1));
    CheckTradeSel();
  }
  void BuyOne(int i) { Click(i, 474); }
  void BuyTen(int i) { Click(i, 484); }
  void SellOne(int i) { Click(i, 414); }
  void SellTen(int i) { Click(i, 404); }
};

TEST_F(ShipTradeTest, OffersStayWithinTheirLimitsAndSomeGoodsAreNeverOffered) {
  const int limit[15] = {0, 40, 70, 30, 0, 0, 5, 4, 40, 10, 2, 30, 3, 0, 5};
  int offered[15] = {};
  for (int roll = 0; roll < 400; ++roll) {
    RollShipOffer();
    for (int i = 1; i <= 14; ++i) {
      ASSERT_GE(G.ShipOffer[i], 0);
      if (limit[i] == 0) ASSERT_EQ(G.ShipOffer[i], 0) << i;
      else ASSERT_LT(G.ShipOffer[i], limit[i]) << i;
      offered[i] += G.ShipOffer[i] > 0;
    }
  }
  // About half the rolls offer each good (less for the tiny lots).
  EXPECT_GT(offered[2], 150);
  EXPECT_LT(offered[2], 250);
  EXPECT_GT(offered[10], 50);
}

TEST_F(ShipTradeTest, BuyTenTakesWhatTheShipHasWhatTheMoneyCoversOrWhatTheHoldHolds) {
  // An offer of 7 and a rich player: the 7, for 7p.
  G.ShipOffer[1] = 7;
  BuyTen(1);
  EXPECT_EQ(G.Cargo[1], 7);
  EXPECT_EQ(G.ShipOffer[1], 0);
  EXPECT_EQ(G.FreeCargo, 93);
  EXPECT_EQ(G.Cash, 100000 - 70);

  // 3p credits, room for 20, an offer of 30: three.
  G.ShipOffer[2] = 30;
  G.Cash = 3 * 20;
  G.FreeCargo = 20;
  BuyTen(2);
  EXPECT_EQ(G.Cargo[2], 3);
  EXPECT_EQ(G.ShipOffer[2], 27);
  EXPECT_EQ(G.FreeCargo, 17);
  EXPECT_EQ(G.Cash, 0);

  // Room for 4, money for 5, an offer of 30: the hold fills.
  G.ShipOffer[3] = 30;
  G.Cash = 5 * 30;
  G.FreeCargo = 4;
  BuyTen(3);
  EXPECT_EQ(G.Cargo[3], 4);
  EXPECT_EQ(G.ShipOffer[3], 26);
  EXPECT_EQ(G.FreeCargo, 0);
  EXPECT_EQ(G.Cash, 30);

  // A debt buys nothing.
  G.ShipOffer[8] = 30;
  G.Cash = -500;
  G.FreeCargo = 50;
  BuyTen(8);
  EXPECT_EQ(G.Cargo[8], 0);
  EXPECT_EQ(G.Cash, -500);
}

TEST_F(ShipTradeTest, AFullHoldStillTakesOneOrTenAndGoesNegative) {
  G.FreeCargo = 0;
  G.ShipOffer[1] = 20;
  BuyOne(1);
  EXPECT_EQ(G.FreeCargo, -1);
  BuyTen(1);
  EXPECT_EQ(G.FreeCargo, -11);
  EXPECT_EQ(G.Cargo[1], 11);
  EXPECT_EQ(G.ShipOffer[1], 9);
}

TEST_F(ShipTradeTest, RefusedTradesChangeNothingButStillClick) {
  G.Cash = 5;
  ClearMediaLog();
  BuyOne(1);
  BuyTen(1);
  SellOne(1);
  EXPECT_EQ(G.Cargo[1], 0);
  EXPECT_EQ(G.Cash, 5);
  EXPECT_EQ(G.FreeCargo, 100);
  int clicks = 0;
  for (const MediaCall& c : MediaLog()) clicks += c == Sound(2, 2);
  EXPECT_EQ(clicks, 3);
}

TEST_F(ShipTradeTest, SellingFreesHoldAndTheShipTakesAnyGood) {
  G.Cargo[4] = 1;  // slaves, never offered
  G.FreeCargo = 0;
  SellOne(4);
  EXPECT_EQ(G.Cargo[4], 0);
  EXPECT_EQ(G.FreeCargo, 1);
  EXPECT_EQ(G.ShipOffer[4], 1);
  EXPECT_EQ(G.Cash, 100000 + 40);

  G.Cargo[13] = 4;
  SellTen(13);  // fewer than ten: all of them
  EXPECT_EQ(G.Cargo[13], 0);
  EXPECT_EQ(G.ShipOffer[13], 4);
  EXPECT_EQ(G.FreeCargo, 5);
  EXPECT_EQ(G.Cash, 100000 + 40 + 4 * 130);
}

TEST_F(ShipTradeTest, ARoundTripLeavesCashAndCargoExact) {
  G.ShipOffer[9] = 25;
  G.Cargo[9] = 3;
  BuyTen(9);
  BuyTen(9);
  BuyOne(9);
  SellTen(9);
  SellTen(9);
  SellOne(9);
  EXPECT_EQ(G.Cargo[9], 3);
  EXPECT_EQ(G.ShipOffer[9], 25);
  EXPECT_EQ(G.FreeCargo, 100);
  EXPECT_EQ(G.Cash, 100000);
}

TEST_F(ShipTradeTest, TheExitZoneClosesTheListAndHoverShowsThePrice) {
  RecordedBlits().clear();
  PointAt(440, 289);  // over FOOD
  DrawHailMessages();
  // The name gives way to the price, from the font's second colour.
  bool secondColour = false;
  for (const BlitRecord& b : BlitsOf(GFX.FontVsml)) secondColour |= b.y == 286 && b.top == 6;
  EXPECT_TRUE(secondColour);

  PointAt(450, 390);
  CheckBridgeMouseDown(1);
  EXPECT_EQ(G.TradeOpen, False);
}

}  // namespace
}  // namespace lf::test
