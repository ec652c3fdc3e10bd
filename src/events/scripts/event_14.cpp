// Story event 14, the disabled freighter. The repair of a freighter completes the mission.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate14() {
  StoryEvent& e = G.EventScript[14];

  Text(e, 1, {"AS YOU APPROACH MISSION COORDIATED YOU SENSOR ARE REGISTERING",
              "A FREIGHTER DRIFTING WITH NO POWER. IT IS THE SHIP YOU WERE SENT TO HELP."});
  Replies(e, 1, {"HAIL THE SHIP", "SCAN THE SHIP", "ABORT MISSION"});

  Text(e, 2, {"YOU ARE NOW OPENING THE HAIL CHANNEL TO THE DAMAGED SHIP:",
              "THANK GOODNESS YOU ARE HERE, CAPTAIN! OUR ENGINES ARE DEAD AND LIFE SUPPORT IS",
              "FAILING. PLEASE DOCK WITH US AND HELP US WITH THE REPAIRS."});
  Replies(e, 2, {"DOCK WITH THE SHIP AND BEGIN REPAIRING", "ABORT MISSION"});

  Text(e, 3, {"YOUR SENSOR REPORT SHOWS MASSIVE DAMAGE TO THE ALL KEY SHIP",
              "SYSTEMS OF THE FREIGHTER. ENGINES, GENERATORS AND LIFE SUPPORT ARE DOWN. THE CREW",
              "IS ALIVE, BUT NOT FOR LONG."});
  Replies(e, 3, {"DOCK WITH THE SHIP AND BEGIN REPAIRING", "ABORT MISSION"});

  Text(e, 4, {"ABORTING MISSION"});
  Replies(e, 4, {"ROGER THAT"});

  Text(e, 5, {"AS YOUR SHIP DOCKS WITH THE DAMAGED FREIGHTER, YOUR CREW STARTS",
              "THE REPAIRS. AFTER A FEW HOURS THE FREIGHTER ENGINES COME BACK TO LIFE. ITS",
              "CAPTAIN THANKS YOU AND SETS COURSE FOR HOME. YOUR MISSION IS COMPLETE."});
  Replies(e, 5, {"TEN FOUR"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3), To(4)}},
    {2, {To(5), To(4)}},
    {3, {To(5), To(4)}},
    {4, {End()}},
    {5, {End()}, {MissionDone()}},
};
}  // namespace

std::span<const NodeRule> EventRules14() { return kRules; }

}  // namespace lf
