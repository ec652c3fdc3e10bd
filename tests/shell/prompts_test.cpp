#include <gtest/gtest.h>

#include <string>

#include "display/gfx.h"
#include "display/text_set.h"
#include "shell/prompts.h"
#include "shell/screens.h"
#include "support/shell_fixture.h"

namespace lf {
namespace {

using test::BlitsOf;
using test::RecordedBlits;

class PromptTest : public test::ShellTest {
 protected:
  void Frames(int n) {
    for (int i = 0; i < n; ++i) DrawText();
  }
  void ClickAt(int x, int y) {
    PointAt(x, y);
    CheckQuestion();
  }
};

TEST_F(PromptTest, EachLetterLightsOnceTheOneBeforeHasPassedFour) {
  SetLine("ABC", "", "", 1);
  DrawText();
  EXPECT_EQ(G.PromptFade[1][0], 15);
  EXPECT_EQ(G.PromptFade[1][1], 3);
  EXPECT_EQ(G.PromptFade[1][2], 0);
  DrawText();
  EXPECT_EQ(G.PromptFade[1][1], 6);
  EXPECT_EQ(G.PromptFade[1][2], 3);
  EXPECT_EQ(G.PromptFade[1][3], 0);
  Frames(10);
  for (int k = 1; k <= 3; ++k) EXPECT_EQ(G.PromptFade[1][k], 15) << k;
  EXPECT_EQ(G.PromptFade[1][4], 0);  // past the end of the line

  // The cell's column is 8 x brightness; its row is the character's cell.
  RecordedBlits().clear();
  G.PromptFade[1][2] = 7.9;
  G.PromptLine[1] = "ABC";
  G.PromptFade[1][1] = 1;  // lights to 4, not past 4: the next letter waits
  DrawText();
  EXPECT_EQ(G.PromptFade[1][1], 4);
  EXPECT_DOUBLE_EQ(G.PromptFade[1][2], 7.9);
  const auto letters = BlitsOf(GFX.FontSml);
  ASSERT_EQ(letters.size(), 3u);
  EXPECT_EQ(letters[1].x, 68);
  EXPECT_EQ(letters[1].y, 422);
  EXPECT_EQ(letters[1].left, 56);
  EXPECT_EQ(letters[1].top, 8 * TextCell(U'B'));
  EXPECT_EQ(letters[1].right - letters[1].left, 8);
  EXPECT_TRUE(letters[1].keyed);
  EXPECT_EQ(letters[0].left, 32);
}

TEST_F(PromptTest, APassingLineStandsOneHundredFiftyFrames) {
  SetLine("", "COURSE SET.", "", 1);
  Frames(149);
  EXPECT_EQ(G.PromptLine[2], "COURSE SET.");
  EXPECT_EQ(G.PromptAge, 149);
  DrawText();
  EXPECT_EQ(G.PromptLine[2], "");
  EXPECT_EQ(G.PromptAge, 0);
  EXPECT_EQ(G.PromptFace, 0);

  // A held message does not age.
  SetMessage("WAIT", "", "", 2);
  Frames(400);
  EXPECT_EQ(G.PromptLine[1], "WAIT");
  EXPECT_EQ(G.PromptAge, -1);
}

TEST_F(PromptTest, LinePlacesColoursAndMarks) {
  G.MouseLook = True;
  SetMessage(" AB", "_CD", "\u0160" "5", 4);
  G.PromptFade[1].Items.fill(15);
  G.PromptFade[2].Items.fill(15);
  G.PromptFade[3].Items.fill(15);
  DrawText();
  const auto letters = BlitsOf(GFX.FontSml);
  ASSERT_EQ(letters.size(), 6u);
  // A leading blank: one letter to the right, in the second colour.
  EXPECT_EQ(letters[0].x, 68);
  EXPECT_EQ(letters[0].left, 8 * 15 + 128);
  // A leading "_" draws nothing and stands the text one letter right.
  EXPECT_EQ(letters[2].x, 68);
  EXPECT_EQ(letters[2].y, 437);
  EXPECT_EQ(letters[2].left, 8 * 15);
  // The credit sign is one character.
  EXPECT_EQ(letters[4].top, 8 * 45);
  EXPECT_EQ(letters[4].x, 60);
  EXPECT_EQ(letters[5].x, 68);
  EXPECT_EQ(letters[5].y, 452);

  EXPECT_EQ(G.MouseLook, False);
  const auto ok = BlitsOf(GFX.Yes);
  ASSERT_EQ(ok.size(), 1u);
  EXPECT_EQ(ok[0].x, 560);
  EXPECT_TRUE(BlitsOf(GFX.No).empty());
  const auto face = BlitsOf(GFX.PromptPortrait[4]);
  ASSERT_EQ(face.size(), 1u);
  EXPECT_EQ(face[0].x, 17);
  EXPECT_EQ(face[0].y, 420);
  EXPECT_EQ(face[0].right, 34);
  EXPECT_EQ(face[0].bottom, 42);
}

TEST_F(PromptTest, QuestionShowsBothButtonsAndALongLineDoesNotWrap) {
  SetQuestion(std::string(230, 'X'), "", "", 0);
  DrawText();
  ASSERT_EQ(BlitsOf(GFX.Yes).size(), 1u);
  EXPECT_EQ(BlitsOf(GFX.Yes)[0].x, 490);
  EXPECT_EQ(BlitsOf(GFX.No)[0].x, 560);
  EXPECT_EQ(BlitsOf(GFX.PromptPortrait[0]).size(), 0u);
  // Letters past the fade table's 200 are skipped; the rest run on in a row.
  const auto letters = BlitsOf(GFX.FontSml);
  ASSERT_EQ(letters.size(), 200u);
  EXPECT_EQ(letters.back().x, 60 + 8 * 199);
  EXPECT_EQ(letters.back().y, 422);
}

TEST_F(PromptTest, QuestionAndMessageNeverStandTogether) {
  SetQuestion("", "DO YOU WANT TO ENTER ORBIT?", "", 1);
  SetMessage("A", "B", "C");
  EXPECT_EQ(G.QuestionPending, False);
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptFace, 1);  // a message without a portrait keeps the old one
  SetQuestion("Q", "", "", 3);
  EXPECT_EQ(G.QuestionPending, True);
  EXPECT_EQ(G.MessagePending, False);
  EXPECT_EQ(G.PromptLine[1], "Q");
  EXPECT_EQ(G.PromptLine[2], "");
}

TEST_F(PromptTest, ANewPromptOverAFadingOneAppearsAtOnceUntilTheTableIsCleared) {
  SetLine("ABCDEF", "", "", 1);
  Frames(20);
  SetMessage("XYZ", "", "", 1);
  RecordedBlits().clear();
  DrawText();
  for (const auto& b : BlitsOf(GFX.FontSml)) EXPECT_EQ(b.left, 8 * 15);

  a_ClearTermScreen();
  for (int n = 1; n <= 20; ++n) {
    EXPECT_EQ(G.PromptFade[n][0], 3);
    EXPECT_EQ(G.PromptFade[n][1], 0);
  }
  DrawText();
  EXPECT_EQ(G.PromptFade[1][1], 3);
  EXPECT_EQ(G.PromptFade[1][2], 0);
}

TEST_F(PromptTest, SecondPageNeedsTwoOks) {
  SetMessage("ONE", "TWO", "THREE", 5, "_FOUR", "FIVE", "SIX");
  G.ScanRequested = True;
  G.TimeStep = 0.1 / 60;
  ClickAt(580, 440);
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptAge, -1);
  EXPECT_EQ(G.PromptLine[1], "_FOUR");
  EXPECT_EQ(G.PromptLine[3], "SIX");
  EXPECT_EQ(G.PromptLine[4], "");
  EXPECT_EQ(G.PromptLine[6], "");
  EXPECT_EQ(G.ScanRequested, False);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(G.PromptFade[1][0], 3);
  EXPECT_EQ(MediaLog().back(), Sound(4, 1));

