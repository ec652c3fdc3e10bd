// The bridge procedures called by the bridge frame (RunLoop), by topic.
#pragma once

namespace lf {

// Panel and buttons.
void DrawToolsIcons();
void DrawButtons();
void CheckMouseOverButton();
void DrawFaces();

// Sector view and navigation.
void CheckViewMove();
void CheckDirection();
void DrawNebulas();
void DrawQuadBack();
void DrawStars();
void DrawGrid();
void DrawSensorRange();
void DrawPlans();
void DrawShip();
void DrawDistance();
void DrawDestination();
void DrawCoords();
void CheckScroll();
void CheckDistance();
void DrawHealth();

// Helm actions.
void CheckStopAvailability();
void DrawDebrisCargo();
void DrawAutopilotList();
void EnteringStarlane();

// Communications.
void DrawHailMessages();
void DrawDiplomacy();

// Power.
void CheckMissingComponents();
void UpdateEnergy();
void DrawEnergyList();
void CheckPowerOverload();
void DistributeEnergy();

// Maintenance and cargo.
void UpdateRepair();
void DrawCargoList();
void DrawUnfitted();
void DrawEngineerAdd();
void DrawMaintnanceList();

// Crew health.
void UpdateHealth();
void DrawCrewInfo();
void DrawMedicalList();
void DrawQuarantineList();

// Science.
void UpdateUpgrade();
void DrawSoftwareOnBoard();
void DrawResearchList();

// Calendar and shipboard incidents.
void DrawTime();
void HandleShipEvent7();
void HandleShipEvent8();
void DrawShipStatus();

}  // namespace lf
