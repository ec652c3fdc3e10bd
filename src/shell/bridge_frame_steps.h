// The steps of a bridge frame that the frame does itself (the others are
// calls to their topics' procedures).
#pragma once

namespace lf {

// 1. The engineer's effort, less the shares allotted to fitted slots.
void RecountRepairPool();
// 2. The hull never stands above its maximum.
void CapHullPoints();
// 3. A raised story event is entered once no message waits.
void EnterRaisedEvent();
// 4 and 23. A docking is entered once no message waits (step 4 also ends
// mouse look).
void EnterStationIfCleared(bool dropMouseLook);
// 6. The hail-messages button is available only while a hail opens or stands.
void UpdateHailMessagesButton();
// 7. Within 5 units of the destination the ship stops.
void CheckArrival();
// 10. Ship motion (twice the step a frame, pinned at the sector's edges),
// then the patrol points.
void MoveShip();
// 11, 12. The view follows the ship unless detached; clamps.
void FollowShipWithView();
void ClampDestinationAndView();
// 13. Chasing another ship.
void FollowOtherShip();
// 19. The ENTER ORBIT question.
void OfferOrbit();
// 20. Under a prompt the cursor is held on the text strip.
void HoldCursorOnStrip();
// 24. The view's contents by OrbitState.
void DrawViewContents();
// 26. The panels of the buttons that are on, later ones over earlier ones.
void DrawPanels();

}  // namespace lf
