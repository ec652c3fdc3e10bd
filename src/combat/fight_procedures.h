// The fight's own procedures, by topic: the screen, power and weapons, hits,
// the opponent and the outcomes. The shell's entry points stand in
// combat_procedures.h.
#pragma once

namespace lf {

// The bitmaps of a fight, and the opponent's hull class.
void d_LoadFightGfx();
void UnloadFightBitmaps();
void d_FightShipConfig();

// The screen, drawn each frame in this order.
void d_DrawFightBack();
void d_DrawWarnings();
void d_DrawEnergy();
void d_DrawCrewHealth();
void d_DrawComponentStatus();
void d_DrawSpecialComponents();
void d_DrawShipWeapons();
void d_DrawTargets();
void d_DrawOtherShip();
void d_DrawSurrenderSelection();
void d_DrawWeapon();
void d_DrawOpponentGauges();
void d_DrawFightTxt();
void d_DrawStatic();
void d_AddToLetterCount();

// Power, weapons and targets.
void d_CalculateEnergyLevels();
void d_UpdateEnergy();
void d_CheckWeaponRange();
void d_CheckPowerDistribution();
void d_CheckShipMovement();
void d_DetermineWeapons();
void d_CheckWeaponSelection();
void d_CheckTargetSelection();
void d_CheckSpecialSelection();

// Hits of the player's shots.
void d_CalculateProbabilities();
void d_CheckWeaponHit(int kind);
void d_CheckDestroyedComponent();

// The opponent.
void d_OpponentsWeapons();
void d_CalculateOpponent();
void d_CheckOShipMovement();
void d_OShipMovement();
// After damage to the player's ship: slot 0 the hull, 1.. a hardpoint,
// kSweepOnly only the sweep of the empty launchers.
inline constexpr int kSweepOnly = -1;
void d_CheckBlownComponent(int slot);
void d_DamageCrewmember(double amount);

// Outcomes.
void d_CheckSurrenderSelection();

}  // namespace lf
