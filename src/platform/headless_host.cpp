#include "platform/headless_host.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "display/png_writer.h"
#include "platform/screenshot_file.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/program.h"
#include "shell/state_json.h"

namespace lf {

namespace {

// The whole record, and behind it the last media calls, oldest first, as
// "sound S C", "track N", "stoptrack" and "clip FILE".
nlohmann::ordered_json DumpWithMediaCalls() {
  nlohmann::ordered_json out = DumpState(G);
  nlohmann::ordered_json calls = nlohmann::ordered_json::array();
  for (const MediaCall& c : MediaLog()) {
    switch (c.kind) {
      case MediaCall::Kind::Sound: calls.push_back("sound " + std::to_string(c.number) + " " + std::to_string(c.channel)); break;
      case MediaCall::Kind::Track: calls.push_back("track " + std::to_string(c.number)); break;
      case MediaCall::Kind::StopTrack: calls.push_back("stoptrack"); break;
      case MediaCall::Kind::Clip: calls.push_back("clip " + c.file); break;
    }
  }
  out["MediaCalls"] = std::move(calls);
  return out;
}

}  // namespace
namespace {

constexpr int kW = 640, kH = 480;

std::uint64_t SplitMix(std::uint64_t x) {
  x += 0x9E3779B97F4A7C15ull;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
  return x ^ (x >> 31);
}

std::string Quoted(const std::string& file) { return "\"" + file + "\""; }

}  // namespace

std::uint64_t HeadlessSeed(std::uint64_t seed, std::int64_t frame) {
  return SplitMix(SplitMix(seed) ^ static_cast<std::uint64_t>(frame));
}

HeadlessHost::HeadlessHost(std::vector<ScriptCommand> script, std::uint64_t seed, std::ostream& err)
    : script_(std::move(script)), seed_(seed), err_(err), frame_(static_cast<std::size_t>(kW) * kH, 0) {
  pending_.reserve(16);
  // A recorded session names its seed first: it holds from the first frame.
  if (!script_.empty() && script_.front().kind == ScriptCommand::Kind::Seed) seed_ = script_.front().seed;
}

void HeadlessHost::PumpInput(std::vector<InputEvent>& out) {
  while (budget_ == 0) {
    if (next_ >= script_.size()) throw ProgramEnd{0};
    Run(script_[next_++]);
  }
  --budget_;
  ++yields_;
  if (cursorPending_) {
    cursorX_ = pendingX_;
    cursorY_ = pendingY_;
    cursorPending_ = false;
  }
  out.insert(out.end(), pending_.begin(), pending_.end());
  pending_.clear();
}

void HeadlessHost::Queue(int x, int y, const InputEvent* event) {
  cursorPending_ = true;
  pendingX_ = x;
  pendingY_ = y;
  if (event) pending_.push_back(*event);
}

void HeadlessHost::Run(const ScriptCommand& cmd) {
  using Kind = ScriptCommand::Kind;
  switch (cmd.kind) {
    case Kind::Frames:
      budget_ = cmd.count;
      break;
    case Kind::Click:
    case Kind::RClick: {
      const InputEvent press{InputEvent::Kind::MouseDown, cmd.kind == Kind::Click ? 1 : 2, 0};
      Queue(cmd.x, cmd.y, &press);
      break;
    }
    case Kind::Move:
      Queue(cmd.x, cmd.y, nullptr);
      break;
    case Kind::Key:
      pending_.push_back(InputEvent{InputEvent::Kind::KeyDown, 1, cmd.key});
      break;
    case Kind::Shot: {
      if (!WritePng(cmd.file, frame_.data(), kW * 2)) Fail(cmd, "cannot write " + Quoted(cmd.file));
      break;
    }
    case Kind::Dump: {
      std::ofstream f(cmd.file, std::ios::binary | std::ios::trunc);
      if (f) f << DumpWithMediaCalls().dump(1) << "\n";
      if (!f || !f.flush()) Fail(cmd, "cannot write " + Quoted(cmd.file));
      break;
    }
    case Kind::Restore: {
      std::ifstream f(cmd.file, std::ios::binary);
      std::stringstream text;
      if (!f || !(text << f.rdbuf())) Fail(cmd, "cannot read " + Quoted(cmd.file));
      nlohmann::json state;
      try {
        state = nlohmann::json::parse(text.str());
      } catch (const nlohmann::json::exception& e) {
        Fail(cmd, "bad JSON in " + Quoted(cmd.file) + ": " + e.what());
      }
      // The media calls of a dump are a record of what was heard, not state.
      if (state.is_object()) state.erase("MediaCalls");
      try {
        RestoreState(G, state);
      } catch (const RestoreError& e) {
        Fail(cmd, "cannot restore " + Quoted(cmd.file) + ": " + e.what());
      }
      break;
    }
    case Kind::Seed:
      seed_ = cmd.seed;
      break;
    case Kind::Quit:
      throw ProgramEnd{0};
  }
}

void HeadlessHost::Fail(const ScriptCommand& cmd, const std::string& what) {
  err_ << ScriptError{cmd.line, what}.Message() << std::endl;
  throw ProgramEnd{2};
}

void HeadlessHost::Present(const std::uint16_t* pixels, int pitchBytes) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(pixels);
  for (int y = 0; y < kH; ++y)
    std::memcpy(frame_.data() + static_cast<std::size_t>(y) * kW, bytes + static_cast<std::ptrdiff_t>(y) * pitchBytes,
                kW * sizeof(std::uint16_t));
}

void HeadlessHost::GetCursorPos(int& x, int& y) {
  x = cursorX_;
  y = cursorY_;
}

void HeadlessHost::SetCursorPos(int x, int y) {
  cursorX_ = std::clamp(x, 0, kW - 1);
  cursorY_ = std::clamp(y, 0, kH - 1);
}

std::uint64_t HeadlessHost::ClockSeed() { return HeadlessSeed(seed_, G.Frame); }

bool HeadlessHost::SaveScreenshot(std::string& where) { return WriteScreenshot(frame_.data(), where); }

}  // namespace lf
