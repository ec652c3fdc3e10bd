#include "audio/music_score.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <cstdio>
#include <string>
#include <vector>

#include "audio/ogg_writer.h"
#include "audio/synth.h"

namespace assetgen {
namespace {

constexpr double R = kMusicRate;
constexpr double kMinimumSeconds = 124;  // every track runs past two minutes
constexpr float kQuality = 0.0f;         // about 64 kbit/s

// Layers of the arrangement, switched on block by block.
enum Layer : unsigned { PAD = 1, BASS = 2, DRUMS = 4, ARP = 8, LEAD = 16, HATS = 32 };

using Chord = std::vector<int>;  // semitones above the key's root

struct Style {
  const char* title;
  double bpm;
  int root;                       // midi note of the bass's tonic
  std::vector<Chord> progression; // one chord a bar, cycled
  // Sixteen steps a bar. Drums: 'x' a hit, 'a' a softer one. Bass: 'x' the
  // root, 'f' the fifth, 'o' the octave, '-' holds, '.' rests.
  const char* kick;
  const char* snare;
  const char* hat;
  const char* bass;
  int arpEvery;       // steps between arpeggio notes
  bool bellArp;       // bells rather than plucks
  double padCutoff;   // Hz
  double bassCutoff;  // Hz
  double swing;       // delay of the odd steps, as a share of a step
  std::vector<unsigned> intro, loop, outro;  // layers of each four-bar block
  std::uint32_t seed;
};

// The four tracks, by role.
const Style kStyles[4] = {
    // 2: the main menu and the fight: driving A minor.
    {"Lanes of Fire", 126, 45,
     {{0, 3, 7, 12}, {-4, 0, 3, 8}, {3, 7, 10, 15}, {-2, 2, 5, 10}, {0, 3, 7, 12}, {-4, 0, 3, 8}, {-2, 2, 5, 10}, {-5, -1, 2, 7}},
     "x...x...x...x...", "....x.......x..a", "..x.a.x...x.a.x.", "x-x-o-x-x-x-o-xf", 1, false, 1400, 500, 0.0,
     {PAD, PAD | ARP}, {PAD | BASS | DRUMS | ARP, PAD | BASS | DRUMS | ARP | LEAD, PAD | BASS | DRUMS | LEAD, PAD | ARP | HATS},
     {PAD | ARP}, 202},
    // 3: the station: warm D major sevenths, lightly swung.
    {"Harbour Lights", 92, 38,
     {{0, 4, 7, 11}, {-3, 0, 4, 7}, {-7, -3, 0, 4}, {-5, -1, 2, 5}, {0, 4, 7, 11}, {4, 7, 11, 14}, {-7, -3, 0, 4}, {-5, -1, 2, 5}},
     "x.......x.x.....", "....a.......a...", "..x...x...x...x.", "x---..f-x---..o-", 2, true, 1100, 350, 0.16,
     {PAD, PAD | ARP}, {PAD | BASS | ARP | HATS, PAD | BASS | ARP | LEAD | DRUMS, PAD | BASS | LEAD | DRUMS, PAD | ARP},
     {PAD}, 303},
    // 4: the bridge: slow E minor air, long chords, little beat.
    {"Quiet Helm", 72, 40,
     {{0, 3, 7, 10, 14}, {0, 3, 7, 10, 14}, {-4, 0, 3, 7}, {-4, 0, 3, 7}, {5, 8, 12, 15}, {5, 8, 12, 15}, {7, 12, 14, 19}, {7, 11, 14, 17}},
     "x.........x.....", "................", "........a.......", "x-------------..", 2, true, 800, 250, 0.0,
     {PAD, PAD | ARP}, {PAD | ARP | BASS, PAD | ARP | BASS | DRUMS | LEAD, PAD | LEAD | BASS, PAD | ARP},
     {PAD}, 404},
    // 5: a hail: F sharp minor, a pulsing bass under suspended chords.
    {"Open Channel", 108, 42,
     {{0, 3, 7, 12}, {0, 3, 7, 12}, {-4, 0, 3, 7}, {-5, 0, 2, 7}, {-7, -4, 0, 5}, {-4, 0, 3, 7}, {-5, 0, 2, 7}, {-5, -1, 2, 7}},
     "x..x..x...x..x..", "....x.......x..a", "xaxaxaxaxaxaxaxa", "xxxxxxxxoxxxxxxf", 2, false, 1000, 600, 0.0,
     {PAD | BASS}, {PAD | BASS | HATS | ARP, PAD | BASS | DRUMS | ARP, PAD | BASS | DRUMS | LEAD, PAD | ARP | BASS},
     {PAD | BASS}, 505},
};

// A stereo mix in progress.
struct Bus {
  Samples l, r;
  explicit Bus(std::size_t n) : l(n, 0.0f), r(n, 0.0f) {}
  void Add(std::size_t i, double v, double pan) {
    if (i >= l.size()) return;
    l[i] += static_cast<float>(v * (1.0 - pan) * 0.5);
    r[i] += static_cast<float>(v * (1.0 + pan) * 0.5);
  }
};

class Composer {
 public:
  explicit Composer(const Style& s) : s_(s), rng_(s.seed) {
    step_ = 60.0 / s.bpm / 4.0;
    const double bar = step_ * 16;
    int blocks = static_cast<int>(std::ceil(kMinimumSeconds / (bar * 4)));
    blocks = std::max(blocks, static_cast<int>(s.intro.size() + s.outro.size()) + 1);
    for (unsigned b : s.intro) blocks_.push_back(b);
    for (int k = 0; static_cast<int>(blocks_.size() + s.outro.size()) < blocks; ++k)
      blocks_.push_back(s.loop[static_cast<std::size_t>(k) % s.loop.size()]);
    for (unsigned b : s.outro) blocks_.push_back(b);
    bars_ = static_cast<int>(blocks_.size()) * 4;
    const std::size_t n = static_cast<std::size_t>((bars_ * bar + 3.0) * R);
    dry_ = std::make_unique<Bus>(n);
    send_ = std::make_unique<Bus>(n);
    MakeMotifs();
  }

