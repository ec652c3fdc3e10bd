#include <gtest/gtest.h>

#include "bridge/ship_pick.h"
#include "display/gfx.h"
#include "display/text_set.h"
#include "shell/cursor.h"
#include "support/shell_fixture.h"

namespace lf {
namespace {

using test::BlitRecord;
using test::BlitsOf;
using test::RecordedBlits;

class CursorTest : public test::ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    G.ViewX = 2000;
    G.ViewY = 2000;
    G.ShipX = 2000;
    G.ShipY = 2000;
    G.SensorRange = 100;
  }
  // The one cursor cell drawn with the cursor at (x, y).
  BlitRecord CursorAt(int x, int y) {
    RecordedBlits().clear();
    host.cursorX = x;
    host.cursorY = y;
    DrawCursor();
    const auto cells = BlitsOf(GFX.CursorBitmap);
    EXPECT_EQ(cells.size(), 1u) << x << "," << y;
    return cells.empty() ? BlitRecord{} : cells[0];
  }
  int CellAt(int x, int y) { return CursorAt(x, y).left; }
  // A ship whose picture's middle stands on the screen at (x, y).
  void PlaceShip(int i, int x, int y) {
    G.OtherShip[i].X = x - 300 + 2000 + 14 - 12;
    G.OtherShip[i].Y = y - 125 + 2000 + 8 - 7;
    if (G.OtherShipCount < i) G.OtherShipCount = static_cast<std::int16_t>(i);
  }
};

TEST_F(CursorTest, ScrollShapesAtTheViewEdgesInclusive) {
  G.OrbitState = 1;
  EXPECT_EQ(CellAt(120, 50), 115);
  EXPECT_EQ(CellAt(146, 240), 115);  // the left strip wins over the view
  EXPECT_EQ(CellAt(495, 50), 138);
  EXPECT_EQ(CellAt(520, 240), 138);
  EXPECT_EQ(CellAt(146, 25), 183);
  EXPECT_EQ(CellAt(300, 50), 183);
  EXPECT_EQ(CellAt(300, 240), 161);
  EXPECT_EQ(CellAt(494, 265), 161);
  EXPECT_EQ(CellAt(300, 266), 0);
  EXPECT_EQ(CellAt(119, 100), 0);
  EXPECT_EQ(CellAt(521, 100), 0);
  EXPECT_EQ(CellAt(145, 24), 0);

  G.CursorFrame = 12;
  const BlitRecord inView = CursorAt(147, 51);
  EXPECT_EQ(inView.left, 23);
  EXPECT_EQ(inView.x, 147);
  EXPECT_EQ(inView.y, 51);
  EXPECT_EQ(inView.right - inView.left, 23);
  EXPECT_EQ(inView.bottom, 23);
  EXPECT_TRUE(inView.keyed);
  EXPECT_EQ(G.CursorFrame, 0);
  EXPECT_EQ(G.MouseX, 147);
}

TEST_F(CursorTest, InOrbitAndDuringHailsOnlyTheArrows) {
  for (int state : {2, 3, 6}) {
    G.OrbitState = static_cast<std::int16_t>(state);
    EXPECT_EQ(CellAt(130, 100), 0);
    EXPECT_EQ(CellAt(300, 30), 0);
    EXPECT_EQ(CellAt(300, 100), 23);
  }
}

TEST_F(CursorTest, CourseCrossAndBodies) {
  G.PageOpen[1] = 1;
  G.BridgeButton[1][1].State = 1;
  G.PlanetCount = 1;
  G.Planet[1].X = 2000 - 12;  // its point on the screen is (300, 100)
  G.Planet[1].Y = 2000 - 25 - 7;
  const BlitRecord onBody = CursorAt(309, 100);
  EXPECT_EQ(onBody.left, 92);
  EXPECT_EQ(onBody.x, 298);
  EXPECT_EQ(onBody.y, 89);
  EXPECT_EQ(CellAt(310, 100), 46);
  // Button off, or another page open: the plain view arrow.
  G.BridgeButton[1][1].State = 2;
  EXPECT_EQ(CellAt(300, 100), 23);
  G.BridgeButton[1][1].State = 1;
  G.PageOpen[1] = 0;
  EXPECT_EQ(CellAt(300, 100), 23);
}

