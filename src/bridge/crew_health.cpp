// The medical officer's page: health lost to failing life support and to
// viruses, treatment by shares of the medical officer's time, death of a
// crew member, and the medical status and quarantine lists.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/crew.h"
#include "bridge/panel_text.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/death.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {

namespace {

bool Quarantined(const CrewPostRecord& crew) { return IsSet(crew.Quarantined); }

void LoseHealth(CrewPostRecord& crew) {
  if (G.LifeSupportLevel < 100 && crew.Health > 0) crew.Health -= (100 - G.LifeSupportLevel) / 50;
  if (IsSet(crew.Infected) && !Quarantined(crew) && crew.Health > 0) crew.Health -= 0.05;
  // A shipboard plague, while slot 4 stands.
  if (IsSet(G.StatusSlot[4].Active) && crew.Health > 0) crew.Health -= 0.02;
}

void Treat(int post) {
  CrewPostRecord& crew = G.CrewPost[post];
  const double share = G.TreatmentAlloc[post];
  if (crew.Health == 100 || crew.Health <= 0 || G.LifeSupportLevel < 100 || share <= 0 ||
      Quarantined(crew))
    return;
  crew.Health += share / 200 + PostSkill(post) / 50.0;
  if (crew.Health <= 100) return;
  PlaySoundFx(2, 2);
  crew.Health = 100;
  Assign(G.MedicalPool, static_cast<double>(G.MedicalPool) + share);
  G.TreatmentAlloc[post] = 0;
  SetLine("", "CREWMAN " + PersonName(post) + " WAS SUCCESSFULLY CURED!", "", 4);
}

// True when the post's person died this frame.
bool Die(int post) {
  CrewPostRecord& crew = G.CrewPost[post];
  if (crew.Health >= 0) return false;
  PlaySoundFx(8, 3);
  SetMessage("MEDICAL REPORTS INCLUDE:", "CREWMAN " + PersonName(post) + " HAS DECEASED!", "", 4);
  crew.Person = 0;
  return true;
}

bool CrewLost() {
  for (int post = 1; post <= 6; ++post)
    if (G.CrewPost[post].Person != 0) return false;
  return true;
}

constexpr const char* kPostPrefix[7] = {"", "NAV:", "COM:", "TAC:", "MED:", "SCI:", "ENG:"};
constexpr const char* kSkillWord[6] = {"", "VERY POOR", "POOR", "AVERAGE", "GOOD", "EXCELL."};

const char* SkillWord(int post) {
  if (G.CrewPost[post].Person == 0) return kSkillWord[1];
  const int skill = PostSkill(post);
  return skill >= 1 && skill <= 5 ? kSkillWord[skill] : "";
}

// Keyed button picture at (x, y), 8 high, as wide as the picture is.
void DrawListButton(int x, int y, const Bitmap& picture, int maxWidth) {
  const int w = picture.Loaded() && picture.Width() < maxWidth ? picture.Width() : maxWidth;
  SetSrc(0, 0, w, 8);
  BltFast(x, y, picture, true);
}

}  // namespace

void UpdateHealth() {
  if (G.TimeStep == 0.1) {
    for (int post = 1; post <= 6; ++post) {
      if (G.CrewPost[post].Person == 0) continue;
      LoseHealth(G.CrewPost[post]);
      Treat(post);
      if (Die(post)) break;  // deaths are told one at a time
    }
  }
  if (CrewLost()) {
    G.StatusSlot[DeadSlot].Active = True;
    EventHandler();
  }
}

void DrawMedicalList() {
  DrawPanelBack(GFX.PanelPicture[8]);
  for (int post = 1; post <= 6; ++post) {
    const CrewPostRecord& crew = G.CrewPost[post];
    const int y = 277 + 16 * post;
    const bool manned = crew.Person != 0;
    if (manned) DrawShareBar(385, y + 3, crew.Health);
    DrawShareBar(385, y + 10, G.TreatmentAlloc[post]);
    // Two rows higher than the heart, so that the health bar does not cut
    // through the letters.
    DrawSmallText(385, y - 2, manned ? PersonName(post) : "COMPUTER CONTROL");
    SetSrc(0, 0, 6, 6);
    BltFast(496, y, GFX.Heart, true);
    SetSrc(0, 0, 6, 6);
    BltFast(496, y + 7, GFX.RCross, true);
  }
  DrawSmallCentred(440, 395, "TIME LEFT:" + std::to_string(G.MedicalPool));
}

void DrawQuarantineList() {
  DrawPanelBack(GFX.PanelPicture[9]);
  const int medical = PostSkill(4);
  for (int post = 1; post <= 6; ++post) {
    const CrewPostRecord& crew = G.CrewPost[post];
    if (crew.Person == 0 || !IsSet(crew.Infected)) continue;
    const int y = 302 + 17 * (post - 1);
    if (medical > 1)
      DrawListButton(381, y, Quarantined(crew) ? GFX.QuarantineDown : GFX.QuarantineUp, 65);
    if (medical > 3)
      DrawListButton(446, y, IsSet(crew.Vaccinated) ? GFX.TreatmentDown : GFX.TreatmentUp, 65);
    DrawSmallCentred(446, y - 8, PersonName(post));
  }
}

void DrawCrewInfo() {
  DrawPanelBack(GFX.PanelPicture[7]);
  double salaries = 0;
  for (int post = 1; post <= 6; ++post) {
    const CrewPostRecord& crew = G.CrewPost[post];
    const int y = 286 + 17 * (post - 1);
    const bool shown = crew.Person != 0 && !Quarantined(crew);
    DrawSmallText(383, y, shown ? PersonName(post) : "COMPUTER CONTROLLED");
    DrawSmallText(383, y + 7, std::string(kPostPrefix[post]) + SkillWord(post));
    Skip([&] { salaries += G.Character[crew.Person].Salary; });
  }
  DrawSmallCentred(440, 395, "SALLARY:" + IntText(salaries));
}

}  // namespace lf
