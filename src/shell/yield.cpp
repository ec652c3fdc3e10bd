// The yield to the event queue at the end of every frame.
#include <cstdint>
#include <limits>
#include <vector>

#include "media/media.h"
#include "shell/clocks.h"
#include "shell/event_queue.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/input.h"
#include "shell/menu.h"
#include "shell/screens.h"

namespace lf {
namespace {

struct QueuedItem {
  enum class Kind { Input, Timer1, Timer2 };
  Kind kind = Kind::Input;
  InputEvent input{};
};

template <class T>
std::vector<T> Reserved(std::size_t n) {
  std::vector<T> v;
  v.reserve(n);
  return v;
}

// Items are taken from the front by advancing g_head; the storage is reused
// once the queue runs empty, so a frame allocates nothing.
std::vector<QueuedItem> g_queue = Reserved<QueuedItem>(64);
std::size_t g_head = 0;
std::vector<InputEvent> g_pumped = Reserved<InputEvent>(16);

void RunItem(const QueuedItem& item) {
  switch (item.kind) {
    case QueuedItem::Kind::Timer1:
      if (IsSet(G.Timer1Enabled)) Timer1_Timer();
      break;
    case QueuedItem::Kind::Timer2:
      if (IsSet(G.Timer2Enabled)) Timer2_Timer();
      break;
    case QueuedItem::Kind::Input:
      switch (item.input.kind) {
        case InputEvent::Kind::MouseDown: Form_MouseDown(item.input.button); break;
        case InputEvent::Kind::KeyDown: Form_KeyDown(item.input.key); break;
        case InputEvent::Kind::Close:
          // Closing the window is the menu's Exit.
          StopTrack();
          Form_Unload();
          break;
      }
      break;
  }
}

}  // namespace

void Yield() {
  Host& host = CurrentHost();
  host.PaceFrame();
  g_pumped.clear();
  host.PumpInput(g_pumped);
  for (const InputEvent& e : g_pumped) g_queue.push_back({QueuedItem::Kind::Input, e});
  const ClockTicks due = CountClockFrame();
  if (due.timer1) g_queue.push_back({QueuedItem::Kind::Timer1, {}});
  if (due.timer2) g_queue.push_back({QueuedItem::Kind::Timer2, {}});
  // The frame count wraps to 0 rather than overflow (a restored state may
  // hold any count).
  G.Frame = G.Frame == std::numeric_limits<std::int64_t>::max() ? 0 : G.Frame + 1;

  // Each item leaves the queue before it runs: a screen change thrown by its
  // handler leaves the rest for the next yield. Nested yields (a blocking
  // picture inside a handler) share the same queue.
  while (g_head < g_queue.size()) {
    const QueuedItem item = g_queue[g_head++];
    if (g_head == g_queue.size()) {
      g_queue.clear();
      g_head = 0;
    }
    try {
      RunItem(item);
    } catch (const StatementFailed&) {
    }
  }
}

void ClearEventQueue() {
  g_queue.clear();
  g_head = 0;
}

int QueuedEvents() { return static_cast<int>(g_queue.size() - g_head); }

}  // namespace lf
