// Story event 16, the smugglers' convoy. A warning to smugglers: even chance that they obey,
// else a fight with one of them. The mission completes either way, before the fight begins.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate16() {
  StoryEvent& e = G.EventScript[16];

  Text(e, 1, {"AS YOUR SHIP APPROACH THE MISSION OBJECTIVE COORDINATES YOUR",
              "SENSORS ARE PICKING UP A GROUP OF SHIPS FLYING CLOSE TOGETHER. IT IS THE",
              "SMUGLERS CONVOY YOU WERE SENT TO STOP."});
  Replies(e, 1, {"SCAN THEM!"});

  Text(e, 2, {"YOUR SENSOR SWEEP SHOWS THAT THIS SHIPS ARE CARRYING ILLEGAL",
              "CARGO. WEAPONS AND DRUGS, CAPTAIN. ENOUGH TO PUT THEM ALL IN PRISON."});
  Replies(e, 2, {"HAIL THEM!"});

  Text(e, 3, {"YOUR ARE OPENING THE HAIL CHANNEL TO THE SMUGLERS CONVOY.",
              "COMMUNICATOR: THIS IS YOUR ONLY WARNING. STOP YOUR ENGINES AND DUMP YOUR CARGO,",
              "OR WE WILL OPEN FIRE."});
  Replies(e, 3, {"WAIT FOR THE REPLY"});

  Text(e, 4, {"THE MAJORITY OF THE SMUGLER CONVOY IS TRYING TO ESCAPE",
              "AS SOON AS YOU ARRIVE, BUT ONE OF THEM TURNS AND OPENS FIRE ON YOU. THE CARGO",
              "THEY DROP IS ENOUGH TO END THEIR BUSINESS, BUT NOW YOU MUST FIGHT."});
  Replies(e, 4, {"ALL HANDS, BATTLE STATIONS!"});

  Text(e, 5, {"IS LOOKS THAT YOUR WARNING WAS CLEAR ENOUGH AND MOST OF THE",
              "SMUGLERS ARE DUMPING THEIR CARGO AND TURNING AWAY. THE CONVOY IS BROKEN. YOUR",
              "MISSION IS COMPLETE."});
  Replies(e, 5, {"RETURN ON COURSE"});

  Text(e, 6, {"THE MOST OF THE SHIPS ARE IGNORING YOU WARNING AND NOW THEY",
              "ARE DUMPING THEIR CARGO AND SCATTERING, BUT ONE OF THEM TURNS AND COMES AT YOU",
              "WITH WEAPONS ARMED. YOUR MISSION IS COMPLETE, BUT NOW YOU MUST FIGHT."});
  Replies(e, 6, {"ALL HANDS, BATTLE STATIONS!"}, {1, 4});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2)}},
    {2, {To(3)}},
    {3, {RndAbove(0.5, 5, 6)}},
    {4, {FightSmugglers()}, {MissionDone()}},
    {5, {End()}, {MissionDone()}},
    {6, {FightSmugglers()}, {MissionDone()}},
};
}  // namespace

std::span<const NodeRule> EventRules16() { return kRules; }

}  // namespace lf