TEST_F(CursorTest, ShipUnderTheCursorAndInReachGetsTheMarker) {
  G.PageOpen[3] = 1;
  G.BridgeButton[3][4].State = 1;
  PlaceShip(1, 300, 100);
  host.cursorX = 309;
  host.cursorY = 100;
  DrawCursor();
  EXPECT_TRUE(BlitsOf(GFX.CursorBitmap).empty());
  const auto marks = BlitsOf(GFX.ShipSel);
  ASSERT_EQ(marks.size(), 1u);
  EXPECT_EQ(marks[0].x, 288 - 11);
  EXPECT_EQ(marks[0].y, 93 - 8);
  EXPECT_DOUBLE_EQ(G.CursorFrame, 0.8);

  EXPECT_EQ(CellAt(310, 100), 23);  // 10 away is not under it
  G.InNebula = True;
  EXPECT_EQ(CellAt(300, 100), 23);
  G.InNebula = False;
  G.SensorRange = 24;  // the ship lies 24.1 from the player's
  EXPECT_EQ(CellAt(300, 100), 23);
}

TEST_F(CursorTest, CommunicatorNeedsSensorPowerForTheMarker) {
  G.PageOpen[2] = 1;
  G.BridgeButton[2][1].State = 1;
  PlaceShip(1, 300, 100);
  G.SensorLevel = 99;
  EXPECT_EQ(CellAt(300, 100), 23);
  G.SensorLevel = 100;
  RecordedBlits().clear();
  host.cursorX = 300;
  host.cursorY = 100;
  DrawCursor();
  EXPECT_EQ(BlitsOf(GFX.ShipSel).size(), 1u);
  EXPECT_TRUE(BlitsOf(GFX.CursorBitmap).empty());
}

TEST_F(CursorTest, PickTakesTheFirstShipUnderTheCursorAndInReach) {
  G.SensorRange = 25;
  PlaceShip(1, 291, 100);  // under the cursor, 25.3 from the player's ship
  PlaceShip(2, 305, 100);  // under the cursor, exactly 25 away: not in reach
  PlaceShip(3, 320, 130);  // in reach, not under the cursor
  PlaceShip(4, 300, 100);  // 24.1 away
  PlaceShip(5, 300, 100);
  PointAt(300, 100);
  EXPECT_TRUE(ShipUnderCursor(1) && ShipUnderCursor(2));
  EXPECT_TRUE(ShipInReach(3));
  EXPECT_EQ(PickShip(), 4);
  G.OtherShipCount = 3;  // the walk stops at the count
  EXPECT_EQ(PickShip(), 0);
  G.OtherShipCount = 30000;  // and at the table's end
  EXPECT_EQ(PickShip(), 4);
  G.InNebula = True;
  EXPECT_EQ(PickShip(), 0);
}

TEST_F(CursorTest, SelectionMarkerCellsAndLoop) {
  G.CursorFrame = 7.9;
  DrawShipSelection(100, 100);
  auto mark = BlitsOf(GFX.ShipSel).back();
  EXPECT_EQ(mark.left, 50);
  EXPECT_EQ(mark.top, 30);
  EXPECT_EQ(mark.right, 100);
  EXPECT_EQ(mark.bottom, 60);
  G.CursorFrame = 22.2;
  DrawShipSelection(100, 100);
  EXPECT_DOUBLE_EQ(G.CursorFrame, 23.0);
  DrawShipSelection(100, 100);
  mark = BlitsOf(GFX.ShipSel).back();
  EXPECT_EQ(mark.left, 250);  // cell 23
  EXPECT_EQ(mark.top, 90);
  EXPECT_EQ(G.CursorFrame, 8);
}

TEST_F(CursorTest, PlainArrowIsCutAtTheScreenEdge) {
  for (auto [x, y, w, h] : {std::array{617, 457, 23, 23}, {618, 300, 22, 23}, {300, 458, 23, 22},
                            {639, 479, 1, 1}, {0, 0, 23, 23}}) {
    RecordedBlits().clear();
    host.cursorX = x;
    host.cursorY = y;
    a_DrawCursor();
    const auto cells = BlitsOf(GFX.CursorBitmap);
    ASSERT_EQ(cells.size(), 1u);
    EXPECT_EQ(cells[0].x, x);
    EXPECT_EQ(cells[0].y, y);
    EXPECT_EQ(cells[0].left, 0);
    EXPECT_EQ(cells[0].right, w) << x;
    EXPECT_EQ(cells[0].bottom, h) << y;
  }
}

