#include "platform/recorder.h"


namespace lf {

ScriptRecorder::ScriptRecorder(std::ostream& out, std::uint64_t seed) : out_(out) {
  out_ << "# A recorded Lanefarer session: replay it with\n"
       << "#   lanefarer --headless --script THIS_FILE\n"
       << "seed " << seed << "\n";
  out_.flush();
}

// Commands written after `frames N` reach the game N yields later; the first
// ones, before any frames line, reach the first yield.
void ScriptRecorder::Gap() {
  if (yields_ > lastInput_) out_ << "frames " << (yields_ - lastInput_) << "\n";
  lastInput_ = yields_;
}

void ScriptRecorder::Yield(const std::vector<InputEvent>& events, int beforeX, int beforeY, int afterX,
                           int afterY) {
  if (finished_) return;
  ++yields_;
  const bool moved = beforeX != afterX || beforeY != afterY;
  if (events.empty() && !moved) return;
  Gap();
  // A headless yield delivers its input with the cursor where the last
  // command of the batch put it, as the window reports it after the batch.
  if (moved && events.empty()) out_ << "move " << afterX << " " << afterY << "\n";
  for (const InputEvent& e : events) {
    switch (e.kind) {
      case InputEvent::Kind::MouseDown:
        out_ << (e.button == 2 ? "rclick " : "click ") << afterX << " " << afterY << "\n";
        break;
      case InputEvent::Kind::KeyDown:
        if (moved) out_ << "move " << afterX << " " << afterY << "\n";
        out_ << "key " << e.key << "\n";
        break;
      case InputEvent::Kind::Close:
        out_ << "quit\n";
        finished_ = true;
        break;
    }
    if (finished_) break;
  }
  out_.flush();
}

void ScriptRecorder::Finish() {
  if (finished_) return;
  finished_ = true;
  if (yields_ >= lastInput_) out_ << "frames " << (yields_ - lastInput_ + 1) << "\n";
  out_ << "quit\n";
  out_.flush();
}

RecordingHost::RecordingHost(Host& inner, std::ostream& out, std::uint64_t seed)
    : inner_(inner), recorder_(out, seed) {
  batch_.reserve(16);
}

RecordingHost::~RecordingHost() { recorder_.Finish(); }

void RecordingHost::PumpInput(std::vector<InputEvent>& out) {
  int bx = 0, by = 0, ax = 0, ay = 0;
  inner_.GetCursorPos(bx, by);
  batch_.clear();
  inner_.PumpInput(batch_);
  inner_.GetCursorPos(ax, ay);
  recorder_.Yield(batch_, bx, by, ax, ay);
  out.insert(out.end(), batch_.begin(), batch_.end());
}

// Every host draws its clock seed from one seed and the frame counter.
std::uint64_t RecordingHost::ClockSeed() { return inner_.ClockSeed(); }

}  // namespace lf
