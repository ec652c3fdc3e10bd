// The power panel as the captain uses it, the levels' creep, heat and the
// loss of a generator, the backup generator and the greyed buttons.
#include "bridge/bridge_helpers.h"
#include "display/gfx.h"
#include "bridge_fixture.h"

namespace lf::test {
namespace {

class PowerTest : public BridgeTest {
 protected:
  void OpenPanel() {
    PressFace(3);
    PressButton(3, 3);
    ASSERT_EQ(ButtonState(3, 3), 1);
  }
  static constexpr int kPropulsionRow = 337;
  static constexpr int kLifeRow = 369;
};

TEST_F(PowerTest, SliderEndsSetZeroAndOneHundredNinetyEight) {
  OpenPanel();
  const double spare = G.SparePower;  // 1200 - 100
  Press(489, kPropulsionRow);
  EXPECT_EQ(G.PropulsionSetting, 198);
  EXPECT_DOUBLE_EQ(G.SparePower, spare - 198);  // demand 100
  Press(386, kPropulsionRow);
  EXPECT_EQ(G.PropulsionSetting, 1) << "Int(1 / 1.05 x 2)";
  Press(385, kPropulsionRow);  // outside: strict test
  EXPECT_EQ(G.PropulsionSetting, 1);
  G.PropulsionSetting = 150;
  G.SparePower = spare - 150;
  // Far left of the bar: (105 - 104) / 1.05 x 2 = 1.9, so 1; lowering gives power back.
  Press(386, kPropulsionRow);
  EXPECT_DOUBLE_EQ(G.SparePower, spare - 1);
}

TEST_F(PowerTest, ARequestBeyondTheSparePowerTakesWhatIsLeft) {
  OpenPanel();
  G.SparePower = 100;
  Press(489, 321);  // shields, demand 400: 198 would cost 792
  EXPECT_DOUBLE_EQ(G.ShieldSetting, 25);
  EXPECT_EQ(G.SparePower, 0);
  Press(489, kLifeRow);  // nothing left: life support keeps its setting
  EXPECT_EQ(G.LifeSupportSetting, 100);
  G.SparePower = -5;  // below zero the panel takes no click
  Press(437, kPropulsionRow);
  EXPECT_EQ(G.PropulsionSetting, 0);
}

TEST_F(PowerTest, ASystemWithoutItsComponentTakesNoClick) {
  G.FittedComp[5][1] = 0;  // no weapon
  OpenPanel();
  CheckMissingComponents();
  EXPECT_EQ(G.NoWeapon, True);
  EXPECT_EQ(ButtonState(3, 1), 2);
  Press(489, 305);
  EXPECT_EQ(G.WeaponSetting, 0);
}

TEST_F(PowerTest, LevelsCreepByThreeHundredOverTheDemand) {
  G.FittedComp[6][1] = 5;  // a second engine makes propulsion demand 200
  G.FittedComp[6][2] = 1;
  G.HardpointCount = 6;
  G.PropulsionSetting = 100;
  UpdateEnergy();
  EXPECT_DOUBLE_EQ(G.PropulsionLevel, 1.5);
  G.WeaponSetting = 100;  // demand 220
  for (int i = 0; i < 10; ++i) UpdateEnergy();
  EXPECT_NEAR(G.WeaponLevel, 3000.0 / 220, 1e-9);
  G.WeaponSetting = 0;
  UpdateEnergy();
  EXPECT_EQ(G.WeaponLevel, 0) << "lowering is immediate";
  G.LifeSupportLevel = 0;
  UpdateEnergy();
  EXPECT_EQ(G.LifeSupportLevel, 2);
  G.TimeStep = 0.1 / 60;  // in orbit nothing moves
  UpdateEnergy();
  EXPECT_EQ(G.LifeSupportLevel, 2);
}

TEST_F(PowerTest, FullUseHeatsTheGeneratorsAndOneIsLostAtTheEnd) {
  Fit(6, 4, 1);  // a second generator: 2400 KW
  DistributeEnergy();
  G.SparePower = 0;  // all allotted
  G.PropulsionSetting = G.SensorSetting = 100;
  for (int i = 0; i < 1000; ++i) CheckPowerOverload();
  EXPECT_NEAR(G.GeneratorHeat, 100, 1e-6);
  G.GeneratorHeat = 200;
  G.HeatWarned = True;  // given on the way up
  G.FittedHealth[1] = 2.1;
  G.FittedHealth[6] = 2.1;
  CheckPowerOverload();
  EXPECT_EQ(G.FittedComp[1][1], 0) << "the first generator is lost";
  EXPECT_EQ(G.FittedComp[6][1], 4) << "one a frame: the second runs on";
  EXPECT_DOUBLE_EQ(G.FittedHealth[6], 2.1);
  EXPECT_EQ(G.MessagePending, True);
  EXPECT_EQ(G.PromptLine[3], "AN EXPLOSION AND WAS DESTROYED!");
  EXPECT_EQ(G.PromptLine[4], "") << "one generator still covers the computers";
  EXPECT_EQ(G.PropulsionSetting, 0);
  EXPECT_EQ(G.SensorSetting, 0);
  EXPECT_EQ(ButtonState(3, 8), 0) << "the backup generator is offered";
  EXPECT_DOUBLE_EQ(G.SparePower, 1200);
}

TEST_F(PowerTest, ExactlyNinetyPercentDoesNotHeatAndTheWarningsComeOnce) {
  G.SparePower = 120;  // 90% of 1200 used
  G.GeneratorHeat = 10;
  CheckPowerOverload();
  EXPECT_EQ(G.GeneratorHeat, 9.5);
  G.SparePower = 0;
  G.GeneratorHeat = 149.95;
  CheckPowerOverload();
  EXPECT_EQ(G.HeatWarned, True);
  EXPECT_EQ(G.PromptLine[1], "CAPTAIN! I DO NOT THINK IT IS ADVISABLE TO CONTINUE");
  G.MessagePending = False;
  G.PromptLine[1] = "";
  CheckPowerOverload();
  EXPECT_EQ(G.PromptLine[1], "");
}

TEST_F(PowerTest, LosingTheOnlyGeneratorAsksForTheBackupWhichGivesOneHundredFortyFive) {
  Fit(6, 2, 1);  // a computer drawing 30
  G.GeneratorHeat = 200;
  G.HeatWarned = True;
  G.FittedHealth[1] = 2.1;
  G.SparePower = 0;
  CheckPowerOverload();
  EXPECT_DOUBLE_EQ(G.SparePower, -30);
  EXPECT_EQ(G.PromptLine[4], "_I THINK IT WOULD BE ADVISEABLE TO INIITIALIZE");
  G.PageOpen[3] = 1;
  G.MessagePending = False;
  PressButton(3, 8);
  EXPECT_EQ(ButtonState(3, 8), 1);
  EXPECT_DOUBLE_EQ(G.SparePower, 115);
  PressButton(3, 8);  // shut down: with 30 or less spare it stays available
  EXPECT_EQ(ButtonState(3, 8), 0);
  EXPECT_EQ(G.LifeSupportSetting, 0);
}

TEST_F(PowerTest, ResetAfterAChangeOfComponentsLeavesOnlyLifeSupport) {
  G.PropulsionLevel = G.PropulsionSetting = 200;
  G.DestX = 3000;
  CheckDirection();
  a_ResetEnergy();
  EXPECT_EQ(G.PropulsionSetting, 0);
  EXPECT_EQ(G.LifeSupportSetting, 100);
  EXPECT_DOUBLE_EQ(G.SparePower, 1100);
  EXPECT_EQ(G.ShipStepX, 0);
  EXPECT_EQ(G.DestX, G.ShipX);
}

TEST_F(PowerTest, MissingComponentsGreyTheirButtonsAndTheDoorsGreySaveAndCombat) {
  G.HardpointCount = 0;
  G.OrbitState = 3;
  CheckMissingComponents();
  for (auto [p, b] : {std::pair{1, 2}, {2, 4}, {4, 2}, {5, 1}, {1, 1}, {3, 2}, {3, 1}, {5, 2},
                      {5, 6}, {1, 8}, {3, 4}})
    EXPECT_EQ(ButtonState(p, b), 2) << p << "," << b;
  G.OrbitState = 0;
  CheckMissingComponents();
  EXPECT_EQ(ButtonState(5, 6), 0);
  EXPECT_EQ(ButtonState(1, 8), 0);
  EXPECT_EQ(ButtonState(1, 1), 2) << "greying is not undone here";
}

TEST_F(PowerTest, ThePanelDrawsTheSettingMarkerAndTheLevelBar) {
  G.PropulsionSetting = 200;
  G.PropulsionLevel = 100;
  BlitRecording rec;
  DrawEnergyList();
  bool marker = false, bar = false;
  for (const BlitRecord& b : RecordedBlits()) {
    if (b.bitmap == &GFX.EnergyArrow[2] && b.y == 337) marker = b.x == 490;
    if (b.bitmap == &GFX.MaintSlider && b.y == 337) bar = b.right - b.left == 52;
  }
  EXPECT_TRUE(marker);
  EXPECT_TRUE(bar);
}

}  // namespace
}  // namespace lf::test