TEST_F(CursorTest, ToolTipAreasAreStrict) {
  G.FaceX[1] = 24;
  G.FaceY[1] = 29;
  G.FaceWidth[1] = 80;
  G.FaceHeight[1] = 100;
  G.FaceX[6] = 538;
  G.FaceY[6] = 289;
  G.FaceWidth[6] = 80;
  G.FaceHeight[6] = 100;
  for (auto [x, y] : {std::pair{375, 10}, {386, 10}, {380, 4}, {380, 18}, {24, 50}, {104, 50},
                      {50, 129}, {517, 270}, {530, 270}, {520, 264}}) {
    host.cursorX = x;
    host.cursorY = y;
    CheckOverTool();
    EXPECT_EQ(G.TooltipVisible, False) << x << "," << y;
  }
  const std::pair<std::pair<int, int>, const char*> hits[] = {
      {{376, 5}, "SCANNER RANGE"},     {{414, 17}, "COORDINATE GRID"},
      {{434, 10}, "CENTER ON SHIP"},   {{472, 10}, "CENTER ON DESTINATION"},
      {{518, 273}, "HELP"},            {{25, 30}, "NAVIGATOR"},
      {{617, 388}, "ENGINEER"}};
  for (const auto& [at, text] : hits) {
    G.TooltipVisible = False;
    host.cursorX = at.first;
    host.cursorY = at.second;
    CheckOverTool();
    EXPECT_EQ(G.TooltipVisible, True) << text;
    EXPECT_EQ(G.TooltipText, text);
  }
}

TEST_F(CursorTest, ToolTipKeepsToTheScreen) {
  G.TooltipText = "HELP";  // 24 wide
  G.TooltipVisible = True;
  PointAt(594, 459);  // x 609 + 24 = 633: still fits
  DrawToolTip();
  auto letters = BlitsOf(GFX.FontVsml);
  ASSERT_EQ(letters.size(), 4u);
  EXPECT_EQ(letters[0].x, 615);
  EXPECT_EQ(letters[0].y, 474);
  EXPECT_EQ(letters[0].left, 6 * TextCell(U'H'));
  EXPECT_EQ(letters[0].bottom, 6);
  EXPECT_EQ(letters[3].x, 633);
  EXPECT_EQ(G.TooltipVisible, False);

  RecordedBlits().clear();
  PointAt(595, 100);  // one further: pulled back to end at the edge
  DrawToolTip();
  letters = BlitsOf(GFX.FontVsml);
  ASSERT_EQ(letters.size(), 4u);
  EXPECT_EQ(letters[0].x, 616);
  EXPECT_EQ(letters[3].x, 634);

  RecordedBlits().clear();
  G.TooltipVisible = True;
  PointAt(100, 460);  // y + 6 = 481: nothing near the bottom edge
  DrawToolTip();
  EXPECT_TRUE(BlitsOf(GFX.FontVsml).empty());
  EXPECT_EQ(G.TooltipVisible, False);

  G.TooltipText = "TACTICAL OFFICER";  // the blank draws nothing
  PointAt(100, 100);
  DrawToolTip();
  EXPECT_EQ(BlitsOf(GFX.FontVsml).size(), 15u);
}

TEST_F(CursorTest, HelpIconTogglesTips) {
  G.TooltipsOn = True;
  PointAt(517, 270);
  CheckToolTip();
  EXPECT_EQ(G.TooltipsOn, True);
  EXPECT_TRUE(MediaLog().empty());
  PointAt(518, 265);
  CheckToolTip();
  EXPECT_EQ(G.TooltipsOn, False);
  CheckToolTip();
  EXPECT_EQ(G.TooltipsOn, True);
  ASSERT_EQ(MediaLog().size(), 2u);
  EXPECT_EQ(MediaLog()[0], Sound(2, 2));
}

}  // namespace
}  // namespace lf
