#include "events/scripts/script.h"

#include <array>

#include "events/events_procedures.h"

namespace lf {

void Text(StoryEvent& e, int node, std::initializer_list<const char*> lines) {
  int l = 1;
  for (const char* line : lines) {
    if (line != nullptr) e.Text[node][l] = line;
    ++l;
  }
}

void Replies(StoryEvent& e, int node, std::initializer_list<const char*> lines,
             std::initializer_list<std::int16_t> marks) {
  int l = 1;
  for (const char* line : lines) e.Reply[node][l++] = line;
  Table<std::int16_t, 6>& start = e.ReplyStart[node];
  int k = 1;
  if (marks.size() == 0) {
    for (int m = 1; m <= static_cast<int>(lines.size()) + 1; ++m) start[k++] = static_cast<std::int16_t>(m);
  } else {
    for (std::int16_t m : marks) start[k++] = m;
  }
  if (k <= 6) start[k] = 0;
}

void DefineEventTextAndTemplate() {
  DefineEventTextAndTemplate1();
  DefineEventTextAndTemplate2();
  DefineEventTextAndTemplate3();
  DefineEventTextAndTemplate4();
  DefineEventTextAndTemplate5();
  DefineEventTextAndTemplate6();
  DefineEventTextAndTemplate7();
  DefineEventTextAndTemplate8();
  DefineEventTextAndTemplate9();
  DefineEventTextAndTemplate10();
  DefineEventTextAndTemplate11();
  DefineEventTextAndTemplate12();
  DefineEventTextAndTemplate13();
  DefineEventTextAndTemplate14();
  DefineEventTextAndTemplate15();
  DefineEventTextAndTemplate16();
  DefineEventTextAndTemplate17();
  DefineEventTextAndTemplate18();
}

std::span<const NodeRule> EventRules(int e) {
  using Rules = std::span<const NodeRule> (*)();
  static constexpr std::array<Rules, 19> kEvents = {
      nullptr,      EventRules1,  EventRules2,  EventRules3,  EventRules4,  EventRules5,  EventRules6,
      EventRules7,  EventRules8,  EventRules9,  EventRules10, EventRules11, EventRules12, EventRules13,
      EventRules14, EventRules15, EventRules16, EventRules17, EventRules18};
  if (e < 1 || e > 18) return {};
  return kEvents[static_cast<std::size_t>(e)]();
}

const NodeRule* FindNodeRule(int e, int node) {
  for (const NodeRule& r : EventRules(e))
    if (r.node == node) return &r;
  return nullptr;
}

}  // namespace lf
