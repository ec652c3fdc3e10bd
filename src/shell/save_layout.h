// The sixteen files of the saved position: their names, in the order they
// are written and read, and what each holds.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "shell/game_state.h"

namespace lf {

inline constexpr int kSaveFileCount = 16;
extern const std::array<std::string_view, kSaveFileCount> kSaveFileNames;

// A file's name in capitals, for the prompt strip.
std::string UpperName(int file);

using PositionTexts = std::array<std::string, kSaveFileCount>;

// The text of every file for the record.
PositionTexts WritePosition(Game& g);

// Reads the files into `g`, in order. Returns an empty string when all
// sixteen read whole, else what was wrong, naming the file; `g` may then be
// partly overwritten, so callers read into a copy.
std::string ReadPosition(Game& g, const PositionTexts& texts);

// Reads one file (0..15, in the order above) into `g`: empty when it read
// whole, else what was wrong. A file's reader takes nothing from `g` but what
// the same file set before it.
std::string ReadPositionFile(Game& g, int file, std::string_view text);

}  // namespace lf
