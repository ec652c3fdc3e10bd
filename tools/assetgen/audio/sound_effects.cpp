#include "audio/sound_effects.h"

#include <cstdio>
#include <functional>

#include "audio/synth.h"
#include "audio/wav_writer.h"

namespace assetgen {
namespace {

constexpr double R = kSoundRate;

// Renders `seconds` of sound from a function of the time in seconds.
Samples Make(double seconds, const std::function<double(double)>& at) {
  Samples s(static_cast<std::size_t>(seconds * R));
  for (std::size_t i = 0; i < s.size(); ++i) s[i] = static_cast<float>(at(static_cast<double>(i) / R));
  return s;
}

// A fade over the last few milliseconds, so no sound ends in a click.
void Tail(Samples& s) {
  const std::size_t n = std::min<std::size_t>(s.size(), 220);
  for (std::size_t i = 0; i < n; ++i) s[s.size() - 1 - i] *= static_cast<float>(i) / static_cast<float>(n);
}

// 1: a refusal: two short low buzzes.
Samples Refusal() {
  Osc a, b;
  OnePole lp;
  return Make(0.32, [&](double t) {
    const double gate = (t < 0.12 || (t > 0.16 && t < 0.28)) ? 1.0 : 0.0;
    const double v = a.Square(110, R) + b.Square(116.5, R);
    return 0.5 * gate * lp.Low(v, 1800, R);
  });
}

// 2: acknowledgement: a rising two-note chirp.
Samples Chirp() {
  Osc o;
  return Make(0.18, [&](double t) {
    const double hz = t < 0.07 ? 1046.5 : 1568.0;
    const double local = t < 0.07 ? t : t - 0.07;
    return 0.6 * o.Sine(hz, R) * Decay(local, 0.035) * std::fmin(1.0, local * 400);
  });
}

// 3 and 5: cargo moved in the hold: a padded metal clunk.
Samples Clunk(double pitch, double length, std::uint32_t seed, double scrape) {
  Osc body, ring;
  Noise n(seed);
  OnePole lp, hp;
  return Make(length, [&](double t) {
    const double thud = body.Sine(pitch * (1.0 + 0.6 * Decay(t, 0.02)), R) * Decay(t, 0.07);
    const double knock = lp.Low(n.Next(), 900, R) * Decay(t, 0.03) * 3.0;
    const double metal = ring.Triangle(pitch * 5.3, R) * Decay(t, 0.05) * 0.15;
    const double slide = scrape * hp.High(n.Next(), 2500, R) * std::sin(kPi * std::fmin(1.0, t / length)) * 0.25;
    return 0.7 * (thud + knock + metal) + slide;
  });
}

// 4: the plain press of a control: a short dry click.
Samples Click() {
  Osc o;
  Noise n(4);
  return Make(0.06, [&](double t) {
    return 0.5 * n.Next() * Decay(t, 0.002) + 0.5 * o.Sine(2200, R) * Decay(t, 0.008);
  });
}

// 6: static on the channel: band-passed hiss with crackle.
Samples Static() {
  Noise n(6), pops(66);
  Svf f;
  return Make(1.2, [&](double t) {
    const double env = std::fmin(1.0, t * 30) * std::fmin(1.0, (1.2 - t) * 8);
    double v = f.Run(n.Next(), 3000, 0.8, R).band;
    if (pops.Unit() > 0.9985) v += pops.Next() * 3.0;
    return 0.5 * env * v;
  });
}

// 7: engines stop, channel closed: a hum that falls away.
Samples EnginesStop() {
  Osc a, b;
  OnePole lp;
  return Make(1.1, [&](double t) {
    const double hz = 40 + 180 * Decay(t, 0.3);
    const double v = a.Saw(hz, R) + 0.6 * b.Sine(hz * 0.5, R);
    return 0.45 * lp.Low(v, 200 + 1500 * Decay(t, 0.25), R) * Decay(t, 0.45);
  });
}

// 8: warning: a two-tone klaxon, three times.
Samples Klaxon() {
  Osc o;
  OnePole lp;
  return Make(0.9, [&](double t) {
    const double cycle = std::fmod(t, 0.3);
    const double hz = cycle < 0.15 ? 660 : 494;
    const double gate = std::fmin(1.0, std::fmin(cycle, 0.3 - cycle) * 200);
    return 0.4 * gate * lp.Low(o.Square(hz, R, 0.4), 3000, R);
  });
}

// 9: an asteroid strikes the hull: a crack and a deep boom.
Samples AsteroidHit() {
  Noise n(9);
  Osc boom;
  OnePole lp;
  return Make(0.9, [&](double t) {
    const double crack = n.Next() * Decay(t, 0.015);
    const double rumble = lp.Low(n.Next(), 300, R) * Decay(t, 0.25) * 4.0;
    const double low = boom.Sine(55 + 40 * Decay(t, 0.05), R) * Decay(t, 0.3);
    return 0.6 * (crack + rumble + low);
  });
}

// 10: an orbit manoeuvre: a filtered rush of thrusters up and down.
Samples Whoosh() {
  Noise n(10);
  Svf f;
  return Make(1.6, [&](double t) {
    const double shape = std::sin(kPi * t / 1.6);
    const double v = f.Run(n.Next(), 300 + 2500 * shape * shape, 2.0, R).band;
    return 0.9 * shape * v;
  });
}

// 11: the scanner: a rising sweep and its fading echo pings.
Samples Scanner() {
  Osc o, p;
  return Make(1.0, [&](double t) {
    const double sweep = t < 0.35 ? o.Sine(400 + 2000 * (t / 0.35), R) * 0.3 : 0.0;
    double ping = 0;
    for (int k = 0; k < 3; ++k) {
      const double at = 0.4 + 0.18 * k;
      if (t >= at) ping += std::pow(0.5, k) * Decay(t - at, 0.05);
    }
    return sweep + 0.5 * ping * p.Sine(1800, R);
  });
}

// 12: combat mode: a rising siren twice.
Samples CombatAlarm() {
  Osc o, s;
  return Make(1.2, [&](double t) {
    const double local = std::fmod(t, 0.6);
    const double hz = 500 + 700 * (local / 0.6);
    const double gate = std::fmin(1.0, std::fmin(local, 0.6 - local) * 60);
    return 0.35 * gate * (o.Saw(hz, R) * 0.5 + s.Sine(hz, R));
  });
}

// A struck bell: a partial series fading at its own rate.
double Bell(double hz, double t, double tau) {
  static const double partials[] = {1.0, 2.0, 2.76, 5.4};
  static const double levels[] = {1.0, 0.5, 0.3, 0.12};
  double v = 0;
  for (int k = 0; k < 4; ++k) v += levels[k] * std::sin(kTwoPi * hz * partials[k] * t) * Decay(t, tau / (1 + k));
  return v;
}

// 13: station service, a purchase: three chime notes.
Samples ServiceChime() {
  return Make(0.9, [&](double t) {
    double v = 0;
    const double notes[] = {72, 76, 79};
    for (int k = 0; k < 3; ++k) {
      const double at = 0.09 * k;
      if (t >= at) v += Bell(MidiHz(notes[k]), t - at, 0.35);
    }
    return 0.25 * v;
  });
}

// 17: a mission accepted: a short brass fanfare.
Samples Fanfare() {
  Osc a, b, c;
  OnePole lp;
  return Make(1.3, [&](double t) {
    const double notes[] = {60, 64, 67, 72};
    const double starts[] = {0.0, 0.14, 0.28, 0.42};
    int k = 0;
    while (k < 3 && t >= starts[k + 1]) ++k;
    const double local = t - starts[k];
    const double hold = k == 3 ? 0.6 : 0.12;
    const double env = Adsr(local, 0.02, 0.08, 0.7, 0.15, hold);
    const double hz = MidiHz(notes[k]);
    const double v = a.Saw(hz, R) + b.Saw(hz * 1.004, R) + 0.5 * c.Square(hz * 0.5, R);
    return 0.22 * env * lp.Low(v, 900 + 2500 * env, R);
  });
}

// 19: entry to a guild: a low gong under a held chord.
Samples GuildEntry() {
  Osc pad[3];
  OnePole lp;
  return Make(1.8, [&](double t) {
    const double gong = Bell(98, t, 1.2) * (1.0 + 0.3 * std::sin(kTwoPi * 3 * t));
    double chord = 0;
    const double notes[] = {55, 62, 67};
    for (int k = 0; k < 3; ++k) chord += pad[k].Saw(MidiHz(notes[k]), R);
    const double env = Adsr(t, 0.3, 0.3, 0.8, 0.6, 1.2);
    return 0.3 * gong + 0.12 * env * lp.Low(chord, 1200, R);
  });
}

// 20: countermeasures: a volley of chaff pops.
Samples Chaff() {
  Noise n(20);
  Svf f;
  return Make(0.8, [&](double t) {
    double v = 0;
    for (int k = 0; k < 5; ++k) {
      const double at = 0.12 * k;
      if (t >= at) v += Decay(t - at, 0.03);
    }
    return 0.7 * v * f.Run(n.Next(), 1500, 1.5, R).band;
  });
}

// 21: countermeasures: a jamming warble.
Samples Jammer() {
  Osc o, lfo;
  return Make(1.0, [&](double t) {
    const double hz = 900 + 500 * lfo.Square(14, R);
    return 0.3 * o.Square(hz, R, 0.3) * std::fmin(1.0, (1.0 - t) * 6) * std::fmin(1.0, t * 50);
  });
}

// 22: an opponent's beam: a falling zap.
Samples Zap() {
  Osc o, s;
  return Make(0.45, [&](double t) {
    const double hz = 300 + 2200 * Decay(t, 0.08);
    return 0.4 * (o.Square(hz, R, 0.25) * 0.6 + s.Sine(hz * 1.5, R) * 0.4) * Decay(t, 0.18);
  });
}

// 25: an opponent's missile: an ignition and a rushing tail.
Samples Missile() {
  Noise n(25);
  Svf f;
  Osc rumble;
  return Make(1.2, [&](double t) {
    const double bang = n.Next() * Decay(t, 0.02);
    const double rush = f.Run(n.Next(), 2500 - 1800 * (t / 1.2), 1.2, R).band * std::fmin(1.0, t * 10) * Decay(t, 0.5);
    return 0.6 * (bang + rush * 1.5 + 0.3 * rumble.Sine(60, R) * Decay(t, 0.4));
  });
}

// 27, 29, 31: hits on a hull: metal struck at three weights.
Samples Hit(double pitch, double weight, std::uint32_t seed) {
  Noise n(seed);
  OnePole lp;
  return Make(0.4 + 0.4 * weight, [&](double t) {
    const double metal = Bell(pitch, t, 0.15 + 0.2 * weight);
    const double burst = lp.Low(n.Next(), 1200 + 2000 * (1 - weight), R) * Decay(t, 0.05 + 0.1 * weight) * 2.5;
    return 0.4 * (0.5 * metal + burst);
  });
}

// 28: a component destroyed: a crunch and a shower of sparks.
Samples ComponentLost() {
  Noise n(28), sparks(282);
  OnePole lp, hp;
  return Make(1.1, [&](double t) {
    const double crunch = lp.Low(n.Next(), 700, R) * Decay(t, 0.12) * 3.0;
    double spark = 0;
    if (t > 0.1 && sparks.Unit() > 0.996) spark = sparks.Next() * 4.0 * Decay(t - 0.1, 0.4);
    return 0.5 * (crunch + hp.High(spark, 3000, R));
  });
}

// 33: the opponent explodes: a long rolling blast.
Samples Explosion() {
  Noise n(33);
  OnePole a, b;
  Osc sub;
  return Make(2.4, [&](double t) {
    const double crack = n.Next() * Decay(t, 0.03);
    const double body = a.Low(n.Next(), 150 + 1500 * Decay(t, 0.2), R) * Decay(t, 0.7) * 3.0;
    const double roll = b.Low(n.Next(), 80, R) * (0.5 + 0.5 * std::sin(kTwoPi * 5 * t)) * Decay(t, 0.9) * 5.0;
    return 0.55 * (crack + body + roll + 0.5 * sub.Sine(38, R) * Decay(t, 0.6));
  });
}

// Numbers the game leaves without a role: a soft neutral blip, each at its
// own pitch.
Samples Neutral(int number) {
  Osc o;
  const double hz = MidiHz(64 + number % 12);
  return Make(0.2, [&](double t) { return 0.35 * o.Triangle(hz, R) * Decay(t, 0.05) * std::fmin(1.0, t * 500); });
}

Samples SoundFor(int number) {
  switch (number) {
    case 1: return Refusal();
    case 2: return Chirp();
    case 3: return Clunk(95, 0.3, 3, 0.0);
    case 4: return Click();
    case 5: return Clunk(70, 0.55, 5, 1.0);
    case 6: return Static();
    case 7: return EnginesStop();
    case 8: return Klaxon();
    case 9: return AsteroidHit();
    case 10: return Whoosh();
    case 11: return Scanner();
    case 12: return CombatAlarm();
    case 13: return ServiceChime();
    case 17: return Fanfare();
    case 19: return GuildEntry();
    case 20: return Chaff();
    case 21: return Jammer();
    case 22: return Zap();
    case 25: return Missile();
    case 27: return Hit(420, 0.2, 27);
    case 28: return ComponentLost();
    case 29: return Hit(260, 0.6, 29);
    case 31: return Hit(180, 1.0, 31);
    case 33: return Explosion();
    default: return Neutral(number);
  }
}

}  // namespace

bool GenerateSounds(const std::string& folder) {
  for (int number = 1; number <= 33; ++number) {
    Samples s = SoundFor(number);
    Normalize(s, 0.8);
    Tail(s);
    const std::string file = folder + "/" + std::to_string(number) + ".wav";
    if (!WriteWav(file, s, kSoundRate)) {
      std::fprintf(stderr, "assetgen: cannot write %s\n", file.c_str());
      return false;
    }
  }
  return true;
}

}  // namespace assetgen
