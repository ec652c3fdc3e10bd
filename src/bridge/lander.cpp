// The lander: from orbit it flies the landing story; a landing brings up ore,
// less with every visit to the same body.
#include <algorithm>

#include "bridge/bridge_procedures.h"
#include "bridge/helm_reach.h"
#include "bridge/later_procedures.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

namespace {

constexpr int kLanderStory = 13;

void Refuse(const char* l1, const char* l2, const char* l3) {
  PlaySoundFx(8, 3);
  SetMessage(l1, l2, l3, 1);
}

}  // namespace

void Butt_1_7() {
  if (G.OrbitState == 3) {
    // The story of the landing runs on the event screen; its landing outcome
    // calls LanderDeployed.
    G.StatusSlot[EventSlot].Active = True;
    G.StatusSlot[EventSlot].Value = kLanderStory;
  } else if (G.HailedShip != 0) {
    Refuse("THERE IS NO REASON TO DEPLOY A LANDER", "ON THE OTHER SHIP!", "");
  } else if (G.OrbitState == 0) {
    Refuse("", "THERE IS NO VALID LANDING ZONE.", "");
  } else if (G.OrbitState == 1) {
    Refuse("WE SHOULD ENTER ORBIT FIRST IN", "ORDER TO DEPLOY A LANDER!", "");
  }
  ButtonState(1, 7) = 0;
}

void LanderDeployed() {
  const int body = FirstNearBody();
  if (body == 0) return;
  PlanetRecord& p = G.Planet[body];
  // The first landing brings 50; each visit before takes 7 to 13 off it.
  double load = 50 - Int((Rnd() * 6 + 7) * p.LanderVisits);
  if (load < 0) load = 0;
  if (p.LanderVisits < 32767) ++p.LanderVisits;
  if (G.FreeCargo <= load) load = std::max<double>(G.FreeCargo, 0);
  const auto a = static_cast<std::int16_t>(load);
  Assign(G.Cargo[3], static_cast<double>(G.Cargo[3]) + a);
  Assign(p.Ore, static_cast<double>(p.Ore) - a);
  Assign(G.FreeCargo, static_cast<double>(G.FreeCargo) - a);
  G.LanderLoad = a;
  ButtonState(1, 7) = 0;
}

}  // namespace lf
