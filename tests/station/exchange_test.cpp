// The commodity exchange: prices as shown and charged, and every limit of
// buying and selling by one and by ten.
#include <gtest/gtest.h>

#include "display/gfx.h"
#include "station/station_fixture.h"

namespace lf::test {
namespace {

// Row 1 (food) and its buttons.
constexpr int kRowY = 125;
constexpr int kSellTen = 108, kSellOne = 130, kBuyOne = 500, kBuyTen = 525;

class Exchange : public StationTest {
 protected:
  void SetUp() override {
    StationTest::SetUp();
    StationPage() = 3;
  }
  static void Set(int stock, double price, int cargo, int free, double cash) {
    G.StationStock[2].Quantity[1] = static_cast<std::int16_t>(stock);
    G.StationStock[2].StationPrice[1] = price;
    G.Cargo[1] = static_cast<std::int16_t>(cargo);
    G.FreeCargo = static_cast<std::int16_t>(free);
    G.Cash = cash;
  }
  void Expect(int stock, int cargo, int free, double cash) {
    EXPECT_EQ(G.StationStock[2].Quantity[1], stock);
    EXPECT_EQ(G.Cargo[1], cargo);
    EXPECT_EQ(G.FreeCargo, free);
    EXPECT_DOUBLE_EQ(G.Cash, cash);
  }
};

TEST_F(Exchange, UnderTenTheStationAsksOneCreditMore) {
  Set(100, 9, 0, 50, 1000);
  Press(kBuyOne, kRowY);
  Expect(99, 1, 49, 990);
  Set(100, 10, 0, 50, 1000);
  Press(kBuyOne, kRowY);
  Expect(99, 1, 49, 989);
}

TEST_F(Exchange, OneCreditMustRemainAfterABuy) {
  Set(100, 20, 0, 50, 22);  // Int(20 x 1.1) = 22
  Press(kBuyOne, kRowY);
  Expect(100, 0, 50, 22);
  EXPECT_TRUE(Sounded(13, 7));
  Set(100, 20, 0, 50, 23);
  Press(kBuyOne, kRowY);
  Expect(99, 1, 49, 1);
}

TEST_F(Exchange, BuyOneRefusalsSoundInTheirOrder) {
  Set(0, 20, 0, 0, 0);  // no stock, no money, no room: the stock speaks
  Press(kBuyOne, kRowY);
  EXPECT_TRUE(Sounded(8, 1));
  ClearMediaLog();
  Set(5, 20, 0, 0, 0);
  Press(kBuyOne, kRowY);
  EXPECT_TRUE(Sounded(13, 7));
  ClearMediaLog();
  Set(5, 20, 0, 0, 1000);
  Press(kBuyOne, kRowY);
  EXPECT_TRUE(Sounded(14, 7));
  Expect(5, 0, 0, 1000);
}

TEST_F(Exchange, SellingPaysTheStationPrice) {
  Set(100, 20, 7, 10, 0);
  Press(kSellTen, kRowY);  // seven is all there is
  Expect(107, 0, 17, 140);
  Press(kSellOne, kRowY);
  EXPECT_TRUE(Sounded(8, 1));
  Expect(107, 0, 17, 140);
  Set(100, 20, 12, 10, 0);
  Press(kSellTen, kRowY);
  Press(kSellOne, kRowY);
  Expect(111, 1, 21, 220);
}

TEST_F(Exchange, BuyTenTakesAWholeLotAtElevenTimesThePrice) {
  Set(100, 20, 0, 50, 1000);
  Press(kBuyTen, kRowY);
  Expect(90, 10, 40, 780);
}

TEST_F(Exchange, BuyTenTakesTheLastFourOfTheStockAtThePrice) {
  Set(4, 20, 0, 50, 1000);
  Press(kBuyTen, kRowY);
  Expect(0, 4, 46, 920);
}

TEST_F(Exchange, BuyTenOnAnEmptyStockChangesNothing) {
  Set(0, 20, 0, 50, 1000);
  Press(kBuyTen, kRowY);
  Expect(0, 0, 50, 1000);
}

TEST_F(Exchange, BuyTenFillsTheHoldAndTakesACreditMore) {
  Set(100, 20, 0, 3, 1000);
  Press(kBuyTen, kRowY);
  Expect(97, 3, 0, 939);
}

TEST_F(Exchange, BuyTenTakesWhatTheMoneyCovers) {
  Set(100, 20, 0, 50, 100);  // 100 / 22 = 4
  Press(kBuyTen, kRowY);
  Expect(96, 4, 46, 20);
  EXPECT_GE(G.Cash, 0);
}

TEST_F(Exchange, BuyTenShortOfMoneyAndStockDoesNothingSilently) {
  Set(5, 20, 0, 50, 100);
  Press(kBuyTen, kRowY);
  Expect(5, 0, 50, 100);
  EXPECT_TRUE(MediaLog().empty());
  Set(100, 20, 0, 0, 1000);  // the hold is full
  Press(kBuyTen, kRowY);
  Expect(100, 0, 0, 1000);
  EXPECT_TRUE(MediaLog().empty());
}

TEST_F(Exchange, AtAPriceOfNothingOnlySellingIsPossibleAndPaysNothing) {
  Set(0, 0, 5, 10, 0);
  Press(kBuyTen, kRowY);
  Press(kBuyOne, kRowY);
  Expect(0, 5, 10, 0);
  Press(kSellOne, kRowY);
  Expect(1, 4, 11, 0);
}

TEST_F(Exchange, EachRowTradesItsOwnCommodity) {
  G.StationStock[2].StationPrice[14] = 30;
  const int y = 113 + 19 * 13 + 10;
  Press(kBuyOne, y);
  EXPECT_EQ(G.Cargo[14], 1);
  EXPECT_EQ(G.StationStock[2].Quantity[14], 499);
  EXPECT_EQ(G.Cargo[13], 0);
  // The bands overlap by their edges: 132 is still the first row, 133 the
  // second, and 113 is above them all.
  Press(kBuyOne, 132);
  Press(kBuyOne, 133);
  Press(kBuyOne, 113);
  EXPECT_EQ(G.Cargo[1], 1);
  EXPECT_EQ(G.Cargo[2], 1);
}

TEST_F(Exchange, TheExitReturnsToTheTerminalWithoutTheWelcome) {
  G.TermLine[1] = "LAST TEXT";
  G.TermLineCount = 1;
  Press(560, 440);
  EXPECT_EQ(StationPage(), 1);
  EXPECT_EQ(G.TermLine[1], "LAST TEXT");
  EXPECT_EQ(G.PromptFade[1][1], 0);
}

TEST_F(Exchange, TheScreenShowsBothPricesAndTheHold) {
  BlitRecording rec;
  Set(1234, 9, 56, 77, 4321.9);
  G.PromptFade[1].Items.fill(3);
  for (int i = 1; i <= 14; ++i) G.PromptFade[i].Items.fill(3);
  PointAt(300, 300);
  a_DrawStockStates();
  a_DrawStockPrices();
  a_DrawCashCargo();
  // Row 1: "1234" ends at 74, "9" at 199, "10" at 458, "56" at 588.
  std::vector<int> rowOne;
  for (const BlitRecord& b : BlitsOf(GFX.StationFontOcr))
    if (b.y == 119) rowOne.push_back(b.x);
  EXPECT_EQ(rowOne, (std::vector<int>{56, 62, 68, 74, 582, 588, 199, 452, 458}));
  std::vector<int> big;
  for (const BlitRecord& b : BlitsOf(GFX.StationFontImp)) big.push_back(b.x);
  EXPECT_EQ(big, (std::vector<int>{52, 64, 76, 88, 200, 212}));
}

}  // namespace
}  // namespace lf::test
