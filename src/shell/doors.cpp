#include "shell/doors.h"

#include <array>
#include <cmath>
#include <utility>

#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/game_state.h"

namespace lf {
namespace {

constexpr int kViewX = 121;
constexpr int kViewY = 25;
constexpr int kViewWidth = 400;
constexpr int kViewHeight = 240;
constexpr int kOpen = 200;

using ButtonRef = std::pair<int, int>;

// The buttons that make no sense during a hail.
constexpr std::array<ButtonRef, 15> kHailGreyed = {{
    {1, 1}, {1, 4}, {1, 5}, {1, 6}, {1, 9}, {1, 10}, {2, 3}, {2, 5},
    {2, 7}, {3, 5}, {4, 2}, {4, 3}, {5, 1}, {5, 6}, {6, 3},
}};

BridgeButtonRecord& Button(int page, int b) { return G.BridgeButton[page][b]; }

template <std::size_t N>
void SetStates(const std::array<ButtonRef, N>& buttons, std::int16_t state) {
  for (auto [page, b] : buttons) Button(page, b).State = state;
}

void DrawWholeView(const Bitmap& picture, bool keyed) {
  SetSrc(0, 0, kViewWidth, kViewHeight);
  BltFast(kViewX, kViewY, picture, keyed);
}

void ShowLaunchButtons() {
  if (G.PageOpen[1] != 0) {
    Button(1, 5).Visible = True;
    Button(1, 6).Visible = True;
  }
}

// The doors have opened on the planet: the ship is in orbit.
void EnterOrbit() {
  G.TimeStep = 0.1 / 60;
  G.OrbitState = 3;
  G.OrbitOfferOpen = True;
  for (int i = 1; i <= G.PlanetCount && i <= decltype(G.Planet)::kHi; ++i) {
    PlanetRecord& p = G.Planet[i];
    if (std::hypot(G.ShipX - p.X, G.ShipY - p.Y) < p.Width) p.Known = True;
  }
  SetStates<5>({{{1, 1}, {2, 1}, {3, 4}, {1, 5}, {1, 9}}}, 2);
  SetStates<4>({{{4, 2}, {5, 1}, {1, 7}, {1, 6}}}, 0);
  Button(1, 5).Present = False;
  Button(1, 6).Present = True;
  ShowLaunchButtons();
}

// The doors have opened on space again: the ship floats beside the body.
void LeaveOrbit() {
  G.DestX = G.ShipX;
  G.DestY = G.ShipY;
  G.TimeStep = 0.1;
  G.OrbitState = 1;
  G.OrbitOfferOpen = False;
  SetStates<6>({{{2, 1}, {3, 4}, {1, 1}, {1, 2}, {1, 5}, {4, 2}}}, 0);
  Button(2, 3).State = 1;
  SetStates<2>({{{1, 6}, {5, 1}}}, 2);
  Button(1, 5).Present = True;
  Button(1, 6).Present = False;
  ShowLaunchButtons();
}

// The doors have opened on the hailed ship.
void OpenHail() {
  G.TimeStep = 0.1 / 60;
  G.OrbitState = 6;
  SetStates(kHailGreyed, 2);
  Button(2, 1).State = 0;
  Button(2, 2).State = 0;
  Button(2, 1).Present = False;
  Button(2, 1).Visible = False;
  Button(2, 2).Present = True;
  Button(2, 2).Visible = True;
}

// The hail is over and the doors have opened on space.
void CloseHail() {
  G.DestX = G.ShipX;
  G.DestY = G.ShipY;
  G.TimeStep = 0.1;
  G.OrbitState = 0;
  SetStates(kHailGreyed, 0);
  Button(2, 1).State = 0;
  Button(2, 2).State = 0;
  Button(2, 1).Present = True;
  Button(2, 2).Present = False;
  if (G.PageOpen[2] != 0) {
    Button(2, 1).Visible = True;
    Button(2, 2).Visible = False;
  }
}

void Complete() {
  switch (G.OrbitState) {
    case 2: EnterOrbit(); break;
    case 4: LeaveOrbit(); break;
    case 5: OpenHail(); break;
    case 7: CloseHail(); break;
    default: break;
  }
}

// What the view shows under the doors, by the change under way.
void DrawUnderDoors(int state, bool opening) {
  if ((state == 2 && opening) || (state == 4 && !opening)) {
    DrawWholeView(GFX.OrbitPicture, false);
  } else if ((state == 5 && opening) || (state == 7 && !opening)) {
    DrawHailView();
    if (state == 7) {
      Button(2, 1).Visible = True;
      Button(2, 2).Visible = False;
    }
  }
}

void DrawLeaves(int state) {
  if (state == 2 || state == 4) {
    const int pos = G.BigDoorPos;
    SetSrc(pos, 0, kOpen, kViewHeight);
    BltFast(kViewX, kViewY, GFX.Slider, false);
    SetSrc(kOpen, 0, 2 * kOpen - pos, kViewHeight);
    BltFast(pos + 321, kViewY, GFX.Slider, false);
  } else if ((state == 5 || state == 7) && G.StaticOn == True) {
    DrawWholeView(GFX.StaticBig2[RandomInt(5)], false);
  }
}

}  // namespace

void DrawBigDoors() {
  G.BigDoorPos += G.BigDoorStep;
  if (G.BigDoorPos == kOpen && G.BigDoorStep == 0) {
    G.BigDoorStep = -1;
    G.BigDoorPos = kOpen - 1;
  }
  if (G.BigDoorPos < 0) {
    G.BigDoorPos = 0;
    G.BigDoorStep = 1;
  }
  // The frame that completes the change still shows what the doors have
  // just uncovered, so the view does not flash the sector map for a frame.
  const int state = G.OrbitState;
  const bool opening = G.BigDoorStep == 1;
  if (G.BigDoorPos >= kOpen) {
    G.BigDoorPos = kOpen;
    G.BigDoorStep = 0;
    Complete();
  }
  DrawUnderDoors(state, opening);
  DrawLeaves(state);
}

void DrawHailView() {
  DrawWholeView(GFX.HailPicture, false);
  if (G.StaticOn != True) return;
  if (Rnd() < 0.1) PlaySoundFx(6, 7);
  SetSrc(0, 0, kViewWidth, RandomInt(60));
  Skip([] { BltFast(kViewX, G.StaticY, GFX.StaticBig[G.StaticFrame], true); });
}

}  // namespace lf
