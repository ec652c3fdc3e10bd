// Faces, pages and buttons: opening and closing pages, the closing pass,
// switches and their partners, guarded commands, and what is drawn.
#include "bridge_fixture.h"
#include "display/gfx.h"

namespace lf::test {
namespace {

using PanelTest = BridgeTest;

TEST_F(PanelTest, TwoClicksOnAFaceOpenAndCloseThePageAndTheLineMatchesThePost) {
  PressFace(4);
  EXPECT_EQ(G.PageOpen[4], 1);
  EXPECT_EQ(G.BridgeButton[4][1].Visible, True);
  EXPECT_EQ(G.BridgeButton[4][9].Visible, False) << "not present";
  EXPECT_EQ(G.PromptLine[2], "MEDICAL COMPUTER ONLINE.");
  EXPECT_EQ(G.PromptFace, 4);
  PressFace(1);
  EXPECT_EQ(G.PageOpen[4], 0) << "one page at a time";
  Crew(1, 7, 3);
  PressFace(1);
  EXPECT_EQ(G.PageOpen[1], 0);
  PressFace(1);
  EXPECT_NE(G.PromptLine[2], "NAVIGATION COMPUTER ONLINE.");
}

TEST_F(PanelTest, PanelsOfAClosedPageCloseOnTheNextPress) {
  PressFace(6);
  PressButton(6, 2);
  EXPECT_EQ(ButtonState(6, 2), 1);
  PressButton(6, 1);
  EXPECT_EQ(ButtonState(6, 1), 1);
  EXPECT_EQ(ButtonState(6, 2), 0) << "partners go off";
  PressFace(6);
  EXPECT_EQ(ButtonState(6, 1), 1) << "the closing pass ran before the face";
  Press(300, 450);
  EXPECT_EQ(ButtonState(6, 1), 0);
}

TEST_F(PanelTest, SharedPlacesBlankPlatesAndUnavailableButtons) {
  PressFace(1);
  G.OrbitState = 3;
  G.BridgeButton[1][5].Present = False;
  G.BridgeButton[1][6].Present = True;
  PressButton(1, 6);
  EXPECT_EQ(ButtonState(1, 6), 1);
  EXPECT_EQ(G.OrbitState, 4);
  EXPECT_EQ(ButtonState(1, 5), 0);

  ButtonState(1, 1) = 0;
  ClearMediaLog();
  PressButton(1, 10);  // a blank plate
  EXPECT_TRUE(MediaLog().empty());
  ButtonState(1, 7) = 2;
  PressButton(1, 10);
  ASSERT_FALSE(MediaLog().empty());
  EXPECT_EQ(MediaLog().back(), Sound(1, 1)) << "an unavailable button sounds on every press";
}

TEST_F(PanelTest, ScienceSwitchesSwapTheirPanels) {
  PressFace(5);
  ButtonState(5, 2) = 0;
  PressButton(5, 2);
  EXPECT_EQ(ButtonState(5, 2), 1);
  PressButton(5, 3);
  EXPECT_EQ(ButtonState(5, 3), 1);
  EXPECT_EQ(ButtonState(5, 2), 0);
}

TEST_F(PanelTest, WeaponsNeedPowerAndHailLocksNavigation) {
  PressFace(3);
  PressButton(3, 1);
  EXPECT_EQ(ButtonState(3, 1), 0);
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptLine[1], "THERE IS NOT ENOUGH ENERGY TO POWER THE WEAPONS!");
  G.MessagePending = False;
  G.WeaponLevel = 100;
  PressButton(3, 1);
  EXPECT_EQ(ButtonState(3, 1), 1);

  PressFace(2);
  PressButton(2, 1);
  EXPECT_EQ(ButtonState(2, 1), 1);
  EXPECT_EQ(ButtonState(1, 1), 2);
  PressButton(2, 1);
  EXPECT_EQ(ButtonState(1, 1), 0);
}

TEST_F(PanelTest, HailWithoutATranslatorIsRefused) {
  G.SensorLevel = 100;
  G.OtherShipCount = 1;
  G.OtherShip[1] = {};
  G.OtherShip[1].ShipClass = 6;  // Hagel
  G.OtherShip[1].X = 2550;
  G.OtherShip[1].Y = 2500;
  PressFace(2);
  PressButton(2, 1);
  Press(348, 124);
  EXPECT_EQ(G.HailedShip, 0);
  EXPECT_EQ(G.PromptLine[3], "TRANSMISSION!");
  G.MessagePending = False;
  G.TranslatorOwned[2] = True;
  Press(348, 124);
  EXPECT_EQ(G.HailedShip, 1);
  EXPECT_EQ(G.OrbitState, 5);
  EXPECT_EQ(ButtonState(2, 8), 1);
}

TEST_F(PanelTest, ButtonsDrawTheirStateCellAndTheShipItsSheet) {
  PressFace(3);
  ButtonState(3, 1) = 1;
  ButtonState(3, 2) = 1;
  BlitRecording rec;
  DrawButtons();
  DrawShip();
  int stateCells = 0;
  for (const BlitRecord& b : RecordedBlits())
    if (b.bitmap == &GFX.ButtState && b.x == 140 - 8 && b.y == 287 - 8) stateCells += b.left == 60;
  EXPECT_EQ(stateCells, 1);
  EXPECT_EQ(BlitsOf(GFX.OwnShip[3]).size(), 1u);
  EXPECT_GT(G.BridgeButton[3][1].Frame, 0) << "a button that is on runs by itself";
}

TEST_F(PanelTest, SpritesAreClippedToTheWindow) {
  G.ViewX = 2500;
  G.ViewY = 2500;
  G.ShipX = 2500 - 190;  // the ship's sprite straddles the left edge
  BlitRecording rec;
  DrawShip();
  const auto blits = BlitsOf(GFX.OwnShip[0]);
  ASSERT_EQ(blits.size(), 1u);
  EXPECT_EQ(blits[0].x, 121);
  EXPECT_EQ(blits[0].left, 121 - (300 - 190 - 17));
  G.ShipX = 2500 - 250;
  RecordedBlits().clear();
  DrawShip();
  EXPECT_TRUE(BlitsOf(GFX.OwnShip[0]).empty());
}

TEST_F(PanelTest, ScrollMarginsWaitTenFramesThenMoveTheView) {
  PointAt(500, 100);
  for (int i = 0; i < 9; ++i) CheckScroll();
  EXPECT_EQ(G.ViewX, 2500);
  CheckScroll();
  EXPECT_EQ(G.ViewX, 2505);
  EXPECT_EQ(G.ViewDetached, 1);
  PointAt(300, 100);
  CheckScroll();
  EXPECT_EQ(G.ScrollDelay, 0);
  Press(410, 10);
  EXPECT_EQ(G.ShowGrid, False);
  Press(438, 10);
  EXPECT_EQ(G.ViewDetached, False);
}

}  // namespace
}  // namespace lf::test
