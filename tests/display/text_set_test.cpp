#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "display/text_set.h"

namespace lf {
namespace {

TEST(TextSet, CellsArePositionLessTwo) {
  EXPECT_EQ(TextCell(U'1'), 0);
  EXPECT_EQ(TextCell(U'0'), 9);
  EXPECT_EQ(TextCell(U'A'), 10);
  EXPECT_EQ(TextCell(U'Z'), 35);
  EXPECT_EQ(TextCell(U'.'), 36);
  EXPECT_EQ(TextCell(U'%'), 44);
  EXPECT_EQ(TextCell(U'\u0160'), 45);  // the credit sign, 47th in the set
  EXPECT_EQ(TextCell(U'+'), 46);
  EXPECT_EQ(TextCell(U'/'), 48);
}

TEST(TextSet, CaseIsIgnoredAndOthersDrawNothing) {
  EXPECT_EQ(TextCell(U'q'), TextCell(U'Q'));
  EXPECT_EQ(TextCell(U'\u0161'), 45);
  EXPECT_EQ(TextCell(U' '), -1);
  for (char32_t c : {U'_', U'#', U'\'', U'\u00E9', U'\U00010053', U'\0'}) EXPECT_LT(TextCell(c), -1) << int(c);
}

TEST(TextSet, Utf8IsWalkedByCharacter) {
  const std::string price = "\u0160" "100 cr";
  EXPECT_EQ(CodePointCount(price), 7);
  std::vector<int> cells;
  ForEachCell(price, [&](int k, int cell) {
    EXPECT_EQ(k, static_cast<int>(cells.size()) + 1);
    cells.push_back(cell);
  });
  EXPECT_EQ(cells, (std::vector<int>{45, 0, 9, 9, -1, TextCell(U'C'), TextCell(U'R')}));
  EXPECT_EQ(FirstCodePoint("\u0160X"), U'\u0160');
  EXPECT_EQ(FirstCodePoint(""), 0U);

  // A broken sequence reads byte by byte and draws nothing.
  const std::string broken = "A\xC5";
  EXPECT_EQ(CodePointCount(broken), 2);
  EXPECT_EQ(CodePointCount("\xC5" "A"), 2);
  std::size_t i = 1;
  EXPECT_LT(TextCell(NextCodePoint(broken, i)), -1);
}

}  // namespace
}  // namespace lf
