// Bridge procedures not written yet: each stands empty until its topic
// fills it.
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"

namespace lf {

// Helm actions: filled by the helm.
void DrawDebrisCargo() {}
void DrawAutopilotList() {}
void EnteringStarlane() {}

// Communications: filled by the comms officer's page.
void DrawHailMessages() {}
void DrawDiplomacy() {}

// Helm actions the bridge's buttons call: filled by the helm.
void MakeAutopilotList() {}
void CheckAutopilot() {}
void DrawStarLanes() {}
void Butt_1_3() {}
void Butt_1_7() {}
void Butt_1_8() {}

// Communications and ship trade: filled by the comms officer's page.
void Butt_2_2() {}
void Butt_2_4() {}
void CheckHailSel() {}
void CheckTradeSel() {}

// Missions: filled by the mission objectives.
void CheckMissionDecline() {}

}  // namespace lf
