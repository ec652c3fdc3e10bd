// The ship dealer's actions on the selection (station screen 4). The screen's
// drawing, its press handler and a_DetermineStationEquip are declared with
// the other station procedures.
#pragma once

namespace lf {

void a_BuyComp();
void a_CompSell();
void a_CompRepair();
void a_HullRepair();
void a_PurchaseShipHull();
void a_CheckFit();
void a_SellUnfitted();
// Moves components left beyond the hull's hardpoints onto free ones.
void a_ReArrangeHardPoints();

}  // namespace lf