  ClickAt(580, 440);
  EXPECT_EQ(G.MessagePending, False);
  for (int n = 1; n <= 3; ++n) EXPECT_EQ(G.PromptLine[n], "");
  EXPECT_EQ(MediaLog().size(), 2u);
}

TEST_F(PromptTest, ANewMessageKeepsAWaitingSecondPageUnlessItBringsItsOwn) {
  SetMessage("ONE", "TWO", "THREE", 5, "_FOUR", "FIVE", "SIX");
  SetMessage("", "A WARNING OVER IT", "", 3);
  EXPECT_EQ(G.PromptLine[2], "A WARNING OVER IT");
  EXPECT_EQ(G.PromptLine[4], "_FOUR");
  ClickAt(580, 440);
  EXPECT_EQ(G.PromptLine[1], "_FOUR") << "the page still follows";
  EXPECT_EQ(G.MessagePending, True);

  SetMessage("", "ANOTHER", "", 3, "_ITS OWN PAGE", "", "");
  EXPECT_EQ(G.PromptLine[4], "_ITS OWN PAGE");
}

TEST_F(PromptTest, AnswerAreasAreStrict) {
  SetQuestion("", "Q", "", 1);
  for (auto [x, y] : {std::pair{490, 440}, {530, 440}, {510, 420}, {510, 460}, {560, 440},
                      {600, 440}, {580, 420}, {580, 460}}) {
    ClickAt(x, y);
    EXPECT_EQ(G.QuestionPending, True) << x << "," << y;
  }
  EXPECT_TRUE(MediaLog().empty());
  ClickAt(491, 421);
  EXPECT_EQ(G.QuestionPending, False);

  SetMessage("M", "", "", 1);
  for (auto [x, y] : {std::pair{560, 440}, {600, 440}, {580, 420}, {580, 460}, {510, 440}}) {
    ClickAt(x, y);
    EXPECT_EQ(G.MessagePending, True) << x << "," << y;
  }
  ClickAt(599, 459);
  EXPECT_EQ(G.MessagePending, False);
}

