// Procedures of other topics that the bridge calls, standing empty until
// their topics fill them; and the menu loop the prompt strip calls, until
// the screen loops arrive.
#include "bridge/later_procedures.h"
#include "shell/screens.h"

namespace lf {

void d_FightLoop() { throw ScreenChange{}; }
void DrawMainMenu() { throw ScreenChange{}; }
void EventHandler() {}
void SaveGame() {}

void MakeAutopilotList() {}
void CheckAutopilot() {}
void DrawStarLanes() {}
void Butt_1_3() {}
void Butt_1_7() {}
void Butt_1_8() {}

void Butt_2_2() {}
void Butt_2_4() {}
void CheckHailSel() {}
void CheckTradeSel() {}

void Butt_4_2() {}

void Butt_5_1() {}
void DrawScanResults() {}
void CheckResearchMouseDown() {}
void CheckMissionDecline() {}

// The meeting lounge's news, changed at a new game.
void a_ChangeNewsText() {}

}  // namespace lf
