// Story event 12, the distress call. The captain's way out of a stranded ship: a stranger tows
// it to the nearest station.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate12() {
  StoryEvent& e = G.EventScript[12];

  Text(e, 1, {"CAPTAIN! WE ARE ABOUT TO SEND A DISTRESS CALL.",
              "EVERY SHIP IN RANGE WILL HEAR IT. SOMEBODY MAY COME TO HELP US, BUT HELP WILL NOT",
              "COME FOR FREE."});
  Replies(e, 1, {"SEND THE DISTRESS CALL!", "CANCEL THE ORDER!"}, {1, 2, 7});

  Text(e, 2, {"AFTER AWHILE A LONE SHIP APPEARES WITHIN YOUR SENSOR RANGE RESPONDING TO YOUR DISTRESS CALL ",
              "SHIP CAPTAIN REQUESTS Š10000 FOR THE SERVICE OF TOWING OUR SHIP BACK TO STATION!"});
  Replies(e, 2, {"ACCEPT THE PROPOSAL", "REJECT OFFER"});

  Text(e, 3, {"WHILE TIME PASSES BY, YOUR HOPES DEMISE ALONG WITH YOUR HEALTH.",
              "NO SHIP ANSWERS THE CALL. THE AIR GROWS THIN AND COLD AND ONE BY ONE THE CREW",
              "FALLS ASLEEP, NEVER TO WAKE UP AGAIN."});
  Replies(e, 3, {"GAME OVER"});

  Text(e, 4, {"THE OTHER SHIP IS STARTING TO MANOUVER IN ORDER TO PROCEED WITH THE TOWING",
              "AND A TRACTOR BEAM LOCKS ON YOUR HULL. A FEW HOURS LATER THE NEAREST STATION",
              "APPEARS ON THE SCREEN."});
  Replies(e, 4, {"VERY GOOD"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), End()}},
    {2, {To(4), End()}},
    {3, {GameOver()}},
    // The tow costs the Š10000 its captain asks, or all the money aboard.
    {4, {Towed()}, {PayCash(10000)}},
};
}  // namespace

std::span<const NodeRule> EventRules12() { return kRules; }

}  // namespace lf
