// Story event 8, the meteor. A planet begs for help against a meteor. Moving closer before the
// launch (node 8) saves it and pays 10000; a launch from where the ship stands (node 6) fails,
// at no cost to the ship.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate8() {
  StoryEvent& e = G.EventScript[8];

  Text(e, 1, {"JUST AS THE SHIP IS PASSING A NEARBY PLANET: CAPTAIN. WE A PICKING",
              "A MESSAGE FROM THE PLANET. THEY ARE CALLING FOR ANY SHIP THAT CAN HEAR THEM."});
  Replies(e, 1, {"RESPOND TO MESSAGE", "STEADY AS SHE GOES"});

  Text(e, 2, {"A MESSAGE FROM THE PLANET CONTINUES: THANK YOU FOR RESPONDING CAPTAIN.",
              "A LARGE METEOR IS ON A COLLISION COURSE WITH OUR PLANET. IT WILL HIT IN LESS THAN",
              "A DAY AND WE HAVE NO SHIPS TO STOP IT. IF YOU COULD DESTROY IT OR PUSH IT AWAY, YOU",
              "WILL SAVE MILLIONS OF LIVES. WE WILL PAY YOU Š10000 FOR IT."});
  Replies(e, 2, {"ACCEPT THE MISSION", "DECLINE THE MISSION"});

  Text(e, 3, {"RESUMING THE PREVIOUS COURSE, CAPTAIN."});
  Replies(e, 3, {"COPY THAT."});

  Text(e, 4, {"RESPOND TO THE PLANETS INQUERY: WE ARE WILLING TO HELP YOU",
              "THE PLANET SENDS ALL THEIR DATA ON THE METEOR. TACTICAL OFFICER: CAPTAIN, WE HAVE A",
              "MISSILE THAT COULD BREAK IT UP, BUT IT IS BIG. WE WILL HAVE TO HIT IT JUST RIGHT."});
  Replies(e, 4, {"OK. LOAD THE MISSILE, CLOSE ON THE METEOR AND LAUNCH THE WEAPON!",
                 "PREFORM THE SCAN OF THE METEORS SURFACE",
                 "NAVIGATOR. MOVE US A LITTLE CLOSER TO THE METEOR"});

  Text(e, 5, {"REPLY TO PLANET: WE REGRET TO INFORM YOU THAT WE ARE NOT ABLE",
              "TO HELP YOU. THE ANSWER COMES AFTER A LONG SILENCE: WE UNDERSTAND. GOOD LUCK TO",
              "YOU, CAPTAIN. PLEASE TELL THE OTHERS WHAT HAPPENED HERE."});
  Replies(e, 5, {"WILL DO."});

  Text(e, 6, {"TACTICAL OFFICER REPORTS: CAPTAIM. I AM LAUNCHING THE MISSILE.",
              "THE MISSILE HITS THE METEOR, BUT WE ARE TOO FAR. THE BLAST ONLY BREAKS OFF A",
              "PIECE OF THE ROCK. THE METEOR KEEPS ON ITS COURSE. THERE IS NOTHING MORE WE CAN DO.",
              "THE PLANET GOES SILENT."});
  Replies(e, 6, {"SORRY."});

  Text(e, 7, {"COMMUNICATION OFFICER REPORTS: I AM DETECTING SOMEKIND OF LARGE TRENCH",
              "ON THE METEORS SURFACE. IF A MISSILE HITS THE TRENCH FROM CLOSE RANGE, THE WHOLE",
              "ROCK SHOULD BREAK APART."});
  Replies(e, 7, {"LAUNCH THE MISSILE", "BRING US A LITTLE CLOSER"});

  Text(e, 8, {"NAVIGATOR REPORTS: CAPTAIN. WE ARE 40 MILES FROM THE METEOR. WE HAVE",
              "A CLEAR SHOT. THE MISSILE STRIKES DEEP INTO THE ROCK AND THE METEOR BREAKS INTO",
              "A THOUSAND PIECES THAT BURN UP IN THE PLANETS SKY. THE PLANET IS SAFE! A MESSAGE",
              "COMES: THANK YOU, CAPTAIN. Š10000 HAVE BEEN SENT TO YOUR ACCOUNT."});
  Replies(e, 8, {"RESUME THE PREVIOUS COURSE."});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3)}},
    {2, {To(4), To(5)}},
    {3, {End()}},
    {4, {To(6), To(7), To(8)}},
    {5, {End()}},
    {6, {End()}},
    {7, {To(6), To(8)}},
    {8, {End()}, {AddCash(10000)}},
};
}  // namespace

std::span<const NodeRule> EventRules8() { return kRules; }

}  // namespace lf
