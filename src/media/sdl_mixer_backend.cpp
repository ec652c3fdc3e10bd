// The sound device through SDL_mixer: eight channels for the sounds, each
// sound read by the game's own wave search and converted to the device's
// format; the music a run of files played one after the other.
#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>

#include "media/media_backend.h"
#include "media/sound_channels.h"
#include "media/wav_reader.h"
#include "shell/data_file.h"
#include "shell/paths.h"

namespace lf {
namespace {

SDL_AudioFormat SdlFormat(const WaveFormat& f) {
  if (f.FormatTag == 3) return AUDIO_F32LSB;
  switch (f.BitsPerSample) {
    case 8: return AUDIO_U8;
    case 16: return AUDIO_S16LSB;
    default: return AUDIO_S32LSB;
  }
}

class SdlMixerBackend : public MediaBackend {
 public:
  bool Open() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
      std::fprintf(stderr, "lanefarer: no sound: %s\n", SDL_GetError());
      return false;
    }
    Mix_Init(MIX_INIT_OGG);
    if (Mix_OpenAudio(44100, AUDIO_S16SYS, 2, 1024) != 0) {
      std::fprintf(stderr, "lanefarer: no sound: %s\n", Mix_GetError());
      Mix_Quit();
      SDL_QuitSubSystem(SDL_INIT_AUDIO);
      return false;
    }
    Mix_AllocateChannels(kSoundChannels);
    int channels = 0;
    Mix_QuerySpec(&rate_, &format_, &channels);
    channels_ = static_cast<Uint8>(channels);
    worker_ = std::thread([this] { RunMusic(); });
    opened_ = true;
    return true;
  }

  ~SdlMixerBackend() override {
    if (!opened_) return;
    {
      std::lock_guard lock(mutex_);
      quit_ = true;
    }
    wake_.notify_all();
    if (worker_.joinable()) worker_.join();
    Mix_HaltChannel(-1);
    converted_.clear();
    HaltMusic();
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    if (SDL_WasInit(0) == 0) SDL_Quit();  // the last of SDL: free what it keeps
  }

  void PlaySound(int channel, const std::string& file, const WaveSound* wave) override {
    if (channel < 0 || channel >= kSoundChannels) return;
    Mix_HaltChannel(channel);
    if (!wave) return;
    // Each sound is converted for the device once and kept; several
    // channels may play one converted sound at the same time.
    auto it = converted_.find(file);
    if (it == converted_.end()) {
      auto chunk = Convert(*wave);
      if (!chunk) ReportMissing(file, "cannot be converted for the sound device");
      it = converted_.emplace(file, std::move(chunk)).first;
    }
    if (it->second) Mix_PlayChannel(channel, &it->second->chunk, 0);
  }

  void PlayMusic(const std::vector<std::string>& files) override {
    std::lock_guard lock(mutex_);
    HaltMusic();
    run_ = files;
    next_ = 0;
    StartNextTrack();
  }

  std::string Playing() {
    std::lock_guard lock(mutex_);
    return music_ && next_ > 0 ? run_[next_ - 1] : std::string();
  }

  void StopMusic() override {
    std::lock_guard lock(mutex_);
    HaltMusic();
    run_.clear();
    next_ = 0;
  }

 private:
  // A converted sound; the mixer plays from `samples`, which it does not own.
  struct Sound {
    std::vector<Uint8> samples;
    Mix_Chunk chunk{};
  };

  std::unique_ptr<Sound> Convert(const WaveSound& wave) const {
    SDL_AudioStream* stream = SDL_NewAudioStream(SdlFormat(wave.Format), static_cast<Uint8>(wave.Format.Channels),
                                                 static_cast<int>(wave.Format.SamplesPerSec), format_, channels_, rate_);
    if (!stream) return nullptr;
    auto sound = std::make_unique<Sound>();
    const bool put = SDL_AudioStreamPut(stream, wave.Samples.data(), static_cast<int>(wave.Samples.size())) == 0 &&
                     SDL_AudioStreamFlush(stream) == 0;
    if (put) {
      sound->samples.resize(static_cast<std::size_t>(SDL_AudioStreamAvailable(stream)));
      const int got = SDL_AudioStreamGet(stream, sound->samples.data(), static_cast<int>(sound->samples.size()));
      sound->samples.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    }
    SDL_FreeAudioStream(stream);
    if (sound->samples.empty()) return nullptr;
    sound->chunk.allocated = 0;
    sound->chunk.abuf = sound->samples.data();
    sound->chunk.alen = static_cast<Uint32>(sound->samples.size());
    sound->chunk.volume = MIX_MAX_VOLUME;
    return sound;
  }

  // With the mutex held.
  void HaltMusic() {
    Mix_HaltMusic();
    if (music_) Mix_FreeMusic(music_);
    music_ = nullptr;
  }

  // With the mutex held: the next file of the run that loads, or silence.
  void StartNextTrack() {
    while (next_ < run_.size()) {
      const std::string& file = run_[next_++];
      // Known by its bytes, not its name: a player's own track in another
      // format under the same name plays too.
      SDL_RWops* source = IsRegularFile(file) ? SDL_RWFromFile(file.c_str(), "rb") : nullptr;
      music_ = source ? Mix_LoadMUS_RW(source, 1) : nullptr;
      if (!music_) {
        ReportMissing(file, "not a playable track");
        continue;
      }
      if (Mix_PlayMusic(music_, 1) == 0) return;
      Mix_FreeMusic(music_);
      music_ = nullptr;
    }
    run_.clear();
    next_ = 0;
  }

  // Moves the run on to the following track when one ends.
  void RunMusic() {
    RunMusicUntilQuit();
    SDL_TLSCleanup();  // SDL's error text for this thread
  }

  void RunMusicUntilQuit() {
    std::unique_lock lock(mutex_);
    while (!quit_) {
      wake_.wait_for(lock, std::chrono::milliseconds(50));
      if (quit_) break;
      if (music_ && !Mix_PlayingMusic()) {
        HaltMusic();
        StartNextTrack();
      }
    }
  }

  bool opened_ = false;
  int rate_ = 44100;
  Uint16 format_ = AUDIO_S16SYS;
  Uint8 channels_ = 2;
  std::unordered_map<std::string, std::unique_ptr<Sound>> converted_;

  std::mutex mutex_;
  std::condition_variable wake_;
  std::thread worker_;
  bool quit_ = false;
  Mix_Music* music_ = nullptr;
  std::vector<std::string> run_;
  std::size_t next_ = 0;
};

std::unique_ptr<SdlMixerBackend> g_device;

}  // namespace

bool OpenAudioBackend() {
  if (g_device) return true;
  auto device = std::make_unique<SdlMixerBackend>();
  if (!device->Open()) return false;
  g_device = std::move(device);
  SetMediaBackend(g_device.get());
  return true;
}

std::string AudioBackendTrack() { return g_device ? g_device->Playing() : std::string(); }

void CloseAudioBackend() {
  if (!g_device) return;
  SetMediaBackend(nullptr);
  g_device.reset();
}

}  // namespace lf
