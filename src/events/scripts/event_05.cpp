// Story event 5, the energy life form. A form of energy attacks only what attacks it. Returning
// fire destroys the ship; all other ways end without loss.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate5() {
  StoryEvent& e = G.EventScript[5];

  Text(e, 1, {"DURING ONE NIGHT SHIFT ON THE BRIDGE: CAPTAIN. WE ARE DETECTING UNKNOWN",
              "CONTACT MOVING TOWARDS US. IT IS NOT A SHIP. IT LOOKS LIKE A CLOUD OF PURE ENERGY,",
              "AND IT IS CHANGING ITS COURSE TO FOLLOW OURS."});
  Replies(e, 1, {"RAISE SHIELDS AND ARM WEAPONS!",
                 "STEADY AS SHE GOES. ALL STOP.",
                 "TRY TO PREFORM THE SCAN"});

  Text(e, 2, {"TACTICAL OFFICER REPORTS: SHIELDS ARE UP AND WEAPONS ARE ARMED. THE CONTACT",
              "HAS STOPPED. NOW IT IS GLOWING BRIGHTER. CAPTAIN, IT HAS JUST FIRED AN ENERGY BOLT",
              "AT OUR SHIELDS! NO DAMAGE, BUT IT LOOKS LIKE IT IS ANSWERING OUR WEAPONS."});
  Replies(e, 2, {"LOWER SHIELDS AND DISARM WEAPONS!",
                 "LOCK WEAPONS AND RETURN FIRE!",
                 "TRY TO PULL US OUT OF HERE"});

  Text(e, 3, {"NAVIGATOR IS STOPPING THE SHIP AND TELLS: CAPTAIN. AS SOON AS WE STOPED THE",
              "CONTACT HAS STOPPED TOO. IT IS JUST FLOATING THERE, WATCHING US. IT DOES NOT LOOK",
              "LIKE IT WANTS TO HURT US."});
  Replies(e, 3, {"TRY TO SCAN THE LIFE FORM", "MOVE US OUT OF HERE!", "TRY TO HAIL THE TARGET"});

  Text(e, 4, {"COMMUNICATOR REPORTS: CAPTAIN. OUT SENSORS ARE UNABLE TO PENETRATE. WE",
              "ONLY KNOW THAT IT IS MADE OF ENERGY AND THAT IT IS ALIVE. IT IS MOVING AROUND OUR",
              "SHIP AS IF IT WAS TRYING TO SEE WHAT WE ARE."});
  Replies(e, 4, {"GET US OUT OF HERE!", "TRY TO HAIL THE LIFE FORM"});

  Text(e, 5, {"CAPTAIN. AS SOON AS WE HAVE DISARMED THE WEAPON SYSTEMS THE CONTACT HAS DONE",
              "THE SAME. IT IS NOT GLOWING ANY MORE. IT ONLY ATTACKS WHAT ATTACKS IT."});
  Replies(e, 5, {"GET US OUT OF HERE!", "TRY TO HAIL THE CONTACT"});

  Text(e, 6, {"TACTICAL OFFICER REPORTS: WE ARE RETURNING FIRE! OUR WEAPONS HAVE SCORED A",
              "DIRECT HIT, BUT THE ENERGY IS ONLY MAKING IT STRONGER! THE LIFE FORM IS GROWING AND",
              "NOW IT IS COMING STRAIGHT AT US. IT WRAPS AROUND THE SHIP AND THE SHIELDS COLLAPSE.",
              "EVERY SYSTEM IS OVERLOADING AT ONCE..."});
  Replies(e, 6, {"WE REGRET TO INFORM YOU...."});

  Text(e, 7, {"WE ARE MOVING AWAY FROM THE TARGET",
              "THE LIFE FORM WATCHES US GO, BUT DOES NOT FOLLOW."});
  Replies(e, 7, {"ROGER THAT."});

  Text(e, 8, {"NAVIGATOR REPORTS: WE ARE MOVING IN SLOW REVERSE MODE. IT LOOKS",
              "LIKE THE LIFE FORM HAS LOST INTEREST IN US. IT IS FLOATING AWAY IN THE DARK."});
  Replies(e, 8, {"RETURN TO THE PREVIOUS COURSE"});

  Text(e, 9, {"WE ARE TRYING TO HAIL THEM: TO UNKNOWN SHIP. WE COME IN PEACE. PLEASE",
              "RESPOND. FOR A WHILE NOTHING HAPPENS. THEN THE LIFE FORM STARTS TO PULSE IN THE",
              "SAME RHYTHM AS OUR SIGNAL. COMMUNICATOR: I THINK IT IS TRYING TO TALK BACK, CAPTAIN!"});
  Replies(e, 9, {"CONTINUE COMMUNICATION", "BREAK MISSION AND RETURN TO PREVIOUS COURSE"});

  Text(e, 10, {"IT LOOKS LIKE THAT THE ENERHY LIFE FORM IS NOT FOLLOWING US ANY MORE.",
               "AFTER A FEW MINUTES OF PULSING LIGHT IT TURNS AWAY AND DISAPPEARS. SCIENCE OFFICER:",
               "WHATEVER IT WAS, CAPTAIN, I THINK IT WAS SAYING GOODBYE."});
  Replies(e, 10, {"CONTINUE ON PRESENT COURSE"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3), To(4)}},
    {2, {To(5), To(6), To(7)}},
    {3, {To(4), To(8), To(9)}},
    {4, {To(8), To(9)}},
    {5, {To(8), To(9)}},
    {6, {GameOver()}},
    {7, {End()}},
    {8, {End()}},
    {9, {To(10), End()}},
    {10, {End()}},
};
}  // namespace

std::span<const NodeRule> EventRules5() { return kRules; }

}  // namespace lf
