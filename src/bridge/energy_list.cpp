// The POWER DISTRIBUTION panel: a bar per system with its setting marker,
// and the generators' use and heat.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

namespace {

constexpr int kRowY[6] = {0, 305, 321, 337, 353, 369};
constexpr const char* kRowName[6] = {"", "WEAPONS", "SHIELDS", "PROPULSION", "SENSOR", "LIFE SUPPORT"};

std::string OnOff(double level) { return level >= 100 ? " ON" : "OFF"; }

std::string RowStatus(int row, double level) {
  switch (row) {
    case 2: return IntText(level) + "%";
    case 3:
      if (level < 100) return "OFF";
      if (level < 133) return "LOW";
      if (level < 166) return "MED";
      return " HI";
    default: return OnOff(level);
  }
}

// Letters k = 1..n so that the last one ends at x = right.
void DrawRightAligned(int right, int y, const std::string& text) {
  const int n = CodePointCount(text);
  DrawSmallText(right - 6 * n - 6, y, text);
}

void DrawCentred(int centre, int y, const std::string& text, int row) {
  const int n = CodePointCount(text);
  DrawSmallText(centre - 3 * n - 6, y, text, row);
}

}  // namespace

void DrawEnergyList() {
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[5], false);
  });
  for (int row = 1; row <= 5; ++row) {
    const auto system = static_cast<PowerSystem>(row);
    const double level = SystemLevel(system);
    const double setting = SystemSetting(system);
    const int y = kRowY[row];
    SetSrc(0, 0, 105, 4);
    BltFast(385, y, GFX.MaintSlider2, true);
    Skip([&] {
      SetSrc(0, 0, 3, 2);
      BltFast(437, y, GFX.EnergyArrow[1], true);
      SetSrc(0, 0, 3, 2);
      BltFast(CInt(385 + setting / 2 * 1.05), y, GFX.EnergyArrow[2], true);
    });
    const double width = level / 2 * 1.05;
    SetSrc(0, 0, row == 1 ? CInt(width) : static_cast<int>(Int(width)), 4);
    BltFast(385, y, GFX.MaintSlider, true);
    DrawSmallText(385, y - 9, kRowName[row]);
    DrawRightAligned(504, y - 3, RowStatus(row, level));
  }
  const double used = PowerUsed();
  DrawCentred(440, 395,
              "GEN:" + std::to_string(GeneratorCount()) + "  SPARE.:" + IntText(G.SparePower), 0);
  const bool hot = used > 90 || G.GeneratorHeat > 100;
  DrawCentred(440, 387, "USED:" + IntText(used) + "%  HEAT:" + IntText(G.GeneratorHeat) + "%",
              hot ? 6 : 0);
}

}  // namespace lf
