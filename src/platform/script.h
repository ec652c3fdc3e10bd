// The headless driver's script: one command a line, '#' starts a comment,
// blank lines are ignored.
//
//   frames N        run N frames, each with its yield
//   click X Y       move the cursor to (X, Y) and press the left button
//   rclick X Y      the same with the right button
//   move X Y        move the cursor only
//   key CODE        press a key: 27 Escape, 37 Left, 38 Up, 39 Right, 40 Down,
//                   123 F12 (a screenshot)
//   shot FILE       write the last presented frame as a PNG
//   dump FILE       write the whole game state as JSON
//   restore FILE    merge a JSON state (any key may be left out) into the game
//   seed N          from here on, "seed from the clock" uses N (a recorded
//                   session starts with it)
//   quit            end the run (the end of the script does the same)
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lf {

struct ScriptCommand {
  enum class Kind { Frames, Click, RClick, Move, Key, Shot, Dump, Restore, Seed, Quit };
  Kind kind = Kind::Quit;
  int line = 0;            // 1-based line in the script
  std::int64_t count = 0;  // frames
  std::uint64_t seed = 0;  // seed
  int x = 0, y = 0;        // click, rclick, move
  int key = 0;             // key
  std::string file;        // shot, dump, restore
};

// A bad line; printed as "script:LINE: what".
struct ScriptError {
  int line = 0;
  std::string what;
  std::string Message() const;
};

inline constexpr std::int64_t kMaxScriptFrames = 1'000'000'000;

// Reads a whole script; throws ScriptError for the first bad line.
std::vector<ScriptCommand> ParseScript(std::string_view text);

}  // namespace lf