  bool Write(const std::string& file) {
    for (int bar = 0; bar < bars_; ++bar) {
      const unsigned layers = blocks_[static_cast<std::size_t>(bar / 4)];
      const Chord& chord = s_.progression[static_cast<std::size_t>(bar) % s_.progression.size()];
      if (layers & PAD) Pad(bar, chord);
      for (int st = 0; st < 16; ++st) {
        const double t = StepTime(bar, st);
        if (layers & DRUMS) {
          if (s_.kick[st] != '.') Kick(t, s_.kick[st] == 'x' ? 1.0 : 0.6);
          if (s_.snare[st] != '.') Snare(t, s_.snare[st] == 'x' ? 1.0 : 0.5);
        }
        if ((layers & (DRUMS | HATS)) && s_.hat[st] != '.') Hat(t, s_.hat[st] == 'x' ? 1.0 : 0.55, st == 14 && bar % 4 == 3);
        if ((layers & BASS) && s_.bass[st] != '.' && s_.bass[st] != '-') Bass(t, st, chord);
        if ((layers & ARP) && st % s_.arpEvery == 0) Arp(t, bar * 16 + st, chord);
      }
      if (layers & LEAD) Lead(bar, chord);
    }
    Master();
    return WriteOgg(file, dry_->l, dry_->r, kMusicRate, kQuality, s_.title);
  }

 private:
  double StepTime(int bar, int st) const {
    return (bar * 16 + st + (st % 2 ? s_.swing : 0.0)) * step_;
  }
  std::size_t At(double t) const { return static_cast<std::size_t>(t * R); }

  // Chords held on three detuned saws a note, opening and closing slowly.
  void Pad(int bar, const Chord& chord) {
    const double start = bar * 16 * step_;
    const double hold = 16 * step_;
    const double release = 0.8;
    const double a = OnePole::Coef(s_.padCutoff, R);
    for (std::size_t k = 0; k < chord.size(); ++k) {
      const double hz = MidiHz(s_.root + 12 + chord[k]);
      const double pan = (static_cast<double>(k) / std::max<std::size_t>(1, chord.size() - 1) - 0.5) * 0.8;
      Osc o[3];
      for (int v = 0; v < 3; ++v) o[v].phase = 0.31 * v + 0.07 * static_cast<double>(k);
      OnePole f1, f2;
      const std::size_t n = At(hold + release);
      const std::size_t i0 = At(start);
      for (std::size_t i = 0; i < n; ++i) {
        const double t = static_cast<double>(i) / R;
        const double env = Adsr(t, hold * 0.3, 0.5, 0.8, release, hold);
        const double v = o[0].Saw(hz, R) + o[1].Saw(hz * 1.0035, R) + o[2].Saw(hz * 0.9968, R);
        const double out = f2.LowK(f1.LowK(v, a), a) * env * 0.06;
        dry_->Add(i0 + i, out, pan);
        send_->Add(i0 + i, out * 0.5, -pan);
      }
    }
  }

