// Shows a clip and holds the program until it ends: the clocks and input
// wait. The window shows the pictures through a presenter set by the
// platform; with none (headless) a clip is only recorded.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace lf {

// Shows one 320x240 RGB picture scaled into the window and handles the
// window's events; false when a key or click ends the clip (that press is
// not passed on to the game) or the window is closed.
using ClipPresenter = std::function<bool(const std::uint8_t* rgb, int w, int h)>;
void SetClipPresenter(ClipPresenter presenter);
bool HasClipPresenter();

// Plays the clip file through the presenter, each picture at its time; a
// file that cannot be played is skipped (named on stderr with --verbose).
void PlayClipFile(const std::string& file);

}  // namespace lf
