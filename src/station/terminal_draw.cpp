// The terminal screen: the station's title, the service menu with its
// picture and map marker, the typed text and the answer buttons.
#include <array>
#include <string_view>

#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"
#include "station/station_common.h"
#include "station/station_lines.h"
#include "station/station_procedures.h"
#include "station/station_text.h"
#include "station/terminal_layout.h"

namespace lf {
namespace {

struct ServiceLook {
  std::string_view name;
  int picture;     // ServicePicture index
  bool bigMarker;  // marker.bmp (60x45) or marker2.bmp (40x30)
  std::array<std::array<int, 2>, 4> at;  // marker position by quadrant 1..4
};

constexpr std::array<ServiceLook, 7> kServiceLook = {{
    {"MEETING LOUNGE", 2, false, {{{62, 140}, {110, 160}, {30, 220}, {70, 200}}}},
    {"COMMODITY EXCHANGE", 3, true, {{{140, 117}, {180, 170}, {70, 240}, {130, 260}}}},
    {"SHIP DEALER", 4, true, {{{250, 144}, {150, 230}, {150, 230}, {40, 140}}}},
    {"FLEET OFFICE", 6, false, {{{143, 100}, {70, 240}, {230, 230}, {230, 220}}}},
    {"EXPLORATION GUILD", 5, false, {{{90, 260}, {100, 280}, {100, 160}, {160, 190}}}},
    {"MERCHANT GUILD", 8, false, {{{210, 240}, {150, 300}, {200, 160}, {130, 150}}}},
    {"MERCENARY GUILD", 7, false, {{{148, 264}, {200, 250}, {150, 290}, {240, 290}}}},
}};

const ServiceLook* LookOf(std::string_view name) {
  for (const ServiceLook& s : kServiceLook)
    if (s.name == name) return &s;
  return nullptr;
}

void DrawHotService(const ServiceLook& look) {
  SetSrc(0, 0, 100, 100);
  BltFast(484, 338, GFX.ServicePicture[G.ServiceMenuOpen != 0 ? look.picture : 1], true);
  const int q = G.CurrentQuadrant;
  if (q < 1 || q > 4) return;
  const int frame = static_cast<int>(Int(G.ServiceMarkerFrame));
  const int w = look.bigMarker ? 60 : 40, h = look.bigMarker ? 45 : 30;
  SetSrc(frame * w, 0, frame * w + w, h);
  BltFast(look.at[q - 1][0], look.at[q - 1][1], look.bigMarker ? GFX.StationMarkerBig : GFX.StationMarkerSmall,
          true);
}

void DrawButton(const TermButton& b, const Bitmap& bitmap) {
  const int left = OnTermButton(b, G.MouseX, G.MouseY) ? b.width : 0;
  SetSrc(left, 0, left + b.width, b.height);
  BltFast(b.x, b.y, bitmap, true);
}

}  // namespace

void a_DrawStationTitle() {
  DrawImpText(80, 40, "WELCOME TO");
  const int planet = DockedPlanet();
  if (planet == 0) return;
  const std::string& name = G.Planet[planet].Name;
  DrawImpText(80, 62, name);
  DrawImpText(80 + kImpAdvance * CodePointCount(name), 62, " STATION");
}

void a_DrawStationComps() {
  const ServiceLook* hot = nullptr;
  for (int i = 1; i <= 10; ++i) {
    const std::string& line = G.StationService[i];
    if (line.empty()) continue;
    const int y = ServiceLineTop(i);
    const int right = 593;
    const int left = right - kImpAdvance * (CodePointCount(line) - 1);
    const bool over = G.MouseX > left - 10 && G.MouseX < 600 && G.MouseY > y && G.MouseY < y + 15;
    DrawImpTextRight(right, y, line, over ? kImpLitRow : 0);
    if (over && hot == nullptr) hot = LookOf(line);
  }
  if (hot == nullptr) {
    G.ServiceMarkerOn = False;
    G.ServiceMarkerFrame = 0;
    return;
  }
  G.ServiceMarkerOn = True;
  G.ServiceMarkerFrame += 0.15;
  if (G.ServiceMarkerFrame > 7) G.ServiceMarkerFrame = 0;
  DrawHotService(*hot);
}

void a_DrawLogonText() {
  const int count = G.TermLineCount;
  // Only the first 20 lines have fade states, so only they can show.
  const int shown = count < 20 ? count : 20;
  for (int line = 1; line <= shown; ++line)
    DrawFadeText(360, 152 - 9 * count + 9 * line, G.TermLine[line], line, 0);
  if (G.TermPrompt >= 1 && G.TermPrompt <= 499) {
    DrawButton(kNoButton, GFX.StationNo);
    DrawButton(kYesButton, GFX.StationYes);
  } else if (G.TermPrompt > 500) {
    DrawButton(kOkButton, GFX.StationYes2);
  }
}

}  // namespace lf