  void Bass(double t, int st, const Chord& chord) {
    int note = s_.root + chord[0];
    if (s_.bass[st] == 'o') note += 12;
    if (s_.bass[st] == 'f') note += 7;
    int len = 1;
    while (st + len < 16 && s_.bass[st + len] == '-') ++len;
    const double hold = len * step_ * 0.85;
    const double hz = MidiHz(note);
    Osc saw, sub;
    Svf f;
    const std::size_t n = At(hold + 0.08);
    const std::size_t i0 = At(t);
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / R;
      const double env = Adsr(u, 0.005, 0.15, 0.6, 0.06, hold);
      const double v = 0.6 * saw.Saw(hz, R) + 0.8 * sub.Sine(hz * 0.5, R);
      const double cut = s_.bassCutoff * (1.0 + 3.0 * Decay(u, 0.06));
      dry_->Add(i0 + i, 0.3 * env * f.Run(v, cut, 1.6, R).low, 0.0);
    }
  }

  // Chord tones up and down over two octaves.
  void Arp(double t, int count, const Chord& chord) {
    const int span = static_cast<int>(chord.size()) * 2;
    const int cycle = count / s_.arpEvery % (span * 2 - 2);
    const int idx = cycle < span ? cycle : span * 2 - 2 - cycle;
    const int note = s_.root + 24 + chord[static_cast<std::size_t>(idx) % chord.size()] +
                     12 * (idx / static_cast<int>(chord.size()));
    const double hz = MidiHz(note);
    const double pan = 0.5 * std::sin(count * 0.7);
    const std::size_t i0 = At(t);
    if (s_.bellArp) {
      const std::size_t n = At(0.9);
      for (std::size_t i = 0; i < n; ++i) {
        const double u = static_cast<double>(i) / R;
        const double v = std::sin(kTwoPi * hz * u) * Decay(u, 0.35) + 0.4 * std::sin(kTwoPi * hz * 2.76 * u) * Decay(u, 0.1);
        dry_->Add(i0 + i, 0.05 * v, pan);
        send_->Add(i0 + i, 0.05 * v, pan);
      }
      return;
    }
    Osc o;
    OnePole f;
    const double a = OnePole::Coef(2600, R);
    const std::size_t n = At(0.3);
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / R;
      const double v = f.LowK(o.Square(hz, R, 0.3), a) * Decay(u, 0.09) * std::fmin(1.0, u * 300);
      dry_->Add(i0 + i, 0.05 * v, pan);
      send_->Add(i0 + i, 0.06 * v, pan);
    }
  }

  // Two four-bar phrases of chord-tone steps in eighths (-1 rests), played
  // A A B A over the chords of the moment.
  void MakeMotifs() {
    for (auto& phrase : motifs_) {
      for (auto& bar : phrase) {
        for (std::size_t slot = 0; slot < bar.size(); ++slot) {
          const double roll = rng_.Unit();
          if (roll < 0.35 && slot != 0) {
            bar[slot] = -2;  // holds the note before
          } else if (roll < 0.5) {
            bar[slot] = -1;
          } else {
            bar[slot] = static_cast<int>(rng_.Unit() * 6);
          }
        }
      }
    }
  }

