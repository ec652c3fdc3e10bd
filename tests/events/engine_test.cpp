// The draw of events in flight (the crew and sensor conditions, the
// countdown and the cycle over many ticks), the hero, and the screen's
// bands, text and lit reply.
#include <gtest/gtest.h>

#include <initializer_list>
#include <set>

#include "display/gfx.h"
#include "display/text_set.h"
#include "shell/clocks.h"
#include "support/blit_recorder.h"
#include "event_fixture.h"

namespace lf::test {
namespace {

using Engine = EventTest;

void CrewAt(std::initializer_list<int> posts) {
  for (int p = 1; p <= 6; ++p) G.CrewPost[p].Person = 0;
  for (int p : posts) G.CrewPost[p].Person = static_cast<std::int16_t>(p);
}

bool Raises(int n) {
  G.StatusSlot[EventSlot] = {};
  CheckNextEvent(n);
  return G.StatusSlot[EventSlot].Active == True && G.StatusSlot[EventSlot].Value == n;
}

TEST_F(Engine, EachEventNeedsItsOwnPostsFilledAndASensor) {
  const std::initializer_list<int> needed[12] = {{},           {1, 2, 5, 6}, {1, 2, 4},       {1, 2, 5},
                                                 {1, 2, 3, 5}, {1, 2, 3, 5}, {1, 3, 5},       {1, 2, 3, 5, 6},
                                                 {1, 2, 3},    {1, 2, 3, 5}, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 5}};
  for (int n = 1; n <= 11; ++n) {
    SCOPED_TRACE("event " + std::to_string(n));
    const std::set<int> posts(needed[n]);
    for (int missing = 1; missing <= 6; ++missing) {
      Event3Played = False;
      CrewAt({1, 2, 3, 4, 5, 6});
      G.CrewPost[missing].Person = 0;
      EXPECT_EQ(Raises(n), posts.count(missing) == 0) << "post " << missing << " empty";
    }
    Event3Played = False;
    CrewAt(needed[n]);
    EXPECT_TRUE(Raises(n)) << "only its own posts filled";
  }
  // The sensor: some fitted slot of group 6 up to the hardpoint count.
  CrewAt({1, 2, 3, 4, 5, 6});
  G.FittedComp[6][1] = 0;
  EXPECT_FALSE(Raises(1));
  G.FittedComp[9][1] = 6;  // beyond the hull's hardpoints
  EXPECT_FALSE(Raises(1));
  G.FittedComp[2][1] = 6;
  EXPECT_TRUE(Raises(1));
  EXPECT_FALSE(Raises(12));
  EXPECT_FALSE(Raises(0));
}

TEST_F(Engine, EventThreeComesOncePerRunOfTheProgramEvenAcrossANewGame) {
  EXPECT_TRUE(Raises(3));
  EXPECT_FALSE(Raises(3));
  ResetGame();  // a new game, as far as the record goes
  OnBridge();
  EXPECT_FALSE(Raises(3));
  EXPECT_TRUE(Raises(4));
}

TEST_F(Engine, CountdownRunsOutAfterFiftyThousandTicksThenTheCycleTriesOneNumberEachTime) {
  ResetScreens();
  G.NextEventCountdown = 10000;
  G.NextEventNumber = 1;
  CrewAt({1, 2, 3});  // only event 8 fits this crew
  std::vector<long> tries;
  long tick = 0;
  while (G.StatusSlot[EventSlot].Active == 0 && tick < 200000) {
    const int number = G.NextEventNumber;
    Timer1_Timer();
    ++tick;
    if (G.NextEventNumber != number) tries.push_back(tick);
  }
  ASSERT_EQ(G.StatusSlot[EventSlot].Value, 8);
  ASSERT_EQ(tries.size(), 8u);  // 1..7 failed and were lost, 8 was raised
  EXPECT_EQ(tries[0], 50000);
  for (std::size_t i = 1; i < tries.size(); ++i) {
    EXPECT_GE(tries[i] - tries[i - 1], 5000) << "a failed try waits 1000..1499 more";
    EXPECT_LE(tries[i] - tries[i - 1], 7495);
  }
  EXPECT_EQ(G.NextEventNumber, 9);
  EXPECT_EQ(Tracks(2), 1);
  // A raised event holds time, the countdown with it.
  const double left = G.NextEventCountdown;
  for (int i = 0; i < 100; ++i) Timer1_Timer();
  EXPECT_EQ(G.NextEventCountdown, left);
}

TEST_F(Engine, TheHeroIsNobodyAtAPostAndBecomesASkilledMedicScientistOrEngineer) {
  std::set<int> postsSeen, skillsSeen;
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    SeedRandom(G.Random, seed);
    for (int c = 1; c <= 44; ++c) G.Character[c] = {};
    CrewAt({1, 2, 3, 4, 5, 6});  // rows 1..6 stand at the posts
    DefineHero();
    const int hero = G.RescuedPerson;
    ASSERT_GE(hero, 7);
    ASSERT_LE(hero, 44);
    postsSeen.insert(G.Character[hero].Post);
    skillsSeen.insert(G.Character[hero].Skill);
  }
  EXPECT_EQ(postsSeen, (std::set<int>{4, 5, 6}));
  EXPECT_EQ(skillsSeen, (std::set<int>{4, 5}));
}

