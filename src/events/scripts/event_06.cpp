// Story event 6, the magnetic anomaly. A magnetic field. Only the scan at node 1 gets the ship
// away free (node 3, then the end); every other way leads to node 6, where all engines go, or
// to node 7, where all engines and generators go, and the captain is left to the distress call
// (event 12).
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate6() {
  StoryEvent& e = G.EventScript[6];

  Text(e, 1, {"CAPTAIN, WE ARE DETECTING SOME STRANGE ENERGY FORMATIONS OFF THE PORT SIDE.",
              "THEY LOOK LIKE MAGNETIC STORMS, BUT THEY ARE NOT MOVING THE WAY A STORM SHOULD."});
  Replies(e, 1, {"MOVE US A LITTLE CLOSER", "SCAN THE AREA", "STEADY AS SHE GOES"});

  Text(e, 2, {"AS YOUR SHIP APPROACHES THE PHENOMENA YOUR NAVIGATOR REPORTS:",
              "CAPTAIN, IT IS A MAGNETIC FIELD, AND A STRONG ONE! OUR INSTRUMENTS ARE GOING MAD AND",
              "THE ENGINES ARE LOSING POWER. WE ARE BEING PULLED INTO THE FIELD!"});
  Replies(e, 2, {"RAISE SHIELDS!", "ALL ENGINES: FULL REVERSE!"});

  Text(e, 3, {"YOUR SCIENTIFIC OFFICER REPORTS: SIR, WE ARE OUT OF RANGE FOR MORE ACCURATE",
              "SCAN, BUT ITS ENOUGH TO SEE WHAT IT IS. A MAGNETIC FIELD STRONG ENOUGH TO BURN OUT",
              "OUR ENGINES. I RECOMMEND WE KEEP OUR DISTANCE AND GO AROUND IT."});
  Replies(e, 3, {"MAKE IT SO."});

  Text(e, 4, {"YOUR SHIP IS MOVING OUT OF RANGE.",
              "NAVIGATOR: WAIT, CAPTAIN. THE FORMATIONS ARE MOVING WITH US. THE FIELD IS GETTING",
              "STRONGER AND OUR ENGINES ARE STARTING TO LOSE POWER."});
  Replies(e, 4, {"ROGER THAT.", "STEADY AS SHE GOES"});

  Text(e, 5, {"YOUR TACTICAL OFFICER REPORTS: I CANT RAISE SHIELDS AND ARM WEAPONS!",
              "THE MAGNETIC FIELD IS DRAINING ALL OUR POWER. CAPTAIN, THE GENERATORS ARE OVERHEATING",
              "AND WE ARE STILL BEING PULLED IN."});
  Replies(e, 5, {"ALL ENGINES, FULL REVERSE!", "TRY TO SEND THE DISTRESS CALL!"});

  Text(e, 6, {"AS TIME PASSES BY YOUR COMMUNICATION OFFICER IS SENDING THE DISTRESS CALL.",
              "THE FIELD HAS LET US GO, BUT IT HAS BURNED OUT ALL OUR ENGINES. WE ARE DRIFTING.",
              "ENGENEER: CAPTAIN, THE ENGINES ARE GONE. WE WILL NEED NEW ONES. UNTIL THEN, ONLY A",
              "DISTRESS CALL CAN GET US HOME."});
  Replies(e, 6, {"COPY THAT."});

  Text(e, 7, {"YOUR SHIP IS RECEIVING SEVERE DAMAGE TO ITS GENERATORS",
              "AND ENGINES. THE FIELD THROWS US OUT AT LAST, BUT THERE IS NOTHING LEFT OF THEM.",
              "ENGENEER: WE HAVE NO POWER AND NO ENGINES, CAPTAIN. THE DISTRESS CALL IS OUR ONLY",
              "HOPE NOW."});
  Replies(e, 7, {"ACKNOWLEDGED"});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3), To(4)}},
    {2, {To(5), To(6)}},
    {3, {End()}},
    {4, {To(5), To(6)}},
    {5, {To(6), To(7)}},
    {6, {End()}, {EmptyGroup(5)}},
    {7, {End()}, {EmptyGroup(4), EmptyGroup(5)}},
};
}  // namespace

std::span<const NodeRule> EventRules6() { return kRules; }

}  // namespace lf
