// Story event 13, the lander mission. The lander goes down for ore. It can come back with a
// load, or be lost with the navigator.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate13() {
  StoryEvent& e = G.EventScript[13];

  Text(e, 1, {"DO YOU WISH TO SEND OUR LANDING CRAFT ON A SURVEY",
              "AND ORE MINING MISSION TO THE PLANET SURFACE? THE NAVIGATOR WILL FLY THE LANDER."});
  Replies(e, 1, {"LAUNCH THE LANDER!", "CANCEL THE ORDER!"}, {1, 2, 7});

  Text(e, 2, {"SUCCESSFUL LANDING AND PROGRESS OF THE AWAY TEAMS MISSION.",
              nullptr,
              "OUR NAVIGATOR CAME ABOARD SAFE AND SOUND AND IS REPORTING A",
              "MISSION SUCCESSFUL."});
  Replies(e, 2, {"VERY WELL."}, {1, 7});

  Text(e, 3, {"OUR NAVIGATOR HAS ENCOUTERED SOME DIFFICULTY WHILE PASSING ",
              "TROUGH THE UPPER ATMOSPHERE. WE HAVE LOST CONTACT WITH THE LANDER. WE WILL KEEP",
              "TRYING TO REACH HIM."});
  Replies(e, 3, {"OK, I WANT A FULL STATUS REPORT EVERY TEN MINUTES"}, {1, 7});

  Text(e, 4, {"AFTER SOME TIME IN THE DARK, WE HAVE REGAINED A COMMUNICATION LINK",
              "WITH THE LANDER. OUR NAVIGATOR REPORTS THAT HE IS SAFE AND HAS LANDED. HE IS",
              "STARTING THE SURVEY NOW."});
  Replies(e, 4, {"GREAT."}, {1, 7});

  Text(e, 5, {"AFTER A FEW HOURS OF BEING IN THE DARK CONCERNING THE LANDER SITUATION,",
              "THE SENSORS FIND THE WRECK OF THE LANDER ON THE SURFACE. THERE ARE NO LIFE SIGNS.",
              "OUR NAVIGATOR IS DEAD."});
  Replies(e, 5, {"IT IS ALWAYS A GREAT GRIEF TO LOSE SUCH A SKILLFUL CREWMEMBER",
                 "AND SUCH A FRIEND EVEN MORE. HIS DEMISE WILL BE MOURNED."}, {1, 3});

  Text(e, 6, {"JUST BEFORE YOU GIVE YOUR LAST CONFIRMATION FOR THE LANDER DEPLOYMENT",
              "YOUR SCIENCE OFFICER STOPS YOU: CAPTAIN, THIS PLANET IS A GAS GIANT. THERE IS NO",
              "SURFACE TO LAND ON. THE LANDER WOULD BE CRUSHED IN THE ATMOSPHERE."});
  Replies(e, 6, {"HMM... RIGHT THEN. ABORT THE LANDER MISSION IMMEDIATELY!"});

  Text(e, 7, {"AS YOUR LANDER EXITS THE LANDER CRAFT BAY, YOU RECEIVE A HIGH PRIORITY",
              "MESSAGE FROM THE STATION: MINING ON THIS PLANET IS NOT ALLOWED. RETURN YOUR CRAFT",
              "TO ITS BAY AT ONCE OR WE WILL OPEN FIRE."});
  Replies(e, 7, {"VERY WELL. ABORT LANDER MISSION."});

  Text(e, 8, {"AS HE ANTICIPATES YOUR DICISION ABOUT SENDING A LANDER CRAFT ON AN ORE",
              "MINING MISSION, YOUR NAVIGATOR REMINDS YOU THAT OUR CARGO HOLD IS FULL. THERE IS NO",
              "ROOM FOR THE ORE."});
  Replies(e, 8, {"VERY WELL. ABORT LANDER MISSION."});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {LanderLaunch(), End()}},
    {2, {End()}},
    {3, {LanderTrouble(4, 5)}},
    {4, {To(2)}},
    {5, {End()}},
    {6, {End()}},
    {7, {End()}},
    {8, {End()}},
};
}  // namespace

std::span<const NodeRule> EventRules13() { return kRules; }

}  // namespace lf