TEST_F(PromptTest, YesToTheOrbitQuestionStartsTheDoors) {
  G.OrbitState = 1;
  G.OrbitOfferOpen = True;
  G.FollowMode = 1;
  G.FollowShip = 7;
  G.TimeStep = 0;
  SetQuestion("", "DO YOU WANT TO ENTER ORBIT?", "", 1);
  ClickAt(510, 440);
  EXPECT_EQ(G.OrbitState, 2);
  EXPECT_EQ(G.FollowMode, 0);
  EXPECT_EQ(G.FollowShip, 0);
  EXPECT_EQ(G.OrbitOfferOpen, False);
  EXPECT_EQ(G.QuestionPending, False);
  EXPECT_DOUBLE_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(G.PromptLine[2], "");
  EXPECT_EQ(MediaLog().back(), Sound(4, 1));

  // No leaves the ship where it is.
  G.OrbitState = 1;
  G.OrbitOfferOpen = True;
  SetQuestion("", "DO YOU WANT TO ENTER ORBIT?", "", 1);
  ClickAt(580, 440);
  EXPECT_EQ(G.OrbitState, 1);
  EXPECT_EQ(G.OrbitOfferOpen, False);
  EXPECT_EQ(G.QuestionPending, False);
  EXPECT_EQ(MediaLog().back(), Sound(8, 1));

  // Yes away from orbit only closes the question.
  G.OrbitState = 0;
  G.FollowShip = 3;
  SetQuestion("", "Q", "", 1);
  ClickAt(510, 440);
  EXPECT_EQ(G.OrbitState, 0);
  EXPECT_EQ(G.FollowShip, 3);
}

TEST_F(PromptTest, OkOnTheDeathMessageGoesToTheMenu) {
  G.StatusSlot[DeadSlot] = {True, 2};
  SetMessage("", "LOST", "", 1);
  ClickAt(580, 440);
  EXPECT_EQ(G.MenuActive, False);

  G.StatusSlot[DeadSlot] = {True, 1};
  SetMessage("", "LOST", "", 1);
  PointAt(580, 440);
  EXPECT_THROW(CheckQuestion(), ScreenChange);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.MessagePending, False);
}

}  // namespace
}  // namespace lf
