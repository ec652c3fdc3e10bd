// Story event 7, the energy ribbon. A ribbon of energy holds the ship. Raising shields destroys
// it. The scan leads to the engineer: Skill above 3 frees the ship; otherwise nodes 6, 8 and 9
// try the engines of the lander and the ship is destroyed.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate7() {
  StoryEvent& e = G.EventScript[7];

  Text(e, 1, {"YOUR SCIENCE OFFICER REPORTS: CAPTAIN. I AM READING SOME STRANGE ENERGY",
              "AHEAD OF US. IT LOOKS LIKE A LONG RIBBON OF LIGHT AND IT IS COMING OUR WAY FAST!",
              "NAVIGATOR: IT IS TOO LATE TO GO AROUND IT. THE RIBBON HAS US, CAPTAIN!"});
  Replies(e, 1, {"ALL ENGINES, FULL REVERSE!",
                 "RAISE SHIELDS!",
                 "TRY TO SCAN THE ENERGY RIBBON",
                 "SEND THE DISTRESS CALL!"});

  Text(e, 2, {"CAPTAIN! OUR ENGINES ARE DEAD. I DONT HAVE A CONTROL OVER THE SHIP SIR!",
              "THE RIBBON IS HOLDING US AND DRAGGING US ALONG WITH IT."});
  Replies(e, 2, {"TRY TO RAISE SHIELDS!", "TRY TO SCAN THE ANOMALY", "TRY TO SEND THE DISTRESS CALL"});

  Text(e, 3, {"AS SOON AS SHIELDS ARE ACTIVATED: SIR! RAISING THE SHIELDS IS INCREASING",
              "THE POWER OF THE RIBBON! IT IS FEEDING ON OUR SHIELDS! THE HULL IS STARTING TO",
              "BREAK UP. WE CANT SHUT THEM DOWN, THE CONTROLS ARE NOT ANSWERING..."});
  Replies(e, 3, {"WE REGRET TO INFORM YOU..."});

  Text(e, 4, {"YOUR SCIENCE OFFICER BEGGINS: CAPTAIN, IT SEEMS THAT THE RIBBON IS",
              "A STREAM OF ENERGY THAT FEEDS ON ANY POWER IT TOUCHES. IT WILL HOLD US UNTIL OUR",
              "POWER IS GONE. OUR ONLY CHANCE IS THE ENGENEER. IF ANYONE CAN FIND A WAY OUT, HE CAN."});
  Replies(e, 4, {"PROCEED"});

  Text(e, 5, {"COMMUNICATION OFFICER REPORTS FROM HIS STATION: CAPTAIN. I AM TRYING",
              "TO SEND THE DISTRESS CALL, BUT THE RIBBON IS EATING OUR SIGNAL. NOBODY WILL HEAR",
              "US FROM IN HERE."});
  Replies(e, 5, {"NO WAY. TRY TO RAISE SHIELDS.", "TRY TO SCAN THE RIBBON FOR ANY FURTHER INFORMATION"});

  Text(e, 6, {"AFTER A MOMENT OF BRIEFE SILENCE YOUR ENGENEER REPORTS: WELL, I THINK",
              "WE COULD FIRE THE ENGINES OF THE LANDER WHILE IT IS STILL IN THE BAY. IT MIGHT",
              "PUSH US OUT OF THE RIBBON. I CANT PROMISE ANYTHING, CAPTAIN. ITS ALL I HAVE GOT."});
  Replies(e, 6, {"WILL IT WORKS?", "OK. FIRE THE LANDER ENGINES!"});

  Text(e, 7, {"ENGENEER OFFERS A SOLUTION: I THINK I KNOW HOW WE WILL GET OUT OF THIS",
              "ONE. IF I SHUT DOWN EVERY SYSTEM, THE RIBBON WILL HAVE NOTHING TO FEED ON AND WILL",
              "LET US GO. A FEW MINUTES IN THE DARK LATER THE RIBBON MOVES ON WITHOUT US. THE",
              "LIGHTS COME BACK ON AND THE SHIP IS FREE."});
  Replies(e, 7, {"ROGER THAT"}, {1, 7});

  Text(e, 8, {"AFTER A SMALL PERIOD OF TIME YOUR SCIENCE OFFICER REPORTS: CAPTAIN.",
              "I HAVE RUN THE NUMBERS. THE LANDER ENGINES ARE TO WEAK. THEY WILL ONLY GIVE THE",
              "RIBBON MORE POWER TO FEED ON. BUT WE HAVE NO OTHER CHOICE LEFT."});
  Replies(e, 8, {"COPY THAT."});

  Text(e, 9, {"NAVIGATOR REPORTS: CAPTAIN. WE HAVE SUCCESUFULY EXTRACTED THE LANDER.",
              "ITS ENGINES ARE FIRING... FOR A MOMENT THE SHIP MOVES, THEN THE RIBBON FLARES UP",
              "BRIGHTER THAN EVER. IT TAKES THE LANDER, THEN THE ENGINES, THEN THE HULL. THE LAST",
              "THING YOU HEAR IS THE SOUND OF THE RIBBON SINGING."});
  Replies(e, 9, {"GAME OVER"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3), To(4), To(5)}},
    {2, {To(3), To(4), To(5)}},
    {3, {GameOver()}},
    {4, {SkillAbove(6, 3, 7, 6)}},
    {5, {To(3), To(4)}},
    {6, {To(8), To(9)}},
    {7, {End()}},
    {8, {To(9)}},
    {9, {GameOver()}},
};
}  // namespace

std::span<const NodeRule> EventRules7() { return kRules; }

}  // namespace lf
