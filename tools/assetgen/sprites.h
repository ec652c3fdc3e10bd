// Drawing pieces shared by several families: ships by race and hull class,
// lit planets by surface type, stations, explosions.
#pragma once

#include <cstdint>
#include <vector>

#include "canvas.h"

namespace assetgen {

// A ship seen from above, nose along angle (radians, 0 = up), about `length`
// pixels long. race 1..7 (7 pirates), hull class 1..5.
void ShipShape(cairo_t* cr, double cx, double cy, double length, double angle, int race, int hullClass);

// Surface types of bodies: 1 barren .. 10 toxic as the game numbers them.
enum SurfaceKind { kBarren = 1, kTundra, kDesert, kTerran, kSwamp, kGasGiant, kGenesis, kOcean, kRadiated, kToxic };

// An equirectangular surface map of a body type, tw x th, 0x00RRGGBB.
struct SurfaceMap {
  int w = 0, h = 0;
  std::vector<Rgb> texels;
  std::vector<double> cloud;  // 0..1 cloud cover, for terran-like types
  Rgb Sample(double u, double v) const;
  double Cloud(double u, double v) const;
};
SurfaceMap MakeSurface(int kind, uint32_t seed, int w = 256, int h = 128);

// A lit sphere of radius r centred at (cx, cy), turned by `turn` (0..1 of a
// turn), light from the upper left. Writes pixels straight into the canvas.
void Sphere(Canvas& cv, const SurfaceMap& map, int kind, double cx, double cy, double r, double turn, double tilt = 0.25);

// A station of style 1..4 seen from above, turned by angle.
void StationShape(cairo_t* cr, double cx, double cy, double radius, double angle, int style);

// A stylised portrait of a person of race 1..7 in the w x h box; the seed
// picks the person.
void Portrait(cairo_t* cr, double x, double y, double w, double h, int race, uint32_t seed);

// A fireball of progress t 0..1 (grows, then fades) at (cx, cy), size r.
void Fireball(cairo_t* cr, double cx, double cy, double r, double t, uint32_t seed);

}  // namespace assetgen