TEST_F(Engine, BandsAreStrictAtBothEndsAndFollowTheNodesMarks) {
  Raise(12);  // node 1: marks 1, 2, 7
  ASSERT_TRUE(OnEventScreen());
  EXPECT_EQ(EventChoiceAt(410), 0);
  EXPECT_EQ(EventChoiceAt(411), 1);
  EXPECT_EQ(EventChoiceAt(418), 1);
  EXPECT_EQ(EventChoiceAt(419), 0);
  EXPECT_EQ(EventChoiceAt(420), 2);
  EXPECT_EQ(EventChoiceAt(463), 2);  // the second reply's band is five lines
  EXPECT_EQ(EventChoiceAt(464), 0);
  EXPECT_EQ(EventChoiceAt(300), 0);
  G.StatusSlot[EventSlot].Value = 1;
  G.EventScript[1].Node = 1;  // marks 1, 4, 7: bands of three lines
  EXPECT_EQ(EventChoiceAt(436), 1);
  EXPECT_EQ(EventChoiceAt(437), 0);
  EXPECT_EQ(EventChoiceAt(438), 2);
}

TEST_F(Engine, TextTypesItselfOutAndTheReplyUnderTheCursorTakesTheLitRow) {
  Raise(8);
  ASSERT_TRUE(OnEventScreen());
  const std::string& first = G.EventScript[8].Text[1][1];
  host.cursorX = 300;
  host.cursorY = 423;  // the second reply
  {
    BlitRecording rec;
    Frames(1);
    // Two frames after entering, only the first letters are lit.
    int textLetters = 0;
    for (const BlitRecord& b : BlitsOf(GFX.StationFontOcr))
      if (b.y == 15) ++textLetters;
    EXPECT_LE(textLetters, 2);
  }
  Frames(150);
  BlitRecording rec;
  Frames(1);
  int line1 = 0, reply1 = 0, reply2Lit = 0;
  for (const BlitRecord& b : BlitsOf(GFX.StationFontOcr)) {
    EXPECT_TRUE(b.keyed);
    if (b.y == 15) {
      ++line1;
      EXPECT_EQ(b.top, 16);  // fully lit
    }
    if (b.y == 410) ++reply1;
    if (b.y == 419) {
      ++reply2Lit;
      EXPECT_EQ(b.top, 64 + 16);  // the chosen band, fully lit
    }
  }
  int letters = 0;
  ForEachCell(first, [&](int, int cell) { letters += cell >= 0; });
  EXPECT_EQ(line1, letters);
  EXPECT_GT(reply1, 0);
  EXPECT_GT(reply2Lit, 0);
  const std::vector<BlitRecord> pic = BlitsOf(GFX.EventPicture);
  ASSERT_EQ(pic.size(), 1u);
  EXPECT_EQ(pic[0].x, 0);
  EXPECT_EQ(pic[0].y, 80);
  EXPECT_EQ(pic[0].bottom - pic[0].top, 320);
}

}  // namespace
}  // namespace lf::test
