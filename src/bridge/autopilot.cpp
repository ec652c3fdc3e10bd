// The autopilot list of the navigator's page: the charted bodies with their
// distance, a click on a row to fly there, and two arrows to scroll it.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {

namespace {

constexpr int kRows = 11;
constexpr int kFirstRowY = 292;
constexpr int kRowHeight = 10;
constexpr int kTextX = 405;
constexpr int kArrowX = 491;
constexpr int kUpArrowY = 282;
constexpr int kDownArrowY = 382;

// Bands of the small font: plain rows, a pirate base, the row under the cursor.
constexpr int kPlainBand = 24;
constexpr int kPirateBand = 12;
constexpr int kLitBand = 6;

int RowY(int r) { return kFirstRowY + r * kRowHeight; }

bool SensorFitted() {
  for (int slot = 1; slot <= FittedSlots(); ++slot)
    if (SlotGroup(slot) == 6) return true;
  return false;
}

// The list's rows in use: a restored count beyond the table reads as full.
int ListedRows() { return std::clamp<int>(G.AutopilotCount, 0, decltype(G.AutopilotList)::kHi); }

// The body at list row `row`, or 0 for a row outside the list or a body
// outside the quadrant's table.
int BodyAtRow(int row) {
  if (row < 1 || row > ListedRows()) return 0;
  const int body = G.AutopilotList[row];
  if (body < 1 || body > std::min<int>(G.PlanetCount, decltype(G.Planet)::kHi)) return 0;
  return body;
}

void AppendNumber(std::string& s, double value) {
  char digits[24];
  const auto [end, ec] = std::to_chars(digits, digits + sizeof digits, static_cast<long long>(value));
  if (ec == std::errc()) s.append(digits, end);
}

void DrawIcon(int x, int y, const Bitmap& icon) {
  SetSrc(0, 0, 8, 8);
  BltFast(x, y - 1, icon, true);
}

void DrawRow(int r, int body) {
  const PlanetRecord& p = G.Planet[body];
  const int y = RowY(r);
  const bool pirate = p.Race == 7;
  if (pirate) {
    DrawIcon(kTextX - 10, y, GFX.PlanetIcon[11]);
  } else if (p.Type >= 1 && p.Type <= 10) {
    DrawIcon(kTextX - 10, y, GFX.PlanetIcon[p.Type]);
  }
  if (p.HasStation != 0) DrawIcon(kTextX - 20, y, GFX.PlanetIcon[11]);

  static std::string text = [] {
    std::string s;
    s.reserve(64);
    return s;
  }();
  text.assign(p.Name);
  text += " (";
  const double distance = std::hypot(G.ShipX - p.X, G.ShipY - p.Y);
  if (std::isfinite(distance) && distance < 1e15) AppendNumber(text, Int(distance / 10));
  text += ")";

  int band = pirate ? kPirateBand : kPlainBand;
  if (G.MouseX >= 397 && G.MouseX < 460 && G.MouseY > y - 2 && G.MouseY < y + 9) band = kLitBand;
  DrawSmallText(kTextX - 6, y, text, band);
}

void EngageAutopilot(int body) {
  PlaySoundFx(4, 1);
  G.DestX = G.Planet[body].X;
  G.DestY = G.Planet[body].Y;
  G.FollowShip = 0;
  G.FollowMode = 0;
  SetLine("", "AUTOPILOT ENGAGED! DESTINATION COORDINATES SET!", "", 1);
}

}  // namespace

void MakeAutopilotList() {
  if (!SensorFitted()) return;
  G.AutopilotCount = 0;
  const int last = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  for (int i = 1; i <= last; ++i) {
    if (G.Planet[i].Known != True) continue;
    if (G.AutopilotCount >= decltype(G.AutopilotList)::kHi) break;
    ++G.AutopilotCount;
    G.AutopilotList[G.AutopilotCount] = static_cast<std::int16_t>(i);
  }
}

void DrawAutopilotList() {
  ReadCursor();
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[1], false);
  });
  const int top = G.AutopilotTop;
  const int last = std::min(top + kRows - 1, ListedRows());
  for (int row = std::max(top, 1); row <= last; ++row) {
    const int body = BodyAtRow(row);
    if (body != 0) DrawRow(row - top, body);
  }
  SetSrc(0, 0, 14, 10);
  BltFast(kArrowX, kUpArrowY, GFX.ScrollUp, true);
  SetSrc(0, 0, 14, 10);
  BltFast(kArrowX, kDownArrowY, GFX.ScrollDown, true);
}

void CheckAutopilot() {
  const int x = G.MouseX, y = G.MouseY;
  // The arrows are tested inside the loop over the rows, so one click on an
  // arrow scrolls the list by all eleven rows.
  for (int r = 0; r < kRows; ++r) {
    const int rowY = RowY(r);
    if (x > 409 && x < 490 && y > rowY - 2 && y < rowY + 8) {
      if (const int body = BodyAtRow(G.AutopilotTop + r); body != 0) EngageAutopilot(body);
    }
    if (x > kArrowX && x < 517) {
      if (y > kUpArrowY && y < kUpArrowY + 16) {
        PlaySoundFx(4, 1);
        G.AutopilotTop = static_cast<std::int16_t>(std::max(G.AutopilotTop - 1, 1));
      }
      if (y > kDownArrowY && y < kDownArrowY + 16) {
        PlaySoundFx(4, 1);
        if (G.AutopilotTop < 32767) ++G.AutopilotTop;
      }
    }
  }
  CheckDirection();
}

}  // namespace lf
