// What plays the sounds and the music. The game decides which channel and
// which tracks; the backend makes them heard. The default backend is silent
// and keeps what it was asked, for tests and headless runs.
#pragma once

#include <string>
#include <vector>

namespace lf {

class MediaBackend {
 public:
  virtual ~MediaBackend() = default;
  // Plays the wave file once on channel 0..7, cutting what that channel
  // played. The file is read anew at each call.
  virtual void PlaySound(int channel, const std::string& file) = 0;
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

  void PlaySound(int channel, const std::string& file) override;
  void PlayMusic(const std::vector<std::string>& files) override;
  void StopMusic() override;

  const std::vector<Request>& Requests() const { return requests_; }
  void Clear() { requests_.clear(); }

 private:
  void Keep(Request r);
  std::vector<Request> requests_;
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
