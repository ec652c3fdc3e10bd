#include <set>

#include "display/bitmap_catalog.h"
#include "display/bitmap_sets.h"
#include "display_fixture.h"

namespace lf::test {
namespace {

class BitmapSetsTest : public DisplayTest {
 protected:
  // Puts a 1x1 picture in the data folder for every file of the set; the
  // progress display's two pictures at the size it draws them.
  void Provide(const BitmapSet& set) {
    for (const BitmapFile& f : set) {
      if (std::filesystem::exists(DataPath(f.Path))) continue;
      const bool loading = f.Path.rfind(R"(\gfx\loading\)", 0) == 0;
      WriteSolid(f.Path, loading ? 640 : 1, loading ? 480 : 1, 0x808080);
    }
  }
  // Loads with verbose reports captured: any file outside what was
  // provided shows up as a report.
  std::string Reports(void (*load)()) {
    SetVerbose(true);
    ::testing::internal::CaptureStderr();
    load();
    return ::testing::internal::GetCapturedStderr();
  }
  static int CountLoaded(const BitmapSet& set) {
    int n = 0;
    for (const BitmapFile& f : set) n += f.Handle->Loaded() ? 1 : 0;
    return n;
  }
};

TEST_F(BitmapSetsTest, EachSetHasItsSizeAndNoHandleTwice) {
  struct Expect {
    const char* name;
    BitmapSet set;
    std::size_t size;
  };
  const Expect sets[] = {
      {"menu", MenuSet(GFX), 16},          {"kept", KeptSet(GFX), 26},
      {"bridge", BridgeSet(GFX), 191},     {"station", StationSet(GFX, 1), 21},
      {"fight", FightSetFixed(GFX), 23},
  };
  for (const Expect& e : sets) {
    EXPECT_EQ(e.set.size(), e.size) << e.name;
    std::set<const Bitmap*> handles;
    for (const BitmapFile& f : e.set) {
      EXPECT_TRUE(handles.insert(f.Handle).second) << e.name << ": two files into one handle at " << f.Path;
      EXPECT_EQ(f.Path.rfind(R"(\gfx\)", 0), 0u) << f.Path;
      EXPECT_EQ(f.Path.substr(f.Path.size() - 4), ".bmp") << f.Path;
    }
  }
  // The blank plates each load "\gfx\bb.bmp" into a handle of their own.
  int plates = 0;
  for (const BitmapFile& f : BridgeSet(GFX)) plates += f.Path == R"(\gfx\bb.bmp)";
  EXPECT_EQ(plates, 15);
}

TEST_F(BitmapSetsTest, BridgeSetLoadsExactlyItsFilesAndUnloadKeepsCursorFontAndBar) {
  const BitmapSet bridge = BridgeSet(GFX);
  Provide(bridge);
  G.ProgressMode = 1;
  const std::string reports = Reports(LoadMainBitmaps);
  EXPECT_EQ(reports, "") << "a file outside the set was asked for";
  EXPECT_EQ(G.ProgressCount, 191);
  EXPECT_EQ(CountLoaded(bridge), 191);
  EXPECT_GT(host_.presented, 0) << "the bar moved";
  EXPECT_TRUE(GFX.ButtonPicture[3][8].Loaded());
  EXPECT_TRUE(GFX.ButtonPicture[4][5].Loaded()) << "a blank plate";
  EXPECT_FALSE(GFX.ButtonPicture[5][9].Loaded()) << "not present, no sheet";

  UnloadMainBitmaps();
  for (const BitmapFile& f : bridge)
    EXPECT_EQ(f.Handle->Loaded(), StaysThroughUnload(GFX, f.Handle)) << f.Path;
  EXPECT_TRUE(GFX.CursorBitmap.Loaded());
  EXPECT_TRUE(GFX.FontSml.Loaded());
  EXPECT_TRUE(GFX.ProgressBarPicture.Loaded());
  EXPECT_FALSE(GFX.Back2.Loaded());
}

TEST_F(BitmapSetsTest, StationSetTakesTheQuadrantsTerminalAndOpensTheTerminal) {
  G.CurrentQuadrant = 3;
  const BitmapSet station = StationSet(GFX, 3);
  Provide(station);
  EXPECT_TRUE(std::filesystem::exists(DataPath(R"(\gfx\station\a_backs\terminal_3.bmp)")));
  G.ProgressMode = 2;
  EXPECT_EQ(Reports(a_LoadStationBitmaps), "");
  EXPECT_EQ(G.ProgressCount, 21);
  EXPECT_EQ(CountLoaded(station), 21);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Value, 1);

