// What the nodes of the scripts do to the game, and where their replies lead.
#pragma once

#include "events/scripts/script.h"

namespace lf {

// The codes of the ends of an event (below 100 a next node).
inline constexpr int kEventEnd = 100;
inline constexpr int kEventGameOver = 101;
inline constexpr int kEventTowed = 102;
inline constexpr int kEventFightPirates = 103;
inline constexpr int kEventFightSmugglers = 104;

// The hero joins the crew at his post, with the face hero_<face>.bmp.
void HeroJoins(int face);
// One effect of a node.
void ApplyEffect(const Effect& effect);
// The next value of a reply of event e; `planet` is the body the ship is at
// (0 for none). Rules by chance draw Rnd; the lander brings up its ore.
int DecideNext(int e, const Next& next, int planet);
// Acts on a next value: a node is shown; the others leave the event.
void FollowNext(int e, int next);
// Leaves an event that cannot go on (no script, no such node) for the
// bridge, with no reward.
[[noreturn]] void LeaveEventForBridge();

}  // namespace lf
