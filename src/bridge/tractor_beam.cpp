// The tractor beam: debris and cargo pods within 20 units come aboard.
// Debris gives salvage (a component for the hold of unfitted parts), a pod
// some cargo; either may carry a virus that infects one of the crew.
#include <array>
#include <string>

#include "bridge/bridge_procedures.h"
#include "bridge/bridge_helpers.h"
#include "bridge/helm_reach.h"
#include "bridge/later_procedures.h"
#include "media/media.h"
#include "missions/missions_procedures.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "universe/catalogue.h"

namespace lf {

namespace {

constexpr int kMedicalPost = 4;

enum class Found { Nothing, Taken, VirusStruck };

// What a pod may hold: the commodity and the bound of the amount drawn.
struct Haul {
  int Commodity;
  int Bound;
};
constexpr std::array<Haul, 6> kHauls = {{
    {1, 20},   // FOOD
    {2, 15},   // WATER
    {3, 10},   // ORE
    {8, 7},    // COMPUTERS
    {9, 5},    // MACHINERY
    {13, 7},   // PLASTICS
}};

double NewCoordinate() { return Int(Rnd() * 4800 + 100); }

bool SkilledMedic() { return OfficerSkill(kMedicalPost) > 1; }

void Taken(const char* what) {
  SetMessage("", std::string(what) + " HAS BEEN SUCCESSFULY TRACTORED ABOARD.", "", 1);
}

// The infection report, on a second page after `firstLine`.
void Infected(int post, const char* firstLine, int face) {
  std::string name;
  Skip([&] { name = G.Character[G.CrewPost[post].Person].Name; });
  SetMessage("", firstLine, "", face, "_" + name + " HAS BEEN INFECTED",
             "WITH A MALICIOUS VIRUS! WE SHOULD QUARANTINE THE", "INFECTED CREWMEMBERS IMMEDIATELY!");
}

// Debris i comes aboard; false when a virus struck and the beam stops.
bool TakeDebris(int i) {
  DebrisRecord& d = G.Debris[i];
  PlaySoundFx(5, 5);
  // With a full hold the debris stays where it floats, to be taken again.
  if (G.FreeCargo > 0) {
    d.X = NewCoordinate();
    d.Y = NewCoordinate();
  }
  const int post = d.Virus == 0 ? 0 : DrawHealthyPost();
  if (post == 0) {
    Taken("DEBRIS");
    AddDebris();
    return true;
  }
  G.CrewPost[post].Infected = True;
  if (SkilledMedic())
    Infected(post, "DEBRIS HAS BEEN SUCCESSFULY TRACTORED ABOARD.", 1);
  else
    SetMessage("", "THERE IS SOMETHING WEIRD ABOUT THAT DEBRIS.", "", 4);
  AddDebris();
  return false;
}

void TakePod(int i) {
  CargoPodRecord& c = G.CargoPod[i];
  PlaySoundFx(5, 5);
  CheckMission(1);
  c.X = NewCoordinate();
  c.Y = NewCoordinate();
  const int post = c.Virus == 0 ? 0 : DrawHealthyPost();
  if (post == 0) {
    Taken("CARGO");
  } else {
    G.CrewPost[post].Infected = True;
    if (SkilledMedic())
      Infected(post, "CARGO HAS BEEN SUCCESSFULY TRACTORED ABOARD.", 4);
    else
      SetMessage("", "THERE IS SOMETHING WEIRD ABOUT THAT CARGO.", "", 4);
  }
  c.Virus = False;
}

// Some cargo of one of six kinds, drawn until it fits the free hold.
void TakeHaul() {
  const Haul& h = kHauls[static_cast<std::size_t>(Int(Rnd() * 6))];
  double a = 0;
  do {
    a = Int(Rnd() * h.Bound);
  } while (!(a < G.FreeCargo));
  Assign(G.Cargo[h.Commodity], G.Cargo[h.Commodity] + a);
  Assign(G.FreeCargo, G.FreeCargo - a);
}

void NothingInReach() {
  if (G.OrbitState == 0) {
    PlaySoundFx(8, 3);
    SetMessage("", "WE MUST CLOSE ON OBJECT IN ORDER TO USE TRACTOR BEAM.", "", 1);
  } else if (G.OrbitState == 1) {
    PlaySoundFx(8, 3);
    SetMessage("", "WE CANNOT USE TRACTOR BEAM IN PLANET VICINITY.", "", 1);
  }
}

}  // namespace

void AddDebris() {
  int row = 0;
  for (int r = 1; r <= 4 && row == 0; ++r)
    if (G.UnfittedComp[r][1] == 0) row = r;
  if (row == 0) return;
  for (int tries = 1; tries <= 100; ++tries) {
    const int group = static_cast<int>(Int(Rnd() * 7)) + 1;
    const double weight = ComponentWeight(group, 1);
    if (weight <= G.FreeMass) {
      Assign(G.FreeMass, G.FreeMass - weight);
      G.UnfittedComp[row][1] = static_cast<std::int16_t>(group);
      G.UnfittedComp[row][2] = 1;
      return;
    }
  }
}

void Butt_1_8() {
  if (G.HailedShip != 0) return;
  Found found = Found::Nothing;
  for (int i = 1; i <= 50; ++i) {
    if (NearDebris(i)) {
      found = Found::Taken;
      if (!TakeDebris(i)) {
        found = Found::VirusStruck;
        break;
      }
    } else if (NearPod(i)) {
      found = Found::Taken;
      TakePod(i);
      break;
    }
  }
  if (found == Found::Taken && G.FreeCargo > 0) TakeHaul();
  if (found == Found::Nothing) NothingInReach();
}

}  // namespace lf
