// Story event 18, the joint attack. A friendly captain asks for help against pirates; accepting
// leads to a fight.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate18() {
  StoryEvent& e = G.EventScript[18];

  Text(e, 1, {"HOW KIND OF YOU. PERHAPS IF YOU CAN JOIN ME",
              "IN A SMALL MATTER. A PIRATE GANG HAS BEEN ATTACKING OUR SHIPS AROUND HERE AND I",
              "AM ON MY WAY TO DEAL WITH THEM. TWO SHIPS WILL DO IT BETTER THAN ONE."});
  Replies(e, 1, {"OFFER ASSISTANCE", "DECLINE MISSION"});

  Text(e, 2, {"ALL RIGHT! FOLLOW ME TO THE TARGET DESTINATION.",
              "THE OTHER SHIP SETS COURSE AND YOUR NAVIGATOR FOLLOWS. SOON THE PIRATES ARE ON",
              "THE SENSORS."});
  Replies(e, 2, {"CLOSE IN FOR A COMBAT"});

  Text(e, 3, {"YOUR MESSAGE: ",
              "WE ARE SORRY, BUT WE CANT JOIN YOU. THE OTHER CAPTAIN NODS: I UNDERSTAND. GOOD",
              "LUCK TO YOU, CAPTAIN."});
  Replies(e, 3, {"CLOSE HAIL CHANNEL"});

  Text(e, 4, {"BOTH SHIPS ARE NOW PREPEARING TO ENGAGE THE ENEMY",
              "THE OTHER SHIP TAKES THE FIRST PIRATE AND IT GOES DOWN IN FLAMES. THE SECOND",
              "PIRATE TURNS ON YOU."});
  Replies(e, 4, {"ATTACK THE REMAINING SHIP"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3)}},
    {2, {To(4)}},
    {3, {End()}},
    {4, {FightPirates()}},
};
}  // namespace

std::span<const NodeRule> EventRules18() { return kRules; }

}  // namespace lf
