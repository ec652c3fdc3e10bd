// The mouse and key entry points, called for every press on any screen.
#pragma once

namespace lf {

// Button: 1 left, 2 right. The screen flags decide who takes the press, each
// test seeing what the handlers before it left.
void Form_MouseDown(int Button);
// Key codes: 27 Escape opens the menu; 37..40 move the view.
void Form_KeyDown(int KeyCode);

}  // namespace lf
