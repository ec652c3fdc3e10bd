// A press on the terminal: the exit zone, the answer buttons of a notice or
// the medical question, and the service menu once the welcome is reached.
#include <array>
#include <string>
#include <string_view>

#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/terminal_layout.h"
#include "station/terminal_notice.h"

namespace lf {
namespace {

bool In(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

// The OK of a notice: the step its TermPrompt names.
void NextStep(int prompt) {
  switch (prompt) {
    case 501: G.TermPrompt = 0; a_CheckHostility(); break;
    case 502: G.TermPrompt = 0; a_ExitStation(); break;
    case 503: a_CheckContraband(); break;
    case 504: a_CheckLander(); break;
    case 505: a_SallaryCheck(); break;
    case 506: a_MissionCheck(); break;
    case 507: case 508: case 509: case 511: case 512: a_Welcome(); break;
    case 510: a_CheckLoanRepay(); break;
    default: break;  // a prompt no notice sets: the OK does nothing
  }
}

struct ServiceScreen {
  std::string_view name;
  std::int16_t page;
  std::string_view back;
};
constexpr std::array<ServiceScreen, 7> kServiceScreens = {{
    {"MEETING LOUNGE", 2, "bar"},
    {"COMMODITY EXCHANGE", 3, "commodity"},
    {"SHIP DEALER", 4, "ship_dealer"},
    {"FLEET OFFICE", 5, "fleet_office"},
    {"EXPLORATION GUILD", 6, "exploration"},
    {"MERCHANT GUILD", 7, "merchant"},
    {"MERCENARY GUILD", 8, "mercenary"},
}};

void OpenService(std::string_view name) {
  for (const ServiceScreen& s : kServiceScreens) {
    if (s.name != name) continue;
    a_ClearTermScreen();
    StationPage() = s.page;
    // Every screen opens with nothing chosen.
    G.ServicePage = 0;
    G.LoungeSelection = 0;
    G.DealerGroup = 0;
    G.DealerSelection = 0;
    GFX.StationBack = LoadBitmapIntoDXS(std::string(R"(\gfx\station\a_backs\)") + std::string(s.back) + ".bmp");
    if (s.page == 4) GFX.DealerSelect = LoadBitmapIntoDXS(R"(\gfx\station\a_misc\select.bmp)");
    return;
  }
}

}  // namespace

void a_CheckMouseDown1() {
  const int x = G.MouseX, y = G.MouseY;
  if (In(x, y, 45, 50, 45, 50)) G.Cash *= 10;
  if (In(x, y, 39, 293, 396, 440)) a_ExitStation();
  // The prompt is read once: an answer that raises a new question must not
  // answer it with the same press.
  const int prompt = G.TermPrompt;
  if (prompt > 500) {
    PlaySoundFx(4, 1);
    if (OnTermButton(kOkButton, x, y)) NextStep(prompt);
  } else if (prompt >= 1 && prompt <= 499) {
    if (OnTermButton(kNoButton, x, y) && prompt == 2) {
      PlaySoundFx(8, 2);
      G.TermPrompt = 0;
      a_ExitStation();
    } else if (OnTermButton(kYesButton, x, y)) {
      PlaySoundFx(4, 1);
      if (prompt == 2) a_TreatInfectedCrew();
    }
  }
  if (G.ServiceMenuOpen == 0) return;
  for (int i = 1; i <= 10; ++i) {
    const std::string& line = G.StationService[i];
    if (line.empty()) break;
    const int top = ServiceLineTop(i);
    if (x > 370 && y > top && y < top + 15) {
      OpenService(line);
      return;
    }
  }
}

}  // namespace lf
