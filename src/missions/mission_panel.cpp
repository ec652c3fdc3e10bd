// The bridge's view of the captain's missions: the panel of button (5,4)
// with its decline icons, and the markers on the sector view.
#include <array>
#include <cstdio>

#include "bridge/bridge_helpers.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "missions/mission_rules.h"
#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {
namespace {

// A panel line built without touching the heap.
class PanelText {
 public:
  PanelText& operator<<(std::string_view s) {
    for (char c : s)
      if (length_ < chars_.size()) chars_[length_++] = c;
    return *this;
  }
  PanelText& Point(double x, double y) {
    std::array<char, 32> buf{};
    const int n = std::snprintf(buf.data(), buf.size(), "(%.0f,%.0f)", Int(x / 100), Int(y / 100));
    return *this << std::string_view(buf.data(), n > 0 ? static_cast<std::size_t>(n) : 0);
  }
  std::string_view View() const { return {chars_.data(), length_}; }

 private:
  std::array<char, 64> chars_{};
  std::size_t length_ = 0;
};

std::string_view PlanetName(const MissionRecord& m) {
  if (m.TargetPlanet < 0 || m.TargetPlanet > decltype(G.Planet)::kHi) return {};
  return G.Planet[m.TargetPlanet].Name;
}

// Lines 1 and 2 of a mission on the panel.
void DescribeMission(const MissionRecord& m, PanelText& one, PanelText& two) {
  const std::string_view planet = PlanetName(m);
  auto at = [&](std::string_view line1, std::string_view prefix) {
    one << line1;
    two << prefix;
    two.Point(m.TargetX, m.TargetY);
  };
  switch (m.MissionType) {
    case 1: case 2: case 3: case 4: case 5: one << "TRANSPORT GOODS"; two << "TO " << planet << " STATION"; break;
    case 6: case 7: at("ASSIST MERCHANT SHIP", "AT "); break;
    case 8: case 9: at("RECOVER LOST CARGO", "POD AT "); break;
    case 10: one << "PREFORM SCAN OF"; two << "ONE " << PlanetKindName(m.PlanetKind1) << " PLANET"; break;
    case 11: case 12:
      one << "SCAN ONE " << PlanetKindName(m.PlanetKind1);
      two << "AND ONE " << PlanetKindName(m.PlanetKind2) << " PLANET";
      break;
    case 13: case 22: one << "PREFORM SCAN OF"; two << "AN ASTEROID FIELD"; break;
    case 14: one << "PREFORM SCAN"; two << "OF A NEBULA"; break;
    case 15: one << "TRANSPORT TACTICAL INFO"; two << "TO " << planet << " STATION."; break;
    case 16: case 36:
      (one << "PATROL ").Point(m.NavX[1], m.NavY[1]) << " AND ";
      two.Point(m.NavX[2], m.NavY[2]) << " NAV POINTS.";
      break;
    case 17: one << "TRANSPORT V.I.P."; two << "TO " << planet << " STATION."; break;
    case 18: at("PICK UP ESCAPE POD", "AT "); break;
    case 19: at("ENGAGE ENEMY SHIPS", "AT "); break;
    case 20: one << "PREFORM SCAN OF ONE"; two << PlanetKindName(m.PlanetKind1) << " PLANET"; break;
    case 21: one << "CONDUCT SURVEY OF"; two << planet << " PLANET."; break;
    case 23: one << "PREFORM SCAN OF"; two << "A NEBULA"; break;
    case 25: case 26: case 27: case 28: one << "TRANSPORT GOODS TO"; two << planet << " STATION"; break;
    case 29: one << "TRANSPORT VALUABLES TO"; two << planet << " STATION"; break;
    case 30: at("ASSIST DAMAGED", "MERCHANT AT "); break;
    case 31: at("ASSIST MERCHANT", "AT "); break;
    case 32: case 33: at("RETRIEVE CARGO POD", "AT "); break;
    case 34: one << "TRANSPORT TACT. DATA"; two << "TO " << planet << " STATION"; break;
    case 35: at("ENGAGE ENEMY FORCES", "AT "); break;
    case 37: at("CAPTURE SMUGGLER CARGO", "POD AT "); break;
    case 38: at("ASSIST GUILD MEMBER", "AT "); break;
    case 100:
      one << "PLUNDER CARGO CONVOY";
      (two << "AT ").Point(m.NavX[1], m.NavY[1]) << " AND ";
      two.Point(m.NavX[2], m.NavY[2]);
      break;
    case 101: at("ENGAGE SHIPS", "AT "); break;
    case 102: at("HELP GREYSCULL", "AT "); break;
    default: break;
  }
}

void DrawCentred(int y, std::string_view text, int row) {
  DrawSmallText(440 - 3 * CodePointCount(text), y, text, row);
}

constexpr std::array<int, 3> kPlaceTop{0, 298, 358};
constexpr std::array<int, 3> kDeclineTop{0, 324, 384};

void DrawMarker(double x, double y) {
  const int frame = static_cast<int>(Int(G.ShipFrame));
  const int left = static_cast<int>(300 + x - Int(G.ViewX) - 10);
  const int top = static_cast<int>(125 + y - G.ViewY - 10);
  DrawClipped(left, top, 20, 20, 20 * frame, 0, GFX.Landing);
}

}  // namespace

