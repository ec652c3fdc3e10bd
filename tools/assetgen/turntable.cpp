// The dealer's turning pictures: each component and hull built from a few
// solids (cylinders, cones, boxes), turned about the upright axis, seen a
// little from above, lit from the upper left and painted back to front.
#include "turntable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "noise.h"

namespace assetgen {
namespace {

struct V3 {
  double x = 0, y = 0, z = 0;
};
V3 operator+(V3 a, V3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
V3 operator-(V3 a, V3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
V3 operator*(V3 a, double k) { return {a.x * k, a.y * k, a.z * k}; }
double Dot(V3 a, V3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
V3 Cross(V3 a, V3 b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
V3 Unit(V3 a) {
  const double l = std::sqrt(Dot(a, a));
  return l > 0 ? a * (1 / l) : a;
}

// One flat face of a solid: its corners, colour, the centre of the solid it
// belongs to (to tell its outside), and whether it glows.
struct Face {
  std::vector<V3> pts;
  Rgb color;
  V3 centre;
  bool glow = false;
};

using Mesh = std::vector<Face>;

// Two unit vectors across an axis.
void Across(V3 axis, V3& u, V3& v) {
  const V3 a = Unit(axis);
  const V3 ref = std::fabs(a.y) < 0.9 ? V3{0, 1, 0} : V3{1, 0, 0};
  u = Unit(Cross(a, ref));
  v = Cross(a, u);
}

// A frustum from p0 (radius r0) to p1 (radius r1), closed at both ends.
void Frustum(Mesh& m, V3 p0, V3 p1, double r0, double r1, Rgb c, int n = 16, bool glowEnd = false, Rgb glow = {}) {
  V3 u, v;
  Across(p1 - p0, u, v);
  const V3 centre = (p0 + p1) * 0.5;
  std::vector<V3> ring0, ring1;
  for (int i = 0; i < n; ++i) {
    const double a = 2 * M_PI * i / n;
    const V3 d = u * std::cos(a) + v * std::sin(a);
    ring0.push_back(p0 + d * r0);
    ring1.push_back(p1 + d * r1);
  }
  for (int i = 0; i < n; ++i) {
    const int j = (i + 1) % n;
    m.push_back({{ring0[i], ring0[j], ring1[j], ring1[i]}, c, centre});
  }
  if (r0 > 0.01) m.push_back({ring0, Scale(c, 0.9), centre});
  if (r1 > 0.01) {
    Face end{ring1, glowEnd ? glow : Scale(c, 0.9), centre, glowEnd};
    m.push_back(end);
  }
}

void Cylinder(Mesh& m, V3 p0, V3 p1, double r, Rgb c, int n = 16) { Frustum(m, p0, p1, r, r, c, n); }

// A box of half sizes (hx, hy, hz) about a centre, turned by yaw about the
// upright axis.
void Box(Mesh& m, V3 c, double hx, double hy, double hz, Rgb col, bool glow = false, double yaw = 0) {
  auto at = [&](double x, double y, double z) {
    const double cs = std::cos(yaw), sn = std::sin(yaw);
    return V3{c.x + x * cs + z * sn, c.y + y, c.z - x * sn + z * cs};
  };
  const std::array<V3, 8> p = {at(-hx, -hy, -hz), at(hx, -hy, -hz), at(hx, hy, -hz), at(-hx, hy, -hz),
                               at(-hx, -hy, hz),  at(hx, -hy, hz),  at(hx, hy, hz),  at(-hx, hy, hz)};
  const int faces[6][4] = {{0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 5, 4}, {3, 2, 6, 7}, {0, 3, 7, 4}, {1, 2, 6, 5}};
  for (const auto& f : faces) m.push_back({{p[f[0]], p[f[1]], p[f[2]], p[f[3]]}, col, c, glow});
}

// A flat plate (a wing or a fin) of the four corners given, with a little
// thickness so that both sides show.
void Plate(Mesh& m, std::array<V3, 4> q, V3 thick, Rgb c) {
  const V3 centre = (q[0] + q[1] + q[2] + q[3]) * 0.25;
  std::array<V3, 4> top, bottom;
  for (int i = 0; i < 4; ++i) {
    top[i] = q[i] + thick;
    bottom[i] = q[i] - thick;
  }
  m.push_back({{top[0], top[1], top[2], top[3]}, c, centre});
  m.push_back({{bottom[0], bottom[1], bottom[2], bottom[3]}, Scale(c, 0.8), centre});
  for (int i = 0; i < 4; ++i) {
    const int j = (i + 1) % 4;
    m.push_back({{top[i], top[j], bottom[j], bottom[i]}, Scale(c, 0.7), centre});
  }
}

// The race of a component model, as the catalogue names its makers (7 for
// the pirates' own missile).
int ComponentRace(int group, int model) {
  static const std::vector<std::vector<int>> kRaces = {
      {},
      {1, 1, 2, 2, 3, 4, 4, 4, 5, 6, 6},
      {1, 2, 3, 3, 5, 6},
      {1, 1, 1, 2, 2, 3, 4, 4, 7, 6, 6},
      {1, 2, 2, 3, 4, 6, 6},
      {1, 1, 2, 2, 3, 4, 6, 6},
      {1, 1, 3, 5, 6},
      {1, 1, 2, 3, 3, 3, 4, 5, 6, 6},
  };
  if (group < 1 || group > 7) return 1;
  const auto& races = kRaces[static_cast<std::size_t>(group)];
  return model >= 1 && model <= int(races.size()) ? races[static_cast<std::size_t>(model - 1)] : 1;
}

// --- The components, about 160 units across, standing on y = 0.

void BeamWeapon(Mesh& m, int model, Rgb body, Rgb accent) {
  const double len = 70 + 6 * (model % 4), bore = 6 + (model % 3) * 2;
  Cylinder(m, {0, 0, 0}, {0, 22, 0}, 44, Scale(body, 0.7), 20);
  Frustum(m, {0, 22, 0}, {0, 32, 0}, 40, 30, body, 20);
  Box(m, {0, 52, 0}, 34, 20, 26, body);
  Box(m, {-30, 56, 0}, 10, 12, 20, Scale(body, 0.8));
  Cylinder(m, {20, 58, -12}, {20 + len, 58, -12}, bore, Scale(body, 1.1), 12);
  if (model % 2 == 0) Cylinder(m, {20, 58, 12}, {20 + len, 58, 12}, bore, Scale(body, 1.1), 12);
  Frustum(m, {14 + len, 58, -12}, {24 + len, 58, -12}, bore + 4, bore + 3, Scale(body, 0.6), 12, true, accent);
  if (model % 2 == 0)
    Frustum(m, {14 + len, 58, 12}, {24 + len, 58, 12}, bore + 4, bore + 3, Scale(body, 0.6), 12, true, accent);
  Box(m, {0, 74, 0}, 14, 3, 14, accent, true);
}

void Computer(Mesh& m, int model, Rgb body, Rgb accent) {
  const double h = 60 + 8 * (model % 3);
  Box(m, {0, h / 2 + 6, 0}, 36, h / 2, 28, body);
  Box(m, {0, 3, 0}, 40, 3, 32, Scale(body, 0.6));
  for (int row = 0; row < 4; ++row)
    for (int col = 0; col < 3; ++col)
      Box(m, {-20 + 20.0 * col, 20 + row * (h - 20) / 4.0, 29}, 6, 3, 1.5,
          (row + col + model) % 3 == 0 ? kWhite : accent, true);
  for (int i = 0; i < 5; ++i) Box(m, {37, 18 + i * (h - 16) / 5.0, 0}, 1.5, 3, 20, Scale(body, 0.5));
  Box(m, {0, h + 10, 0}, 20, 4, 14, Scale(body, 0.8));
}

void MissileLauncher(Mesh& m, int model, Rgb body, Rgb accent) {
  const int rows = 2, cols = model % 2 == 0 ? 3 : 2;
  Cylinder(m, {0, 0, 0}, {0, 16, 0}, 38, Scale(body, 0.7), 20);
  Box(m, {0, 56, 0}, 44, 12.0 * rows + 6, 12.0 * cols + 6, body);
  for (int r = 0; r < rows; ++r) {
    for (int c = 0; c < cols; ++c) {
      const double y = 56 - 12.0 * (rows - 1) + 24.0 * r, z = -12.0 * (cols - 1) + 24.0 * c;
      Cylinder(m, {44, y, z}, {54, y, z}, 9, Scale(body, 0.5), 10);
      Frustum(m, {54, y, z}, {68, y, z}, 7, 0.5, kRed, 10);
    }
  }
  Box(m, {-46, 56, 0}, 4, 10, 10, accent, true);
}

void Generator(Mesh& m, int model, Rgb body, Rgb accent) {
  const double r = 26 + 3 * (model % 3), h = 96;
  Frustum(m, {0, 0, 0}, {0, 14, 0}, 48, 44, Scale(body, 0.7), 20);
  Cylinder(m, {0, 14, 0}, {0, 14 + h, 0}, r, accent, 20);
  for (Face& f : m)
    if (f.color.r == accent.r && f.color.g == accent.g && f.color.b == accent.b) f.glow = true;
  for (int i = 0; i < 3; ++i) {
    const double y = 30 + i * 30;
    Cylinder(m, {0, y, 0}, {0, y + 8, 0}, r + 16, body, 20);
  }
  Frustum(m, {0, 14 + h, 0}, {0, 26 + h, 0}, 44, 20, Scale(body, 0.9), 20);
  for (int i = 0; i < 4; ++i) {
    const double a = M_PI / 2 * i + M_PI / 4;
    Box(m, {std::cos(a) * 40, 60, std::sin(a) * 40}, 4, 48, 4, Scale(body, 0.6), false, -a);
  }
}

void Engine(Mesh& m, int model, Rgb body, Rgb accent) {
  const double r = 26 + 2 * (model % 4), len = 60;
  Cylinder(m, {-len, 60, 0}, {10, 60, 0}, r, body, 18);
  Frustum(m, {-len - 24, 60, 0}, {-len, 60, 0}, r * 0.4, r * 0.9, Scale(body, 0.9), 18);
  Frustum(m, {10, 60, 0}, {48, 60, 0}, r * 0.8, r * 1.25, Scale(body, 0.6), 18, true, accent);
  Cylinder(m, {2, 60, 0}, {12, 60, 0}, r + 4, Scale(body, 1.15), 18);
  for (int i = 0; i < (model % 2 == 0 ? 4 : 3); ++i) {
    const double a = 2 * M_PI * i / (model % 2 == 0 ? 4 : 3);
    const V3 out{0, std::cos(a), std::sin(a)};
    Plate(m, {{V3{-len + 10, 60, 0} + out * r, V3{-10, 60, 0} + out * r, V3{-20, 60, 0} + out * (r + 22),
               V3{-len + 18, 60, 0} + out * (r + 18)}},
          Cross(out, {1, 0, 0}) * 1.5, Scale(body, 0.8));
  }
  Cylinder(m, {-20, 0, 0}, {-20, 60 - r, 0}, 8, Scale(body, 0.5), 10);
  Cylinder(m, {-20, 0, 0}, {-20, 6, 0}, 34, Scale(body, 0.6), 18);
}

void Sensor(Mesh& m, int model, Rgb body, Rgb accent) {
  Cylinder(m, {0, 0, 0}, {0, 14, 0}, 36, Scale(body, 0.7), 18);
  Cylinder(m, {0, 14, 0}, {0, 70, 0}, 7, Scale(body, 0.8), 10);
  const V3 hub{0, 80, 0}, facing = Unit({1, 0.45, 0});
  const double r = 46 + 4 * (model % 3);
  Frustum(m, hub - facing * 4, hub + facing * 16, 8, r, body, 20);
  Cylinder(m, hub, hub + facing * 44, 2.5, Scale(body, 0.6), 8);
  Frustum(m, hub + facing * 40, hub + facing * 50, 6, 2, accent, 8, true, accent);
  Box(m, hub - facing * 10, 10, 10, 10, Scale(body, 0.6));
}

void ShieldEmitter(Mesh& m, int model, Rgb body, Rgb accent) {
  Frustum(m, {0, 0, 0}, {0, 20, 0}, 42, 34, Scale(body, 0.7), 20);
  Frustum(m, {0, 20, 0}, {0, 64, 0}, 16, 10, body, 12);
  // a crystal of two pyramids
  const int n = 4 + model % 3;
  const V3 top{0, 112, 0}, mid{0, 88, 0}, bottom{0, 64, 0};
  for (int i = 0; i < n; ++i) {
    const double a0 = 2 * M_PI * i / n, a1 = 2 * M_PI * (i + 1) / n;
    const V3 p0 = mid + V3{std::cos(a0), 0, std::sin(a0)} * 18, p1 = mid + V3{std::cos(a1), 0, std::sin(a1)} * 18;
    m.push_back({{top, p0, p1}, accent, mid, true});
    m.push_back({{bottom, p1, p0}, Scale(accent, 0.7), mid, true});
  }
  for (int i = 0; i < 3; ++i) {
    const double a = 2 * M_PI * i / 3;
    Box(m, {std::cos(a) * 30, 46, std::sin(a) * 30}, 3, 26, 3, Scale(body, 0.6), false, -a);
  }
}

// --- Hulls, nose along +x, about 200 units long.

void HullMesh(Mesh& m, int race, int hullClass) {
  const Rgb body = RaceHull(race), accent = RaceAccent(race), dark = Scale(body, 0.55);
  const double len = hullClass == 1 ? 150 : hullClass == 2 ? 170 : hullClass == 3 ? 185 : 200;
  const double girth = hullClass == 2 ? 26 : hullClass == 1 ? 15 : 20;
  const double y = 70;
  const double nose = len / 2, tail = -len / 2;
  // fuselage: nose cone, body, tail
  const bool round = race == 3 || race == 6;
  const int sides = round ? 16 : (race == 2 || race == 7 ? 6 : 8);
  Frustum(m, {tail, y, 0}, {tail + len * 0.25, y, 0}, girth * 0.8, girth, body, sides);
  Frustum(m, {tail + len * 0.25, y, 0}, {nose - len * 0.3, y, 0}, girth, girth * 0.95, body, sides);
  Frustum(m, {nose - len * 0.3, y, 0}, {nose, y, 0}, girth * 0.95, 2, Scale(body, 1.1), sides);
  // the bridge
  Box(m, {nose - len * 0.38, y + girth * 0.9, 0}, len * 0.08, girth * 0.35, girth * 0.45, Scale(body, 1.1));
  Box(m, {nose - len * 0.33, y + girth * 0.95, 0}, 2, girth * 0.15, girth * 0.35, accent, true);
  // wings by class
  const double span = hullClass == 2 ? 40 : hullClass == 1 ? 55 : hullClass == 5 ? 60 : 70;
  const double sweep = race == 4 ? 0.7 : race == 5 ? 0.2 : 0.45;
  for (int side : {-1, 1}) {
    const double root0 = tail + len * 0.15, root1 = tail + len * 0.55;
    Plate(m, {{V3{root0, y, side * girth * 0.8}, V3{root1, y, side * girth * 0.8},
               V3{root1 - span * sweep, y - 4, side * (girth + span)}, V3{root0 - span * sweep * 0.5, y - 4, side * (girth + span)}}},
          {0, 1.8, 0}, Scale(body, 0.9));
    // wing tip pods
    if (hullClass >= 3 || race == 6)
      Cylinder(m, {root0 - span * sweep * 0.5 - 10, y - 4, side * (girth + span)},
               {root1 - span * sweep + 10, y - 4, side * (girth + span)}, 5, dark, 8);
  }
  // a fin
  const double finH = race == 4 ? 48 : 30;
  Plate(m, {{V3{tail + 4, y + girth * 0.7, 0}, V3{tail + len * 0.3, y + girth * 0.7, 0},
             V3{tail + len * 0.12, y + girth + finH, 0}, V3{tail, y + girth + finH, 0}}},
        {0, 0, 1.6}, Scale(body, 0.85));
  // cargo pods on traders
  if (hullClass == 2)
    for (int i = 0; i < 3; ++i)
      for (int side : {-1, 1})
        Box(m, {tail + len * (0.3 + 0.14 * i), y - 6, side * (girth + 8)}, len * 0.06, 10, 8, Mix(body, accent, 0.25));
  // engines
  const int engines = hullClass == 4 ? 3 : hullClass == 1 ? 1 : 2;
  for (int e = 0; e < engines; ++e) {
    const double z = engines == 1 ? 0 : engines == 2 ? (e == 0 ? -1 : 1) * girth * 0.7 : (e - 1) * girth * 0.9;
    const double ey = engines == 3 && e == 1 ? y + girth * 0.5 : y;
    Cylinder(m, {tail - 10, ey, z}, {tail + 30, ey, z}, girth * 0.45, dark, 12);
    Frustum(m, {tail - 22, ey, z}, {tail - 10, ey, z}, girth * 0.55, girth * 0.4, Scale(dark, 0.8), 12, false);
    Frustum(m, {tail - 10, ey, z}, {tail - 24, ey, z}, girth * 0.4, girth * 0.36, Scale(dark, 0.8), 12, true, accent);
  }
  // pirates carry a spike
  if (race == 7) Frustum(m, {nose - 10, y - girth * 0.5, 0}, {nose + 40, y - girth * 0.5, 0}, 5, 0.5, kRed, 6);
}

// Paints a mesh turned by `yaw`, centred on (cx, cy) at `scale`.
void Render(cairo_t* cr, const Mesh& mesh, double yaw, double cx, double cy, double scale) {
  constexpr double kPitch = 0.42;
  const double cy0 = std::cos(yaw), sy0 = std::sin(yaw), cp = std::cos(kPitch), sp = std::sin(kPitch);
  auto view = [&](V3 p) {
    const double x = p.x * cy0 + p.z * sy0, z = -p.x * sy0 + p.z * cy0;
    return V3{x, p.y * cp - z * sp, p.y * sp + z * cp};  // z towards the viewer
  };
  const V3 light = Unit({-0.5, 0.8, 0.6});
  struct Drawn {
    double depth;
    std::vector<V3> pts;
    Rgb color;
  };
  std::vector<Drawn> drawn;
  drawn.reserve(mesh.size());
  for (const Face& f : mesh) {
    if (f.pts.size() < 3) continue;
    std::vector<V3> pts;
    V3 mid;
    for (V3 p : f.pts) {
      pts.push_back(view(p));
      mid = mid + pts.back();
    }
    mid = mid * (1.0 / pts.size());
    V3 n = Unit(Cross(pts[1] - pts[0], pts[2] - pts[0]));
    if (Dot(n, mid - view(f.centre)) < 0) n = n * -1;
    if (n.z <= 0.01) continue;  // facing away
    double k = f.glow ? 1.0 : 0.28 + 0.72 * std::max(0.0, Dot(n, light));
    Rgb c = Scale(f.color, k);
    if (!f.glow) {
      const double spec = std::pow(std::max(0.0, Dot(Unit(light + V3{0, 0, 1}), n)), 24);
      c = Mix(c, kWhite, 0.5 * spec);
    }
    drawn.push_back({mid.z, std::move(pts), c});
  }
  std::stable_sort(drawn.begin(), drawn.end(), [](const Drawn& a, const Drawn& b) { return a.depth < b.depth; });
  cairo_set_line_width(cr, 0.6);
  cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
  for (const Drawn& d : drawn) {
    cairo_move_to(cr, cx + d.pts[0].x * scale, cy - d.pts[0].y * scale);
    for (std::size_t i = 1; i < d.pts.size(); ++i) cairo_line_to(cr, cx + d.pts[i].x * scale, cy - d.pts[i].y * scale);
    cairo_close_path(cr);
    SetColor(cr, d.color);
    cairo_fill_preserve(cr);
    cairo_stroke(cr);  // closes the hairline gaps between faces
  }
}

// The plinth the item turns on: a lit disc with a ring of lights.
void Plinth(cairo_t* cr, double cx, double cy, double rx, double ry, int frame, int frames) {
  cairo_save(cr);
  cairo_translate(cr, cx, cy);
  cairo_scale(cr, rx, ry);
  cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
  cairo_restore(cr);
  cairo_pattern_t* g = cairo_pattern_create_radial(cx, cy, 1, cx, cy, rx);
  cairo_pattern_add_color_stop_rgb(g, 0, 0.10, 0.28, 0.34);
  cairo_pattern_add_color_stop_rgb(g, 1, 0.04, 0.10, 0.13);
  cairo_set_source(cr, g);
  cairo_fill_preserve(cr);
  cairo_pattern_destroy(g);
  SetColor(cr, kCyanDim);
  cairo_set_line_width(cr, 2);
  cairo_stroke(cr);
  for (int i = 0; i < 12; ++i) {
    const double a = 2 * M_PI * i / 12 + 2 * M_PI * frame / frames;
    const bool lit = i % 3 == 0;
    cairo_arc(cr, cx + std::cos(a) * rx * 0.92, cy + std::sin(a) * ry * 0.92, lit ? 2.2 : 1.4, 0, 2 * M_PI);
    SetColor(cr, lit ? kCyan : kCyanDim);
    cairo_fill(cr);
  }
}

}  // namespace

void DrawTurntable(Canvas& cv, int group, int model, int race, int hullClass, int frames) {
  cairo_t* cr = cv.cr();
  Mesh mesh;
  if (group == 10) {
    HullMesh(mesh, race, hullClass);
  } else {
    const int maker = ComponentRace(group, model);
    const Rgb body = Mix(RaceHull(maker), {0.55, 0.58, 0.62}, 0.35), accent = RaceAccent(maker);
    switch (group) {
      case 1: BeamWeapon(mesh, model, body, accent); break;
      case 2: Computer(mesh, model, body, accent); break;
      case 3: MissileLauncher(mesh, model, body, accent); break;
      case 4: Generator(mesh, model, body, accent); break;
      case 5: Engine(mesh, model, body, accent); break;
      case 6: Sensor(mesh, model, body, accent); break;
      default: ShieldEmitter(mesh, model, body, accent); break;
    }
  }
  // Fit the item to the frame: its widest reach from the upright axis.
  double reach = 1, top = 1;
  for (const Face& f : mesh)
    for (V3 p : f.pts) {
      reach = std::max(reach, std::hypot(p.x, p.z));
      top = std::max(top, p.y);
    }
  // Seen from above at the renderer's pitch, the item takes top x 0.91 +
  // reach x 0.41 above its base and reach x 0.41 below it.
  const double scale = std::min(88 / reach, 150 / (top * 0.91 + reach * 0.82));
  const double base = 182 - reach * 0.41 * scale;
  const double rx = std::min(94.0, reach * scale + 8);
  for (int f = 0; f < frames; ++f) {
    const double x = f * 200.0;
    cairo_save(cr);
    cairo_rectangle(cr, x, 0, 200, 200);
    cairo_clip(cr);
    Plinth(cr, x + 100, base + 2, rx, rx * 0.41, f, frames);
    Render(cr, mesh, 2 * M_PI * f / frames + 0.5, x + 100, base, scale);
    cairo_restore(cr);
  }
}

}  // namespace assetgen
