// Skill ranges of the persons by race (rows) and post (columns: navigator,
// communicator, tactical, medical, science, engineer).
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<std::array<SkillRange, 6>, 6> kSkillRanges = {{
    {{{2, 4}, {3, 5}, {1, 3}, {1, 3}, {2, 4}, {2, 4}}},  // Human
    {{{3, 5}, {1, 3}, {2, 3}, {1, 3}, {2, 3}, {2, 4}}},  // Hagel
    {{{2, 3}, {2, 4}, {1, 3}, {2, 4}, {4, 5}, {3, 4}}},  // Lagew
    {{{1, 2}, {1, 2}, {3, 5}, {1, 2}, {1, 2}, {2, 3}}},  // Jaytees
    {{{2, 3}, {2, 3}, {1, 2}, {4, 5}, {2, 4}, {1, 3}}},  // Markeen
    {{{3, 4}, {2, 4}, {2, 4}, {3, 4}, {1, 2}, {3, 5}}},  // Woot-Am
}};

}  // namespace lf::data
