// The fight's animations (shields, impacts, shots, the explosion) and the
// text panel with its letters fading in.
#include <algorithm>

#include "combat/fight_helpers.h"
#include "combat/fight_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {
namespace {

// Frame Int(anim) of a strip of frames side by side.
void DrawFrame(double anim, int x, int y, int w, int h, const Bitmap& b) {
  if (!(anim >= 0 && anim < 1000)) throw StatementFailed{};  // no such frame
  const int left = static_cast<int>(Int(anim)) * w;
  SetSrc(left, 0, left + w, h);
  BltFast(x, y, b, true);
}

// An animation of `frames` frames: one frame a drawn frame, then off.
void Play(double& anim, int frames, int x, int y, int w, int h, const Bitmap& b) {
  if (anim < 0) return;
  Skip([&] { DrawFrame(anim, x, y, w, h, b); });
  anim += 1;
  if (anim >= frames) anim = -1;
}

const Bitmap& ShotPicture() {
  static const Bitmap kNone;
  if (G.WeaponSelected < 1 || G.WeaponSelected > decltype(GFX.WeaponPicture)::kHi) return kNone;
  return GFX.WeaponPicture[G.WeaponSelected];
}

void Explosion() {
  G.OrderedRange = 0;
  G.EnemyRangeGoal = 0;
  if (G.FightRange != 0) return;  // the wreck falls back first
  if (G.AnimExplosion == 0) PlaySoundFx(33, 5);
  if (G.AnimExplosion < 50) Skip([] { DrawFrame(G.AnimExplosion, 218, 78, 200, 195, GFX.FightExplo); });
  G.AnimExplosion += 0.65;
  if (G.AnimExplosion >= 110) {
    G.AnimExplosion = -1;
    G.FightActive = False;
  }
}

void TextLine(int n, int y) {
  const std::string& line = G.FightLog[n];
  ForEachCell(line, [&](int k, int cell) {
    if (cell < 0) return;
    int w = 6;
    // The lower line fades in: a letter is twice its fade value wide.
    if (n == 2) Skip([&] { w = static_cast<int>(Int(std::clamp(2 * G.PromptFade[2][k], 0.0, 6.0))); });
    if (w <= 0) return;
    SetSrc(6 * cell, 0, 6 * cell + w, 6);
    BltFast(125 + 6 * k, y, GFX.FontVsml, true);
  });
}

}  // namespace

void d_DrawWeapon() {
  Play(G.AnimEnemyShield, 24, 208, 116, 230, 120, GFX.FightOShield);
  Play(G.AnimImpact, 14, 288, 146, 60, 60, GFX.FightImpact);
  if (G.AnimMissile >= 0) {
    Play(G.AnimMissile, 49, 118, 126, 270, 170, ShotPicture());
    if (G.AnimMissile < 0) d_CheckWeaponHit(1);
  }
  if (G.AnimBeam >= 0) {
    Skip([] { DrawFrame(G.AnimBeam, 318, 156, 200, 140, ShotPicture()); });
    G.AnimBeam += 1;
    if (G.AnimBeam == 14) d_CheckWeaponHit(2);
    if (G.AnimBeam >= 24) G.AnimBeam = -1;
  }
  Play(G.AnimOwnShield, 24, 118, 56, 400, 240, GFX.FightShield);
  if (G.AnimExplosion >= 0) Explosion();
}

void d_DrawFightTxt() {
  if (!G.FightLog[3].empty()) {
    G.FightLog[1] = G.FightLog[2];
    G.FightLog[2] = G.FightLog[3];
    G.FightLog[3].clear();
    a_ClearTermScreen();
  }
  auto both = [](const char* l1, const char* l2) {
    G.FightLog[1] = l1;
    G.FightLog[2] = l2;
  };
  if (G.FleeTimer > 0)
    both("  ... YOUR ATTEMPT TO FLEE FROM THE ENEMY THREAT ...", " ... SUCCEEDED SUFFERING JUST A MINOR HULL DAMAGE ...");
  if (G.SurrenderTimer > 0) both(" ... YOU HAVE SURRENDERED ...", " ... YOU HAVE SURRENDERED ...");
  if (G.AutodestructTimer > 0)
    both(" ... AUTODESTRUCTION SEQUENCE ENGAGED ...", " ... AUTODESTRUCTION SEQUENCE ENGAGED ...");
  // A wreck on its way to explode offers nothing: its victory lines stay.
  if (G.SurrenderOffered > 0 && G.AnimExplosion < 0)
    both(" ... THE OTHER SHIP IS OFFERING HIS SURRENDER! ...", " ... THE OTHER SHIP IS OFFERING HIS SURRENDER! ...");
  TextLine(1, 307);
  TextLine(2, 315);
}

void d_AddToLetterCount() {
  // From the last letter back, so that each frame lights one more letter.
  for (int n = 1; n <= 20; ++n) {
    auto& fade = G.PromptFade[n];
    for (int k = 200; k >= 1; --k)
      if (fade[k - 1] > 0.3) fade[k] = std::min(fade[k] + 1, 3.0);
  }
}

}  // namespace lf
