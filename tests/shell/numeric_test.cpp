#include <gtest/gtest.h>

#include "shell/game_state.h"
#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {
namespace {

TEST(Rounding, CIntRoundsHalfToEven) {
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(-3.5), -4);
  EXPECT_EQ(CInt(0.5), 0);
  EXPECT_EQ(CInt(1.4999), 1);
}

TEST(Rounding, IntFloorsAndFracIsWhatIsLeft) {
  EXPECT_EQ(Int(-0.5), -1);
  EXPECT_EQ(Int(-1.0), -1);
  EXPECT_EQ(Int(2.999), 2);
  EXPECT_DOUBLE_EQ(Frac(-0.25), 0.75);
  EXPECT_DOUBLE_EQ(Frac(3.25), 0.25);
  EXPECT_EQ(IntText(49999.99), "49999");
  EXPECT_EQ(IntText(-0.5), "-1");
}

TEST(Assignment, SixteenBitOverflowIsSkipped) {
  std::int16_t v = 7;
  EXPECT_FALSE(Assign(v, 32768.0));
  EXPECT_EQ(v, 7);
  EXPECT_FALSE(Assign(v, -32769.0));
  EXPECT_EQ(v, 7);
  EXPECT_TRUE(Assign(v, 32766.5));  // rounds to even, 32766, fits
  EXPECT_EQ(v, 32766);
  EXPECT_TRUE(Assign(v, 32767.4));
  EXPECT_EQ(v, 32767);
  EXPECT_FALSE(Assign(v, 32767.5));  // rounds to 32768
  EXPECT_FALSE(Assign(v, std::nan("")));
}

// The largest 64-bit values have no exact double: the bound itself must
// not slip through to a conversion that overflows.
TEST(Assignment, SixtyFourBitBoundsAreExact) {
  std::int64_t s = 7;
  EXPECT_FALSE(Assign(s, 9223372036854775808.0));  // 2^63
  EXPECT_EQ(s, 7);
  EXPECT_TRUE(Assign(s, 9223372036854774784.0));  // the largest double below it
  EXPECT_EQ(s, 9223372036854774784LL);
  EXPECT_TRUE(Assign(s, -9223372036854775808.0));
  EXPECT_EQ(s, INT64_MIN);
  std::uint64_t u = 7;
  EXPECT_FALSE(Assign(u, 18446744073709551616.0));  // 2^64
  EXPECT_FALSE(Assign(u, -1.0));
  EXPECT_EQ(u, 7u);
  EXPECT_TRUE(Assign(u, 18446744073709549568.0));
  EXPECT_EQ(u, 18446744073709549568ull);
  std::uint8_t b = 7;
  EXPECT_FALSE(Assign(b, 256.0));
  EXPECT_TRUE(Assign(b, 255.0));
  EXPECT_EQ(b, 255);
}

TEST(Tables, IndexOutOfBoundsChangesNothing) {
  Table<int, 5> t{};
  t[5] = 3;
  Skip([&] { t[6] = 9; });
  Skip([&] { t[-1] = 9; });
  EXPECT_EQ(t[5], 3);
  int sum = 0;
  for (int x : t) sum += x;
  EXPECT_EQ(sum, 3);
  // A failed statement is skipped as a whole: the read fails before the write.
  int target = 11;
  Skip([&] { target = t[40]; });
  EXPECT_EQ(target, 11);
}

TEST(Random, SameSeedSameSequenceAndRangeHolds) {
  RandomState a, b;
  SeedRandom(a, 42);
  SeedRandom(b, 42);
  for (int i = 0; i < 1000; ++i) {
    const double x = NextRandom(a);
    EXPECT_EQ(x, NextRandom(b));
    ASSERT_GE(x, 0.0);
    ASSERT_LT(x, 1.0);
  }
  ResetGame();
  SeedRandom(G.Random, 7);
  int counts[7] = {};
  for (int i = 0; i < 6000; ++i) {
    const int r = RandomInt(6);
    ASSERT_GE(r, 1);
    ASSERT_LE(r, 6);
    counts[r]++;
  }
  for (int r = 1; r <= 6; ++r) EXPECT_GT(counts[r], 800);
}

}  // namespace
}  // namespace lf
