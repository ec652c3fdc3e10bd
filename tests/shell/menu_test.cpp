// Start-up, the menu's bands and entries, Resume into every screen, Load,
// New, and the ways out of the program.
#include "shell/menu.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "combat/combat_procedures.h"
#include "loop_fixture.h"
#include "shell/save_folder.h"
#include "shell/saved_games.h"

namespace lf::test {
namespace {

using Menu = LoopTest;

TEST_F(Menu, BandsAreLitByRowAndTheBordersLightNone) {
  struct Case {
    int y, entry;
  };
  for (auto [y, entry] :
       {Case{0, 0}, Case{119, 0}, Case{120, 0}, Case{121, 1}, Case{179, 1}, Case{180, 0}, Case{181, 2},
        Case{240, 0}, Case{300, 0}, Case{359, 4}, Case{420, 0}, Case{479, 6}, Case{480, 0}})
    EXPECT_EQ(MenuEntryAt(y), entry) << "row " << y;
}

TEST_F(Menu, StartUpPlaysTheLogoAndEntersTheMenu) {
  BeginProgram();
  ASSERT_GE(MediaLog().size(), 2u);
  EXPECT_EQ(MediaLog()[0].kind, MediaCall::Kind::Clip);
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Track, 2, 0, {}}));
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.NoGameRunning, True);
  EXPECT_EQ(G.TooltipsOn, True);
  EXPECT_EQ(ScreenDepth(), 1);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  const long before = host.presented;
  Frames(3);
  EXPECT_EQ(host.presented, before + 3);
}

TEST_F(Menu, APressBetweenTwoBandsDoesNothing) {
  BeginProgram();
  ClearMediaLog();
  host.Click(300, 180);
  Frames(2);
  EXPECT_TRUE(MediaLog().empty());
  EXPECT_EQ(TopScreen(), Screen::Menu);
}

TEST_F(Menu, ResumeBeforeAnyGameDoesNothingAndPlaysNoSound) {
  BeginProgram();
  ClearMediaLog();
  host.Click(300, BandY(2));
  Frames(3);
  EXPECT_TRUE(MediaLog().empty());
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(TopScreen(), Screen::Menu);
}

TEST_F(Menu, LoadBeforeAnyGameStartsANewOneWithoutTheOpeningPicture) {
  BeginProgram();
  ClearMediaLog();
  // Someone aboard: a bridge without crew is a lost game.
  G.CrewPost[1].Person = 1;
  G.CrewPost[1].Health = 100;
  host.Click(300, BandY(3));
  Frames(1);
  EXPECT_EQ(Sounds(4, 1), 1);
  EXPECT_EQ(G.LoadAfterStart, False);  // used by that start, and cleared
  EXPECT_EQ(G.ClickSeen, True);  // the opening picture would have waited for a new press
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  EXPECT_EQ(G.BridgeActive, True);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  Frames(2);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  EXPECT_EQ(G.NoGameRunning, False);
}

TEST_F(Menu, NewGameShowsTheOpeningPictureThenDocksAtTheStation) {
  BeginProgram();
  ClearMediaLog();
  host.Click(300, BandY(1));
  // Presses in the corner until the opening picture has gone (loading may
  // take frames of its own before it shows).
  for (int i = 0; i < 40; ++i) {
    host.Wait(2);
    host.Click(10, 10);
  }
  const long before = host.presented;
  Frames(1);
  EXPECT_GE(host.presented - before, 3);  // the picture stood for frames of its own
  EXPECT_EQ(Sounds(4, 1), 1);
  EXPECT_EQ(G.MenuActive, False);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
  Frames(3);
  EXPECT_EQ(TopScreen(), Screen::Station);
  EXPECT_EQ(ScreenDepth(), 1);
  EXPECT_EQ(G.StationActive, True);
  EXPECT_EQ(G.BridgeActive, False);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True);
  EXPECT_EQ(G.Cash, 50000);
}

TEST_F(Menu, EscapeThenResumeGoesBackToTheBridge) {
  OnBridge();
  Frames(1);
  host.Key(27);
  Frames(1);
  EXPECT_EQ(Sounds(2, 1), 1);
  EXPECT_EQ(Tracks(2), 1);
  EXPECT_EQ(ScreenDepth(), 2);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  EXPECT_EQ(ScreenAt(0), Screen::Bridge);
  host.Click(300, BandY(2));
  Frames(2);
  EXPECT_EQ(Tracks(4), 1);
  EXPECT_EQ(G.MenuActive, False);
  EXPECT_EQ(ScreenDepth(), 1);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

TEST_F(Menu, ResumeReturnsToAStationOrAnEventBeforeAnythingElse) {
  OnBridge();
  G.StatusSlot[DockedSlot].Active = True;
  G.StatusSlot[EventSlot].Active = True;
  G.MenuActive = True;
  Enter(DrawMainMenu);
  host.Click(300, BandY(2));
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Station);
  EXPECT_EQ(Tracks(3), 1);

  G.StatusSlot[DockedSlot].Active = False;
  G.EventActive = True;  // the event screen ran under the menu
  G.MenuActive = True;
  Enter(DrawMainMenu);
  host.Click(300, BandY(2));
  Frames(1);
  EXPECT_EQ(TopScreen(), Screen::Event);
}

