// Docking: the clock stops, the arrival text starts typing, the bitmap
// sets are swapped, the station's services and goods are dealt, and the
// station loop takes over.
#include <string>

#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "media/media.h"
#include "shell/clocks.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/screens.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {
namespace {

std::string N(double x) { return std::to_string(static_cast<long long>(x)); }

void StartArrivalText() {
  const double major = Int(Rnd() * 3);
  const double minor = Int(Rnd() * 500) + 1;
  const double dims = Int(Rnd() * 5) + 4;
  G.TermLine[1] = "DOCKER V" + N(major) + "." + N(minor) + " " + N(dims) + "D NOW";
  G.TermLine[2] = "";
  G.TermLine[3] = "NOTIFYING AUTHORITIES";
  G.TermLine[4] = "LOGGIN ONTO STATION MAINFRAME COMPUTER";
  G.TermLine[5] = "INITIALIZING DOCKING PROCEDURE";
  G.TermLine[6] = "";
  G.TermLine[7] = "DOCKING PROCEDURE IN PROGRESS...";
  G.TermLineCount = 8;  // line 8 keeps what it held
  G.TermPrompt = 501;
  G.ServiceMenuOpen = False;
  G.MayDepart = True;
  a_ClearTermScreen();
}

void SwapToStationBitmaps() {
  G.ProgressMode = 2;
  G.ProgressCount = 0;
  UnloadMainBitmaps();
  a_LoadStationBitmaps();
  // The fonts are drawn letter by letter, every frame.
  GFX.StationFontOcr.KeepPlainRows();
  GFX.StationFontImp.KeepPlainRows();
  G.ProgressMode = 0;
}

}  // namespace

void a_EnteringStation() {
  StopTimer1();  // time stands still while docked
  PlaySoundFx(4, 1);
  StartArrivalText();
  SwapToStationBitmaps();
  Skip(a_DetermineStationComps);
  Skip(a_DetermineStationEquip);
  Skip(a_StationMissionRandomize);
  Skip(a_CheckStoryPass);
  PlayTrack(3);
  a_StationLoop();
}

void a_DetermineStationComps() {
  static const char* const kAlways[] = {"MEETING LOUNGE", "COMMODITY EXCHANGE", "SHIP DEALER"};
  static const char* const kLawful[] = {"FLEET OFFICE", "MERCHANT GUILD", "EXPLORATION GUILD", "MERCENARY GUILD"};
  int line = 0;
  for (const char* s : kAlways) G.StationService[++line] = s;
  if (!IsPirateStation())
    for (const char* s : kLawful) G.StationService[++line] = s;
  while (line < 10) G.StationService[++line] = "";
}

}  // namespace lf
