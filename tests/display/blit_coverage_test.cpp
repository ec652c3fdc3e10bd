// Long sessions over every screen with a watch on the blits: every source
// rectangle the game cuts from a loaded picture of the generated data set
// must lie inside that picture. A rectangle outside it is skipped by the
// blit, so the player sees nothing where the rule draws something: a sheet
// with too few frames, an icon strip narrower than the rule steps through.
//
// To cover a new screen, write a session (a procedure that drives the game
// there through a CoverageDriver and stays a while) and add a row to
// Sessions() at the foot of this file.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "bridge/bridge_procedures.h"
#include "display/bitmap_sets.h"
#include "display/blit_observer.h"
#include "display/gfx.h"
#include "display/picture_files.h"
#include "display/png_writer.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/clocks.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/paths.h"
#include "shell/program.h"
#include "shell/screens.h"
#include "universe/catalogue.h"
#include "universe/new_game.h"

namespace lf::test {
namespace {

// --- The watch: every picture drawn, and the rectangles outside one.

struct Overrun {
  int left, top, right, bottom;
  int width, height;
  long count;
};

struct Watch {
  std::map<std::string, long> drawn;      // file -> blits asked of it
  std::map<std::string, Overrun> overruns;  // file -> the first overrun and how many
};

Watch& TheWatch() {
  static Watch w;
  return w;
}

void WatchBlit(int, int, const Bitmap& bitmap, bool) {
  if (!bitmap.Loaded()) return;
  const int left = G.SrcLeft, top = G.SrcTop, right = G.SrcRight, bottom = G.SrcBottom;
  // An empty rectangle (a bar at zero) draws nothing by rule.
  if (right <= left || bottom <= top) return;
  const std::string& file = PictureFile(bitmap);
  Watch& w = TheWatch();
  ++w.drawn[file];
  if (left >= 0 && top >= 0 && right <= bitmap.Width() && bottom <= bitmap.Height()) return;
  auto [it, fresh] = w.overruns.try_emplace(file, Overrun{left, top, right, bottom, bitmap.Width(), bitmap.Height(), 0});
  ++it->second.count;
}

// --- Driving the game.

constexpr int BandY(int entry) { return 90 + 60 * entry; }

class CoverageDriver {
 public:
  explicit CoverageDriver(ScriptedHost& host) : host_(host) {}

  void Frames(int n) {
    for (int i = 0; i < n; ++i) RunNextFrame();
  }
  void Click(int x, int y, int button = 1) {
    host_.Click(x, y, button);
    Frames(2);
  }
  void Move(int x, int y) {
    host_.cursorX = x;
    host_.cursorY = y;
    Frames(2);
  }
  void Key(int code) {
    host_.Key(code);
    Frames(2);
  }
  // With LANEFARER_COVERAGE_SHOTS set to a folder, the last frame shown is
  // written there as <session>_<name>.png, to look at the screens a session
  // went through.
  void Shot(const std::string& name) {
    const char* folder = std::getenv("LANEFARER_COVERAGE_SHOTS");
    if (!folder) return;
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string session = test ? test->name() : "session";
    session = session.substr(session.rfind('/') + 1);
    WritePng(std::string(folder) + "/" + session + "_" + name + ".png", PresentedPixels(), kScreenWidth * 2);
  }

  // The program up and in the menu.
  void Start() { BeginProgram(); }

  // New from the menu, through the loading bar and the opening picture, to
  // the first frames of the game (docked at the start station).
  void NewGame() {
    Start();
    // The opening picture pumps its own frames until a press, inside the
    // frame whose click chose New: its input is queued ahead.
    host_.Click(320, BandY(1));
    host_.Wait(20);
    host_.Click(320, 240);
    Frames(30);
  }

  // Answers whatever holds the strip: OK to a message (both pages), yes or
  // no to a question.
  void AnswerPrompts(bool yes = false) {
    for (int i = 0; i < 4 && (G.MessagePending == True || G.QuestionPending == True); ++i) {
      if (G.QuestionPending == True)
        Click(yes ? 510 : 580, 440);
      else
        Click(580, 440);
      Frames(5);
    }
  }

