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

// Maintenance and cargo: filled by the engineer's page.
void UpdateRepair() {}
void DrawCargoList() {}
void DrawUnfitted() {}
void DrawEngineerAdd() {}
void DrawMaintnanceList() {}

// Crew health: filled by the medical officer's page.
void UpdateHealth() {}
void DrawCrewInfo() {}
void DrawMedicalList() {}
void DrawQuarantineList() {}

// Science: filled by the science officer's page.
void UpdateUpgrade() {}
void DrawSoftwareOnBoard() {}
void DrawResearchList() {}

// Calendar and shipboard incidents: filled by the calendar.
void DrawTime() {}
void HandleShipEvent7() {}
void HandleShipEvent8() {}
void DrawShipStatus() {}

// Helm actions the bridge's buttons call: filled by the helm.
void MakeAutopilotList() {}
void CheckAutopilot() {}
void DrawStarLanes() {}
void Butt_1_3() {}
void Butt_1_7() {}
void Butt_1_8() {}
void LanderDeployed() {}

// Communications and ship trade: filled by the comms officer's page.
void Butt_2_2() {}
void Butt_2_4() {}
void CheckHailSel() {}
void CheckTradeSel() {}

// Crew health: filled by the medical officer's page.
void Butt_4_2() {}

// Science and missions: filled by the science officer's page and the missions.
void Butt_5_1() {}
void DrawScanResults() {}
void CheckResearchMouseDown() {}
void CheckMissionDecline() {}

}  // namespace lf
