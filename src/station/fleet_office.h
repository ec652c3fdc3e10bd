// The fleet office's services, each the confirm of its page, and the
// loan's reckoning at docking.
#pragma once

namespace lf {

// The menu line 1..5 that ServicePage belongs to, 0 for none.
int FedPage();

// The confirm button on each page.
void a_BuyTranslator();
void a_TakeOrRepayLoan();
void a_PayFine();
void a_BuyStarChart();
void a_BuyStarLane();

// The chart's price by ChartKind (a kind outside 1..3 is the station chart).
int ChartPrice();
// Marks the planets of the chart on offer as known.
void RevealChart();
// Places the quadrant's star lane near some planet.
void PlaceStarLane();
// The loan office takes its due: cash first, then components.
void SeizeForLoan();

}  // namespace lf
