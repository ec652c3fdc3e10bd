// The saved position: the files' text, the round trip through them, damaged
// files, and saves broken off at every step.
#include <gtest/gtest.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "shell/bridge_click.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/save_folder.h"
#include "shell/save_layout.h"
#include "shell/save_store.h"
#include "shell/save_text.h"
#include "shell/saved_games.h"
#include "shell/state_json.h"
#include "universe/bridge_buttons.h"
#include "loop_fixture.h"

namespace lf::test {
namespace {

namespace fs = std::filesystem;

// Every test of the binary that reaches a save (a click that lands on the
// save button, a Load from the menu) uses a folder of its own, never the
// working folder, so no position leaks from one test into another.
// Each test starts with the folder empty.
class ScratchSaves : public ::testing::Environment {
 public:
  void SetUp() override {
    fs::remove_all(Dir());
    SetSaveFolder((Dir() / "save").string());
    ::testing::UnitTest::GetInstance()->listeners().Append(new Emptier);
  }
  void TearDown() override { fs::remove_all(Dir()); }

 private:
  static fs::path Dir() {
    return fs::temp_directory_path() / ("lanefarer_test_saves_" + std::to_string(::getpid()));
  }
  struct Emptier : ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override { fs::remove_all(Dir()); }
  };
};
[[maybe_unused]] const auto* const kScratchSaves = ::testing::AddGlobalTestEnvironment(new ScratchSaves);

// --- The field text ---

TEST(SaveText, RealsReadBackToTheSameValue) {
  const double values[] = {0.1, -0.1, 1.0 / 3.0, 1e-300, 123456789012345.0, 2500.75, -0.0, 5e20};
  SaveWriter w;
  for (double v : values) {
    w.R(v);
    w.End();
  }
  EXPECT_EQ(w.Text().substr(0, 5), "0.1\r\n");  // a time step of 0.1 is written as such
  SaveReader r(w.Text());
  for (double v : values) {
    double back = 7;
    r.R(back);
    EXPECT_EQ(back, v);
  }
}

TEST(SaveText, FieldsRunAcrossCommasAndLineEnds) {
  SaveReader r("3, 4\r\n#TRUE#,\"A, B\",,\n\"open quote\n-7");
  std::int16_t a = 0, b = 0, d = 0;
  Flag f = False;
  std::string s, open;
  double empty = 9;
  r.I16(a);
  r.I16(b);
  r.F(f);
  r.S(s);
  r.R(empty);
  double lineEnd = 9;
  r.R(lineEnd);  // the comma before a line end leaves an empty field
  r.S(open);
  r.I16(d);
  EXPECT_EQ(a, 3);
  EXPECT_EQ(b, 4);
  EXPECT_EQ(f, True);
  EXPECT_EQ(s, "A, B");
  EXPECT_EQ(empty, 0);
  EXPECT_EQ(lineEnd, 0);
  EXPECT_EQ(open, "open quote");
  EXPECT_EQ(d, -7);
  EXPECT_THROW(r.I16(d), SaveFormatError);  // nothing left
}

TEST(SaveText, RefusesWhatDoesNotFitItsField) {
  std::int16_t i = 0;
  std::int32_t l = 0;
  double d = 0;
  Flag f = False;
  EXPECT_THROW(SaveReader("40000").I16(i), SaveFormatError);
  EXPECT_THROW(SaveReader("3000000000").L32(l), SaveFormatError);
  EXPECT_THROW(SaveReader("12abc").I16(i), SaveFormatError);
  EXPECT_THROW(SaveReader("\"12\"").R(d), SaveFormatError);
  EXPECT_THROW(SaveReader("nan").R(d), SaveFormatError);
  EXPECT_THROW(SaveReader("#MAYBE#").F(f), SaveFormatError);
  EXPECT_THROW(SaveReader("").I16(i), SaveFormatError);
  EXPECT_EQ(i, 0);
  SaveReader("2.5").I16(i);  // rounds as the game's conversions do
  EXPECT_EQ(i, 2);
}

TEST(SaveText, StringsKeepTheFileParseable) {
  SaveWriter w;
  w.S("SAY \"HI\"\r\nNOW");
  w.I16(5);
  w.End();
  SaveReader r(w.Text());
  std::string s;
  std::int16_t n = 0;
  r.S(s);
  r.I16(n);
  EXPECT_EQ(s, "SAY 'HI'  NOW");
  EXPECT_EQ(n, 5);
}

// --- The position ---

class SavedGame : public LoopTest {
 protected:
  fs::path dir;
  std::string before = SaveFolder();
  void SetUp() override {
    LoopTest::SetUp();
    dir = fs::temp_directory_path() /
          ("lanefarer_saves_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
           "_" + std::to_string(::getpid()));
    fs::remove_all(dir);
    fs::create_directories(dir);
    SetSaveFolder((dir / "save").string());
    InjectSaveFault(-1, 0);
    OnBridge();
    Populate();
  }
  void TearDown() override {
    InjectSaveFault(-1, 0);
    SetSaveFolder(before);
    fs::remove_all(dir);
    LoopTest::TearDown();
  }

