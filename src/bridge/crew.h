// Who stands at a crew post: the person's name and skill.
#pragma once

#include <string>

namespace lf {

// The name of the person at a post ("" for an empty post or a bad index).
std::string PersonName(int post);
// The skill of the person at a post; an empty post works as skill 1.
int PostSkill(int post);

}  // namespace lf