TEST_F(Menu, EscapeDuringAFightThenResumeGoesOnWithTheFight) {
  OnBridge();
  Enter(d_FightLoop);
  ASSERT_EQ(G.FightActive, True);
  ASSERT_EQ(G.WeaponRack[3], 1);  // the beam of slot 1, in reach at touching range
  G.FightRange = 50;
  G.WeaponReload[3] = 10;
  Frames(1);
  host.Key(27);
  host.Wait(120);
  host.Click(300, BandY(2));
  Frames(1);
  ASSERT_EQ(TopScreen(), Screen::Menu);
  Frames(120);
  // The 1000 ms clock kept ticking behind the menu.
  EXPECT_EQ(G.WeaponReload[3], 8);
  Calls().clear();
  Frames(1);                                       // the Resume press
  EXPECT_EQ(Calls().front(), "d_CheckMouseDown");  // a menu press reaches the fight first
  EXPECT_EQ(G.BridgeActive, False);
  EXPECT_EQ(G.MenuActive, False);
  EXPECT_EQ(MediaLog().back(), (MediaCall{MediaCall::Kind::Track, 2, 0, {}}));
  Frames(1);
  EXPECT_EQ(ScreenDepth(), 1);
  EXPECT_EQ(TopScreen(), Screen::Fight);
  EXPECT_EQ(G.FightActive, True);
}

TEST_F(Menu, EscapeInTheMenuNestsAnotherAndResumeOverAFightLeavesBoth) {
  OnBridge();
  Enter(d_FightLoop);
  host.Key(27);
  host.Key(27);
  Frames(2);
  EXPECT_EQ(ScreenDepth(), 3);
  EXPECT_EQ(ScreenAt(1), Screen::Menu);
  EXPECT_EQ(ScreenAt(2), Screen::Menu);
  host.Click(300, BandY(2));
  Frames(2);
  EXPECT_EQ(ScreenDepth(), 1);
  EXPECT_EQ(TopScreen(), Screen::Fight);
}

TEST_F(Menu, IntroductionAndCreditsLeaveTheGameAlone) {
  OnBridge();
  Frames(1);
  host.Key(27);
  host.Click(300, BandY(4));
  host.Click(300, BandY(5));
  Frames(3);
  EXPECT_EQ(TopScreen(), Screen::Menu);
  EXPECT_EQ(G.MenuActive, True);
  EXPECT_EQ(G.BridgeActive, True);
  EXPECT_EQ(G.NoGameRunning, False);
  int clips = 0, stops = 0;
  for (const auto& c : MediaLog()) {
    clips += c.kind == MediaCall::Kind::Clip;
    stops += c.kind == MediaCall::Kind::StopTrack;
  }
  EXPECT_EQ(clips, 2);
  EXPECT_EQ(stops, 2);
  host.Click(300, BandY(2));
  Frames(2);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

// A save folder of the test's own, emptied before and after.
struct ScratchSaveFolder {
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("lanefarer_menu_save_" + std::to_string(::getpid()));
  std::string before = SaveFolder();
  ScratchSaveFolder() {
    std::filesystem::remove_all(dir);
    SetSaveFolder((dir / "save").string());
  }
  ~ScratchSaveFolder() {
    SetSaveFolder(before);
    std::filesystem::remove_all(dir);
  }
};

TEST_F(Menu, LoadDuringAGameReturnsToTheBridge) {
  ScratchSaveFolder folder;
  OnBridge();
  SaveGame();
  G.MessagePending = False;
  G.StatusSlot[DockedSlot].Active = True;
  G.BridgeActive = False;
  G.StationActive = True;
  G.MenuActive = True;
  Enter(DrawMainMenu);
  host.Click(300, BandY(3));
  Frames(1);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, False);
  EXPECT_EQ(G.BridgeActive, True);
  EXPECT_EQ(G.MenuActive, False);
  EXPECT_EQ(G.FightActive, False);
  EXPECT_EQ(G.ProgressMode, 0);
  EXPECT_EQ(G.LoadAfterStart, False);
  EXPECT_EQ(Tracks(4), 1);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

TEST_F(Menu, LoadDuringAGameOfADamagedPositionStaysWhereTheGameStood) {
  ScratchSaveFolder folder;
  std::filesystem::create_directories(folder.dir / "save");  // a position with no files
  OnBridge();
  G.StatusSlot[DockedSlot].Active = True;
  G.BridgeActive = False;
  G.StationActive = True;
  G.MenuActive = True;
  Enter(DrawMainMenu);
  host.Click(300, BandY(3));
  Frames(1);
  EXPECT_EQ(G.StatusSlot[DockedSlot].Active, True);
  EXPECT_EQ(G.StationActive, True);
  EXPECT_EQ(G.BridgeActive, False);
  EXPECT_EQ(G.MenuActive, False);
  EXPECT_EQ(TopScreen(), Screen::Station);
}

TEST_F(Menu, ExitAndClosingTheWindowEndTheProgram) {
  host.Wait(2);
  host.Click(300, BandY(6));
  EXPECT_EQ(RunProgram(), 0);
  EXPECT_EQ(MediaLog().back().kind, MediaCall::Kind::StopTrack);

  ResetGame();
  host.CloseWindow();
  EXPECT_EQ(RunProgram(), 0);
}

}  // namespace
}  // namespace lf::test
