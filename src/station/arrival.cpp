// The arrival chain: hostility, medical, contraband, lander and salaries,
// then the missions and the loan, and the welcome. Each step shows a notice
// and stops, or goes straight on to the next.
#include <string>

#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/terminal_notice.h"

namespace lf {
namespace {

std::string StationName() {
  const int planet = DockedPlanet();
  return planet == 0 ? std::string() : G.Planet[planet].Name;
}

}  // namespace

void ShowNotice(std::int16_t prompt, std::initializer_list<std::string> lines) {
  PlaySoundFx(4, 1);
  int n = 0;
  for (const std::string& line : lines) G.TermLine[++n] = line;
  G.TermLineCount = static_cast<std::int16_t>(n);
  G.TermPrompt = prompt;
  a_ClearTermScreen();
}

double TakeCash(double sum) {
  if (G.Cash > sum) {
    G.Cash -= sum;
    return sum;
  }
  const double all = G.Cash > 0 ? G.Cash : 0;
  G.Cash = 0;
  return all;
}

void a_CheckHostility() {
  // The check looks closer in than the other station routines; a ship that
  // stands near no station is not turned away by one.
  const int planet = DockedPlanet(5);
  const bool welcome = planet == 0 || G.RaceRelation[G.Planet[planet].Race] >= 35 ||
                       (IsSet(G.BlackDecoder) && Rnd() > 0.3);
  if (welcome) {
    a_CheckMedical();
    return;
  }
  ShowNotice(502, {"ACCORDING TO OUR RECORDS YOU ARE", "NOT WELCOME HERE...", "",
                   "PLEASE LEAVE THIS STATION IN AN", "ORDERLY FASHION... OR ELSE!"});
}

void a_CheckMedical() {
  bool infected = false;
  for (int post = 1; post <= 6; ++post)
    if (G.CrewPost[post].Person != 0 && IsSet(G.CrewPost[post].Infected)) infected = true;
  if (!infected) {
    a_CheckContraband();
    return;
  }
  ShowNotice(2, {"ONE OR MORE OF YOUR CREWMEMBERS", "IS INFECTED WITH A VIRUS!", "",
                 "SINCE WE CANNOT PERMIT ACCESS TO", "CONTAMINATED PERSONNEL YOU ARE",
                 "REQUIRED TO PASS THROUNG ADVANCED", "MEDICAL TREATMENT!", "", "DO YOU WISH TO PROCEED?"});
}

void a_TreatInfectedCrew() {
  int count = 0;
  double bill = 0;
  for (int post = 1; post <= 6; ++post) {
    CrewPostRecord& p = G.CrewPost[post];
    if (!IsSet(p.Infected)) continue;
    p.Infected = False;
    p.Quarantined = False;
    p.Vaccinated = False;
    ++count;
    bill += 400 + Int(Rnd() * 300);
  }
  if (bill < G.Cash)
    G.Cash -= bill;
  else
    G.Cash = 0;
  ShowNotice(503, {std::to_string(count) + " OF YOUR CREWMEMBERS", "HAVE BEEN INFECTED WITH A VIRUS!", "",
                   "WE HAVE MANAGED TO TREAT THEM", "IN OUR ADVANCED MEDICAL LAB",
                   "AND WE HAVE DEDUCTED A SMALL AMOUNT", "OF CREDITS IN EXCHANGE FOR OUR SERVICES!", "",
                   "YOUR CREW IS NOW HEALTHY!"});
}

void a_CheckContraband() {
  const int planet = DockedPlanet(5);
  const bool pirates = planet != 0 && G.Planet[planet].Race == 7;
  const bool aboard = G.Cargo[4] > 0 || G.Cargo[5] > 0 || (!pirates && G.Cargo[10] > 0);
  if (!aboard || (IsSet(G.SecretCargo) && Rnd() > 0.3)) {
    a_CheckLander();
    return;
  }
  const double fine = TakeCash(30 + Int(Rnd() * 10));
  for (const int c : {4, 5, 10}) {
    Assign(G.FreeCargo, static_cast<double>(G.FreeCargo) + G.Cargo[c]);
    G.Cargo[c] = 0;
  }
  ShowNotice(504, {"YOU ARE CARYING CONTRABAND", "MERCHANDISE ABOARD YOUR VESSEL!", "",
                   "ACCORDING TO FEDERAL LAW 1.122", "YOUR CONTRABAND CARGO HAS BEEN",
                   "CONFISCATED AND YOU ARE FINED", IntText(fine) + " CREDITS!", "", "YOU MAY PROCEED..."});
}

void a_CheckLander() {
  if (G.HasLander == True) {
    a_SallaryCheck();
    return;
  }
  ShowNotice(505, {"STATION ENGINEERS HAVE FOUND OUT", "THAT YOU HAVE NO LANDER!", "",
                   "ACCORDING TO FEDERAL LAW 2.57", "YOU ARE REQUIRED TO HAVE A", "FEDERAL ISSUE LANDING CRAFT!",
                   "", "THERE..."});
  G.HasLander = True;
  TakeCash(30 + Int(Rnd() * 10));  // the lander's price, not told
}

void a_SallaryCheck() {
  int left = 0;
  for (int post = 1; post <= 6; ++post) {
    CrewPostRecord& p = G.CrewPost[post];
    if (p.SalaryBalance <= 2) continue;
    if (p.Person != 0) ++left;
    p.Person = 0;
  }
  if (left == 0) {
    a_MissionCheck();
    return;
  }
  ShowNotice(506, {"DUE TO UNPAYED SALLARY SITUATION", std::to_string(left) + " OF YOU CREW MEMBERS",
                   "HAVE DECLINED THEIR SERVICES", "AND LEFT THEIR STATION ON YOUR SHIP!"});
}

void a_Welcome() {
  ShowNotice(0, {"WELCOME TO " + StationName() + " STATION!", "YOU ARE HEREBY OBLIGED TO ACT",
                 "ACCORDING TO STATION LAWS AND ", "REGULATIONS.", "", "ANY MISBEHAVIOUR WILL BE PUNISHED",
                 "SEVERELY AND PARTICIPANS INPRISONED.", "", "HAVE A NICE DAY!"});
  G.ServiceMenuOpen = True;
}

}  // namespace lf
