// Presses on the panels' sliders and lists, at MouseX, MouseY.
#pragma once

namespace lf {

void UnfittedListClick();   // (6,4): jettison an unfitted component
void CargoListClick();      // (6,2): jettison 1 or 10 units
void MaintenanceClick();    // (6,1): repair shares from the pool
void PowerSliderClick();    // (3,3): power settings from the spare power
void MedicalClick();        // (4,1): treatment shares from the pool
void QuarantineClick();     // (4,4): quarantine and cure

}  // namespace lf
