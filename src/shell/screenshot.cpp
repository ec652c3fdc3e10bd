#include "shell/screenshot.h"

#include <cstdio>
#include <string>

#include "media/media.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/prompts.h"

namespace lf {
namespace {
bool g_tooltipsAtStart = true;

// The strip can carry a passing line only on the bridge itself, with no
// message or question waiting and no other screen over it.
bool StripFree() {
  return G.BridgeActive == True && G.MenuActive == 0 && G.StationActive == 0 && G.EventActive == 0 &&
         G.FightActive == 0 && G.MessagePending == 0 && G.QuestionPending == 0 && G.NoGameRunning == 0;
}
}  // namespace

void TakeScreenshot() {
  std::string where;
  const bool ok = CurrentHost().SaveScreenshot(where);
  std::fprintf(stderr, ok ? "lanefarer: screenshot saved as %s\n" : "lanefarer: no screenshot: %s\n",
               where.c_str());
  if (StripFree())
    SetLine(ok ? "SCREENSHOT SAVED." : "THE SCREENSHOT COULD NOT BE SAVED.", "", "", 0);
  else
    PlaySoundFx(ok ? 4 : 8, -1);
}

void SetTooltipsAtStart(bool on) { g_tooltipsAtStart = on; }
bool TooltipsAtStart() { return g_tooltipsAtStart; }

}  // namespace lf
