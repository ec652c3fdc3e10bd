// Procedures of other bridge topics, the station, the fight and the saved
// games that the bridge's own procedures call.
#pragma once

namespace lf {


// Helm actions.
void MakeAutopilotList();
void CheckAutopilot();
void DrawStarLanes();
void Butt_1_3();
void Butt_1_7();
void Butt_1_8();
// The lander of story event 13 lands: its ore comes aboard.
void LanderDeployed();

// Communications and ship trade.
void Butt_2_2();
void Butt_2_4();
void CheckHailSel();
void CheckTradeSel();

// Crew health: the medical scanner.
void Butt_4_2();
void CheckVirus();

// Science and missions.
void Butt_5_1();
void DrawScanResults();
void CheckResearchMouseDown();
void CheckMissionDecline();

}  // namespace lf
