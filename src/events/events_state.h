// The story events' share of the Game record.
#pragma once

namespace lf {

struct EventsState {};

template <class V>
void VisitFields(V&, EventsState&) {}

}  // namespace lf
