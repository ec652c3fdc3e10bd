// Where the game's files are: the game names them in its own notation
// ("\gfx\main\0.bmp"); they live in the data folder in lower case with
// forward slashes (DATA/gfx/main/0.bmp).
#pragma once

#include <string>
#include <string_view>

namespace lf {

void SetDataFolder(std::string folder);
const std::string& DataFolder();

// The file on disk for a path in the game's notation.
std::string DataPath(std::string_view gamePath);

// With --verbose, a missing or unreadable file is named once on stderr.
void SetVerbose(bool on);
bool Verbose();
void ReportMissing(const std::string& file, std::string_view why);
// Whether a report on the file would say nothing (not --verbose, or the file
// was named before): lets a caller in a frame skip building the reason.
bool ReportWouldBeSilent(const std::string& file);

}  // namespace lf
