// Which other ship the cursor points at in the sector view: a ship is under
// the cursor when the middle of its picture, (sx + 12, sy + 7), lies less
// than 10 from the cursor, and in reach when it is nearer the player's ship
// than SensorRange and the ship is not in a nebula.
#pragma once

namespace lf {

// Top left of ship i's picture on the screen.
double ShipScreenX(int i);
double ShipScreenY(int i);

bool ShipUnderCursor(int i);  // against MouseX, MouseY
bool ShipInReach(int i);

// The first ship (1..OtherShipCount) under the cursor and in reach, or 0.
int PickShip();

}  // namespace lf
