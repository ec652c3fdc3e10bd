// The survivor of events 3 and 10, drawn once a game, and his joining.
#include <string>

#include "display/gfx.h"
#include "display/screen.h"
#include "events/event_effects.h"
#include "events/events_procedures.h"
#include "shell/game_state.h"

namespace lf {
namespace {

bool AtSomePost(int person) {
  for (int post = 1; post <= 6; ++post)
    if (G.CrewPost[post].Person == person) return true;
  return false;
}

}  // namespace

void DefineHero() {
  int person = 0;
  do {
    person = static_cast<int>(Int(Rnd() * 44)) + 1;
  } while (AtSomePost(person));
  G.RescuedPerson = static_cast<std::int16_t>(person);
  CharacterRecord& hero = G.Character[person];
  hero.Post = static_cast<std::int16_t>(Int(Rnd() * 3) + 4);
  hero.Skill = static_cast<std::int16_t>(Int(Rnd() * 2) + 4);
}

void HeroJoins(int face) {
  // A state without a hero (an old position) draws one first.
  if (G.RescuedPerson < 1 || G.RescuedPerson > 144) DefineHero();
  const int person = G.RescuedPerson;
  CharacterRecord& hero = G.Character[person];
  CrewPostRecord& post = G.CrewPost[hero.Post];
  post.Person = static_cast<std::int16_t>(person);
  GFX.CharacterFace[person] = LoadBitmapIntoDXS("\\gfx\\faces\\hero_" + std::to_string(face) + ".bmp");
  post.Health = 15;
  hero.Salary = 0;
}

}  // namespace lf
