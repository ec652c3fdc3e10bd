// What each button of the officer pages does: the switches with the
// partners they turn off, the one-shot commands, the guarded switches, and
// the buttons that have a handler of their own.
#include <initializer_list>

#include "bridge/bridge_procedures.h"
#include "bridge/button_rules.h"
#include "bridge/later_procedures.h"
#include "shell/saved_games.h"
#include "display/bitmap_sets.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

namespace {

// A switch: on with its partners off, or off. `channelOn`/`channelOff`
// are the sound's channel each way.
void Switch(int p, int b, std::initializer_list<int> partners, int channelOn = 1, int channelOff = 1) {
  std::int16_t& state = ButtonState(p, b);
  if (state == 0) {
    PlaySoundFx(4, channelOn);
    state = 1;
    for (int other : partners)
      if (ButtonState(p, other) != 2) ButtonState(p, other) = 0;
  } else if (state == 1) {
    PlaySoundFx(4, channelOff);
    state = 0;
  }
}

void NotEnoughEnergy(const char* line) {
  PlaySoundFx(8, 2);
  SetMessage(line, "REDISTRIBUTE YOUR POWER SOURCES!", "", 3);
}

void Weapons() {
  std::int16_t& state = ButtonState(3, 1);
  if (state == 0) {
    if (G.WeaponLevel >= 100) {
      PlaySoundFx(4, 1);
      state = 1;
    } else {
      NotEnoughEnergy("THERE IS NOT ENOUGH ENERGY TO POWER THE WEAPONS!");
    }
  } else if (state == 1) {
    PlaySoundFx(4, 1);
    state = 0;
  }
}

void Shield() {
  std::int16_t& state = ButtonState(3, 2);
  if (state == 0) {
    if (G.ShieldLevel >= 100 && G.InNebula == 0) {
      PlaySoundFx(4, 1);
      state = 1;
    } else if (G.InNebula == 0) {
      NotEnoughEnergy("THERE IS NOT ENOUGH ENERGY TO POWER THE SHIELDS!");
    } else {
      PlaySoundFx(8, 2);
      SetMessage("", "WE CANNOT RAISE THE SHIELDS WHILE IN NEBULA!", "", 3);
    }
  } else if (state == 1) {
    PlaySoundFx(4, 1);
    state = 0;
  }
}

void OrbitPlanet() {
  std::int16_t& state = ButtonState(1, 5);
  if (state == 0) {
    PlaySoundFx(2, 2);
    PlaySoundFx(10, 3);
    state = 1;
    SetLine("", "ENTERING ORBIT.", "", 1);
    G.OrbitState = 2;
    LoadOrbitPic();
    G.FollowMode = 0;
    G.FollowShip = 0;
  } else if (state == 1) {
    state = 0;
  }
}

void LeaveOrbit() {
  std::int16_t& state = ButtonState(1, 6);
  if (state != 0) return;
  PlaySoundFx(2, 2);
  PlaySoundFx(10, 3);
  state = 1;
  SetLine("", "LEAVING ORBIT.", "", 1);
  G.OrbitState = 4;
}

void AllStop() {
  PlaySoundFx(7, 3);
  G.DestX = G.ShipX;
  G.DestY = G.ShipY;
  SetLine("", "ENGINES STOPPED AND DESTINATION COORDINATES RESET, SIR!", "", 1);
  G.FollowShip = 0;
  G.FollowMode = 0;
}

void Hail() {
  std::int16_t& state = ButtonState(2, 1);
  if (state == 0) {
    PlaySoundFx(2, 1);
    state = 1;
    ButtonState(1, 1) = 2;
  } else if (state == 1) {
    PlaySoundFx(2, 1);
    state = 0;
    ButtonState(1, 1) = 0;
  }
}

void EmergencyActions() {
  if (ButtonState(2, 5) != 0) return;
  G.StatusSlot[DockedSlot].Active = False;
  G.StatusSlot[EventSlot].Active = True;
  G.StatusSlot[EventSlot].Value = 12;
}

void Autopilot() {
  const bool goingOn = ButtonState(1, 2) == 0;
  Switch(1, 2, {7, 10});
  if (goingOn) {
    G.AutopilotTop = 1;
    MakeAutopilotList();
  }
}

}  // namespace

bool ApplyButtonRule(int p, int b) {
  switch (p * 100 + b) {
    case 101: Switch(1, 1, {}); return true;
    case 102: Autopilot(); return true;
    case 103: Butt_1_3(); return true;
    case 105: OrbitPlanet(); return true;
    case 106: LeaveOrbit(); return true;
    case 107:
      if (ButtonState(1, 7) == 0) {
        ButtonState(1, 7) = 1;
        Butt_1_7();
      }
      return true;
    case 108: Butt_1_8(); return true;
    case 109: AllStop(); return true;
    case 201: Hail(); return true;
    case 202: Butt_2_2(); return true;
    case 203: Switch(2, 3, {}); return true;
    case 204: Butt_2_4(); return true;
    case 205: EmergencyActions(); return true;
    case 206: Switch(2, 6, {5, 7, 8}, 1, 2); return true;
    case 208: Switch(2, 8, {6}); return true;
    case 301: Weapons(); return true;
    case 302: Shield(); return true;
    case 303: Switch(3, 3, {5}, 1, 2); return true;
    case 304: Butt_3_4(); return true;
    case 308: Butt_3_8(); return true;
    case 401: Switch(4, 1, {4}); return true;
    case 402: Butt_4_2(); return true;
    case 404: Switch(4, 4, {1, 3}); return true;
    case 501: Butt_5_1(); return true;
    case 502: Switch(5, 2, {3, 4, 5, 6, 7, 8}); return true;
    case 503: Switch(5, 3, {2, 4, 5, 6, 7, 8}); return true;
    case 504: Switch(5, 4, {2, 3, 5, 6, 7, 8}); return true;
    case 505: Switch(5, 5, {2, 3, 4, 6, 7, 8}); return true;
    case 506: SaveGame(); return true;
    case 507: Switch(5, 7, {2, 3, 4, 5, 6, 8}); return true;
    case 508: Switch(5, 8, {2, 3, 4, 5, 6, 7}, 2, 1); return true;
    case 601: Switch(6, 1, {2, 3, 4}); return true;
    case 602: Switch(6, 2, {1, 3, 4}); return true;
    case 603: Switch(6, 3, {1, 2, 4}); return true;
    case 604: Switch(6, 4, {1, 2, 3}); return true;
    default: return false;
  }
}

}  // namespace lf
