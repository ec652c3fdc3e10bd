// Story event procedures not written yet.
#include "display/screen.h"
#include "events/events_procedures.h"
#include "shell/cursor.h"
#include "shell/screens.h"

namespace lf {

// Event engine: filled by the event screen. Until then entering an event
// goes straight into its loop, and a pass of the loop shows only the cursor.
void CheckNextEvent(int) {}
void c_EnterEvent() { c_EventLoop(); }
void c_CheckEventMouseDown() {}
void c_EventLoopFrame() {
  a_DrawCursor();
  FlipBuffers();
  Yield();
}

}  // namespace lf
