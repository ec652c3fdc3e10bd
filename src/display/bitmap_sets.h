// The sets of bitmaps: which files each set holds, when it is loaded and
// when it is released, the progress display, and the view's pictures.
#pragma once

namespace lf {

// Bridge backdrop "\gfx\back.bmp" at (0,0), opaque.
void DrawBack();
// The loading picture and the bar by ProgressMode and ProgressCount.
void DrawProgressBar();

// Form_Load's set: cursor, menu bands and full pictures.
void LoadMenuBitmaps();
// The kept set, loaded at a new game and held to the end.
void LoadKeptBitmaps();
// The bridge set (191 bitmaps) and its release.
void LoadMainBitmaps();
// The bridge set at a new game, after the kept set: the progress bar is in
// hand already and the backdrop comes with the quadrant (RandomizeQuad), so
// neither is loaded here and the new game's loads come to the bar's 360.
void LoadMainBitmapsAtNewGame();
void UnloadMainBitmaps();
// The station set (21 bitmaps) and its release.
void a_LoadStationBitmaps();
void UnloadStationBitmaps();

// The orbit picture of the body the ship is at, and the hailed ship's picture.
void LoadOrbitPic();
void LoadOShipOSidePic();

// The closing sequence's release of every bitmap of every table.
void Kraj();

}  // namespace lf
