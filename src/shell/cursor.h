// The mouse cursor in its shapes, the ship selection marker and tool tips.
#pragma once

namespace lf {

// Reads the cursor from the host into MouseX, MouseY.
void ReadCursor();
// Moves the host's cursor (640x480 space) and MouseX, MouseY with it.
void MoveCursor(int x, int y);

void a_DrawCursor();
void DrawCursor();
void DrawShipSelection(int x, int y);
void CheckOverTool();
void DrawToolTip();
void CheckToolTip();

}  // namespace lf
