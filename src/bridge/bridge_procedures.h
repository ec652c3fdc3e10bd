// The bridge procedures, by topic: those the bridge frame (RunLoop) calls,
// and those a press on the bridge reaches.
#pragma once

namespace lf {

// Panel and buttons.
void DrawToolsIcons();
void DrawButtons();
void CheckMouseOverButton();
void DrawFaces();
void CheckFace();
void CheckButton();

// Sector view and navigation.
void CheckViewMove();
void CheckDirection();
void CheckDestination();
void CheckViewMode();
void CheckGrid();
void CheckSensorRange();
void DrawNebulas();
void DrawQuadBack();
void DrawStars();
void DrawGrid();
void DrawSensorRange();
void DrawPlans();
void DrawPlanInfo(int i);
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
// The landing story's landing outcome: ore from the body below.
void LanderDeployed();
// Salvage from tractored debris: a component into the unfitted hold.
void AddDebris();

// Communications.
void DrawHailMessages();
void DrawDiplomacy();

// Power.
void CheckMissingComponents();
void UpdateEnergy();
void DrawEnergyList();
void CheckPowerOverload();
void DistributeEnergy();
void a_ResetEnergy();
void Butt_3_4();
void Butt_3_8();

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

// A mouse press on the bridge (the last branch of Form_MouseDown).
// Button: 1 left, 2 right. The position is read from the host.
void CheckBridgeMouseDown(int Button);

}  // namespace lf
