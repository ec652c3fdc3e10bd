// The meeting lounge's screen: the list of the waiting people and the news,
// the crew column, the information on the chosen person, the picture and
// the cash; and the pirates' offer.
#include "display/gfx.h"
#include "display/screen.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "station/data/station_data.h"
#include "station/dealer.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/lounge.h"
#include "station/station_lines.h"
#include "universe/catalogue.h"
#include "universe/characters.h"

namespace lf {

namespace {

bool Inside(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

bool IsPerson(int row) { return row >= 1 && row <= 144; }

// The person the lounge's selection shows: a waiting person or an own
// officer; 0 for none.
int SelectedPerson() {
  const int sel = G.LoungeSelection;
  int row = 0;
  if (sel >= 1 && sel <= 10) row = StationPerson(sel);
  else if (sel >= 21 && sel <= 26) row = G.CrewPost[sel - 20].Person;
  return IsPerson(row) ? row : 0;
}

int ListRow(int line, bool chosen) {
  const int top = 70 + 14 * (line - 1);
  if (chosen) return kChosenRow;
  return Inside(G.MouseX, G.MouseY, 250, 400, top, top + 9) ? kBrightRow : kPlainRow;
}

std::string_view Word(const std::array<std::string_view, 6>& words, int i) {
  return i >= 1 && i <= 6 ? words[static_cast<std::size_t>(i - 1)] : std::string_view();
}

void DrawConfirm(std::string_view label) {
  DrawFadeTextRight(555, 373, label, 0, kPlainRow);
  const bool hot = Inside(G.MouseX, G.MouseY, 570, 591, 367, 388);
  SetSrc(hot ? 21 : 0, 0, hot ? 42 : 21, 21);
  BltFast(570, 367, GFX.StationYes3, true);
}

}  // namespace

void a_DrawStationCrew() {
  ReadCursor();
  const int people = WaitingPeople();
  for (int n = 1; n <= people; ++n)
    DrawFadeText(250, 70 + 14 * (n - 1), G.Character[StationPerson(n)].Name, n, ListRow(n, G.LoungeSelection == n));
  const int news = NewsLine();
  DrawFadeText(250, 70 + 14 * (news - 1), "NEWS", news, ListRow(news, G.LoungeSelection == 30));
  if (const int offer = OfferLine(); offer != 0) {
    const bool open = G.LoungeSelection == 31 || (G.LoungeSelection >= 41 && G.LoungeSelection <= 49);
    DrawFadeText(250, 70 + 14 * (offer - 1), "SPECIAL OFFER", offer, ListRow(offer, open));
  }
}

void a_DrawCrewInfo() {
  const int person = SelectedPerson();
  if (person == 0) return;
  const CharacterRecord& c = G.Character[person];
  auto line = [](int n) { return FadeLine(170, 270 + 15 * n, n, kPlainRow); };
  line(1) << "NAME:            " << std::string_view(c.Name);
  line(2) << "RACE:            " << RaceName(CharacterRace(person));
  line(3) << "FUNCTION:        " << Word(data::kFunctionWords, c.Post);
  line(4) << "SKILL:           " << GradeName(c.Skill);
  line(5) << "SALLARY:         Š" << NumberText(c.Post * 500.0) << " + Š" << NumberText(c.Salary) << " PER MONTH";
  if (G.LoungeSelection >= 1 && G.LoungeSelection <= 10) DrawConfirm("HIRE CREWMEMBER?");
}

void a_DrawSpecialEquip(int board) {
  // The guilds' offers belong to their halls; the lounge shows the pirates'.
  if (board != 5) return;
  ReadCursor();
  for (int n = 1; n <= 6; ++n)
    DrawFadeText(170, 270 + 15 * n, data::kPirateOfferText[static_cast<std::size_t>(n - 1)], n, kPlainRow);
  for (int n = 1; n <= 3; ++n) {
    const int y = 270 + 15 * n;
    int row = kPlainRow;
    if (PirateGoodOwned(n) != 0) row = kGreyRow;
    else if (G.LoungeSelection == 40 + n) row = kChosenRow;
    else if (G.MouseX > 430 && G.MouseY > y - 1 && G.MouseY < y + 10) row = kBrightRow;
    DrawFadeText(430, y, data::kPirateGoods[static_cast<std::size_t>(n - 1)].Line, n, row);
  }
  if (G.LoungeSelection >= 41 && G.LoungeSelection <= 43) DrawConfirm("PURCHASE EQUIPMENT");
}

void a_DrawCrewMembers() {
  ReadCursor();
  for (int post = 1; post <= 6; ++post) {
    const int top = 70 + 24 * (post - 1);
    const int person = G.CrewPost[post].Person;
    int row = kPlainRow;
    if (G.LoungeSelection == 20 + post) row = kChosenRow;
    else if (Inside(G.MouseX, G.MouseY, 455, 610, top, top + 9)) row = kBrightRow;
    else if (!IsPerson(person)) row = kGreyRow;
    FadeLine text(445, top, 0, row);
    text << Word(data::kPostPrefixes, post);
    if (IsPerson(person)) text << std::string_view(G.Character[person].Name);
    else text << "COMPUTER CONTROL";
  }
}

void a_DrawBarSelection() {
  const int sel = G.LoungeSelection;
  if (sel == 30) {
    const int left = (G.NewsIndex - 1) * 80, top = IsPirateStation() ? 100 : 0;
    SetSrc(left, top, left + 80, top + 100);
    BltFast(58, 270, GFX.NewsBitmap, false);
    return;
  }
  if (sel == 31 || (sel >= 41 && sel <= 49)) {
    // The pirates' offer shows the special equipment's picture.
    SetSrc(320, 0, 400, 100);
    BltFast(58, 270, GFX.GuildsPicture, false);
    return;
  }
  const int person = SelectedPerson();
  if (person == 0) return;
  SetSrc(0, 0, 80, 100);
  BltFast(58, 270, GFX.CharacterFace[person], false);
}

void a_DrawCash() { DrawLargeTextRight(88, 435, NumberText(G.Cash).View()); }

}  // namespace lf
