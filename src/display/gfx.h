// Every bitmap handle of the game, by the table or variable the game names.
// Not part of the Game record's dump: handles are resources, not state.
#pragma once

#include "display/bitmap.h"
#include "shell/table.h"

namespace lf {

struct Gfx {
  // Menu, full pictures and cursor.
  Table<Bitmap, 6> MenuBitmap;
  Table<Bitmap, 8> FullPicture;
  Bitmap CursorBitmap;

  // Progress display.
  Bitmap LoadingPicture;
  Bitmap ProgressBarPicture;

  // Prompt strip, doors, static, view pictures.
  Bitmap FontSml;    // "\gfx\fonts\font_sml.bmp"
  Bitmap FontVsml;   // "\gfx\fonts\font_vsml.bmp"
  Bitmap FontLed;    // "\gfx\fonts\led.bmp"
  Bitmap FontAdd;    // "\gfx\fonts\add_font.bmp"
  Bitmap Yes;        // "\gfx\yes.bmp"
  Bitmap No;         // "\gfx\no.bmp"
  Bitmap Slider;     // "\gfx\slider.bmp"
  Bitmap ShipSel;    // "\gfx\ships\sel.bmp"
  Table<Bitmap, 5> StaticBig;   // "\gfx\static\static_big_1..5.bmp"
  Table<Bitmap, 5> StaticBig2;  // "\gfx\static\static_big2_1..5.bmp"
  Bitmap OrbitPicture;
  Bitmap HailPicture;

  // Bridge backdrop.
  Bitmap Back;   // "\gfx\back.bmp"
  Bitmap Back2;  // "\gfx\back2.bmp"

  // Officer faces and portraits: the strip's portrait of officer 1..6.
  Table<Bitmap, 6> PromptPortrait;
};

// The one set of handles.
extern Gfx& GFX;

// Releases every handle (the closing sequence, and tests).
void ReleaseAllBitmaps();

}  // namespace lf
