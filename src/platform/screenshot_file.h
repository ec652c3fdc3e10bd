// Where F12 puts its pictures: $XDG_PICTURES_DIR/lanefarer/ when that is an
// absolute path, else the data home ($XDG_DATA_HOME/lanefarer/screenshots,
// usually ~/.local/share/lanefarer/screenshots), named by date and time.
#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

namespace lf {

std::optional<std::string> ScreenshotFolder(const char* xdgPictures, const char* xdgDataHome, const char* home);

// "lanefarer-20261123-184502.png" for that local time.
std::string ScreenshotName(const std::tm& when);

// Writes a 640x480 RGB565 frame into the folder (made when missing) under a
// name by the current time, "-2", "-3"... behind it when taken twice in one
// second. True with `where` the file, or false with `where` the reason.
bool WriteScreenshot(const std::uint16_t* frame, std::string& where);

}  // namespace lf