  // A position with something in every file.
  static void Populate() {
    G.CurrentQuadrant = 3;
    G.HullRace = 2;
    G.HullClass = 4;
    G.StoryStage[4] = True;
    G.TranslatorOwned[7] = True;
    G.LoanActive = True;
    G.LoanMonthsLeft = -2;
    G.LoanDue = 123456;
    G.GuildMember[2] = True;
    G.ShipStepX = 0.3;
    G.ShipStepY = -1.0 / 7.0;
    G.ViewX = 1234.5;
    G.ViewY = 321;
    G.RaceRelation[7] = -12;
    G.Cash = 50000.25;
    G.Reputation = -3.5;
    G.GameHours = 1000.0 / 3.0;
    G.StarLaneKnown = True;
    G.NebulaCount = 3;
    G.AsteroidFieldCount = 2;
    G.PlanetCount = 40;
    G.PlanetNames[350] = "LAST ONE";
    G.StarLaneX = 70000;
    G.StarLaneY = -5;
    G.Debris[50].X = 4000;
    G.Debris[50].Visible = True;
    G.CargoPod[1].Virus = True;
    for (int i = 1; i <= 40; ++i) {
      G.Planet[i].X = i * 101.5;
      G.Planet[i].Race = static_cast<std::int16_t>(i % 7);
      G.Planet[i].HasStation = i % 3 == 0 ? -1 : 0;
      G.Planet[i].Picture = i % 26;
    }
    G.Planet[250].Marker = True;
    G.Nebula[2].Kind = 2;
    G.AsteroidField[2].Y = 77.25;
    G.ShrikeMissile = True;
    G.BlackDecoder = True;
    G.UpgradeJob[20].Progress = 0.45;
    G.UpgradeJob[20].Active = True;
    G.BridgeButton[6][15].State = 3;
    G.BridgeButton[6][15].Present = True;
    G.CrewPost[6].SalaryDue = True;
    G.CrewPost[6].SalaryBalance = -400;
    G.HullPoints = 99.5;
    G.FittedHealth[20] = 55.5;
    G.AmmoLeft[20] = 12;
    G.TreatmentAlloc[6] = 40;
    G.Cargo[14] = 9;
    G.SparePower = 0.1;
    G.UnfittedComp[4][2] = 5;
    G.Character[144].Name = "ZED QUIRK";
    G.Character[144].Salary = 900;
    G.OtherShipCount = 3;
    G.OtherShip[3].X = 17.125;
    G.OtherShip[3].WantsTrade = True;
    G.OtherShip[3].HomeY = -40;
    G.LoanMonthMarked = True;
    G.Missions[500].Title = "CARRY THE, \"GOODS\"";
    G.Missions[500].NavY[3] = -100000;
    G.Missions[1].Reward = 2000000;
    G.ActiveMission[2] = 500;
    G.MissionProgress[2] = 3;
  }

  // What the files hold, as the JSON dump of the saved fields.
  static nlohmann::ordered_json SavedFields(Game& g) {
    Game copy;
    const auto texts = WritePosition(g);
    EXPECT_EQ(ReadPosition(copy, texts), "");
    return DumpState(copy);
  }

