// What plays the sounds and the music. The game decides which channel and
// which tracks; the backend makes them heard. The default backend is silent
// and keeps what it was asked, for tests and headless runs.
#pragma once

#include <string>
#include <vector>

namespace lf {

struct WaveSound;

class MediaBackend {
 public:
  virtual ~MediaBackend() = default;
  // Plays a sound of the bank once on channel 0..7, cutting what that
  // channel played; `wave` is its samples as read once from `file`, or
  // nullptr for a file that could not be used (the channel falls silent).
  virtual void PlaySound(int channel, const std::string& file, const WaveSound* wave) = 0;
  // Plays the files one after the other and then stops, as a disc runs on
  // to its last track. Replaces whatever music played.
  virtual void PlayMusic(const std::vector<std::string>& files) = 0;
  virtual void StopMusic() = 0;
};

// Keeps the requests in order and plays nothing.
class RecordingBackend : public MediaBackend {
 public:
  struct Request {
    enum class Kind { Sound, Music, StopMusic };
    Kind kind = Kind::Sound;
    int channel = 0;
    std::vector<std::string> files;  // one for a sound, the run of tracks for music
    bool operator==(const Request&) const = default;
  };

  void PlaySound(int channel, const std::string& file, const WaveSound* wave) override;
  void PlayMusic(const std::vector<std::string>& files) override;
  void StopMusic() override;

  const std::vector<Request>& Requests() const { return requests_; }
  // Sounds asked of the backend since the start or the last Clear (the
  // requests keep only the last ones).
  long SoundCount() const { return sound_count_; }
  void Clear() {
    requests_.clear();
    sound_count_ = 0;
  }

 private:
  void Keep(Request r);
  std::vector<Request> requests_;
  long sound_count_ = 0;
};

// The backend in use; a RecordingBackend until another is set. The caller
// keeps the backend alive while it is set; nullptr puts the default back.
MediaBackend& CurrentMediaBackend();
void SetMediaBackend(MediaBackend* backend);

// The SDL_mixer backend on the sound device: eight channels and music. The
// program opens it when it runs in a window and is not muted. False, with a
// line on stderr, when there is no sound device; the game then runs silent.
bool OpenAudioBackend();
void CloseAudioBackend();
// The track file the sound device plays, empty in silence or when closed.
std::string AudioBackendTrack();

}  // namespace lf
