// The missions' share of the Game record: the story stages.
#pragma once

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct MissionsState {
  Table<Flag, 10> StoryStage{};
};

template <class V>
void VisitFields(V& v, MissionsState& s) {
  v("StoryStage", s.StoryStage);
}

}  // namespace lf
