// The terminal screen: the service menu and its press zones, what the
// terminal draws for the menu, the text and the buttons, and the typing.
#include <gtest/gtest.h>

#include "display/gfx.h"
#include "station/station_fixture.h"

namespace lf::test {
namespace {

class Terminal : public StationTest {};

int MenuY(int line) { return 208 + 18 * (line - 1) + 7; }

TEST_F(Terminal, ALawfulStationListsSevenServicesAndAPirateStationThree) {
  EXPECT_EQ(G.StationService[1], "MEETING LOUNGE");
  EXPECT_EQ(G.StationService[7], "MERCENARY GUILD");
  EXPECT_EQ(G.StationService[8], "");
  G.StationService[9] = "LEFT OVER";
  DockAtPirates();
  EXPECT_EQ(G.StationService[3], "SHIP DEALER");
  EXPECT_EQ(G.StationService[4], "");
  EXPECT_EQ(G.StationService[9], "");
}

TEST_F(Terminal, ClicksBelowThePirateMenuDoNothing) {
  DockAtPirates();
  a_Welcome();
  for (int line = 4; line <= 10; ++line) {
    Press(500, MenuY(line));
    EXPECT_EQ(StationPage(), 1) << line;
  }
  Press(500, MenuY(3));
  EXPECT_EQ(StationPage(), 4);
}

TEST_F(Terminal, TheServicesAnswerOnlyAfterTheWelcome) {
  ArrivalTyping();
  Press(500, MenuY(2));
  EXPECT_EQ(StationPage(), 1);
  a_Welcome();
  Press(370, MenuY(2));  // x must be above 370
  EXPECT_EQ(StationPage(), 1);
  Press(371, MenuY(2));
  EXPECT_EQ(StationPage(), 3);
}

TEST_F(Terminal, EachLineOpensItsOwnScreen) {
  a_Welcome();
  const int expected[] = {2, 3, 4, 5, 7, 6, 8};  // menu order: merchant before exploration
  for (int line = 1; line <= 7; ++line) {
    StationPage() = 1;
    G.DealerGroup = 3;
    Press(500, MenuY(line));
    EXPECT_EQ(StationPage(), expected[line - 1]) << line;
    EXPECT_EQ(G.DealerGroup, 0);
  }
}

TEST_F(Terminal, TheTextBlockStaysCentredAndTypesFromTheLeft) {
  G.TermLine[1] = "AB";
  G.TermLine[2] = "C";
  G.TermLineCount = 2;
  a_ClearTermScreen();
  BlitRecording rec;
  a_AddToLetterCount();
  a_DrawLogonText();
  EXPECT_TRUE(BlitsOf(GFX.StationFontOcr).empty());  // nothing is above 1 yet
  for (int i = 0; i < 6; ++i) a_AddToLetterCount();
  RecordedBlits().clear();
  a_DrawLogonText();
  const auto blits = BlitsOf(GFX.StationFontOcr);
  ASSERT_EQ(blits.size(), 3u);
  EXPECT_EQ(blits[0].x, 366);
  EXPECT_EQ(blits[0].y, 152 - 18 + 9);
  EXPECT_EQ(blits[1].x, 372);
  EXPECT_EQ(blits[2].y, 152 - 18 + 18);
  // The first letter is further on in its fade than the second.
  EXPECT_GT(blits[0].top, blits[1].top);
  for (int i = 0; i < 20; ++i) a_AddToLetterCount();
  EXPECT_DOUBLE_EQ(G.PromptFade[1][2], 3);
}

TEST_F(Terminal, TheButtonsFollowThePromptAndLightUnderTheCursor) {
  BlitRecording rec;
  G.TermPrompt = 2;
  PointAt(620, 160);
  a_DrawLogonText();
  ASSERT_EQ(BlitsOf(GFX.StationNo).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.StationNo)[0].left, 0);
  ASSERT_EQ(BlitsOf(GFX.StationYes).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.StationYes)[0].left, 34);
  EXPECT_TRUE(BlitsOf(GFX.StationYes2).empty());

  RecordedBlits().clear();
  G.TermPrompt = 504;
  a_DrawLogonText();
  ASSERT_EQ(BlitsOf(GFX.StationYes2).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.StationYes2)[0].x, 605);
  EXPECT_TRUE(BlitsOf(GFX.StationNo).empty());

  RecordedBlits().clear();
  for (const int prompt : {0, 500, -7}) {
    G.TermPrompt = static_cast<std::int16_t>(prompt);
    a_DrawLogonText();
  }
  EXPECT_TRUE(BlitsOf(GFX.StationYes2).empty());
  EXPECT_TRUE(BlitsOf(GFX.StationNo).empty());
}

TEST_F(Terminal, AHotServiceShowsItsPictureOrTheDeniedOneAndBlinksItsMarker) {
  BlitRecording rec;
  PointAt(580, MenuY(2));  // COMMODITY EXCHANGE
  a_DrawStationComps();
  ASSERT_EQ(BlitsOf(GFX.ServicePicture[1]).size(), 1u);  // denied before the welcome
  EXPECT_EQ(BlitsOf(GFX.ServicePicture[1])[0].x, 484);
  const auto marker = BlitsOf(GFX.StationMarkerBig);
  ASSERT_EQ(marker.size(), 1u);
  EXPECT_EQ(marker[0].x, 140);
  EXPECT_EQ(marker[0].y, 117);
  EXPECT_EQ(G.ServiceMarkerOn, True);

  G.ServiceMenuOpen = True;
  for (int i = 0; i < 46; ++i) a_DrawStationComps();  // 47 x 0.15 passes 7
  EXPECT_LT(G.ServiceMarkerFrame, 1);
  EXPECT_EQ(BlitsOf(GFX.ServicePicture[3]).size(), 46u);
  for (const BlitRecord& b : BlitsOf(GFX.StationMarkerBig)) EXPECT_LE(b.left, 7 * 60);

  PointAt(300, 300);
  a_DrawStationComps();
  EXPECT_EQ(G.ServiceMarkerOn, False);
  EXPECT_EQ(G.ServiceMarkerFrame, 0);
}

}  // namespace
}  // namespace lf::test
