// A press on the bridge, offered to every control in a fixed order: the
// strip, the open page's buttons and the top icons, the view (a course, a
// ship to follow, attack or hail), the panels' sliders and lists, and last
// the faces, the strip's answer buttons and the remaining panels.
#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "shell/screens.h"
#include "bridge/panel_clicks.h"
#include "bridge/ship_pick.h"
#include "display/bitmap_sets.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

bool InViewRectangle() { return G.MouseX > 145 && G.MouseX < 495 && G.MouseY > 50 && G.MouseY < 240; }
bool PageOn(int p, int b) { return G.PageOpen[p] != 0 && ButtonState(p, b) == 1; }

void ClearStrip() {
  for (int n = 1; n <= 3; ++n) {
    G.PromptLine[n] = "";
    for (int k = 1; k <= 200; ++k) G.PromptFade[n][k] = 0;
    G.PromptFade[n][0] = 15;
  }
  G.PromptFace = 0;
}

// The race a hail must be translated from, by ship class.
int HailRace(int shipClass) {
  if (shipClass < 1 || shipClass > 19) return 0;
  if (shipClass == 5 || shipClass == 8 || shipClass == 19) return 7;
  if (shipClass >= 1 && shipClass <= 5) return 1;
  if (shipClass <= 8) return 2;
  if (shipClass <= 11) return 3;
  if (shipClass <= 13) return 4;
  if (shipClass <= 16) return 5;
  return 6;
}

void Navigate() {
  if (G.SensorLevel >= 100) {
    if (const int i = PickShip(); i != 0) {
      PlaySoundFx(2, 1);
      G.FollowMode = 1;
      G.FollowShip = static_cast<std::int16_t>(i);
      return;
    }
  }
  CheckDestination();
}

void Attack() {
  const int i = PickShip();
  if (i == 0) return;
  PlaySoundFx(2, 1);
  G.FightShip = static_cast<std::int16_t>(i);
  d_FightLoop();
}

void HailShip() {
  const int i = PickShip();
  if (i == 0) return;
  OtherShipRecord& ship = G.OtherShip[i];
  const int race = HailRace(ship.ShipClass);
  if (G.TranslatorOwned[race] == True) {
    PlaySoundFx(2, 1);
    G.HailedShip = static_cast<std::int16_t>(i);
    PlayTrack(5);
    LoadOShipOSidePic();
    G.MouseLook = False;
    if (ship.InfoGiven != 0 && Rnd() < 1.0 / 8) ship.InfoGiven = False;
    if (ship.TradeInfoGiven != 0 && Rnd() < 1.0 / 8) ship.TradeInfoGiven = False;
    G.OrbitState = 5;
    ButtonState(2, 8) = 1;
  } else {
    PlaySoundFx(2, 1);
    SetMessage("I AM AFFRAID WE DO NOT HAVE THE TECHNICAL", "EQUIPMENT TO BE ABLE TO TRANSLATE THE",
               "TRANSMISSION!", 2);
  }
}

void LeftPress() {
  if (G.TradeOpen == True && G.MouseX > 390 && G.MouseX < 510 && G.MouseY > 386 && G.MouseY < 393)
    G.TradeOpen = False;
  ReadCursor();
  if (G.TradeOpen == True) CheckTradeSel();

  if (PageOn(1, 1) && InViewRectangle()) Navigate();
  if (PageOn(3, 4) && InViewRectangle()) Attack();
  if (PageOn(2, 1) && InViewRectangle()) HailShip();
  if (ButtonState(6, 2) == 1) CargoListClick();
  if (ButtonState(6, 1) == 1) MaintenanceClick();
  if (ButtonState(3, 3) == 1 && G.SparePower >= 0) PowerSliderClick();
  if (ButtonState(4, 1) == 1) MedicalClick();
  if (ButtonState(4, 4) == 1) QuarantineClick();
}

}  // namespace

void CheckBridgeMouseDown(int Button) {
  ReadCursor();
  if (NoPrompt()) ClearStrip();
  Skip(CheckViewMode);
  Skip(CheckButton);
  Skip(CheckGrid);
  Skip(CheckSensorRange);
  Skip(CheckToolTip);

  if (Button == 2) {
    if (FreeBridge() && G.MouseX > 120 && G.MouseX < 520 && G.MouseY > 25 && G.MouseY < 265 &&
        (G.OrbitState == 0 || G.OrbitState == 1)) {
      G.MouseLook = G.MouseLook != 0 ? False : True;
      if (G.MouseLook != 0) MoveCursor(320, 145);
    }
  } else {
    Skip(LeftPress);
  }

  if (ButtonState(6, 4) == 1) Skip(UnfittedListClick);

  Skip(CheckFace);
  if (G.QuestionPending == True || G.MessagePending == True) Skip(CheckQuestion);
  if (G.PageOpen[1] != 0 && ButtonState(1, 2) == 1) Skip(CheckAutopilot);
  if (ButtonState(2, 8) == 1 && G.OrbitState == 6) Skip(CheckHailSel);
  if (ButtonState(5, 4) == 1) Skip(CheckMissionDecline);
  if (ButtonState(5, 2) == 1) Skip(CheckResearchMouseDown);
}

}  // namespace lf
