// What the dealer and the lounge write on the screen: the catalogue's
// numbers under the right words, the hardpoint list's lines and colours,
// an officer's page, the news and the crew column.
#include <gtest/gtest.h>

#include "screens_fixture.h"
#include "station/station_lines.h"

namespace lf::test {
namespace {

class ScreensDrawTest : public StationScreenTest {
 protected:
  void SetUp() override {
    StationScreenTest::SetUp();
    FadeAllIn();
  }
  // The information lines of a component on sale.
  std::vector<std::string> InfoOnSale(int group, int model) {
    G.DealerGroup = static_cast<std::int16_t>(group);
    G.StationEquip[group][1] = static_cast<std::int16_t>(model);
    G.DealerSelection = 21;
    return Info(15);
  }
  std::vector<std::string> Info(int spacing) {
    RecordedBlits().clear();
    a_DrawCompInfo();
    std::vector<std::string> lines;
    for (int n = 1; n <= 7; ++n) lines.push_back(OcrText(48 + spacing * n));
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    return lines;
  }
};

TEST_F(ScreensDrawTest, EachGroupShowsItsOwnNumberFromTheCatalogue) {
  EXPECT_EQ(InfoOnSale(5, 3), (std::vector<std::string>{
                                  "NAME:          NUCLEAR DRIVE",
                                  "DESCRIPTION:   HAGEL NUCLEAR DRIVE",
                                  "COST:          Š4500",
                                  "WEIGHT:        700",
                                  "AGILITY:       GOOD",
                              }));
  EXPECT_EQ(InfoOnSale(1, 2)[4], "EFFICIENCY:    GOOD");
  EXPECT_EQ(InfoOnSale(3, 3)[4], "AMMO QUANTITY: 5");
  EXPECT_EQ(InfoOnSale(4, 1)[4], "POWER OUTPUT:  1200 KW");
  const auto sensor = InfoOnSale(6, 1);
  EXPECT_EQ(sensor[3], "WEIGHT:        130") << "a sensor's weight is its health column";
  EXPECT_EQ(sensor[4], "RANGE:         POOR");
  const auto shield = InfoOnSale(7, 2);
  EXPECT_EQ(shield[3], "WEIGHT:        200");
  EXPECT_EQ(shield[4], "EFFICIENCY:    AVERAGE");
  EXPECT_EQ(InfoOnSale(2, 1).size(), 4u) << "computers show no grade";
}

TEST_F(ScreensDrawTest, FittedAndUnfittedComponentsShowTheirSellPrice) {
  OwnHull(1, 1);
  Fit(2, 1, 1);  // M-207 Phalanx, 1500, health 120
  G.FittedHealth[2] = 60;
  G.DealerSelection = 2;
  EXPECT_EQ(Info(15).back(), "SELL PRICE:  750");
  G.UnfittedComp[1] = {0, 3, 10};  // Wo-Al Sai, 450
  G.DealerGroup = 9;
  G.DealerSelection = 21;
  EXPECT_EQ(Info(15).back(), "SELL PRICE:    Š45");
}

TEST_F(ScreensDrawTest, AHullShowsItsFiguresAndTheOwnHullItsPoints) {
  OwnHull(1, 2);
  G.HullPoints = 640.7;
  G.DealerSelection = 99;
  EXPECT_EQ(Info(10), (std::vector<std::string>{
                          "TYPE:          TRADER",
                          "CLASS:         MERCHANT",
                          "COST:          Š35000",
                          "HARDPOINTS:   8",
                          "HULLPOINTS:   640",
                          "CARRY AMOUNT: 1500",
                          "CARGO HOLD:   5000",
                      }));
  a_DetermineStationEquip();
  G.DealerGroup = 10;
  G.DealerSelection = 24;
  EXPECT_EQ(Info(10)[4], "HULLPOINTS:   3500") << "a hull on sale shows its full points";
}

TEST_F(ScreensDrawTest, TheHardpointListGreysWhatLiesBeyondTheHull) {
  PointAt(600, 10);
  RecordedBlits().clear();
  a_DrawHardPList();
  EXPECT_EQ(OcrText(248, 0, 200), "--  --");
  EXPECT_EQ(OcrText(248, 200), "----");
  EXPECT_EQ(OcrRow(257), kGreyRow) << "no hull: every line grey";

  OwnHull(1, 1);
  Fit(1, 1, 1);
  G.FittedHealth[1] = 60;
  Fit(10, 4, 1);  // left from a larger hull
  G.HullPoints = 499;
  G.DealerSelection = 1;
  PointAt(100, 248 + 9 * 2 + 4);
  RecordedBlits().clear();
  a_DrawHardPList();
  EXPECT_EQ(OcrText(248, 0, 200), "HULL EXPLORER");
  EXPECT_EQ(OcrText(248, 200), "99%");
  EXPECT_EQ(OcrText(257, 0, 200), "M-207 PHALANX");
  EXPECT_EQ(OcrText(257, 200), "50 %");
  EXPECT_EQ(OcrRow(257), kChosenRow);
  EXPECT_EQ(OcrText(266, 0, 200), "-- FREE HARDPOINT --");
  EXPECT_EQ(Letters(266, 0, 200).front().x, 70) << "four blanks in";
  EXPECT_EQ(OcrRow(266), kBrightRow) << "under the cursor";
  EXPECT_EQ(OcrRow(275), kPlainRow);
  EXPECT_EQ(OcrText(320, 0, 200), "-- FREE HARDPOINT --");
  EXPECT_EQ(OcrText(329, 0, 200), "--  --");
  EXPECT_EQ(OcrRow(329), kGreyRow);
  EXPECT_EQ(OcrText(338, 0, 200), "D-12 RA");
  EXPECT_EQ(OcrRow(338), kGreyRow);
  EXPECT_EQ(OcrText(338, 200), "100 %");
}

TEST_F(ScreensDrawTest, AWaitingPersonsPageAsksToHireAndTheCrewColumnNamesEveryPost) {
  G.StationPeople[1] = {0, 6};
  G.Character[6].Skill = 5;
  G.Character[6].Salary = 512;
  G.LoungeSelection = 1;
  G.CrewPost[3].Person = 9;
  RecordedBlits().clear();
  a_DrawCrewInfo();
  a_DrawCrewMembers();
  a_DrawStationCrew();
  EXPECT_EQ(OcrText(285), "NAME:            PERSON 6");
  EXPECT_EQ(OcrText(300), "RACE:            HUMAN");
  EXPECT_EQ(OcrText(315), "FUNCTION:        COMMUNICATOR");
  EXPECT_EQ(OcrText(330), "SKILL:           EXCELLENT");
  EXPECT_EQ(OcrText(345), "SALLARY:         Š1000 + Š512 PER MONTH");
  EXPECT_EQ(OcrText(373), "HIRE CREWMEMBER?");
  EXPECT_EQ(Letters(373, 0, 640).back().x, 555);
  EXPECT_EQ(OcrText(70, 440), "NAV: COMPUTER CONTROL");
  EXPECT_EQ(OcrText(118, 440), "TAC: PERSON 9");
  EXPECT_EQ(OcrText(70, 240, 440), "PERSON 6");
  EXPECT_EQ(OcrRow(70, 240, 440), kChosenRow);
  EXPECT_EQ(OcrText(84, 240, 440), "NEWS");
}

TEST_F(ScreensDrawTest, PirateStationsReadThePiratesNews) {
  G.NewsIndex = 6;
  a_ChangeNewsText();  // item 7
  RecordedBlits().clear();
  a_DrawStationNews();
  EXPECT_EQ(OcrText(285), "SEVERAL TRANSPORT AND SOME MILITARY SHIPS HAS BECOME TARGETS OF");
  EXPECT_EQ(OcrText(330), "");
  DockAt(7, 2);
  RecordedBlits().clear();
  a_DrawStationNews();
  EXPECT_EQ(OcrText(285), "NEW WEAPONS! IF YOU NEED EXTRA FIREPOWER ITS GOOD TIME TO CHECK WITH");
  EXPECT_EQ(OcrText(330), "(IN ONE PIECE).");
}

}  // namespace
}  // namespace lf::test
