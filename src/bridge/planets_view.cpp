// The bodies of the quadrant in the view: turning pictures of the charted
// ones with their labels, the unknown marker that fades in at the edge of
// the sensor range, and the station marker.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

namespace {

constexpr std::array<const char*, 11> kTypeLine = {
    "TYPE: ETO",    "TYPE: BARREN", "TYPE: TUNDRA",    "TYPE: DESERT",
    "TYPE: TERRAN", "TYPE: SWAMP",  "TYPE: GAS GIANT", "TYPE: GENESIS",
    "TYPE: OCEAN",  "TYPE: RADIOACTIVE", "TYPE: TOXIC"};
constexpr std::array<const char*, 6> kSizeLine = {
    "", "SIZE.: VERY SMALL", "SIZE.: SMALL", "SIZE.: MEDIUM", "SIZE.: LARGE", "SIZE.: HUGE"};
constexpr std::array<const char*, 8> kPopLine = {
    "POP :  UNINHABITED", "POP :  HUMAN",   "POP :  HAGEL",   "POP :  LAGEW",
    "POP :  JAYTEES",     "POP :  MARKEEN", "POP :  WOOT-AM", "POP :  PIRATES"};
constexpr std::array<const char*, 9> kSocLine = {
    "",                 "SOC:  TRIBES",    "SOC:  FEUDALISM", "SOC:  CAPITALISM", "SOC:  SOCIALISM",
    "SOC:  COMMUNISM", "SOC:  DEMOCRACY", "SOC:  ANARCHY",   "SOC:  MILITARY"};

// Top left of body i's sprite (unclipped).
int BodyLeft(const PlanetRecord& b) { return CInt(AnchorX(b.X) - b.Width / 2); }
int BodyTop(const PlanetRecord& b) { return CInt(AnchorY(b.Y) - b.Height / 2); }

// The body's picture; true when it was drawn (on the window).
bool DrawBody(PlanetRecord& b) {
  if (b.FramesPerRow == 0 || !std::isfinite(b.Frame)) return false;  // the division fails
  const double perRow = b.Frame / b.FramesPerRow;
  const int top = CInt(Int(perRow) * b.Height);
  const int left = CInt(Int(Frac(perRow) * b.FramesPerRow) * b.Width);
  bool drawn = false;
  Skip([&] {
    const Bitmap& picture = GFX.PlanetBitmap[CInt(b.Picture)];
    drawn = DrawClipped(BodyLeft(b), BodyTop(b), CInt(b.Width), CInt(b.Height), left, top, picture);
  });
  return drawn;
}

// Source x of the fading marker by how far beyond the range the body lies.
int FadeCell(double beyond) {
  if (beyond <= 0) return 0;
  if (beyond <= 5) return 64;
  if (beyond <= 9) return 128;
  if (beyond <= 14) return 256;
  if (beyond <= 19) return 320;
  if (beyond <= 24) return 384;
  return 448;
}

void DrawUnknownMarker(const PlanetRecord& b, double d) {
  const int left = CInt(AnchorX(b.X)) - 30;
  const int top = CInt(AnchorY(b.Y)) - 30;
  if (d < G.SensorRange) {
    const int frame = CInt(Int(G.Planet[0].Frame));
    DrawClipped(left, top, 64, 64, (frame % 10) * 64, (frame / 10) * 64, GFX.PlanetBitmap[0]);
  }
  if (d > G.SensorRange - 1) DrawClipped(left, top, 64, 64, FadeCell(d - G.SensorRange), 0, GFX.PlanetBitmap[100]);
}

}  // namespace

void DrawPlans() {
  DrawStars();
  if (G.StarLaneKnown == True) DrawStarLanes();
  const int last = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= last; ++i) {
    PlanetRecord& b = G.Planet[i];
    if (b.Known == True && G.InNebula == 0 && DrawBody(b)) {
      b.Frame += b.FrameStep;
      if (b.Frame > b.LastFrame - b.FrameStep) b.Frame = 0;
      DrawPlanInfo(i);
    }
    const double d = std::hypot(G.ShipX - b.X, G.ShipY - b.Y);
    if (b.Known == 0 && d < G.SensorRange + 30 && G.SensorLevel >= 100 && G.InNebula == 0)
      DrawUnknownMarker(b, d);
  }
  G.Planet[0].Frame += 2;
  if (G.Planet[0].Frame > 89) G.Planet[0].Frame = 0;
}

void DrawPlanInfo(int i) {
  if (!decltype(G.Planet)::InBounds(i)) return;
  const PlanetRecord& b = G.Planet[i];
  std::array<std::string, 6> line{};
  line[1] = "NAME: " + b.Name;
  if (b.Type >= 0 && b.Type <= 10) line[2] = kTypeLine[static_cast<std::size_t>(b.Type)];
  if (b.Race == 7) {
    line[2] = "TYPE: STATION";
    line[3] = "SIZE: MEDIUM";
  }
  if (b.Size >= 1 && b.Size <= 5) line[3] = kSizeLine[static_cast<std::size_t>(b.Size)];
  const int science = OfficerSkill(5);
  if (science > 2 && b.Race >= 0 && b.Race <= 7) {
    line[4] = kPopLine[static_cast<std::size_t>(b.Race)];
    if (b.Race == 7) {
      line[2] = "TYPE: STATION";
      line[3] = "SIZE: MEDIUM";
      line[5] = "SOC :  ANARCHY";
    }
  }
  if (science > 3 && b.Society >= 0 && b.Society <= 8) line[5] = kSocLine[static_cast<std::size_t>(b.Society)];

  for (int n = 1; n <= 5; ++n) {
    int x = CInt(b.X - G.ViewX + 321);
    int y = CInt(b.Y - G.ViewY + 120 + 8 * n);
    if (x + 96 > 520) x = 424;
    if (x < 121) x = 121;
    y = std::clamp(y, 8 * n + 25, 8 * n + 217);
    // Draw letter by letter so that those at x >= 520 are left out.
    int k = 0;
    std::size_t pos = 0;
    const std::string& text = line[static_cast<std::size_t>(n)];
    while (pos < text.size()) {
      const std::size_t from = pos;
      NextCodePoint(text, pos);
      ++k;
      if (x + 6 * k >= 520) break;
      DrawSmallText(x + 6 * (k - 1), y, std::string_view(text).substr(from, pos - from));
    }
  }

  if (b.HasStation != 0) {
    int left = BodyLeft(b), top = BodyTop(b);
    if (b.Size == 1 || b.Size == 2) {
      left -= 2;
      top -= 2;
    }
    if (left >= 121 && left <= 510 && top >= 25 && top <= 255) {
      SetSrc(0, 0, 10, 10);
      BltFast(left, top, GFX.StationMarker, true);
    }
  }
}

}  // namespace lf
