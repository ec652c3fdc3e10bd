#include "platform/script.h"

#include <charconv>
#include <string>

namespace lf {
namespace {

struct CommandShape {
  std::string_view name;
  ScriptCommand::Kind kind;
  int args;
  std::string_view usage;
};

constexpr CommandShape kCommands[] = {
    {"frames", ScriptCommand::Kind::Frames, 1, "frames N"},
    {"click", ScriptCommand::Kind::Click, 2, "click X Y"},
    {"rclick", ScriptCommand::Kind::RClick, 2, "rclick X Y"},
    {"move", ScriptCommand::Kind::Move, 2, "move X Y"},
    {"key", ScriptCommand::Kind::Key, 1, "key CODE"},
    {"shot", ScriptCommand::Kind::Shot, 1, "shot FILE"},
    {"dump", ScriptCommand::Kind::Dump, 1, "dump FILE"},
    {"restore", ScriptCommand::Kind::Restore, 1, "restore FILE"},
    {"seed", ScriptCommand::Kind::Seed, 1, "seed N"},
    {"quit", ScriptCommand::Kind::Quit, 0, "quit"},
};

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f'; }

std::vector<std::string_view> Words(std::string_view line) {
  std::vector<std::string_view> words;
  std::size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && IsSpace(line[i])) ++i;
    const std::size_t start = i;
    while (i < line.size() && !IsSpace(line[i])) ++i;
    if (i > start) words.push_back(line.substr(start, i - start));
  }
  return words;
}

std::int64_t Number(std::string_view word, std::int64_t lo, std::int64_t hi, std::string_view what, int line) {
  std::int64_t value = 0;
  const auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (ec == std::errc::result_out_of_range)
    throw ScriptError{line, std::string(what) + " " + std::string(word) + " is out of range " +
                                std::to_string(lo) + ".." + std::to_string(hi)};
  if (ec != std::errc() || end != word.data() + word.size())
    throw ScriptError{line, std::string(what) + " \"" + std::string(word) + "\" is not a number"};
  if (value < lo || value > hi)
    throw ScriptError{line, std::string(what) + " " + std::string(word) + " is out of range " +
                                std::to_string(lo) + ".." + std::to_string(hi)};
  return value;
}

ScriptCommand ParseLine(const std::vector<std::string_view>& words, int line) {
  const CommandShape* shape = nullptr;
  for (const auto& c : kCommands)
    if (c.name == words[0]) shape = &c;
  if (!shape) throw ScriptError{line, "unknown command \"" + std::string(words[0]) + "\""};
  const int given = static_cast<int>(words.size()) - 1;
  if (given != shape->args)
    throw ScriptError{line, "expected \"" + std::string(shape->usage) + "\" (" + std::to_string(shape->args) +
                                (shape->args == 1 ? " argument" : " arguments") + ", got " +
                                std::to_string(given) + ")"};
  ScriptCommand cmd;
  cmd.kind = shape->kind;
  cmd.line = line;
  switch (cmd.kind) {
    case ScriptCommand::Kind::Frames:
      cmd.count = Number(words[1], 0, kMaxScriptFrames, "frame count", line);
      break;
    case ScriptCommand::Kind::Click:
    case ScriptCommand::Kind::RClick:
    case ScriptCommand::Kind::Move:
      cmd.x = static_cast<int>(Number(words[1], 0, 639, "x", line));
      cmd.y = static_cast<int>(Number(words[2], 0, 479, "y", line));
      break;
    case ScriptCommand::Kind::Key: {
      cmd.key = static_cast<int>(Number(words[1], 0, 255, "key code", line));
      if (cmd.key != 27 && (cmd.key < 37 || cmd.key > 40) && cmd.key != 123)
        throw ScriptError{line, "key code " + std::to_string(cmd.key) +
                                    " is not one of 27 (Escape), 37 (Left), 38 (Up), 39 (Right), 40 (Down), "
                                    "123 (F12)"};
      break;
    }
    case ScriptCommand::Kind::Shot:
    case ScriptCommand::Kind::Dump:
    case ScriptCommand::Kind::Restore:
      cmd.file = std::string(words[1]);
      break;
    case ScriptCommand::Kind::Seed: {
      std::uint64_t value = 0;
      const auto [end, ec] = std::from_chars(words[1].data(), words[1].data() + words[1].size(), value);
      if (ec != std::errc() || end != words[1].data() + words[1].size())
        throw ScriptError{line, "seed \"" + std::string(words[1]) + "\" is not a number"};
      cmd.seed = value;
      break;
    }
    case ScriptCommand::Kind::Quit:
      break;
  }
  return cmd;
}

}  // namespace

std::string ScriptError::Message() const { return "script:" + std::to_string(line) + ": " + what; }

std::vector<ScriptCommand> ParseScript(std::string_view text) {
  std::vector<ScriptCommand> commands;
  int line = 0;
  std::size_t pos = 0;
  while (pos < text.size()) {
    std::size_t end = text.find('\n', pos);
    if (end == std::string_view::npos) end = text.size();
    std::string_view raw = text.substr(pos, end - pos);
    pos = end + 1;
    ++line;
    if (const auto hash = raw.find('#'); hash != std::string_view::npos) raw = raw.substr(0, hash);
    const auto words = Words(raw);
    if (words.empty()) continue;
    commands.push_back(ParseLine(words, line));
  }
  return commands;
}

}  // namespace lf
