// The eighteen scripts as a graph: every node reachable as the rows say,
// every reply leads somewhere, every band holds its reply, every line fits
// the screen and the font, and every node has its picture.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "display/text_set.h"
#include "events/event_effects.h"
#include "events/events_procedures.h"
#include "manifest.h"
#include "support/shell_fixture.h"

namespace lf::test {
namespace {

using Scripts = ShellTest;

// Nodes whose text exists though no reply leads there.
const std::set<std::pair<int, int>> kUnlinked = {{10, 9}, {12, 3}, {13, 8}, {16, 4}};

std::vector<int> Targets(const Next& n) {
  switch (n.go) {
    case Go::Node: return {n.a};
    case Go::SkillAtLeast:
    case Go::SkillAbove:
    case Go::RndBelow:
    case Go::RndAtMost:
    case Go::RndAbove:
    case Go::LanderTrouble: return {n.a, n.b};
    case Go::LanderLaunch: return {2, 3, 6, 7};
    default: return {};
  }
}

// The choices of a node by its marks: c + 1 marks before the 0.
int ChoicesByMarks(const Table<std::int16_t, 6>& marks) {
  int k = 1;
  while (k < 6 && marks[k + 1] != 0) ++k;
  return k - 1;
}

TEST_F(Scripts, EveryNodeIsReachedAndEveryReplyLeadsToANodeOrAnEnd) {
  for (int e = 1; e <= 18; ++e) {
    SCOPED_TRACE("event " + std::to_string(e));
    std::set<int> nodes, reached = {1}, edges;
    for (const NodeRule& r : EventRules(e)) nodes.insert(r.node);
    ASSERT_TRUE(nodes.count(1));
    std::vector<int> todo = {1};
    while (!todo.empty()) {
      const NodeRule* r = FindNodeRule(e, todo.back());
      todo.pop_back();
      ASSERT_NE(r, nullptr);
      for (const Next& n : r->reply)
        for (int t : Targets(n)) {
          EXPECT_TRUE(nodes.count(t)) << "node " << r->node << " leads to missing node " << t;
          if (nodes.count(t) && reached.insert(t).second) todo.push_back(t);
        }
    }
    for (int n : nodes)
      EXPECT_EQ(reached.count(n) == 1, kUnlinked.count({e, n}) == 0) << "node " << n;
  }
}

TEST_F(Scripts, MarksGiveEachReplyItsBandAndNoneIsLeftWithoutANextValue) {
  DefineEventTextAndTemplate();
  int nodes = 0;
  for (int e = 1; e <= 18; ++e) {
    for (const NodeRule& r : EventRules(e)) {
      SCOPED_TRACE("event " + std::to_string(e) + " node " + std::to_string(r.node));
      ++nodes;
      const StoryEvent& s = G.EventScript[e];
      const auto& marks = s.ReplyStart[r.node];
      const int choices = ChoicesByMarks(marks);
      ASSERT_GE(choices, 1);
      for (int k = 1; k <= 4; ++k) EXPECT_EQ(r.reply[k - 1].go != Go::None, k <= choices) << "choice " << k;
      EXPECT_EQ(marks[1], 1);
      for (int k = 1; k <= choices; ++k) {
        EXPECT_LT(marks[k], marks[k + 1]);
        EXPECT_LE(marks[k + 1], 7);
        EXPECT_FALSE(s.Reply[r.node][marks[k]].empty()) << "choice " << k << " begins on an empty line";
      }
      // Every written reply line lies in some band.
      for (int l = 1; l <= 6; ++l) {
        if (!s.Reply[r.node][l].empty()) {
          EXPECT_LT(l, marks[choices + 1]) << "line " << l;
        }
      }
      EXPECT_FALSE(s.Text[r.node][1].empty());
    }
  }
  EXPECT_EQ(nodes, 159);
}

TEST_F(Scripts, EveryLineFitsTheScreenAndUsesOnlyTheFontsLetters) {
  DefineEventTextAndTemplate();
  G.EventScript[13].Text[2][2] = "RESULTED IN EXTRACTION OF 50 OF ORE.";
  for (int e = 1; e <= 18; ++e)
    for (const NodeRule& r : EventRules(e))
      for (int l = 1; l <= 6; ++l) {
        const std::string& text = G.EventScript[e].Text[r.node][l];
        const std::string& reply = G.EventScript[e].Reply[r.node][l];
        EXPECT_LE(CodePointCount(text), 92) << e << "/" << r.node << ": " << text;
        EXPECT_LE(CodePointCount(reply), 76) << e << "/" << r.node << ": " << reply;
        for (const std::string* s : {&text, &reply})
          ForEachCell(*s, [&](int, int cell) { EXPECT_GE(cell, -1) << e << "/" << r.node << ": " << *s; });
      }
}

TEST_F(Scripts, EveryNodeHasItsPictureAndEveryPictureANode) {
  std::set<std::string> pictures, nodes;
  for (const assetgen::BitmapSpec& b : assetgen::Manifest()) {
    const std::string p = b.path;
    if (p.rfind("gfx/events/", 0) == 0 && p != "gfx/events/back.bmp") {
      pictures.insert(p);
      EXPECT_EQ(b.width, 640);
      EXPECT_EQ(b.height, 320);
    }
  }
  for (int e = 1; e <= 18; ++e)
    for (const NodeRule& r : EventRules(e))
      nodes.insert("gfx/events/" + std::to_string(e) + "/" + std::to_string(r.node) + ".bmp");
  EXPECT_EQ(pictures, nodes);
}

TEST_F(Scripts, TheTableIsWrittenAnewButTheLandersOreLineStandsUntilTheNextLaunch) {
  DefineEventTextAndTemplate();
  const std::string first = G.EventScript[4].Text[13][1];
  G.EventScript[4].Text[13][1] = "SPOILED";
  G.EventScript[4].ReplyStart[13][2] = 0;
  G.EventScript[13].Text[2][2] = "RESULTED IN EXTRACTION OF 12 OF ORE.";
  G.EventScript[13].Text[2][6] = "A LINE NO SCRIPT WRITES";
  DefineEventTextAndTemplate();
  EXPECT_EQ(G.EventScript[4].Text[13][1], first);
  EXPECT_EQ(G.EventScript[4].ReplyStart[13][2], 2);
  EXPECT_EQ(G.EventScript[13].Text[2][2], "RESULTED IN EXTRACTION OF 12 OF ORE.");
  EXPECT_EQ(G.EventScript[13].Text[2][6], "A LINE NO SCRIPT WRITES");
  EXPECT_EQ(G.EventScript[19].ReplyStart[1][1], 0);  // only 1..18 are written
}

}  // namespace
}  // namespace lf::test
