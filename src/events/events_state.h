// The story events' share of the Game record: the eighteen scripts with the
// node each stands at, and the survivor who may join the crew.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

// One script: the text of its nodes 1..20, each with six text lines, six
// reply lines and the reply marks (ReplyStart[n][k], the first line of
// choice k; a 0 behind the last mark ends the list). Index 0 holds nothing.
struct StoryEvent {
  std::int16_t Node = 0;
  Table<Table<std::string, 6>, 20> Text{};
  Table<Table<std::string, 6>, 20> Reply{};
  Table<Table<std::int16_t, 6>, 20> ReplyStart{};
};
template <class V>
void VisitFields(V& v, StoryEvent& r) {
  v("Node", r.Node);
  v("Text", r.Text);
  v("Reply", r.Reply);
  v("ReplyStart", r.ReplyStart);
}

struct EventsState {
  // Events 0..50, of which 1..18 are written.
  Table<StoryEvent, 50> EventScript{};
  // The Character row of the survivor of events 3 and 10 (DefineHero).
  std::int16_t RescuedPerson = 0;
};

template <class V>
void VisitFields(V& v, EventsState& s) {
  v("EventScript", s.EventScript);
  v("RescuedPerson", s.RescuedPerson);
}

// Event 3 comes once in a run of the program: the flag outlives new games and
// loaded positions, and is never saved.
inline Flag Event3Played = False;

}  // namespace lf
