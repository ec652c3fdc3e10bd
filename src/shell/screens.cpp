// The stack of screen loops, their entries and the running of the top
// loop's next frame.
#include "shell/screens.h"

#include <vector>

#include "combat/combat_procedures.h"
#include "display/screen.h"
#include "events/events_procedures.h"
#include "shell/event_queue.h"
#include "shell/game_state.h"
#include "shell/menu.h"
#include "shell/run_loop.h"
#include "station/station_procedures.h"

namespace lf {
namespace {

std::vector<Screen> MakeStack() {
  std::vector<Screen> v;
  v.reserve(32);
  return v;
}
std::vector<Screen> g_stack = MakeStack();

// The condition each loop tests at the top of its frame.
bool Running(Screen s) {
  switch (s) {
    case Screen::Menu: return G.MenuActive == True;
    case Screen::Bridge: return G.BridgeActive == True;
    case Screen::Station: return G.StationActive == True;
    case Screen::Event: return IsSet(G.EventActive);
    case Screen::Fight: return IsSet(G.FightActive);
  }
  return false;
}

void Frame(Screen s) {
  switch (s) {
    case Screen::Menu: DrawMainMenuFrame(); break;
    case Screen::Bridge: RunLoopFrame(); break;
    case Screen::Station: a_StationLoopFrame(); break;
    case Screen::Event: c_EventLoopFrame(); break;
    case Screen::Fight: d_FightLoopFrame(); break;
  }
}

// What stands after each loop: the bridge's end closes the program, the
// fight's end goes back to the bridge; the others return to their caller.
void AfterLoop(Screen s) {
  if (s == Screen::Bridge) Form_Unload();
  if (s == Screen::Fight) d_FightLoopEnd();
}

void Enter(Screen s, bool overCurrent) {
  if (!overCurrent) g_stack.clear();
  g_stack.push_back(s);
}

// A frame with no loop standing: black, and the queue still runs.
void IdleFrame() {
  FlipBuffers();
  Yield();
}

}  // namespace

void RunLoop() {
  Enter(Screen::Bridge, false);
  throw ScreenChange{};
}

void DrawMainMenu() {
  Enter(Screen::Menu, true);
  throw ScreenChange{};
}

void a_StationLoop() {
  Enter(Screen::Station, false);
  G.StationActive = True;
  throw ScreenChange{};
}

void c_EventLoop() {
  Enter(Screen::Event, false);
  throw ScreenChange{};
}

void d_FightLoop() {
  Enter(Screen::Fight, false);
  Skip(d_FightLoopBegin);
  throw ScreenChange{};
}

void RunNextFrame() {
  try {
    for (;;) {
      if (g_stack.empty()) {
        IdleFrame();
        return;
      }
      const Screen top = g_stack.back();
      if (Running(top)) {
        Frame(top);
        return;
      }
      const std::size_t depth = g_stack.size();
      Skip([top] { AfterLoop(top); });
      // The loop has returned to its caller: the loop below goes on.
      if (g_stack.size() == depth && g_stack.back() == top) g_stack.pop_back();
    }
  } catch (const ScreenChange&) {
  } catch (const StatementFailed&) {
  }
}

int ScreenDepth() { return static_cast<int>(g_stack.size()); }

Screen ScreenAt(int i) {
  if (i < 0 || i >= ScreenDepth()) throw StatementFailed{};
  return g_stack[static_cast<std::size_t>(i)];
}

Screen TopScreen() { return ScreenAt(ScreenDepth() - 1); }

void ResetScreens() {
  g_stack.clear();
  ClearEventQueue();
}

}  // namespace lf
