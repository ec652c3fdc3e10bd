// The meeting lounge's own procedures (station screen 2): hiring and
// dismissing, the pirates' goods, and the layout of the left list. The
// screen's drawing and its press handler are declared with the other
// station procedures.
#pragma once

#include "shell/numeric.h"

namespace lf {

// Hires the waiting person on the selected line into his post.
void a_HireCrewMember();
// Sends the person at crew post 1..6 away to a planet of the station's race.
void a_DismissCrewMember(int post);
// Buys item 1..3 of the pirates' offer; whether the ship has it.
void a_BuyPirateGood(int item);
Flag& PirateGoodOwned(int item);

// The left list: the person on place n (0 for none), the people listed
// before the first empty place, and the lines of NEWS and SPECIAL OFFER
// (the offer line only at a pirate station, else 0).
int StationPerson(int n);
int WaitingPeople();
int NewsLine();
int OfferLine();

}  // namespace lf
