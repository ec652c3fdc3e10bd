// Bridge procedures not written yet: each stands empty until its topic
// fills it.
#include "bridge/bridge_procedures.h"

namespace lf {

// Panel and buttons: filled by the bridge panel.
void DrawToolsIcons() {}
void DrawButtons() {}
void CheckMouseOverButton() {}
void DrawFaces() {}

// Sector view and navigation: filled by the sector view.
void CheckViewMove() {}
void CheckDirection() {}
void DrawNebulas() {}
void DrawQuadBack() {}
void DrawStars() {}
void DrawGrid() {}
void DrawSensorRange() {}
void DrawPlans() {}
void DrawShip() {}
void DrawDistance() {}
void DrawDestination() {}
void DrawCoords() {}
void CheckScroll() {}
void CheckDistance() {}
void DrawHealth() {}

// Helm actions: filled by the helm.
void CheckStopAvailability() {}
void DrawDebrisCargo() {}
void DrawAutopilotList() {}
void EnteringStarlane() {}

// Communications: filled by the comms officer's page.
void DrawHailMessages() {}
void DrawDiplomacy() {}

// Power: filled by the power systems.
void CheckMissingComponents() {}
void UpdateEnergy() {}
void DrawEnergyList() {}
void CheckPowerOverload() {}
void DistributeEnergy() {}

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

}  // namespace lf
