// Story event 3, the life pod in the debris. Debris of a ship with a live pod; the survivor can
// be taken on as the hero at no salary, or put off at the next station.
#include "events/scripts/script.h"

namespace lf {

void DefineEventTextAndTemplate3() {
  StoryEvent& e = G.EventScript[3];

  Text(e, 1, {"YOUR COMMUNICATOR IS PASSING TROUGHT THE NAVIGATION DATA AND AFTER A MINUTE",
              "HE TURNS TO YOU: CAPTAIN, THERE IS A FIELD OF DEBRIS NOT FAR FROM OUR COURSE. IT",
              "LOOKS LIKE A SHIP WAS DESTROYED HERE NOT LONG AGO. SHOULD WE CONDUCT A SENSOR SWEEP?"});
  Replies(e, 1, {"OK. CONDUCT THE SWEEP.", "NO. CONTINUE ON THE COURSE."});

  Text(e, 2, {"AS YOUR SCIENTIFIC OFFICER ANALIZES THE DATA FROM THE DEBRIS HE COMES OUT",
              "WITH A SURPRISE: CAPTAIN, MOST OF IT IS JUST METAL, BUT THERE IS A LIFE POD AMONG",
              "THE DEBRIS. ITS POWER IS ALMOST GONE, BUT I THINK THERE IS STILL SOMEBODY INSIDE."});
  Replies(e, 2, {"SCAN THE LIFE POD",
                 "CLOSE THE DISTANCE AND TRACTOR IN THE LIFE POD FOR THE EXEMINATION.",
                 "TRY TO HAIL THE LIFE POD"});

  Text(e, 3, {"AYE SIR. I AM RESUMING THE PRESENT COURSE.",
              "THE DEBRIS FIELD IS SOON LEFT FAR BEHIND."});
  Replies(e, 3, {"ROGER THAT."});

  Text(e, 4, {"AS YOUR SHIP APPROACHES THE LIFE POD YOUR SCIENCE OFFICER IS COMING",
              "WITH THE SCAN RESULTS: ONE LIFE SIGN, CAPTAIN. HUMAN, VERY WEAK. THE LIFE SUPPORT",
              "OF THE POD IS FAILING. WHOEVER IS IN THERE HAS ONLY A FEW HOURS LEFT."});
  Replies(e, 4, {"CLOSE AND TRACTOR IN THE LIFE POD",
                 "TRY TO HAIL LIFE POD",
                 "I DONT LIKE IT. CONTINUE ON THE PREVIOUS COURSE."});

  Text(e, 5, {"YOUR TRACTOR BEAM IS ACTIVATED AND LIFE POD IS MOVING INSIDE YOUR CARGO",
              "BAY. YOUR CREW OPENS THE HATCH AND FINDS A MAN INSIDE, WEAK BUT ALIVE. AFTER A",
              "FEW HOURS IN THE SICKBAY HE ASKS TO SEE YOU: CAPTAIN, MY SHIP IS GONE AND SO IS",
              "MY CREW. I HAVE NOWHERE TO GO. LET ME JOIN YOUR CREW. I WONT ASK FOR ANY PAY."});
  Replies(e, 5, {"OK BRING HIM ON.", "FORGET IT! WE DONT NEED AN EXTRA CREWMEMBER"});

  Text(e, 6, {"YOUR COMMUNICATOR IS TRYING TO HAIL A DAMAGED LIFE POD BUT WITHOUT",
              "ANY SUCCESS. THE POD DOES NOT ANSWER. ITS TRANSMITTER MAY BE BROKEN, OR THE ONE",
              "INSIDE IS TOO WEAK TO REPLY."});
  Replies(e, 6, {"OK. I THINK ITS ALL UP TO THE TRACTOR BEAM NOW...",
                 "WELL, IT LOOKS LIKE WHATEVER IS INSIDE IS DEAD. RESUME THE COURSE."});

  Text(e, 7, {"CAPTAIN, WE SHOULD AT LEAST TRY SOMETHING ELSE. WE CAN JUST LEAVE THE",
              "POD HERE. IF THERE IS SOMEBODY ALIVE IN THERE, HE WILL DIE. OUR TRACTOR BEAM CAN",
              "HAVE HIM ABOARD IN A FEW MINUTES. PLEASE, CAPTAIN."});
  Replies(e, 7, {"YOU HAVE YOUR ORDERS, SAILOR. RESUME THE COURSE!", "YOU ARE RIGHT."});

  Text(e, 8, {"THERE IS A PERSONAL MESSAGE COMING FROM THE RESCUED MAN: THANK YOU SIR!",
              "YOU WILL NOT REGRET THIS. I HAVE SERVED ON MANY SHIPS AND I KNOW MY TRADE WELL. I",
              "WILL REPORT TO MY STATION AS SOON AS THE DOCTOR LETS ME OUT OF THE SICKBAY."});
  Replies(e, 8, {"YOU WILL HAVE YOU THE CHANCE TO PROVE YOURSELF."});

  Text(e, 9, {"THERE IS A PERSONAL MESSAGE COMING FROM THE RESCUED MAN: THANK YOU CAPTAIN.",
              "I UNDERSTAND. YOU SAVED MY LIFE AND THAT IS MORE THAN I COULD ASK. I WILL LEAVE",
              "YOUR SHIP AT THE NEXT STATION."});
  Replies(e, 9, {"ALL RIGHT. AS SOON AS WE DOCK YOU ARE ON YOUR OWN."});
}

namespace {
using namespace rule;
// Node, where each reply leads, and what any accepted click in the node does first.
constexpr NodeRule kRules[] = {
    {1, {To(2), To(3)}},
    {2, {To(4), To(5), To(6)}},
    {3, {End()}},
    {4, {To(5), To(6), To(3)}},
    {5, {To(8), To(9)}},
    {6, {To(5), To(7)}},
    // YOU ARE RIGHT: the crew gets its further try at the pod, the tractor beam.
    {7, {End(), To(5)}},
    {8, {End()}, {HeroJoins(1)}},
    {9, {End()}},
};
}  // namespace

std::span<const NodeRule> EventRules3() { return kRules; }

}  // namespace lf
