// Loading and releasing the sets of bitmaps, and the view's two pictures
// that are loaded one at a time.
#include "display/bitmap_sets.h"

#include <cmath>
#include <string>

#include "display/bitmap_catalog.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/game_state.h"

namespace lf {
namespace {

void Load(const BitmapSet& set) {
  for (const BitmapFile& f : set) *f.Handle = LoadBitmapIntoDXS(f.Path);
}

std::string N(long long n) { return std::to_string(n); }

}  // namespace

void LoadMenuBitmaps() { Load(MenuSet(GFX)); }

void LoadKeptBitmaps() { Load(KeptSet(GFX)); }

void LoadMainBitmaps() { Load(BridgeSet(GFX)); }

void LoadMainBitmapsAtNewGame() {
  for (const BitmapFile& f : BridgeSet(GFX))
    if (f.Handle != &GFX.ProgressBarPicture && f.Handle != &GFX.Back2) *f.Handle = LoadBitmapIntoDXS(f.Path);
}

void UnloadMainBitmaps() {
  for (const BitmapFile& f : BridgeSet(GFX))
    if (!StaysThroughUnload(GFX, f.Handle)) f.Handle->Reset();
}

void a_LoadStationBitmaps() {
  Load(StationSet(GFX, G.CurrentQuadrant));
  G.StatusSlot[DockedSlot].Value = 1;
}

void UnloadStationBitmaps() {
  for (const BitmapFile& f : StationSet(GFX, G.CurrentQuadrant))
    if (f.Handle != &GFX.ProgressBarPicture) f.Handle->Reset();
  // What the station screens loaded as they opened goes with the set.
  GFX.DealerSelect.Reset();
  GFX.NewsBitmap.Reset();
  GFX.CompAnimBitmap.Reset();
}

void LoadOrbitPic() {
  for (int i = 1; i <= G.PlanetCount; ++i) {
    Skip([&] {
      const PlanetRecord& p = G.Planet[i];
      const double d = std::sqrt((G.ShipX - p.X) * (G.ShipX - p.X) + (G.ShipY - p.Y) * (G.ShipY - p.Y));
      if (!(d < p.Width)) return;
      std::string file = R"(\gfx\orbits\)" + N(p.Type) + "_";
      if (p.HasStation == 0)
        file += N(RandomInt(3));
      else
        file += "0_" + N(G.CurrentQuadrant);
      GFX.OrbitPicture = LoadBitmapIntoDXS(file + ".bmp");
    });
  }
}

void LoadOShipOSidePic() {
  Skip([] {
    const int shipClass = G.OtherShip[G.HailedShip].ShipClass;
    GFX.HailPicture = LoadBitmapIntoDXS(R"(\gfx\hail\oship_)" + N(shipClass) + "_" + N(RandomInt(5)) + ".bmp");
  });
}

void Kraj() { ReleaseAllBitmaps(); }

}  // namespace lf
