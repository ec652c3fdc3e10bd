#include "shell/input.h"

#include "combat/combat_procedures.h"
#include "events/events_procedures.h"
#include "media/media.h"
#include "shell/bridge_click.h"
#include "shell/call_trace.h"
#include "shell/game_state.h"
#include "shell/menu.h"
#include "shell/screens.h"
#include "shell/screenshot.h"
#include "station/station_procedures.h"

namespace lf {

void Form_MouseDown(int Button) {
  G.ClickSeen = True;
  if (G.FightActive == True) Call("d_CheckMouseDown", d_CheckMouseDown);
  if (G.MenuActive == True) Call("CheckMenuMouseDown", CheckMenuMouseDown);
  if (G.EventActive == True && G.StationActive == 0 && G.MenuActive == 0 && G.FightActive == 0)
    Call("c_CheckEventMouseDown", c_CheckEventMouseDown);
  if (G.StationActive == True && G.MenuActive == 0 && G.EventActive == 0 && G.FightActive == 0)
    Call("a_CheckStationMouseDown", a_CheckStationMouseDown);
  if (G.StationActive == 0 && G.MenuActive == 0 && G.EventActive == 0 && G.FightActive == 0) {
    TraceCall("CheckBridgeMouseDown");
    Skip([Button] { CheckBridgeMouseDown(Button); });
  }
}

void Form_KeyDown(int KeyCode) {
  switch (KeyCode) {
    case 27:
      PlaySoundFx(2, 1);
      PlayTrack(2);
      G.MenuActive = True;
      DrawMainMenu();
    case 37: G.ViewX -= 7; break;
    case 38: Assign(G.ViewY, G.ViewY - 7.0); break;
    case 39: G.ViewX += 7; break;
    case 40: Assign(G.ViewY, G.ViewY + 7.0); break;
    case kScreenshotKey: TakeScreenshot(); break;
    default: break;
  }
}

}  // namespace lf
