// The arrival chain's pay office: what the two places have done is paid,
// with a notice, then the chain goes on to the loan.
#include "missions/mission_rules.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {
namespace {

bool PaidAtDestination(int type) {
  return (type >= 1 && type <= 5) || type == 15 || type == 17 || (type >= 25 && type <= 29) || type == 34;
}

// The progress at which a mission is paid; -1 for one paid at its
// destination instead.
int PaidAtProgress(int type) {
  if (PaidAtDestination(type)) return -1;
  return TwoGoalMission(type) ? 3 : 1;
}

bool Due(int place, const MissionRecord& m) {
  const int at = PaidAtProgress(m.MissionType);
  if (at >= 0) return G.MissionProgress[place] == at;
  return m.TargetPlanet != 0 && DockedPlanet() == m.TargetPlanet;
}

}  // namespace

void a_MissionCheck() {
  bool paid = false;
  for (int place = 1; place <= 2; ++place) {
    MissionRecord* m = MissionInPlace(place);
    if (m == nullptr || !Due(place, *m)) continue;
    // A damaged record never takes money or standing away.
    if (m->Reward > 0) G.Cash += m->Reward;
    if (m->ReputationGain > 0) G.Reputation += m->ReputationGain;
    if (PaidAtDestination(m->MissionType) && MissionTakesCargo(m->MissionType) && m->CargoUnits > 0)
      G.FreeCargo = static_cast<std::int16_t>(G.FreeCargo + m->CargoUnits);
    m->CargoUnits = 0;
    G.ActiveMission[place] = 0;
    paid = true;
  }
  if (!paid) {
    a_CheckLoanRepay();
    return;
  }
  G.TermLine[1] = "WE THANK YOU FOR ACCOMPLISHING YOUR";
  G.TermLine[2] = "MISSION(S) AND WE ARE LOOKING FORWARD";
  G.TermLine[3] = "TO DEALING WITH YOU AGAIN.";
  a_ClearTermScreen();
  G.TermLineCount = 3;
  G.TermPrompt = 510;
}

}  // namespace lf
