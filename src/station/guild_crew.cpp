// The own crew on the fleet office's and the guilds' screens: the column of
// posts and the page of the chosen officer.
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "station/data/station_data.h"
#include "station/office_layout.h"
#include "station/station_procedures.h"
#include "station/station_lines.h"
#include "universe/catalogue.h"
#include "universe/characters.h"

namespace lf {

namespace {
bool IsPerson(int row) { return row >= 1 && row <= 144; }
}  // namespace

void a_DrawGuildCrewMembers() {
  ReadCursor();
  for (int post = 1; post <= 6; ++post) {
    const int top = 70 + 24 * (post - 1);
    const int person = G.CrewPost[post].Person;
    int row = kPlainRow;
    if (G.ServicePage == 20 + post) row = kChosenRow;
    else if (OnCrewLine(G.MouseX, G.MouseY, post)) row = kBrightRow;
    else if (!IsPerson(person)) row = kGreyRow;
    FadeLine text(445, top, 0, row);
    text << data::kPostPrefixes[static_cast<std::size_t>(post - 1)];
    if (IsPerson(person)) text << std::string_view(G.Character[person].Name);
    else text << "COMPUTER CONTROL";
  }
}

void a_DrawGuildCrew() {
  const int post = G.ServicePage - 20;
  if (post < 1 || post > 6) return;
  const int person = G.CrewPost[post].Person;
  if (!IsPerson(person)) return;
  Skip([person] {
    SetSrc(0, 0, 80, 100);
    BltFast(58, 270, GFX.CharacterFace[person], false);
  });
  const CharacterRecord& c = G.Character[person];
  auto line = [](int n) { return FadeLine(170, 270 + 15 * n, n, kPlainRow); };
  line(1) << "NAME:            " << std::string_view(c.Name);
  line(2) << "RACE:            " << RaceName(CharacterRace(person));
  const int function = c.Post;
  line(3) << "FUNCTION:        "
          << (function >= 1 && function <= 6 ? data::kFunctionWords[static_cast<std::size_t>(function - 1)]
                                             : std::string_view());
  line(4) << "SKILL:           " << GradeName(c.Skill);
  // An officer aboard draws his pay without the hiring fee.
  line(5) << "SALLARY:         Š" << NumberText(c.Salary) << " PER MONTH";
}

}  // namespace lf
