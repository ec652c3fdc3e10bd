// The generator's manifest against what the game can load: every picture
// the game names is generated, and the generator writes nothing the game
// never reads.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include "display/bitmap_catalog.h"
#include "manifest.h"
#include "shell/paths.h"

namespace {

// "\gfx\Main\0.bmp" -> "gfx/main/0.bmp", as the data folder holds it.
std::string OnDisk(const std::string& gamePath) {
  lf::SetDataFolder("");
  std::string p = lf::DataPath(gamePath);
  p.erase(0, p.find_first_not_of('/'));
  return p;
}

TEST(ManifestAgainstGame, EveryPictureTheGameCanLoadIsGenerated) {
  std::set<std::string> generated;
  for (const auto& b : assetgen::Manifest()) generated.insert(b.path);
  std::set<std::string> wanted;
  for (const std::string& p : lf::AllBitmapPaths()) wanted.insert(OnDisk(p));
  ASSERT_GT(wanted.size(), 500u);
  for (const std::string& p : wanted) EXPECT_TRUE(generated.count(p)) << "not generated: " << p;
  for (const std::string& p : generated) EXPECT_TRUE(wanted.count(p)) << "generated but never read: " << p;
  lf::SetDataFolder("data");
}

}  // namespace
