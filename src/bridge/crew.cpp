#include "bridge/crew.h"

#include "shell/game_state.h"

namespace lf {

std::string PersonName(int post) {
  std::string name;
  Skip([&] {
    const int person = G.CrewPost[post].Person;
    if (person != 0) name = G.Character[person].Name;
  });
  return name;
}

int PostSkill(int post) {
  int skill = 1;
  Skip([&] {
    const int person = G.CrewPost[post].Person;
    if (person != 0) skill = G.Character[person].Skill;
  });
  return skill;
}

}  // namespace lf