  void WriteFile(const std::string& name, const std::string& text) {
    std::ofstream(dir / "save" / name, std::ios::binary) << text;
  }
  std::string ReadFile(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
  }
};

TEST_F(SavedGame, FilesHoldTheirLinesInOrder) {
  const auto texts = WritePosition(G);
  auto lines = [](const std::string& t) {
    int n = 0;
    for (std::size_t p = t.find("\r\n"); p != std::string::npos; p = t.find("\r\n", p + 2)) ++n;
    return n;
  };
  const int expected[] = {55, 353, 51, 250, 13, 80, 270, 42, 8, 100, 22, 19, 576, 13004, 1 + 3 * 17, 250};
  for (int f = 0; f < kSaveFileCount; ++f) EXPECT_EQ(lines(texts[f]), expected[f]) << kSaveFileNames[f];
  // general.sav starts with the quadrant and the hull, and ends with the
  // two reserved numbers and the star lane flag.
  EXPECT_EQ(texts[0].substr(0, 8), "3\r\n2,4\r\n");
  EXPECT_NE(texts[0].find("\r\n0\r\n1\r\n#TRUE#\r\n"), std::string::npos);
  EXPECT_EQ(texts[2].substr(0, 11), "70000,-5\r\n0");
  EXPECT_NE(texts[15].find("-1,3\r\n"), std::string::npos);  // body 3: a station of race 3
}

TEST_F(SavedGame, SaveLoadSaveIsByteIdentical) {
  SaveGame();
  EXPECT_EQ(G.PromptLine[2], "GAME POSITION SAVED!");
  EXPECT_EQ(G.MessagePending, True);
  PositionTexts first;
  ASSERT_EQ(FetchPosition(SaveFolder(), first), "");
  const auto before = SavedFields(G);

  ResetGame();
  ASSERT_TRUE(LoadGame());
  EXPECT_EQ(G.PromptLine[2], "POSITION LOADED!");
  EXPECT_EQ(G.OrbitState, 0);
  EXPECT_EQ(G.TimeStep, 0.1);
  EXPECT_EQ(SavedFields(G), before);

  SaveGame();
  PositionTexts second;
  ASSERT_EQ(FetchPosition(SaveFolder(), second), "");
  for (int f = 0; f < kSaveFileCount; ++f) EXPECT_EQ(first[f], second[f]) << kSaveFileNames[f];
}

TEST_F(SavedGame, TheSciencePagesSaveButtonSavesAndNotInOrbit) {
  FillBridgeButtons();
  G.PageOpen[5] = 1;
  host.cursorX = 348;
  host.cursorY = 372;
  CheckBridgeMouseDown(1);
  EXPECT_EQ(G.PromptLine[2], "GAME POSITION SAVED!");
  EXPECT_TRUE(fs::exists(dir / "save" / "stations.sav"));
  fs::remove_all(dir / "save");
  G.MessagePending = False;
  G.PromptLine = {};
  G.BridgeButton[5][6].State = 2;  // as in orbit or with a hail open
  CheckBridgeMouseDown(1);
  EXPECT_FALSE(fs::exists(dir / "save"));
}

TEST_F(SavedGame, LoadResetsTheHailAndTheOrbitButKeepsTheButtons) {
  G.OrbitState = 2;
  G.HailedShip = 3;
  G.FollowShip = 2;
  G.BridgeButton[1][4].Visible = True;
  SaveGame();
  G.BridgeButton[1][4].Visible = False;
  G.MenuActive = True;
  ASSERT_TRUE(LoadGame());
  EXPECT_EQ(G.OrbitState, 0);
  EXPECT_EQ(G.HailedShip, 0);
  EXPECT_EQ(G.FollowShip, 0);
  EXPECT_EQ(G.MenuActive, False);
  EXPECT_EQ(G.BridgeButton[1][4].Visible, True);
}

TEST_F(SavedGame, MissingPositionIsRefusedAndTheGameGoesOn) {
  const auto before = DumpState(G);
  EXPECT_FALSE(LoadGame());
  EXPECT_EQ(G.PromptLine[2], "THERE IS NO SAVED POSITION TO LOAD.");
  G.PromptLine = {};
  G.MessagePending = False;
  G.PromptAge = before["PromptAge"].get<double>();
  EXPECT_EQ(DumpState(G), before);
}

// Each damaged file is either read as far as its format allows or refused
// whole, the record untouched.
TEST_F(SavedGame, DamagedFilesLoadWholeOrNotAtAll) {
  SaveGame();
  PositionTexts good;
  ASSERT_EQ(FetchPosition(SaveFolder(), good), "");
  struct Case {
    int file;
    std::string text;
    const char* message;  // empty: loads
  };
  const std::string general = good[0];
  const Case cases[] = {
      {0, "", "CANNOT LOAD: GENERAL.SAV ENDS TOO EARLY."},
      {0, general.substr(0, general.find("\r\n", general.size() / 2) + 2), "CANNOT LOAD: GENERAL.SAV ENDS TOO EARLY."},
      {0, general.substr(0, general.size() - 5), "CANNOT LOAD: GENERAL.SAV HAS A BAD NUMBER."},
      {0, "\x01\xff garbage,,,\"\r\n", "CANNOT LOAD: GENERAL.SAV HAS A BAD NUMBER."},
      {0, "99999" + general.substr(1), "CANNOT LOAD: GENERAL.SAV HAS A NUMBER TOO LARGE."},
      {14, "501\r\n", "CANNOT LOAD: OSHIPS.SAV HAS A BAD COUNT."},
      {14, "-1\r\n", "CANNOT LOAD: OSHIPS.SAV HAS A BAD COUNT."},
      {14, "2\r\n1\r\n", "CANNOT LOAD: OSHIPS.SAV ENDS TOO EARLY."},
      {1, "1\r\n1\r\n251\r\n", "CANNOT LOAD: QUADRANTS.SAV HAS A BAD COUNT."},
      {15, std::string(5 << 20, '1'), "CANNOT LOAD: STATIONS.SAV IS UNREADABLE."},
      // Hand edits that keep the format: they load.
      {0, "7\n" + general.substr(3), ""},
      {14, "0", ""},
      {0, general + "extra,lines\r\n", ""},
  };
  for (const Case& c : cases) {
    WriteFile(std::string(kSaveFileNames[c.file]), c.text);
    Populate();
    G.Cash = 1;
    const bool loaded = LoadGame();
    EXPECT_EQ(loaded, std::string(c.message).empty()) << c.message;
    if (!loaded) {
      EXPECT_EQ(G.PromptLine[2], c.message);
      EXPECT_EQ(G.Cash, 1) << "the record was touched by a refused load";
    } else {
      EXPECT_EQ(G.Cash, 50000.25);
    }
    WriteFile(std::string(kSaveFileNames[c.file]), good[c.file]);
  }
  fs::remove(dir / "save" / "crew.sav");
  EXPECT_FALSE(LoadGame());
  EXPECT_EQ(G.PromptLine[2], "CANNOT LOAD: CREW.SAV IS MISSING.");
}

// A save broken off at each of its steps, by a crash or by a write error,
// always leaves the old position or the new one whole.
TEST_F(SavedGame, InterruptedSavesLeaveOldOrNewWhole) {
  SaveGame();
  const auto oldFields = SavedFields(G);
  const int steps = SaveStepsTaken();
  ASSERT_GE(steps, kSaveFileCount + 3);
  G.Cash = 777;
  G.Planet[5].Race = 6;
  const auto newFields = SavedFields(G);
  // In the game's window the commit runs on a worker thread: the same
  // faults, met there, must leave the same.
  for (const bool background : {false, true}) {
    SetBackgroundCommits(background);
    for (const int error : {0, ENOSPC}) {
      for (int step = 0; step < steps; ++step) {
        const std::string at =
            "step " + std::to_string(step) + " error " + std::to_string(error) + (background ? " in background" : "");
        InjectSaveFault(step, error);
        SaveGame();
        auto copy = std::make_unique<Game>();
        ASSERT_EQ(ReadSavedPosition(*copy), "") << at;
        InjectSaveFault(-1, 0);
        const auto fields = DumpState(*copy);
        EXPECT_TRUE(fields == oldFields || fields == newFields) << at;
        // Back to the old position for the next round.
        const double cash = G.Cash;
        G.Cash = 50000.25;
        G.Planet[5].Race = 5 % 7;
        SaveGame();
        G.Cash = cash;
        G.Planet[5].Race = 6;
      }
    }
  }
  SetBackgroundCommits(false);
  // A disk that fills up while the files are written says so.
  InjectSaveFault(3, ENOSPC);
  SaveGame();
  EXPECT_EQ(G.PromptLine[2], "POSITION NOT SAVED: THE DISK IS FULL.");
}

TEST_F(SavedGame, UnusableSaveFolderIsReportedOnTheStrip) {
  // A file where the folder should be.
  std::ofstream(dir / "save") << "not a folder";
  SaveGame();
  EXPECT_EQ(G.PromptLine[2], "POSITION NOT SAVED: SAVE FOLDER IS A FILE.");
  EXPECT_FALSE(LoadGame());
  EXPECT_EQ(G.PromptLine[2], "CANNOT LOAD: SAVE FOLDER IS A FILE.");
  fs::remove(dir / "save");
  // A folder under a file cannot be made.
  SetSaveFolder((dir / "blocker" / "save").string());
  std::ofstream(dir / "blocker") << "x";
  SaveGame();
  EXPECT_EQ(G.PromptLine[2].substr(0, 19), "POSITION NOT SAVED:");
  // A folder without write permission (root writes anyway).
  if (::geteuid() != 0) {
    fs::create_directories(dir / "locked");
    ::chmod((dir / "locked").c_str(), 0555);
    SetSaveFolder((dir / "locked" / "save").string());
    SaveGame();
    EXPECT_EQ(G.PromptLine[2], "POSITION NOT SAVED: SAVE FOLDER NOT WRITABLE.");
    ::chmod((dir / "locked").c_str(), 0755);
  }
  InjectSaveFault(0, EACCES);
  SetSaveFolder((dir / "save").string());
  SaveGame();
  EXPECT_EQ(G.PromptLine[2], "POSITION NOT SAVED: SAVE FOLDER NOT WRITABLE.");
  EXPECT_EQ(G.BridgeActive, True);
}

// Saved files damaged at random, by flipped bytes, cuts and pasted-in
// stretches: every load either succeeds or leaves the record as it was.
TEST_F(SavedGame, RandomlyDamagedFilesNeverHalfLoad) {
  SaveGame();
  PositionTexts good;
  ASSERT_EQ(FetchPosition(SaveFolder(), good), "");
  std::uint64_t seed = 12345;
  const auto next = [&seed](std::uint64_t n) {
    seed = seed * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<std::size_t>((seed >> 33) % n);
  };
  int refused = 0;
  for (int round = 0; round < 150; ++round) {
    const std::size_t f = next(kSaveFileCount);
    std::string text = good[f];
    switch (next(4)) {
      case 0:  // flipped bytes
        for (int k = 0; k < 3 && !text.empty(); ++k) text[next(text.size())] = static_cast<char>(next(256));
        break;
      case 1:  // cut short
        text.resize(next(text.size() + 1));
        break;
      case 2:  // a stretch of quotes, commas and line ends
        text.insert(next(text.size() + 1), std::string(next(8) + 1, "\",\r\n#"[next(5)]));
        break;
      default:  // a field taken out
        if (const auto c = text.find(',', next(text.size() + 1)); c != std::string::npos) text.erase(c, 1);
        break;
    }
    WriteFile(std::string(kSaveFileNames[f]), text);
    G.Cash = 1;
    if (!LoadGame()) {
      ++refused;
      EXPECT_EQ(G.Cash, 1) << kSaveFileNames[f] << " round " << round;
      EXPECT_EQ(G.PromptLine[2].substr(0, 12), "CANNOT LOAD:");
    }
    WriteFile(std::string(kSaveFileNames[f]), good[f]);
  }
  EXPECT_GT(refused, 10);
  ASSERT_TRUE(LoadGame());
  EXPECT_EQ(G.Missions[500].Title, "CARRY THE, 'GOODS'");
  EXPECT_EQ(G.ActiveMission[2], 500);
}

// A commit on the worker thread that fails after the files were written:
// the strip first says the position is saved, then, at the next bridge
// frame after the commit ends, why it is not; the old position stands.
TEST_F(SavedGame, ABackgroundCommitThatFailsIsToldOnTheStrip) {
  SaveGame();
  const int steps = SaveStepsTaken();
  SetBackgroundCommits(true);
  G.Cash = 777;
  InjectSaveFault(steps - 3, EIO);  // moving the old position aside
  SaveGame();
  EXPECT_EQ(G.PromptLine[2], "GAME POSITION SAVED!");
  WaitForCommit();
  InjectSaveFault(-1, 0);
  ReportFinishedSave();
  EXPECT_EQ(G.PromptLine[2], "POSITION NOT SAVED: WRITE ERROR.");
  SetMessage("", "", "");
  ReportFinishedSave();
  EXPECT_EQ(G.PromptLine[2], "") << "told once";
  ASSERT_TRUE(LoadGame());
  EXPECT_EQ(G.Cash, 50000.25);
  // A good save that follows supersedes the failure, and a Load right
  // behind it waits for it.
  G.Cash = 888;
  SaveGame();
  G.Cash = 1;
  ASSERT_TRUE(LoadGame());
  EXPECT_EQ(G.Cash, 888);
  ReportFinishedSave();
  EXPECT_EQ(G.PromptLine[2], "POSITION LOADED!");
  SetBackgroundCommits(false);
}

// A real disk with no room: a small memory file system mounted over a
// folder (root only; elsewhere the injected ENOSPC above stands for it).
TEST_F(SavedGame, AFullDiskKeepsThePreviousPosition) {
  // Room for a small position and two pages more: a second position
  // cannot be written beside it.
  G.PlanetCount = 1;
  std::size_t room = 2 * 4096;
  for (const std::string& text : WritePosition(G)) room += (text.size() + 4095) / 4096 * 4096;
  const fs::path disk = dir / "tiny";
  fs::create_directories(disk);
  const std::string options = "size=" + std::to_string(room);
  if (::mount("tmpfs", disk.c_str(), "tmpfs", 0, options.c_str()) != 0)
    GTEST_SKIP() << "cannot mount a small file system here: " << std::strerror(errno);
  SetSaveFolder((disk / "save").string());
  SaveGame();
  const std::string first = G.PromptLine[2];
  G.PlanetCount = 40;
  G.Cash = 31;
  SaveGame();
  const std::string second = G.PromptLine[2];
  auto copy = std::make_unique<Game>();
  const std::string read = ReadSavedPosition(*copy);
  const bool cleared = !fs::exists(disk / "save.new");
  ::umount2(disk.c_str(), MNT_DETACH);
  EXPECT_EQ(first, "GAME POSITION SAVED!");
  EXPECT_EQ(second, "POSITION NOT SAVED: THE DISK IS FULL.");
  EXPECT_EQ(read, "");
  EXPECT_EQ(copy->PlanetCount, 1);
  EXPECT_TRUE(cleared) << "the half-written folder is cleared";
}

// A save folder nobody may write to, even the superuser: marked unchangeable.
TEST_F(SavedGame, AnUnchangeableSaveFolderIsReported) {
  SaveGame();
  const fs::path parent = dir;
  const int fd = ::open(parent.c_str(), O_RDONLY | O_DIRECTORY);
  ASSERT_GE(fd, 0);
  int flags = 0;
  const bool marked = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0 &&
                      (flags |= FS_IMMUTABLE_FL, ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0);
  if (!marked) {
    ::close(fd);
    GTEST_SKIP() << "cannot mark a folder unchangeable here: " << std::strerror(errno);
  }
  G.Cash = 31;
  SaveGame();
  const std::string line = G.PromptLine[2];
  flags &= ~FS_IMMUTABLE_FL;
  ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
  ::close(fd);
  EXPECT_EQ(line, "POSITION NOT SAVED: SAVE FOLDER NOT WRITABLE.");
  EXPECT_EQ(G.BridgeActive, True);
  ASSERT_TRUE(LoadGame());
  EXPECT_EQ(G.Cash, 50000.25);
}

}  // namespace
}  // namespace lf::test