  GFX.NewsBitmap = LoadBitmapIntoDXS(R"(\gfx\station\a_fonts\ocr.bmp)");
  UnloadStationBitmaps();
  for (const BitmapFile& f : station)
    EXPECT_EQ(f.Handle->Loaded(), f.Handle == &GFX.ProgressBarPicture) << f.Path;
  EXPECT_FALSE(GFX.NewsBitmap.Loaded());
}

TEST_F(BitmapSetsTest, MenuAndKeptSetsLoadExactlyTheirFiles) {
  Provide(MenuSet(GFX));
  EXPECT_EQ(Reports(LoadMenuBitmaps), "");
  EXPECT_EQ(G.ProgressCount, 16);
  EXPECT_EQ(CountLoaded(MenuSet(GFX)), 16);
  EXPECT_TRUE(GFX.FullPicture[8].Loaded());

  G.ProgressCount = 0;
  Provide(KeptSet(GFX));
  EXPECT_EQ(Reports(LoadKeptBitmaps), "");
  EXPECT_EQ(G.ProgressCount, 26);
  EXPECT_TRUE(GFX.PlanetBitmap[101].Loaded());
  EXPECT_TRUE(GFX.PlanetIcon[11].Loaded());

  Kraj();
  EXPECT_EQ(CountLoaded(MenuSet(GFX)) + CountLoaded(KeptSet(GFX)), 0);
}

TEST_F(BitmapSetsTest, EveryPathOnceAndEverySetInIt) {
  const std::vector<std::string> all = AllBitmapPaths();
  const std::set<std::string> unique(all.begin(), all.end());
  EXPECT_EQ(unique.size(), all.size());
  std::vector<BitmapSet> sets = {MenuSet(GFX), KeptSet(GFX), BridgeSet(GFX), FightSetFixed(GFX)};
  for (int q = 1; q <= 4; ++q) sets.push_back(StationSet(GFX, q));
  for (const BitmapSet& s : sets)
    for (const BitmapFile& f : s) EXPECT_TRUE(unique.count(f.Path)) << f.Path;
  for (const char* p : {R"(\gfx\orbits\10_0_4.bmp)", R"(\gfx\orbits\1_3.bmp)", R"(\gfx\hail\oship_19_5.bmp)",
                        R"(\gfx\events\10\19.bmp)", R"(\gfx\events\2\17.bmp)", R"(\gfx\faces\144.bmp)",
                        R"(\gfx\faces\hero_2.bmp)", R"(\gfx\station\comps\7_10.bmp)",
                        R"(\gfx\station\comps\10_7_5.bmp)", R"(\gfx\fight\oship\6_4.bmp)",
                        R"(\gfx\fight\wpns\r_11.bmp)", R"(\gfx\station\a_backs\mercenary.bmp)"})
    EXPECT_TRUE(unique.count(p)) << p;
  // Nodes that no event has.
  EXPECT_FALSE(unique.count(R"(\gfx\events\1\11.bmp)"));
  EXPECT_FALSE(unique.count(R"(\gfx\events\2\13.bmp)"));
}

TEST_F(BitmapSetsTest, OrbitPictureOfTheLastBodyInReach) {
  // Body 1: a station on a type 4 body right under the ship; body 2: a plain
  // type 7 body 50 units off with reach 58; body 3 exactly at its reach.
  G.CurrentQuadrant = 2;
  G.PlanetCount = 3;
  G.ShipX = 1000;
  G.ShipY = 1000;
  G.Planet[1].X = 1000; G.Planet[1].Y = 1000; G.Planet[1].Type = 4; G.Planet[1].HasStation = 1; G.Planet[1].Width = 64;
  G.Planet[2].X = 1030; G.Planet[2].Y = 1040; G.Planet[2].Type = 7; G.Planet[2].Width = 58;
  G.Planet[3].X = 1000; G.Planet[3].Y = 1045; G.Planet[3].Type = 9; G.Planet[3].Width = 45;
  WriteSolid(R"(\gfx\orbits\4_0_2.bmp)", 4, 4, 0x00FF00);
  for (int r = 1; r <= 3; ++r) WriteSolid(R"(\gfx\orbits\7_)" + std::to_string(r) + ".bmp", 10 + r, 1, 0xFF);

  SetVerbose(true);
  ::testing::internal::CaptureStderr();
  LoadOrbitPic();
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << "body 3 is not in reach";
  ASSERT_TRUE(GFX.OrbitPicture.Loaded());
  EXPECT_GE(GFX.OrbitPicture.Width(), 11);
  EXPECT_LE(GFX.OrbitPicture.Width(), 13);
  EXPECT_EQ(G.ProgressCount, 2) << "both bodies in reach were loaded";

  G.PlanetCount = 1;
  LoadOrbitPic();
  EXPECT_EQ(GFX.OrbitPicture.Width(), 4);
}

TEST_F(BitmapSetsTest, HailPictureOfTheHailedShipsClass) {
  for (int r = 1; r <= 5; ++r) WriteSolid(R"(\gfx\hail\oship_12_)" + std::to_string(r) + ".bmp", r, 1, 0xFF);
  G.HailedShip = 3;
  G.OtherShip[3].ShipClass = 12;
  std::set<int> seen;
  for (int i = 0; i < 60; ++i) {
    LoadOShipOSidePic();
    ASSERT_TRUE(GFX.HailPicture.Loaded());
    seen.insert(GFX.HailPicture.Width());
  }
  EXPECT_EQ(seen, (std::set<int>{1, 2, 3, 4, 5}));

  // A hailed ship outside the table: the statement is skipped.
  G.HailedShip = 501;
  LoadOShipOSidePic();
  EXPECT_TRUE(GFX.HailPicture.Loaded());
}

TEST_F(BitmapSetsTest, SensorRingByRange) {
  WriteSolid(R"(\gfx\srange_small.bmp)", 7, 1, 0xFF);
  GFX.SensorRing[4] = LoadBitmapIntoDXS(R"(\gfx\srange_small.bmp)");
  EXPECT_EQ(SensorRingFor(50).Width(), 7);
  EXPECT_FALSE(SensorRingFor(120).Loaded());
  EXPECT_FALSE(SensorRingFor(60).Loaded());
}

}  // namespace
}  // namespace lf::test
