// The 100 ms clock: the fleet office's chart, the hail static, game time and
// the draw of the next story event.
#include "events/events_procedures.h"
#include "media/media.h"
#include "shell/clocks.h"
#include "shell/game_state.h"
#include "shell/guards.h"

namespace lf {
namespace {

void RedrawChartKind() {
  if (G.StatusSlot[DockedSlot].Active != 0) return;
  if (Rnd() < 0.3)
    G.ChartKind = static_cast<std::int16_t>(RandomInt(3));
  else
    G.ChartKind = 4;
}

void StepStatic() {
  if (G.StaticCountdown <= 0) {
    G.StaticCountdown = static_cast<std::int16_t>(RandomInt(4));
    G.StaticY = static_cast<std::int16_t>(Int(Rnd() * 180) + 26);
    G.StaticOn = static_cast<Flag>(~G.StaticOn);
  } else {
    G.StaticCountdown -= 1;
    G.StaticFrame += 1;
    if (G.StaticFrame > 5) G.StaticFrame = 1;
  }
}

// Game time stands while the comms officer waits to hail, in a fight, under
// a prompt or a hail, docked or with an event raised, and while the tactical
// officer waits to attack.
bool TimeHeld() {
  return ButtonState(2, 1) == 1 || IsSet(G.FightActive) || PromptUp() || G.HailedShip != 0 ||
         IsSet(G.StatusSlot[DockedSlot].Active) || IsSet(G.StatusSlot[EventSlot].Active) ||
         ButtonState(3, 4) == 1;
}

void PassTime() {
  if (TimeHeld()) return;
  G.GameHours += G.TimeStep;
  G.NextEventCountdown -= 0.2;
}

void DrawNextEvent() {
  if (G.FightActive != 0 || G.NextEventCountdown > 0 || G.StatusSlot[DockedSlot].Active != 0 ||
      G.StatusSlot[EventSlot].Active != 0 || ButtonState(3, 4) == 1)
    return;
  G.NextEventCountdown = 1000 + Int(Rnd() * 500);
  Skip([] { CheckNextEvent(G.NextEventNumber); });
  if (IsSet(G.StatusSlot[EventSlot].Active)) PlayTrack(2);
  G.NextEventNumber += 1;
  if (G.NextEventNumber > 11) G.NextEventNumber = 1;
}

}  // namespace

void Timer1_Timer() {
  Skip(RedrawChartKind);
  Skip(StepStatic);
  Skip(PassTime);
  Skip(DrawNextEvent);
}

}  // namespace lf
