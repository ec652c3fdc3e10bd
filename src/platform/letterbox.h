// Where the 640x480 game screen lands in a window of any size: scaled by a
// whole number and centred with black bars, and the mapping of points
// between the window and the game screen. Pure arithmetic, no SDL.
#pragma once

namespace lf {

// The rectangle of the window that shows the game screen.
struct Letterbox {
  int x = 0, y = 0, w = 640, h = 480;
  int scale = 1;  // whole-number scale; 0 when the window is too small and the frame is shrunk
  bool operator==(const Letterbox&) const = default;
};

// The largest whole-number scale that fits the window, centred. A window
// smaller than 640x480 shows the frame shrunk to fit, keeping its shape.
Letterbox FitFrame(int windowW, int windowH);

// A window point to the game screen, held inside 0..639, 0..479.
void WindowToScreen(const Letterbox& box, int wx, int wy, int& sx, int& sy);
// A game screen point to the window: the centre of that screen pixel.
void ScreenToWindow(const Letterbox& box, int sx, int sy, int& wx, int& wy);

// The window scale at start: `requested` if given (> 0), else the largest
// scale up to 3 whose window and its frame fit the usable desktop area.
int OpeningScale(int usableW, int usableH, int requested);

}  // namespace lf
