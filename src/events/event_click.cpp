// A click on the event screen: the reply under the cursor applies its node's
// effects and leads on.
#include <cmath>

#include "events/event_effects.h"
#include "events/events_procedures.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/host.h"

namespace lf {
namespace {

// The first body whose centre is nearer to the ship than its width, or 0.
int PlanetAtShip() {
  for (int p = 1; p <= G.PlanetCount && p <= 250; ++p)
    if (std::hypot(G.Planet[p].X - G.ShipX, G.Planet[p].Y - G.ShipY) < G.Planet[p].Width) return p;
  return 0;
}

}  // namespace

void c_CheckEventMouseDown() {
  ReadCursor();
  const int e = G.StatusSlot[EventSlot].Value;
  const int planet = PlanetAtShip();
  const int node = G.EventScript[e].Node;
  // The lander's fortunes are drawn from the clock.
  if (e == 13 && (node == 1 || node == 3)) SeedRandom(G.Random, CurrentHost().ClockSeed());
  const int choice = EventChoiceAt(G.MouseY);
  const NodeRule* rule = FindNodeRule(e, node);
  if (choice < 1 || choice > 4 || rule == nullptr) return;
  const Next& next = rule->reply[static_cast<std::size_t>(choice - 1)];
  if (next.go == Go::None) return;
  for (const Effect& effect : rule->effect) Skip([&] { ApplyEffect(effect); });
  FollowNext(e, DecideNext(e, next, planet));
}

}  // namespace lf
