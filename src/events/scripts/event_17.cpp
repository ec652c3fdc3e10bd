// Story event 17, the life pod, pirate version.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate17() {
  StoryEvent& e = G.EventScript[17];

  Text(e, 1, {"YOUR SHIPS SENSORS ARE PICKING FAINT LIFE POD SIGNAL. AS YOU CLOSE",
              "IN, A SHORT MESSAGE COMES FROM THE POD: I AM YOUR PASSENGER. ALL YOU",
              "NEED TO KNOW IS THAT YOU HAVE TO BE QUICK BECAUSE PIRATE SHIPS ARE",
              "LOOKING FOR ME."});
  Replies(e, 1, {"SCAN THE LIFE POD"});

  Text(e, 2, {"AFTER SCANNING YOU ARE SURE THAT LIFE POD IS CARRING YOUR MISSION",
              "PASSENGER. THE POD IS INTACT AND ITS PASSENGER IS ALIVE."});
  Replies(e, 2, {"LOCK TRACTOR BEAM ON THE LIFE POD"});

  Text(e, 3, {"YOUR TRACTOR BEAM HAS PLACED THE LIFE POD IN YOUR CARGO BAY. THERE ",
              "IS A MESSAGE FROM YOU PASSENGER: MY THANKS, CAPTAIN, BUT PLEASE HURRY",
              "MY TIME IS SHORT. OH AND BY THE WAY TRY TO AVOID ANY PIRATE SHIPS.",
              "I THINK IT IS OUR MUTUAL BEST INTEREST IF WE DONT RUN IN ANY PIRATE",
              "RAID, RIGHT?",
              "YOUR MISSION IS COMPLETE"});
  Replies(e, 3, {"COPY THAT"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2)}},
    {2, {To(3)}},
    {3, {End()}, {MissionDone()}},
};
}  // namespace

std::span<const NodeRule> EventRules17() { return kRules; }

}  // namespace lf
