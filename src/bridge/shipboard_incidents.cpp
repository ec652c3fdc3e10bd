// Shipboard incidents raised through status slots 7 and 8: an officer
// injured, a component damaged by a malfunction.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/crew.h"
#include "bridge/panel_text.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

constexpr const char* kRole[7] = {"",      "NAVIGATOR ",       "COMMUNICATOR ", "TACTICAL OFFICER ",
                                  "",      "SCIENCE OFFICER ", "ENGINEER "};

// The medical officer treats the injured and is never the victim.
bool CanBeInjured(int post) { return post != 4 && G.CrewPost[post].Person != 0; }

}  // namespace

void HandleShipEvent7() {
  bool anyone = false;
  for (int post = 1; post <= 6; ++post) anyone = anyone || CanBeInjured(post);
  if (anyone) {
    int post = 0;
    do post = RandomInt(6);
    while (!CanBeInjured(post));
    G.CrewPost[post].Health *= Rnd() * 0.2 + 0.4;
    PlaySoundFx(8, 2);
    SetMessage("CAPTAIN! OUR " + std::string(kRole[post]) + PersonName(post), "HAS BEEN INJURED SEVERELY!", "",
               4);
  }
  G.StatusSlot[7].Active = False;
}

void HandleShipEvent8() {
  int slot = 0;
  for (int draw = 1; draw <= 300 && slot == 0; ++draw) {
    Skip([&] {
      const int i = static_cast<int>(Int(Rnd() * G.HardpointCount)) + 1;
      const int group = G.FittedComp[i][1];
      if (group != 0 && group != 4 && G.FittedHealth[i] > 20) slot = i;
    });
  }
  if (slot != 0) {
    const int group = G.FittedComp[slot][1], model = G.FittedComp[slot][2];
    const std::string description = Capitals(ComponentText(group, model, 2));
    G.FittedHealth[slot] *= Rnd() * 0.2 + 0.4;
    PlaySoundFx(8, 2);
    if (G.FittedHealth[slot] < 2) {
      Assign(G.FreeMass, G.FreeMass + ComponentWeight(group, model));
      G.FittedComp[slot][1] = 0;
      G.FittedComp[slot][2] = 0;
      G.RepairCrew[slot] = 0;
      SetMessage("CAPTAIN! DUE TO EQUIPMENT MALFUNCTION WE HAVE LOST", description + " THAT HAS BEEN CAUGHT IN",
                 "AN EXPLOSION AND WAS DESTROYED!", 4);
    } else {
      SetMessage("CAPTAIN! OUR " + description, "WAS SERIOUSLY DAMAGED AND IT IS NOW",
                 "WORKING ON LIMITED CAPACITY!", 4);
    }
  }
  G.StatusSlot[8].Active = False;
}

}  // namespace lf