  // A new game taken out of the station into free flight, as the departure
  // does it, with an Explorer fitted with one component of each group, a
  // crew at every post and goods in the hold.
  void FlyFree() {
    NewGame();
    G.StationActive = False;
    G.StatusSlot[DockedSlot].Active = False;
    G.OrbitState = 0;
    G.HullRace = 1;
    G.HullClass = 1;
    G.HullPointsMax = G.Hull[1][1].HullPoints;
    G.HullPoints = G.HullPointsMax;
    G.HardpointCount = G.Hull[1][1].Hardpoints;
    for (int group = 1; group <= 7; ++group) {
      G.FittedComp[group][1] = static_cast<std::int16_t>(group);
      G.FittedComp[group][2] = 1;
      G.FittedHealth[group] = ComponentFullHealth(group, 1);
      G.RepairCrew[group] = 5;
    }
    for (int post = 1; post <= 6; ++post) {
      // The first character of each post, in the roster's rows of 4.
      const int person = (post - 1) * 4 + 1;
      G.CrewPost[post].Person = static_cast<std::int16_t>(person);
      G.CrewPost[post].Health = 100;
      G.Character[person].Skill = 5;
    }
    G.Cargo[1] = 10;
    G.Cargo[9] = 5;
    G.SparePower = 0;
    DistributeEnergy();
    G.PropulsionLevel = G.PropulsionSetting = 200;
    G.SensorLevel = G.SensorSetting = 100;
    G.LifeSupportLevel = G.LifeSupportSetting = 100;
    ToOpenSpace();
    ReturnToBridge();
  }

  // Back on the bridge in flight after a button took the game elsewhere.
  void ReturnToBridge() {
    G.StationActive = False;
    G.FightActive = False;
    G.EventActive = False;
    G.MenuActive = False;
    G.StatusSlot[DockedSlot].Active = False;
    G.StatusSlot[EventSlot].Active = False;
    G.OrbitState = 0;
    G.ProgressCount = 0;
    G.ProgressMode = 1;
    LoadMainBitmaps();
    G.ProgressMode = 0;
    G.BridgeActive = True;
    StartTimer1();
    try {
      RunLoop();
    } catch (const ScreenChange&) {
    }
    Frames(30);
  }

  // The ship moved to a place 300 units from every body, out of the
  // nebulae and the asteroid fields.
  static void ToOpenSpace() {
    for (double x = 300; x <= 4700; x += 100)
      for (double y = 300; y <= 4700; y += 100) {
        bool clear = true;
        for (int i = 1; i <= G.PlanetCount && clear; ++i)
          clear = std::hypot(G.Planet[i].X - x, G.Planet[i].Y - y) > 300;
        for (int i = 1; i <= G.NebulaCount && clear; ++i)
          clear = !(x > G.Nebula[i].X - 50 && x < G.Nebula[i].X + 450 && y > G.Nebula[i].Y - 50 && y < G.Nebula[i].Y + 290);
        for (int i = 1; i <= G.AsteroidFieldCount && clear; ++i)
          clear = !(x > G.AsteroidField[i].X - 50 && x < G.AsteroidField[i].X + 250 && y > G.AsteroidField[i].Y - 50 &&
                    y < G.AsteroidField[i].Y + 250);
        if (!clear) continue;
        G.ShipX = G.DestX = x;
        G.ShipY = G.DestY = y;
        return;
      }
  }

  // Sets a course from where the ship stands and flies it for `frames`.
  void FlyTo(double x, double y, int frames) {
    G.DestX = x;
    G.DestY = y;
    CheckDirection();
    Frames(frames);
  }

  void OpenPage(int page) { Click(G.FaceX[page] + 40, G.FaceY[page] + 50); }
  void PressButton(int page, int button) {
    const BridgeButtonRecord& b = G.BridgeButton[page][button];
    Click(b.X + 25, b.Y + 25);
  }

