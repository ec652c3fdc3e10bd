// The end of a lost game, and the full-screen pictures shown until a press.
#pragma once

namespace lf {

// With DeadSlot raised: the death picture until a press, then the menu with
// no game running. Otherwise nothing.
void EventHandler();
// Shows FullPicture[Pic] until a mouse press, yielding every frame.
void DrawSingle(int Pic);

}  // namespace lf
