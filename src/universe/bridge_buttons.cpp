#include "universe/bridge_buttons.h"

#include <string>

#include "shell/game_state.h"
#include "universe/data/universe_data.h"

namespace lf {

namespace {

constexpr int kColumnX[5] = {0, 140, 201, 262, 323};
constexpr int kRowY[3] = {0, 287, 351};

const data::ButtonRow* FindButton(int p, int b) {
  for (const auto& row : data::kButtonRows)
    if (row.Page == p && row.Button == b) return &row;
  return nullptr;
}

}  // namespace

std::string_view ButtonSheetPath(int p, int b) {
  const data::ButtonRow* row = FindButton(p, b);
  return row ? row->Sheet : std::string_view();
}

void FillBridgeButtons() {
  for (int p = 1; p <= 6; ++p) {
    for (int b = 1; b <= 15; ++b) {
      BridgeButtonRecord& button = G.BridgeButton[p][b];
      button = BridgeButtonRecord{};
      button.Frame = 0;
      button.FrameStep = 0.25;
      button.Visible = False;
      button.State = 0;
      if (const data::ButtonRow* row = FindButton(p, b)) {
        button.X = static_cast<std::int16_t>(kColumnX[row->Column]);
        button.Y = static_cast<std::int16_t>(kRowY[row->Row]);
        button.Width = 50;
        button.Height = 50;
        button.FrameCount = static_cast<std::int16_t>(row->FrameCount);
        button.Present = row->Present ? True : False;
        button.Label = std::string(row->Label);
      }
    }
  }
  G.BridgeButton[3][8].State = 2;
}

void FillOfficerLines() {
  for (int p = 1; p <= 6; ++p)
    for (int line = 0; line <= 3; ++line)
      G.OfficerLine[p][line] =
          std::string(data::kOfficerLines[static_cast<std::size_t>(p)][static_cast<std::size_t>(line)]);
}

}  // namespace lf
