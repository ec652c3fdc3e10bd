// Bridge procedures not written yet: each stands empty until its topic
// fills it.
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"

namespace lf {

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

// Crew health: filled by the medical officer's page.
void Butt_4_2() {}

// Science and missions: filled by the science officer's page and the missions.
void Butt_5_1() {}
void DrawScanResults() {}
void CheckResearchMouseDown() {}

}  // namespace lf
