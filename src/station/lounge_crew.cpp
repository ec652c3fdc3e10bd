// Hiring and dismissing officers, and the pirates' goods.
#include "media/media.h"
#include "shell/game_state.h"
#include "station/data/station_data.h"
#include "station/dealer.h"
#include "station/lounge.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {

namespace {

bool IsPerson(int row) { return row >= 1 && row <= 144; }

// The waiting people's places at the docked station.
Table<std::int16_t, 10>& People() { return G.StationPeople[DockedPlanet()]; }

void RecountPools() {
  Skip([] {
    Assign(G.MedicalPool, CIntReal((600 / 1.1) * G.Character[G.CrewPost[4].Person].Skill / 5));
  });
  Assign(G.RepairPool, G.HardpointCount * 40.0);
}

}  // namespace

int StationPerson(int n) {
  int row = 0;
  Skip([&] { row = People()[n]; });
  return row;
}

int WaitingPeople() {
  int n = 0;
  while (n < 10 && IsPerson(StationPerson(n + 1)) && !G.Character[StationPerson(n + 1)].Name.empty()) ++n;
  return n;
}

int NewsLine() { return WaitingPeople() + 1; }

int OfferLine() { return IsPirateStation() ? NewsLine() + 1 : 0; }

namespace {

// The hire itself; the caller clears the selection whatever happens.
void Hire(int line) {
  const int person = StationPerson(line);
  if (line < 1 || line > 10 || !IsPerson(person)) return;
  const int post = G.Character[person].Post;
  if (post < 1 || post > 6) return;
  const double fee = post * 500.0;
  CrewPostRecord& crew = G.CrewPost[post];
  if (fee >= G.Cash) {
    // The test is strict: the fee must stay below the cash. Only a swap
    // with a serving officer says so.
    if (crew.Person != 0) PlaySoundFx(13, 5);
    return;
  }
  const std::int16_t former = crew.Person;
  crew.Health = 90;
  crew.SalaryBalance = 0;
  crew.Person = static_cast<std::int16_t>(person);
  G.Cash -= fee;
  Table<std::int16_t, 10>& people = People();
  if (former != 0) {
    // The former officer takes the new one's place on the list.
    people[line] = former;
    PlaySoundFx(4, 1);
  } else {
    for (int i = line; i < 10; ++i) people[i] = people[i + 1];
    people[10] = 0;
  }
  RecountPools();
}

}  // namespace

void a_HireCrewMember() {
  Hire(G.LoungeSelection);
  G.LoungeSelection = 0;
  if (G.CrewPost[5].Person != 0) G.BridgeButton[5][2].State = 0;
}

void a_DismissCrewMember(int post) {
  CrewPostRecord& crew = G.CrewPost[post];
  if (crew.Person == 0) return;
  // He goes to a planet of the station's race that has no station, into its
  // first free place; with no such planet, or no free place, he is gone.
  const int race = StationRace();
  int candidates = 0;
  for (int i = 1; i <= G.PlanetCount && i <= 250; ++i)
    if (G.Planet[i].Race == race && G.Planet[i].HasStation == 0) ++candidates;
  if (candidates > 0) {
    int pick = RandomInt(candidates);
    for (int i = 1; i <= G.PlanetCount && i <= 250; ++i) {
      if (G.Planet[i].Race != race || G.Planet[i].HasStation != 0 || --pick > 0) continue;
      for (auto place = 1; place <= 10; ++place) {
        if (G.StationPeople[i][place] != 0) continue;
        G.StationPeople[i][place] = crew.Person;
        break;
      }
      break;
    }
  }
  crew.Person = 0;
  G.LoungeSelection = 0;
  G.ServicePage = 0;
  PlaySoundFx(2, 1);
}

Flag& PirateGoodOwned(int item) {
  switch (item) {
    case 1: return G.BlackDecoder;
    case 2: return G.SecretCargo;
    case 3: return G.ShrikeMissile;
    default: throw StatementFailed{};
  }
}

void a_BuyPirateGood(int item) {
  if (item < 1 || item > 3) return;
  Flag& owned = PirateGoodOwned(item);
  if (owned != 0) return;
  const int price = data::kPirateGoods[static_cast<std::size_t>(item - 1)].Price;
  if (G.Cash >= price) {
    G.Cash -= price;
    owned = True;
    G.LoungeSelection = 31;
    PlaySoundFx(4, 1);
  } else {
    PlaySoundFx(13, item == 1 ? 6 : 1);
  }
}

}  // namespace lf
