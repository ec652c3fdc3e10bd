// Research mode (5,2): the science officer upgrades one fitted component at
// a time; a job can be put aside and taken up again, and a failure costs
// the whole progress.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/crew.h"
#include "bridge/later_procedures.h"
#include "bridge/panel_text.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {

namespace {

// Weapons, generators, engines and shields can be upgraded.
bool Upgradable(int group) { return group == 1 || group == 4 || group == 5 || group == 7; }

bool OnIcon(int slot) {
  return G.MouseX > 493 && G.MouseX < 508 && G.MouseY > 288 + 8 * slot && G.MouseY < 296 + 8 * slot;
}

void Finish(int slot, int skill) {
  UpgradeJobRecord& job = G.UpgradeJob[slot];
  job.Progress = 100;
  const std::string name = ComponentName(SlotGroup(slot), SlotModel(slot));
  if (Rnd() < skill / 6.0) {
    job.Upgraded = True;
    job.Bonus = skill / 8.0;
    SetMessage("", name + " HAS BEEN SUCCESSFULLY UPGRADED!", "", 6);
  } else {
    job.Active = False;
    job.Progress = 0;
    SetMessage("", "CAPTAIN, I HAVE FAILED IN ATTEMPT TO UPGRADE THE " + name, "", 6);
  }
}

constexpr const char* kSkillWord[6] = {"", " VERY POOR", " POOR", " AVERAGE", " VERY GOOD", " EXCELLENT"};

}  // namespace

void CheckResearchMouseDown() {
  for (int i = 1; i <= FittedSlots(); ++i) {
    UpgradeJobRecord& job = G.UpgradeJob[i];
    if (!Upgradable(SlotGroup(i)) || IsSet(job.Upgraded) || !OnIcon(i)) continue;
    PlaySoundFx(2, 1);
    if (job.Active == True) {
      job.Active = False;  // put aside: the progress stays
    } else {
      for (UpgradeJobRecord& other : G.UpgradeJob) other.Active = False;
      job.Active = True;
    }
  }
}

void UpdateUpgrade() {
  const int skill = PostSkill(5);
  for (int i = 1; i <= FittedSlots(); ++i) {
    UpgradeJobRecord& job = G.UpgradeJob[i];
    // A job left on a slot whose component has gone waits for nothing.
    if (job.Active != True || IsSet(job.Upgraded) || SlotGroup(i) == 0) continue;
    job.Progress += skill / 30.0;
    if (job.Progress > 100) Finish(i, skill);
  }
}

void DrawResearchList() {
  DrawPanelBack(GFX.ResearchBack);
  ReadCursor();
  for (int i = 1; i <= FittedSlots(); ++i) {
    const int group = SlotGroup(i);
    if (group == 0) continue;
    const UpgradeJobRecord& job = G.UpgradeJob[i];
    const int y = 287 + 8 * i;
    DrawShareBar(385, y + 4, job.Progress);
    const bool done = IsSet(job.Upgraded);
    const bool open = Upgradable(group) && !done;
    int band = kBandPlain;
    if (!open)
      band = kBandGreyed;
    else if (job.Active == True)
      band = kBandActive;
    DrawSmallText(385, y + 1, Truncated(ComponentLabel(group, SlotModel(i)), 16), band);  // before the icon
    int icon = 30;
    if (done)
      icon = 45;
    else if (open)
      icon = OnIcon(i) ? 15 : 0;
    SetSrc(icon, 0, icon + 15, 7);
    BltFast(493, y + 1, GFX.UpgradePicture, true);
  }
  const int skill = PostSkill(5);
  DrawSmallCentred(440, 395, std::string("SCI SKILL:") + (skill >= 1 && skill <= 5 ? kSkillWord[skill] : ""));
}

}  // namespace lf
