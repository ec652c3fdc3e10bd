#include <gtest/gtest.h>

#include "platform/script.h"

namespace lf {
namespace {

using Kind = ScriptCommand::Kind;

TEST(ScriptParser, ReadsEveryCommandSkippingCommentsAndBlankLines) {
  const auto cmds = ParseScript(
      "# a scenario\n"
      "\n"
      "frames 10\n"
      "  click 0 479   # bottom-left corner\n"
      "rclick 639 0\r\n"
      "\tmove 320 240\n"
      "key 27\n"
      "key 40\n"
      "shot out/a.png\n"
      "dump state.json\n"
      "restore /tmp/in.json\n"
      "frames 0\n"
      "quit\n"
      "   \n"
      "#");
  ASSERT_EQ(cmds.size(), 11u);
  EXPECT_EQ(cmds[0].kind, Kind::Frames);
  EXPECT_EQ(cmds[0].count, 10);
  EXPECT_EQ(cmds[0].line, 3);
  EXPECT_EQ(cmds[1].kind, Kind::Click);
  EXPECT_EQ(cmds[1].x, 0);
  EXPECT_EQ(cmds[1].y, 479);
  EXPECT_EQ(cmds[1].line, 4);
  EXPECT_EQ(cmds[2].kind, Kind::RClick);
  EXPECT_EQ(cmds[2].x, 639);
  EXPECT_EQ(cmds[3].kind, Kind::Move);
  EXPECT_EQ(cmds[3].y, 240);
  EXPECT_EQ(cmds[4].key, 27);
  EXPECT_EQ(cmds[5].key, 40);
  EXPECT_EQ(cmds[6].kind, Kind::Shot);
  EXPECT_EQ(cmds[6].file, "out/a.png");
  EXPECT_EQ(cmds[7].kind, Kind::Dump);
  EXPECT_EQ(cmds[8].kind, Kind::Restore);
  EXPECT_EQ(cmds[8].file, "/tmp/in.json");
  EXPECT_EQ(cmds[9].count, 0);
  EXPECT_EQ(cmds[10].kind, Kind::Quit);
  EXPECT_EQ(cmds[10].line, 13);
}

TEST(ScriptParser, EmptyScriptHasNoCommands) {
  EXPECT_TRUE(ParseScript("").empty());
  EXPECT_TRUE(ParseScript("# nothing\n\n").empty());
}

std::string ErrorOf(const std::string& text) {
  try {
    ParseScript(text);
  } catch (const ScriptError& e) {
    return e.Message();
  }
  return "(no error)";
}

TEST(ScriptParser, NamesTheLineAndWhatIsWrong) {
  // Unknown commands; names are case-sensitive.
  EXPECT_EQ(ErrorOf("frames 1\n\njump 3\n"), "script:3: unknown command \"jump\"");
  EXPECT_EQ(ErrorOf("Frames 1"), "script:1: unknown command \"Frames\"");
  // Wrong argument counts.
  EXPECT_EQ(ErrorOf("frames"), "script:1: expected \"frames N\" (1 argument, got 0)");
  EXPECT_EQ(ErrorOf("# c\nclick 5"), "script:2: expected \"click X Y\" (2 arguments, got 1)");
  EXPECT_EQ(ErrorOf("move 1 2 3"), "script:1: expected \"move X Y\" (2 arguments, got 3)");
  EXPECT_EQ(ErrorOf("quit now"), "script:1: expected \"quit\" (0 arguments, got 1)");
  EXPECT_EQ(ErrorOf("dump a b"), "script:1: expected \"dump FILE\" (1 argument, got 2)");
  // Not numbers.
  EXPECT_EQ(ErrorOf("frames ten"), "script:1: frame count \"ten\" is not a number");
  EXPECT_EQ(ErrorOf("frames 1.5"), "script:1: frame count \"1.5\" is not a number");
  EXPECT_EQ(ErrorOf("click 10 2x"), "script:1: y \"2x\" is not a number");
  EXPECT_EQ(ErrorOf("rclick +3 4"), "script:1: x \"+3\" is not a number");
  // Out of range: the screen is 640x480, frames are not negative.
  EXPECT_EQ(ErrorOf("click 640 0"), "script:1: x 640 is out of range 0..639");
  EXPECT_EQ(ErrorOf("move 0 480"), "script:1: y 480 is out of range 0..479");
  EXPECT_EQ(ErrorOf("click -1 0"), "script:1: x -1 is out of range 0..639");
  EXPECT_EQ(ErrorOf("frames -1"), "script:1: frame count -1 is out of range 0..1000000000");
  EXPECT_EQ(ErrorOf("frames 99999999999999999999"),
            "script:1: frame count 99999999999999999999 is out of range 0..1000000000");
  EXPECT_EQ(ErrorOf("key 13"),
            "script:1: key code 13 is not one of 27 (Escape), 37 (Left), 38 (Up), 39 (Right), 40 (Down), 123 (F12)");
  EXPECT_EQ(ErrorOf("key 300"), "script:1: key code 300 is out of range 0..255");
  EXPECT_EQ(ErrorOf("seed -1"), "script:1: seed \"-1\" is not a number");
  EXPECT_EQ(ErrorOf("seed 18446744073709551616"), "script:1: seed \"18446744073709551616\" is not a number");
  EXPECT_EQ(ParseScript("seed 18446744073709551615").at(0).seed, 18446744073709551615ull);
}

TEST(ScriptParser, ReportsTheFirstBadLine) {
  EXPECT_EQ(ErrorOf("frames 1\nfoo\nbar\n"), "script:2: unknown command \"foo\"");
  // Line numbers count comment and blank lines, and CRLF endings.
  EXPECT_EQ(ErrorOf("# x\r\n\r\nframes 1\r\nkey 1\r\n"),
            "script:4: key code 1 is not one of 27 (Escape), 37 (Left), 38 (Up), 39 (Right), 40 (Down), 123 (F12)");
}

}  // namespace
}  // namespace lf
