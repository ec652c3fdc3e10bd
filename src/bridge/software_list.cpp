// The communicator's AVAILABLE SOFTWARE panel (2,6): what the ship's
// computers know.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/panel_text.h"
#include "display/gfx.h"
#include "shell/game_state.h"

namespace lf {

void DrawSoftwareOnBoard() {
  DrawPanelBack(GFX.SoftwareBack);
  static constexpr const char* kTranslator[7] = {"",
                                                 "HUMAN TRANSLATOR",
                                                 "HAGEL TRANSLATOR",
                                                 "LAGEW TRANSLATOR",
                                                 "JAYTEES TRANSLATOR",
                                                 "MARKEEN TRANSLATOR",
                                                 "WOOT-AM TRANSLATOR"};
  int row = 0;
  const auto line = [&row](const std::string& text) { DrawSmallText(380, 286 + 7 * row++, text); };
  for (int race = 1; race <= 6; ++race)
    if (IsSet(G.TranslatorOwned[race])) line(kTranslator[race]);
  if (IsSet(G.ChartBought)) line("D-1707D STAR CHARTS");
  if (IsSet(G.StarLaneKnown))
    line("STARLANE (" + IntText(Int(G.StarLaneX / 100.0)) + "," + IntText(Int(G.StarLaneY / 100.0)) + ")");
  if (IsSet(G.ComputerVirus)) line("COMP. VIRUS");
  if (IsSet(G.VirusProtection)) line("VIRUS PROTECTOR");
}

}  // namespace lf