void DrawCurrentMissions() {
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[13], false);
  });
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr) continue;
    PanelText one, two;
    DescribeMission(*m, one, two);
    if (one.View().empty()) continue;
    const int top = kPlaceTop[static_cast<std::size_t>(place)];
    DrawCentred(top, one.View(), 0);
    DrawCentred(top + 8, two.View(), 0);
    const bool done = MissionComplete(m->MissionType, G.MissionProgress[place]);
    DrawCentred(top + 16, done ? "MISSION COMPLETE" : "MISSION INCOMPLETE", 6);
    Skip([place] {
      SetSrc(0, 0, 16, 16);
      BltFast(432, kDeclineTop[static_cast<std::size_t>(place)], GFX.No, true);
    });
  }
}

void DrawMissionObjectives() {
  for (int place = 1; place <= 2; ++place) {
    const MissionRecord* m = MissionInPlace(place);
    if (m == nullptr) continue;
    if (m->TargetX != 0 || m->TargetY != 0) Skip([m] { DrawMarker(m->TargetX, m->TargetY); });
    for (int n = 1; n <= 2; ++n)
      if (m->NavX[n] != 0 || m->NavY[n] != 0) Skip([m, n] { DrawMarker(m->NavX[n], m->NavY[n]); });
  }
}

void CheckMissionDecline() {
  for (int place = 1; place <= 2; ++place) {
    const int top = kDeclineTop[static_cast<std::size_t>(place)];
    if (G.MouseX > 432 && G.MouseX < 448 && G.MouseY > top && G.MouseY < top + 16) DeclineMission(place);
  }
}

void DeclineMission(int place) {
  if (place < 1 || place > 2 || G.ActiveMission[place] == 0) return;
  const MissionRecord* m = MissionInSlot(G.ActiveMission[place]);
  if (m == nullptr) {
    // A place holding no real mission (a damaged saved state) is freed
    // without a word or a cost, so that it cannot block the place for good.
    G.ActiveMission[place] = 0;
    G.MissionProgress[place] = 0;
    return;
  }
  PlaySoundFx(8, 1);
  if (G.MissionProgress[place] == 1) {
    SetMessage("YOU HAVE ALREADY COMPLETED YOUR MISSION!", "YOU CANNOT DECLINE IT NOW!", "");
    return;
  }
  SetMessage("", "YOU HAVE DECLINED THE MISSION!", "");
  // A forfeit is never a gain: a damaged record with a negative reward
  // costs nothing.
  if (m->Reward > 0) G.Cash = Int(G.Cash - m->Reward / 3.0);
  // The goods of a trade mission are handed back with it: the hold is free
  // again.
  if (MissionTakesCargo(m->MissionType) && m->CargoUnits > 0)
    G.FreeCargo = static_cast<std::int16_t>(G.FreeCargo + m->CargoUnits);
  G.ActiveMission[place] = 0;
  G.MissionProgress[place] = 0;
}

}  // namespace lf
