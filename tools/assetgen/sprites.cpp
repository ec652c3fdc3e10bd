#include "sprites.h"

#include <algorithm>
#include <cmath>

#include "noise.h"

namespace assetgen {

namespace {

void Poly(cairo_t* cr, const std::vector<std::pair<double, double>>& pts, bool mirror) {
  cairo_move_to(cr, pts[0].first, pts[0].second);
  for (size_t i = 1; i < pts.size(); ++i) cairo_line_to(cr, pts[i].first, pts[i].second);
  if (mirror) {
    for (size_t i = pts.size(); i-- > 0;) cairo_line_to(cr, -pts[i].first, pts[i].second);
  }
  cairo_close_path(cr);
}

void Shade(cairo_t* cr, Rgb base, double len) {
  cairo_pattern_t* g = cairo_pattern_create_linear(-len * 0.5, -len * 0.5, len * 0.5, len * 0.5);
  const Rgb hi = Mix(base, kWhite, 0.35), lo = Scale(base, 0.45);
  cairo_pattern_add_color_stop_rgb(g, 0, hi.r, hi.g, hi.b);
  cairo_pattern_add_color_stop_rgb(g, 1, lo.r, lo.g, lo.b);
  cairo_set_source(cr, g);
  cairo_fill_preserve(cr);
  cairo_pattern_destroy(g);
  const Rgb edge = Scale(base, 0.3);
  cairo_set_source_rgb(cr, edge.r, edge.g, edge.b);
  cairo_set_line_width(cr, std::max(0.6, len / 60));
  cairo_stroke(cr);
}

void Glow(cairo_t* cr, double x, double y, double r, Rgb c) {
  cairo_pattern_t* g = cairo_pattern_create_radial(x, y, 0, x, y, r);
  cairo_pattern_add_color_stop_rgba(g, 0, 1, 1, 1, 1);
  cairo_pattern_add_color_stop_rgba(g, 0.3, c.r, c.g, c.b, 0.9);
  cairo_pattern_add_color_stop_rgba(g, 1, c.r, c.g, c.b, 0);
  cairo_set_source(cr, g);
  cairo_arc(cr, x, y, r, 0, 2 * M_PI);
  cairo_fill(cr);
  cairo_pattern_destroy(g);
}

}  // namespace

void ShipShape(cairo_t* cr, double cx, double cy, double length, double angle, int race, int hullClass) {
  cairo_save(cr);
  cairo_translate(cr, cx, cy);
  cairo_rotate(cr, angle);
  const double s = length / 100.0;  // shapes are laid out on a 100-long ship, nose at y -50
  cairo_scale(cr, s, s);
  const Rgb hull = RaceHull(race), acc = RaceAccent(race);
  const double wide = hullClass == 2 ? 1.35 : hullClass == 1 ? 0.8 : hullClass == 4 ? 1.2 : 1.0;
  auto W = [&](double v) { return v * wide; };
  // engines glow behind the hull
  for (double ex : {-W(14), W(14)}) Glow(cr, ex, 50, 12, acc);
  switch (race) {
    case 1:  // human: arrow with twin nacelles
      Poly(cr, {{0, -50}, {W(10), -20}, {W(14), 20}, {W(30), 40}, {W(30), 50}, {W(8), 44}}, true);
      Shade(cr, hull, 100);
      for (double ex : {-W(20), W(20)}) {
        cairo_rectangle(cr, ex - 4, -5, 8, 50);
        Shade(cr, Scale(hull, 0.8), 60);
      }
      break;
    case 2:  // hagel: blocky wedge with armour plates
      Poly(cr, {{0, -48}, {W(18), -40}, {W(30), 0}, {W(34), 46}, {W(12), 50}}, true);
      Shade(cr, hull, 100);
      for (int i = 0; i < 3; ++i) {
        cairo_rectangle(cr, -W(20) + i * 2, -20 + i * 20, W(40) - i * 4, 10);
        Shade(cr, Scale(hull, 1.15), 40);
      }
      break;
    case 3:  // lagew: rounded organic pods
      cairo_save(cr);
      cairo_scale(cr, W(0.34), 1.0);
      cairo_arc(cr, 0, 0, 50, 0, 2 * M_PI);
      cairo_restore(cr);
      Shade(cr, hull, 100);
      for (double ex : {-W(22), W(22)}) {
        cairo_save(cr);
        cairo_translate(cr, ex, 15);
        cairo_scale(cr, 0.4, 1.0);
        cairo_arc(cr, 0, 0, 28, 0, 2 * M_PI);
        cairo_restore(cr);
        Shade(cr, Mix(hull, acc, 0.3), 60);
      }
      break;
    case 4:  // jaytees: crescent trident
      Poly(cr, {{0, -50}, {W(6), -10}, {W(36), -42}, {W(40), 0}, {W(22), 46}, {W(6), 40}}, true);
      Shade(cr, hull, 100);
      break;
    case 5:  // markeen: hexagonal disc with a prow
      Poly(cr, {{0, -50}, {W(12), -30}, {W(34), -18}, {W(34), 22}, {W(16), 44}, {0, 48}}, true);
      Shade(cr, hull, 100);
      cairo_arc(cr, 0, 0, W(14), 0, 2 * M_PI);
      Shade(cr, Mix(hull, acc, 0.5), 30);
      break;
    case 6:  // woot-am: ring around a sphere with spikes
      cairo_arc(cr, 0, 0, W(34), 0, 2 * M_PI);
      cairo_arc_negative(cr, 0, 0, W(22), 2 * M_PI, 0);
      Shade(cr, hull, 100);
      cairo_arc(cr, 0, 0, W(15), 0, 2 * M_PI);
      Shade(cr, Mix(hull, acc, 0.4), 40);
      for (int i = 0; i < 4; ++i) {
        cairo_save(cr);
        cairo_rotate(cr, M_PI / 4 + i * M_PI / 2);
        Poly(cr, {{0, -50}, {4, -30}, {-4, -30}}, false);
        Shade(cr, hull, 30);
        cairo_restore(cr);
      }
      break;
    default:  // pirates: jagged, asymmetric, one red eye
      cairo_move_to(cr, 0, -50);
      cairo_line_to(cr, W(12), -30);
      cairo_line_to(cr, W(38), -36);
      cairo_line_to(cr, W(24), -6);
      cairo_line_to(cr, W(40), 30);
      cairo_line_to(cr, W(14), 24);
      cairo_line_to(cr, W(10), 50);
      cairo_line_to(cr, -W(14), 44);
      cairo_line_to(cr, -W(30), 48);
      cairo_line_to(cr, -W(22), 10);
      cairo_line_to(cr, -W(44), -10);
      cairo_line_to(cr, -W(14), -24);
      cairo_close_path(cr);
      Shade(cr, hull, 100);
      cairo_set_source_rgb(cr, 0.8, 0.1, 0.1);
      cairo_set_line_width(cr, 3);
      cairo_move_to(cr, -W(30), 20);
      cairo_line_to(cr, W(30), -20);
      cairo_stroke(cr);
      Glow(cr, 0, -18, 13, {1.0, 0.1, 0.05});
      break;
  }
  // cockpit or bridge light
  if (race != 7) {
    cairo_arc(cr, 0, race == 6 ? 0 : -22, 5, 0, 2 * M_PI);
    cairo_set_source_rgb(cr, acc.r, acc.g, acc.b);
    cairo_fill(cr);
  }
  // guns of military hulls
  if (hullClass >= 3) {
    const Rgb gun = Scale(hull, 0.5);
    for (double gx : {-W(26), W(26)}) {
      cairo_rectangle(cr, gx - 2, -30, 4, 22);
      cairo_set_source_rgb(cr, gun.r, gun.g, gun.b);
      cairo_fill(cr);
    }
  }
  // cargo pods of traders
  if (hullClass == 2) {
    for (int i = 0; i < 3; ++i) {
      cairo_rectangle(cr, -W(9), -6 + i * 14, W(18), 10);
      Shade(cr, {0.6, 0.5, 0.3}, 20);
    }
  }
  cairo_restore(cr);
}

Rgb SurfaceMap::Sample(double u, double v) const {
  // bilinear, wrapping in u
  const double fx = (u - std::floor(u)) * w - 0.5, fy = std::clamp(v * h - 0.5, 0.0, h - 1.0);
  const int x0 = int(std::floor(fx)), y0 = int(fy);
  const double tx = fx - x0, ty = fy - y0;
  const int xa = (x0 % w + w) % w, xb = (xa + 1) % w, y1 = std::min(h - 1, y0 + 1);
  const Rgb a = texels[size_t(y0) * w + xa], b = texels[size_t(y0) * w + xb];
  const Rgb c = texels[size_t(y1) * w + xa], d = texels[size_t(y1) * w + xb];
  return Mix(Mix(a, b, tx), Mix(c, d, tx), ty);
}

double SurfaceMap::Cloud(double u, double v) const {
  if (cloud.empty()) return 0;
  u -= std::floor(u);
  const int x = std::min(w - 1, int(u * w));
  const int y = std::clamp(int(v * h), 0, h - 1);
  return cloud[size_t(y) * w + x];
}

SurfaceMap MakeSurface(int kind, uint32_t seed, int w, int h) {
  SurfaceMap m;
  m.w = w;
  m.h = h;
  m.texels.resize(size_t(w) * h);
  const bool clouds = kind == kTerran || kind == kOcean || kind == kSwamp || kind == kGenesis || kind == kToxic;
  if (clouds) m.cloud.resize(size_t(w) * h);
  const int period = 8;
  for (int y = 0; y < h; ++y) {
    const double v = double(y) / h, lat = std::fabs(v - 0.5) * 2;
    for (int x = 0; x < w; ++x) {
      const double u = double(x) / w * period;
      const double n = FbmWrapX(u, v * period * 0.5, period, seed, 5);
      const double n2 = FbmWrapX(u * 2, v * period, period * 2, seed + 77, 3);
      Rgb c{0.5, 0.5, 0.5};
      switch (kind) {
        case kBarren: c = Mix({0.30, 0.28, 0.26}, {0.62, 0.58, 0.52}, n); if (n2 > 0.68) c = Scale(c, 0.6); break;
        case kTundra: c = Mix({0.50, 0.55, 0.55}, {0.85, 0.9, 0.95}, n); if (lat > 0.7) c = kWhite; break;
        case kDesert: c = Mix({0.65, 0.42, 0.20}, {0.92, 0.75, 0.45}, n); break;
        case kTerran:
          c = n > 0.52 ? Mix({0.20, 0.45, 0.15}, {0.55, 0.50, 0.30}, (n - 0.52) * 3)
                       : Mix({0.05, 0.12, 0.40}, {0.10, 0.30, 0.60}, n * 1.8);
          if (lat > 0.85) c = kWhite;
          break;
        case kSwamp: c = Mix({0.18, 0.26, 0.12}, {0.38, 0.42, 0.20}, n); if (n2 > 0.6) c = Mix(c, {0.15, 0.25, 0.25}, 0.6); break;
        case kGasGiant: {
          const double band = std::sin(v * 24 + n * 5) * 0.5 + 0.5;
          c = Mix({0.62, 0.40, 0.22}, {0.98, 0.90, 0.72}, band);
          if (n2 > 0.7) c = Mix(c, {0.8, 0.35, 0.2}, 0.6);
          break;
        }
        case kGenesis: c = n > 0.45 ? Mix({0.20, 0.60, 0.25}, {0.60, 0.85, 0.35}, n) : Mix({0.10, 0.35, 0.55}, {0.2, 0.6, 0.7}, n); break;
        case kOcean: c = Mix({0.03, 0.10, 0.35}, {0.15, 0.40, 0.70}, n); if (n > 0.72) c = {0.55, 0.50, 0.35}; break;
        case kRadiated: c = Mix({0.25, 0.30, 0.08}, {0.70, 0.85, 0.20}, n); if (n2 > 0.62) c = Mix(c, {0.9, 1.0, 0.4}, 0.7); break;
        case kToxic: c = Mix({0.35, 0.30, 0.08}, {0.70, 0.60, 0.15}, n); if (n2 > 0.6) c = Mix(c, {0.55, 0.75, 0.10}, 0.6); break;
      }
      m.texels[size_t(y) * w + x] = c;
      if (clouds) {
        const double cl = FbmWrapX(u * 1.5, v * period * 0.75, period * 3 / 2, seed + 999, 4);
        m.cloud[size_t(y) * w + x] = std::clamp((cl - 0.55) * 3.0, 0.0, kind == kToxic ? 0.9 : 0.85);
      }
    }
  }
  return m;
}

void Sphere(Canvas& cv, const SurfaceMap& map, int kind, double cx, double cy, double r, double turn, double tilt) {
  const double lx = -0.6, ly = -0.45, lz = 0.66;  // light from the upper left
  const int x0 = int(std::floor(cx - r - 1)), x1 = int(std::ceil(cx + r + 1));
  const int y0 = int(std::floor(cy - r - 1)), y1 = int(std::ceil(cy + r + 1));
  const Rgb glowColour = kind == kRadiated ? Rgb{0.6, 1.0, 0.3} : kind == kToxic ? Rgb{0.7, 0.9, 0.2} : Rgb{0.4, 0.6, 1.0};
  const bool atmosphere = kind == kTerran || kind == kOcean || kind == kGenesis || kind == kSwamp || kind == kRadiated || kind == kToxic || kind == kGasGiant;
  for (int y = std::max(0, y0); y < std::min(cv.height(), y1); ++y) {
    uint32_t* row = cv.Row(y);
    for (int x = std::max(0, x0); x < std::min(cv.width(), x1); ++x) {
      const double dx = (x + 0.5 - cx) / r, dy = (y + 0.5 - cy) / r;
      const double d2 = dx * dx + dy * dy;
      double alpha = std::clamp((1.0 - std::sqrt(d2)) * r + 0.5, 0.0, 1.0);
      if (alpha <= 0) {
        // a thin halo
        if (atmosphere && d2 < 1.12 * 1.12) {
          const double t = 1 - (std::sqrt(d2) - 1) / 0.12;
          const double a = 0.55 * t * std::clamp(-(dx * lx + dy * ly) + 0.3, 0.0, 1.0);
          if (a > 0.5) {
            const Rgb c = Scale(glowColour, a);
            row[x] = 0xff000000u | (uint32_t(c.r * 255) << 16) | (uint32_t(c.g * 255) << 8) | uint32_t(c.b * 255);
          }
        }
        continue;
      }
      const double dz = std::sqrt(std::max(0.0, 1 - d2));
      // tilt the axis
      const double ny = dy * std::cos(tilt) - dz * std::sin(tilt);
      const double nz = dy * std::sin(tilt) + dz * std::cos(tilt);
      const double lat = std::asin(std::clamp(ny, -1.0, 1.0));
      const double lon = std::atan2(dx, nz);
      const double u = lon / (2 * M_PI) + turn, v = 0.5 + lat / M_PI;
      Rgb c = map.Sample(u, v);
      const double cloud = map.Cloud(u + turn * 0.3, v);
      if (cloud > 0) c = Mix(c, kind == kToxic ? Rgb{0.75, 0.70, 0.30} : kWhite, cloud);
      double light = std::max(0.0, dx * lx + dy * ly + dz * lz);
      light = 0.06 + 0.94 * light;
      c = Scale(c, light);
      if (kind == kRadiated) c = Mix(c, {0.5, 1.0, 0.3}, 0.15 * (1 - light));
      if (atmosphere) c = Mix(c, glowColour, 0.25 * std::pow(1 - dz, 3));
      alpha = alpha >= 0.5 ? 1.0 : 0.0;
      if (alpha > 0) {
        auto ch = [](double v) { return uint32_t(std::clamp(v, 0.0, 1.0) * 255 + 0.5); };
        row[x] = 0xff000000u | (ch(c.r) << 16) | (ch(c.g) << 8) | ch(c.b);
      }
    }
  }
  cv.Dirty();
}

void StationShape(cairo_t* cr, double cx, double cy, double radius, double angle, int style) {
  cairo_save(cr);
  cairo_translate(cr, cx, cy);
  cairo_rotate(cr, angle);
  const double R = radius;
  const Rgb metal{0.62, 0.65, 0.70}, dark{0.30, 0.32, 0.36};
  const Rgb light = style == 4 ? Rgb{1.0, 0.3, 0.2} : style == 2 ? kAmber : kCyan;
  auto plate = [&](Rgb c) {
    cairo_pattern_t* g = cairo_pattern_create_linear(-R, -R, R, R);
    const Rgb hi = Mix(c, kWhite, 0.3), lo = Scale(c, 0.45);
    cairo_pattern_add_color_stop_rgb(g, 0, hi.r, hi.g, hi.b);
    cairo_pattern_add_color_stop_rgb(g, 1, lo.r, lo.g, lo.b);
    cairo_set_source(cr, g);
    cairo_fill_preserve(cr);
    cairo_pattern_destroy(g);
    cairo_set_source_rgb(cr, 0.15, 0.16, 0.18);
    cairo_set_line_width(cr, std::max(0.6, R / 40));
    cairo_stroke(cr);
  };
  const int spokes = style == 3 ? 3 : style == 4 ? 5 : 4;
  switch (style) {
    case 1:  // wheel
    case 3:
      cairo_arc(cr, 0, 0, R * 0.92, 0, 2 * M_PI);
      cairo_arc_negative(cr, 0, 0, R * 0.72, 2 * M_PI, 0);
      plate(metal);
      break;
    case 2:  // cross of modules
      for (int i = 0; i < 2; ++i) {
        cairo_save(cr);
        cairo_rotate(cr, i * M_PI / 2);
        cairo_rectangle(cr, -R * 0.16, -R * 0.95, R * 0.32, R * 1.9);
        plate(metal);
        cairo_restore(cr);
      }
      break;
    default:  // pirate cluster: uneven hulks lashed together
      for (int i = 0; i < 5; ++i) {
        cairo_save(cr);
        cairo_rotate(cr, i * 1.3);
        cairo_rectangle(cr, R * 0.2, -R * 0.12, R * (0.5 + 0.1 * (i % 3)), R * 0.24);
        plate(Scale(metal, 0.65));
        cairo_restore(cr);
      }
      break;
  }
  for (int i = 0; i < spokes; ++i) {
    cairo_save(cr);
    cairo_rotate(cr, i * 2 * M_PI / spokes);
    cairo_rectangle(cr, -R * 0.05, -R * 0.75, R * 0.1, R * 0.5);
    plate(dark);
    // solar panels
    cairo_rectangle(cr, R * 0.07, -R * 0.62, R * 0.18, R * 0.3);
    plate({0.20, 0.30, 0.55});
    cairo_restore(cr);
  }
  cairo_arc(cr, 0, 0, R * 0.3, 0, 2 * M_PI);
  plate(Mix(metal, kWhite, 0.1));
  cairo_arc(cr, 0, 0, R * 0.1, 0, 2 * M_PI);
  cairo_set_source_rgb(cr, light.r, light.g, light.b);
  cairo_fill(cr);
  for (int i = 0; i < 8; ++i) {
    const double a = i * M_PI / 4;
    cairo_arc(cr, std::cos(a) * R * 0.82, std::sin(a) * R * 0.82, std::max(0.8, R * 0.035), 0, 2 * M_PI);
    cairo_set_source_rgb(cr, light.r, light.g, light.b);
    cairo_fill(cr);
  }
  cairo_restore(cr);
}

void Fireball(cairo_t* cr, double cx, double cy, double r, double t, uint32_t seed) {
  if (t <= 0 || t >= 1) return;
  Rng rng(seed);
  const double grow = std::sqrt(t), fade = t < 0.5 ? 1.0 : 1 - (t - 0.5) * 2;
  for (int i = 0; i < 14; ++i) {
    const double a = rng.Range(0, 2 * M_PI), d = rng.Range(0, 0.6) * r * grow;
    const double rr = r * grow * rng.Range(0.25, 0.55);
    const double x = cx + std::cos(a) * d, y = cy + std::sin(a) * d;
    cairo_pattern_t* g = cairo_pattern_create_radial(x, y, 0, x, y, rr);
    cairo_pattern_add_color_stop_rgba(g, 0, 1, 1, 0.85, fade);
    cairo_pattern_add_color_stop_rgba(g, 0.35, 1, 0.7, 0.2, fade * 0.95);
    cairo_pattern_add_color_stop_rgba(g, 0.75, 0.8, 0.2, 0.05, fade * 0.8);
    cairo_pattern_add_color_stop_rgba(g, 1, 0.3, 0.05, 0.02, 0);
    cairo_set_source(cr, g);
    cairo_arc(cr, x, y, rr, 0, 2 * M_PI);
    cairo_fill(cr);
    cairo_pattern_destroy(g);
  }
  // sparks
  cairo_set_line_width(cr, std::max(1.0, r / 40));
  for (int i = 0; i < 20; ++i) {
    const double a = rng.Range(0, 2 * M_PI), d0 = r * grow * 0.5, d1 = r * grow * rng.Range(0.8, 1.2);
    cairo_set_source_rgba(cr, 1, 0.85, 0.4, fade);
    cairo_move_to(cr, cx + std::cos(a) * d0, cy + std::sin(a) * d0);
    cairo_line_to(cr, cx + std::cos(a) * d1, cy + std::sin(a) * d1);
    cairo_stroke(cr);
  }
}

}  // namespace assetgen
