// The mouse cursor in its shapes, the ship selection marker and tool tips.
#pragma once

namespace lf {

// Reads the cursor from the host into MouseX, MouseY.
void ReadCursor();
// Moves the host's cursor (640x480 space) and MouseX, MouseY with it.
void MoveCursor(int x, int y);

// The plain arrow of the menu, station, event and fight screens.
void a_DrawCursor();
// The bridge cursor: scroll arrows at the view's edges, the selection
// marker on a ship, the course cross, the arrow.
void DrawCursor();
// The animated marker around the ship whose picture stands at (x, y).
void DrawShipSelection(int x, int y);

// Tool tips: the areas of the icons and faces, the tip beside the cursor,
// and the help icon that switches them on and off.
void CheckOverTool();
void DrawToolTip();
void CheckToolTip();

}  // namespace lf
