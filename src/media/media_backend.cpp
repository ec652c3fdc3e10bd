#include "media/media_backend.h"

namespace lf {
namespace {

constexpr std::size_t kRequestLimit = 256;

RecordingBackend& DefaultBackend() {
  static RecordingBackend backend;
  return backend;
}

MediaBackend* g_backend = nullptr;

}  // namespace

void RecordingBackend::Keep(Request r) {
  if (requests_.size() >= kRequestLimit) requests_.erase(requests_.begin());
  requests_.push_back(std::move(r));
}

void RecordingBackend::PlaySound(int channel, const std::string& file, const WaveSound*) {
  ++sound_count_;
  Keep({Request::Kind::Sound, channel, {file}});
}
void RecordingBackend::PlayMusic(const std::vector<std::string>& files) {
  Keep({Request::Kind::Music, 0, files});
}
void RecordingBackend::StopMusic() { Keep({Request::Kind::StopMusic, 0, {}}); }

MediaBackend& CurrentMediaBackend() { return g_backend ? *g_backend : DefaultBackend(); }
void SetMediaBackend(MediaBackend* backend) { g_backend = backend; }

}  // namespace lf