 private:
  ScriptedHost& host_;
};

// --- The sessions.

void MenuSession(CoverageDriver& d) {
  d.Start();
  for (int round = 0; round < 2; ++round)
    for (int entry = 1; entry <= 6; ++entry) {
      d.Move(320 + 50 * round, BandY(entry));
      d.Frames(5);
    }
  d.Shot("menu");
  d.Click(320, BandY(4));  // the introduction, then back to the menu
  d.Frames(10);
  EXPECT_EQ(G.MenuActive, True);
}

void NewGameSession(CoverageDriver& d) {
  d.NewGame();
  EXPECT_EQ(G.NoGameRunning, False);
  d.Frames(120);
}

// Every page opened, every button of it pressed and pressed again, with
// the panels it opens left to run.
void BridgePagesSession(CoverageDriver& d) {
  d.FlyFree();
  ASSERT_EQ(TopScreen(), Screen::Bridge);
  for (int page = 1; page <= 6; ++page) {
    d.OpenPage(page);
    d.Frames(40);
    d.Shot("page" + std::to_string(page));
    for (int button = 1; button <= 10; ++button) {
      if (G.BridgeButton[page][button].Present != True) continue;
      d.PressButton(page, button);
      d.Frames(60);
      d.Shot("button" + std::to_string(page) + "_" + std::to_string(button));
      d.AnswerPrompts();
      if (TopScreen() != Screen::Bridge) {
        // A button that leaves the bridge: its screen has been covered by
        // now; the session goes on with the next button.
        d.Frames(60);
        d.ReturnToBridge();
        d.OpenPage(page);
        continue;
      }
      d.PressButton(page, button);
      d.Frames(20);
      d.AnswerPrompts();
    }
  }
  // Every panel that is a button's, on at once, drawn over each other.
  for (int page = 1; page <= 6; ++page)
    for (int button = 1; button <= 10; ++button)
      if (G.BridgeButton[page][button].State == 0 && G.BridgeButton[page][button].Present == True)
        G.BridgeButton[page][button].State = 1;
  d.Frames(120);
}

// Through nebulae and asteroid fields, across the whole sector, with every
// sensor ring.
void FlightSession(CoverageDriver& d) {
  d.FlyFree();
  ASSERT_EQ(TopScreen(), Screen::Bridge);
  G.ShowSensorRange = True;
  for (int i = 1; i <= G.NebulaCount && i <= 4; ++i) {
    const NebulaRecord& n = G.Nebula[i];
    G.ShipX = n.X - 60;
    G.ShipY = n.Y + 120;
    d.FlyTo(n.X + 460, n.Y + 120, 90);
    d.Shot("nebula" + std::to_string(i));
    d.Frames(90);
  }
  for (int i = 1; i <= G.AsteroidFieldCount && i <= 4; ++i) {
    const AsteroidFieldRecord& f = G.AsteroidField[i];
    G.ShipX = f.X - 40;
    G.ShipY = f.Y + 100;
    G.HullPoints = G.HullPointsMax;
    d.FlyTo(f.X + 240, f.Y + 100, 100);
    d.Shot("field" + std::to_string(i));
    d.Frames(100);
    d.AnswerPrompts();
  }
  for (const double range : {120.0, 100.0, 80.0, 50.0, 30.0}) {
    G.SensorRange = range;
    G.ShipX = 2500;
    G.ShipY = 2500;
    d.FlyTo(2600, 2500, 100);
    d.Shot("ring" + std::to_string(static_cast<int>(range)));
  }
  // The corners and edges, where the pictures hang over the view's border.
  G.SensorRange = 120;
  for (const auto& [x, y] : std::vector<std::pair<double, double>>{{0, 0}, {5000, 0}, {0, 5000}, {5000, 5000}, {2500, 0}, {0, 2500}}) {
    G.ShipX = x;
    G.ShipY = y;
    d.FlyTo(x, y, 30);
  }
  // A detached view walked with the arrows.
  for (int i = 0; i < 40; ++i) d.Key(37);
  for (int i = 0; i < 40; ++i) d.Key(38);
  for (int i = 0; i < 80; ++i) d.Key(39);
  for (int i = 0; i < 80; ++i) d.Key(40);
  d.AnswerPrompts();
}

// Into orbit and out of it, through the doors, at a plain body and at a
// body with a station.
void OrbitSession(CoverageDriver& d) {
  d.FlyFree();
  ASSERT_EQ(TopScreen(), Screen::Bridge);
  int plain = 0, station = 0;
  for (int i = 1; i <= G.PlanetCount; ++i) {
    if (G.Planet[i].HasStation == 0 && plain == 0) plain = i;
    if (G.Planet[i].HasStation != 0 && station == 0) station = i;
  }
  for (const int body : {plain, station}) {
    if (body == 0) continue;
    G.ShipX = G.Planet[body].X + 40;
    G.ShipY = G.Planet[body].Y;
    G.OrbitOfferOpen = True;
    d.FlyTo(G.Planet[body].X, G.Planet[body].Y, 60);
    d.AnswerPrompts(true);  // ENTER ORBIT? yes
    d.Frames(100);
    d.Shot("doors" + std::to_string(body));
    d.Frames(200);
    d.Shot("orbit" + std::to_string(body));
    d.OpenPage(1);
    d.PressButton(1, 6);  // leave orbit
    d.Frames(300);
    d.AnswerPrompts();
  }
}

// A hail of a ship of every class: the doors, the static and the hail
// pictures.
void HailSession(CoverageDriver& d) {
  d.FlyFree();
  ASSERT_EQ(TopScreen(), Screen::Bridge);
  for (int race = 1; race <= 10; ++race) G.TranslatorOwned[race] = True;
  if (G.OtherShipCount < 1) G.OtherShipCount = 1;
  d.OpenPage(2);
  int hails = 0;
  for (int shipClass = 1; shipClass <= 19; ++shipClass) {
    OtherShipRecord& other = G.OtherShip[1];
    other.ShipClass = static_cast<std::int16_t>(shipClass);
    other.X = G.ShipX + 60;
    other.Y = G.ShipY + 20;
    other.StepX = other.StepY = 0;
    other.TargetX = static_cast<std::int16_t>(other.X);
    other.TargetY = static_cast<std::int16_t>(other.Y);
    if (G.BridgeButton[2][1].State != 1) d.PressButton(2, 1);  // HAIL on
    d.Click(static_cast<int>(300 + other.X - Int(G.ViewX) - 14 + 12), static_cast<int>(125 + other.Y - G.ViewY - 8 + 7));
    hails += G.HailedShip == 1;
    d.Frames(150);
    if (shipClass == 1) d.Shot("hail");
    d.AnswerPrompts();
    G.HailedShip = 0;
    G.OrbitState = 0;
    d.Frames(60);
  }
  EXPECT_GT(hails, 0) << "no hail was opened: the session covers nothing";
}

// The menu over the bridge, and back.
void MenuOverBridgeSession(CoverageDriver& d) {
  d.FlyFree();
  d.Key(27);
  d.Frames(20);
  EXPECT_EQ(G.MenuActive, True);
  d.Click(320, BandY(2));  // Resume
  d.Frames(20);
  EXPECT_EQ(TopScreen(), Screen::Bridge);
}

struct Session {
  const char* name;
  void (*run)(CoverageDriver&);
};
void PrintTo(const Session& s, std::ostream* out) { *out << s.name; }

// Every screen that exists. Add a row for each new one.
const std::vector<Session>& Sessions() {
  static const std::vector<Session> sessions = {
      {"Menu", MenuSession},
      {"NewGame", NewGameSession},
      {"BridgePages", BridgePagesSession},
      {"Flight", FlightSession},
      {"Orbit", OrbitSession},
      {"Hail", HailSession},
      {"MenuOverBridge", MenuOverBridgeSession},
  };
  return sessions;
}

class BlitCoverage : public ::testing::TestWithParam<Session> {
 protected:
  void SetUp() override {
    const char* data = std::getenv("LANEFARER_TEST_DATA");
    if (!data) GTEST_SKIP() << "no generated data folder (LANEFARER_TEST_DATA)";
    ResetGame();
    ResetScreens();
    ClearMediaLog();
    host.yieldBudget = 200000;
    SetHost(&host);
    SetDataFolder(data);
    TheWatch() = {};
    g_blit_observer = &WatchBlit;
  }
  void TearDown() override {
    g_blit_observer = nullptr;
    SetHost(nullptr);
    ResetScreens();
    ReleaseAllBitmaps();
    SetDataFolder("data");
  }

  ScriptedHost host;
};

TEST_P(BlitCoverage, EveryRectangleLiesInsideItsPicture) {
  CoverageDriver driver(host);
  try {
    GetParam().run(driver);
  } catch (const ProgramEnd& end) {
    ADD_FAILURE() << "the program ended with status " << end.status;
  }
  const Watch& w = TheWatch();
  EXPECT_FALSE(w.drawn.empty());
  for (const auto& [file, o] : w.overruns)
    ADD_FAILURE() << file << " (" << o.width << "x" << o.height << "): source " << o.left << "," << o.top
                  << " to " << o.right << "," << o.bottom << " lies outside it (" << o.count << " blits)";
}

INSTANTIATE_TEST_SUITE_P(Screens, BlitCoverage, ::testing::ValuesIn(Sessions()),
                         [](const ::testing::TestParamInfo<Session>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace lf::test
