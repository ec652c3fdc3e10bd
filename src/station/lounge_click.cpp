// A press in the meeting lounge.
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/dealer.h"
#include "station/lounge.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {

namespace {

bool Inside(int x, int y, int left, int right, int top, int bottom) {
  return x > left && x < right && y > top && y < bottom;
}

// The left list's line n (from 1) under the press.
bool OnListLine(int x, int y, int n) {
  const int top = 70 + 14 * (n - 1);
  return Inside(x, y, 250, 400, top, top + 9);
}

// Crew post n's band in the right column.
bool OnCrewBand(int y, int post) {
  const int top = 70 + 24 * (post - 1);
  return y > top && y < top + 9;
}

bool OfferOpen() { return G.LoungeSelection == 31 || (G.LoungeSelection >= 41 && G.LoungeSelection <= 49); }

}  // namespace

void a_CheckMouseDown2() {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;

  if (Inside(x, y, 505, 614, 424, 458)) {
    PlaySoundFx(4, 1);
    G.LoungeSelection = 0;
    ReturnToTerminal(true);
    G.ServicePage = 0;
    return;
  }

  const int people = WaitingPeople();
  for (int n = 1; n <= people; ++n) {
    if (!OnListLine(x, y, n) || G.LoungeSelection == n) continue;
    PlaySoundFx(4, 1);
    G.LoungeSelection = static_cast<std::int16_t>(n);
    a_ClearTermScreen();
    G.ServicePage = 0;
  }

  if (OnListLine(x, y, NewsLine()) && G.LoungeSelection != 30) {
    GFX.NewsBitmap = LoadBitmapIntoDXS("\\gfx\\station\\a_misc\\news.bmp");
    a_ClearTermScreen();
    G.LoungeSelection = 30;
    PlaySoundFx(4, 1);
    G.ServicePage = 0;
    return;
  }

  const int offer = OfferLine();
  if (offer != 0 && OnListLine(x, y, offer) && G.LoungeSelection != 31) {
    a_ClearTermScreen();
    PlaySoundFx(4, 1);
    G.LoungeSelection = 31;
    G.ServicePage = 0;
    return;
  }

  if (OfferOpen() && x > 430) {
    for (int n = 1; n <= 3; ++n)
      if (y > 269 + 15 * n && y < 280 + 15 * n && PirateGoodOwned(n) == 0)
        G.LoungeSelection = static_cast<std::int16_t>(40 + n);
  }

  // The mission lines of the board stand under NEWS (and SPECIAL OFFER).
  const int board = IsPirateStation() ? 5 : 1;
  const int firstMission = (offer != 0 ? offer : NewsLine()) + 1;
  for (int line = 1; line <= 10; ++line) {
    if (!OnListLine(x, y, firstMission + line - 1) || G.ServicePage == 99 + line) continue;
    if (MissionOnBoardLine(board, line) == 0) continue;
    PlaySoundFx(4, 1);
    G.ServicePage = static_cast<std::int16_t>(99 + line);
    G.LoungeSelection = 0;
    a_ClearTermScreen();
  }

  for (int post = 1; post <= 6; ++post) {
    if (!OnCrewBand(y, post)) continue;
    if (x > 455 && x < 610 && G.CrewPost[post].Person != 0) {
      PlaySoundFx(4, 1);
      G.LoungeSelection = static_cast<std::int16_t>(20 + post);
      G.ServicePage = 0;
      a_ClearTermScreen();
    }
    if (x > 430 && x < 450 && G.CrewPost[post].Person != 0) a_DismissCrewMember(post);
  }

  if (Inside(x, y, 570, 591, 367, 388)) {
    const int sel = G.LoungeSelection;
    if (sel >= 41 && sel <= 43) a_BuyPirateGood(sel - 40);
    else if (sel >= 1 && sel <= 10 && !(G.ServicePage >= 100 && G.ServicePage <= 199)) a_HireCrewMember();
    else if (G.ServicePage >= 100 && G.ServicePage <= 199) a_MissionSelection(1);
  }
}

}  // namespace lf