  void Lead(int bar, const Chord& chord) {
    const int phraseBar = bar % 16;
    const auto& phrase = motifs_[phraseBar / 4 == 2 ? 1 : 0];
    const auto& slots = phrase[static_cast<std::size_t>(phraseBar % 4)];
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
      if (slots[slot] < 0) continue;
      std::size_t len = 1;
      while (slot + len < slots.size() && slots[slot + len] == -2) ++len;
      const int degree = slots[slot];
      const int note = s_.root + 24 + chord[static_cast<std::size_t>(degree) % chord.size()] +
                       12 * (degree / static_cast<int>(chord.size()));
      LeadNote(StepTime(bar, static_cast<int>(slot) * 2), MidiHz(note), static_cast<double>(len) * 2 * step_);
    }
  }

  void LeadNote(double t, double hz, double hold) {
    Osc tri, saw, vib;
    OnePole f;
    const double a = OnePole::Coef(3000, R);
    const std::size_t n = At(hold + 0.15);
    const std::size_t i0 = At(t);
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / R;
      const double wobble = 1.0 + 0.004 * std::fmin(1.0, u * 4) * vib.Sine(5.2, R);
      const double env = Adsr(u, 0.02, 0.2, 0.7, 0.15, hold);
      const double v = f.LowK(tri.Triangle(hz * wobble, R) + 0.25 * saw.Saw(hz * wobble, R), a) * env;
      dry_->Add(i0 + i, 0.1 * v, 0.1);
      send_->Add(i0 + i, 0.06 * v, -0.3);
    }
  }

  void Kick(double t, double level) {
    Osc o;
    const std::size_t n = At(0.35);
    const std::size_t i0 = At(t);
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / R;
      const double hz = 45 + 110 * Decay(u, 0.03);
      dry_->Add(i0 + i, 0.45 * level * o.Sine(hz, R) * Decay(u, 0.16), 0.0);
    }
  }

  void Snare(double t, double level) {
    Osc o;
    Svf f;
    const std::size_t n = At(0.25);
    const std::size_t i0 = At(t);
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / R;
      const double v = f.Run(noise_.Next(), 1800, 0.7, R).band * Decay(u, 0.09) + 0.5 * o.Sine(190, R) * Decay(u, 0.04);
      dry_->Add(i0 + i, 0.22 * level * v, 0.05);
      send_->Add(i0 + i, 0.05 * level * v, 0.0);
    }
  }

  void Hat(double t, double level, bool open) {
    OnePole hp;
    const double a = OnePole::Coef(7000, R);
    const std::size_t n = At(open ? 0.3 : 0.06);
    const std::size_t i0 = At(t);
    for (std::size_t i = 0; i < n; ++i) {
      const double u = static_cast<double>(i) / R;
      const double x = noise_.Next();
      const double v = (x - hp.LowK(x, a)) * Decay(u, open ? 0.1 : 0.018);
      dry_->Add(i0 + i, 0.08 * level * v, 0.3);
    }
  }

  // A ping-pong echo on the send, the whole mix limited and faded out.
  void Master() {
    const std::size_t d = At(3 * step_);
    Samples& l = send_->l;
    Samples& r = send_->r;
    const double fb = 0.45;
    OnePole tl, tr;
    const double a = OnePole::Coef(3500, R);
    for (std::size_t i = d; i < l.size(); ++i) {
      l[i] += static_cast<float>(fb * tl.LowK(r[i - d], a));
      r[i] += static_cast<float>(fb * tr.LowK(l[i - d], a));
    }
    const std::size_t n = dry_->l.size();
    for (std::size_t i = 0; i < n; ++i) {
      const double t = static_cast<double>(i) / R;
      const double fade = std::clamp((static_cast<double>(n) / R - t) / 5.0, 0.0, 1.0) * std::fmin(1.0, t * 20);
      dry_->l[i] = SoftClip(1.2 * (dry_->l[i] + 0.6 * l[i])) * static_cast<float>(fade);
      dry_->r[i] = SoftClip(1.2 * (dry_->r[i] + 0.6 * r[i])) * static_cast<float>(fade);
    }
    float top = 0;
    for (std::size_t i = 0; i < n; ++i) top = std::max({top, std::fabs(dry_->l[i]), std::fabs(dry_->r[i])});
    if (top > 0) {
      const float k = 0.9f / top;
      for (std::size_t i = 0; i < n; ++i) {
        dry_->l[i] *= k;
        dry_->r[i] *= k;
      }
    }
  }

  const Style& s_;
  Noise rng_;
  Noise noise_{77};
  double step_ = 0;
  int bars_ = 0;
  std::vector<unsigned> blocks_;
  std::unique_ptr<Bus> dry_, send_;
  std::array<std::array<std::array<int, 8>, 4>, 2> motifs_{};
};

}  // namespace

bool GenerateTrack(const std::string& folder, int track) {
  if (track < 2 || track > 5) return false;
  char name[32];
  std::snprintf(name, sizeof name, "/track%02d.ogg", track);
  const std::string file = folder + name;
  Composer c(kStyles[track - 2]);
  if (!c.Write(file)) {
    std::fprintf(stderr, "assetgen: cannot write %s\n", file.c_str());
    return false;
  }
  return true;
}

bool GenerateMusic(const std::string& folder) {
  for (int t = 2; t <= 5; ++t)
    if (!GenerateTrack(folder, t)) return false;
  return true;
}

}  // namespace assetgen
