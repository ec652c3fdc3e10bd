#include "bridge/panel_text.h"

#include <cctype>
#include <type_traits>

#include "bridge/bridge_helpers.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/game_state.h"

namespace lf {

void DrawPanelBack(const Bitmap& picture) {
  SetSrc(0, 0, 130, 130);
  BltFast(380, 277, picture, false);
}

void DrawSmallRight(int right, int y, std::string_view text, int band) {
  DrawSmallText(right - 6 * CodePointCount(text) - 6, y, text, band);
}

void DrawSmallCentred(int centre, int y, std::string_view text, int band) {
  DrawSmallText(centre - 3 * CodePointCount(text) - 6, y, text, band);
}

void DrawShareBar(int x, int y, double value) {
  SetSrc(0, 0, 105, 4);
  BltFast(x, y, GFX.MaintSlider2, true);
  const double filled = Int(1.05 * value);
  if (filled <= 0) return;
  // A share above 100 fills no more than the bar.
  SetSrc(0, 0, filled < 105 ? static_cast<int>(filled) : 105, 4);
  BltFast(x, y, GFX.MaintSlider, true);
}

std::string_view Truncated(std::string_view text, int letters) {
  std::size_t i = 0;
  for (int k = 0; k < letters && i < text.size(); ++k) NextCodePoint(text, i);
  return text.substr(0, i);
}

std::string Capitals(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return out;
}

std::string ComponentName(int group, int model) { return Capitals(ComponentLabel(group, model)); }

std::string_view ComponentLabel(int group, int model) {
  using Groups = decltype(G.ComponentTable);
  using Models = std::remove_reference_t<decltype(G.ComponentTable[0])>;
  if (!Groups::InBounds(group) || !Models::InBounds(model)) return {};
  return G.ComponentTable[group][model][1];
}

}  // namespace lf
