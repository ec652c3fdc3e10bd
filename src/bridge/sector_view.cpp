// The far backdrop of the sector view, and the nebulas and asteroid fields
// with what they do to a ship inside them.
#include <algorithm>
#include <cmath>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/later_procedures.h"
#include "shell/death.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

void DrawQuadBack() {
  if (G.SectorSize == 0) return;  // the division fails: nothing is drawn
  const int left = CInt(Int(600 * G.ViewX / G.SectorSize));
  const int top = CInt(Int(760.0 * G.ViewY / G.SectorSize));
  SetSrc(left, top, left + 400, top + 240);
  BltFast(121, 25, GFX.Back2, true);
}

namespace {

void DrawNebulaLayer() {
  const int last = std::min<int>(G.NebulaCount, decltype(G.Nebula)::kHi);
  for (int i = 1; i <= last; ++i) {
    const NebulaRecord& n = G.Nebula[i];
    Skip([&] {
      const Bitmap& picture = GFX.NebulaPicture[n.Kind];
      DrawClipped(CInt(AnchorX(n.X)), CInt(AnchorY(n.Y)), 400, 240, 0, 0, picture);
    });
    if (n.X + 50 < G.ShipX && G.ShipX < n.X + 350 && n.Y + 50 < G.ShipY && G.ShipY < n.Y + 190) {
      G.InNebula = True;
      G.ShieldLevel = 0;
    }
  }
}

// The hull's loss in a field, and death when it is gone.
void AsteroidDamage() {
  const bool spared = PromptUp() || G.OrbitState == 3 || G.OrbitState == 6 || OfficerSkill(1) > 3;
  if (!spared) {
    G.HullPoints -= 3;
    if (Rnd() < 0.1) PlaySoundFx(9, 5);
  }
  if (G.HullPoints <= 0) {
    G.HullPoints = 0;
    G.StatusSlot[DeadSlot].Active = True;
    G.StatusSlot[DeadSlot].Value = 1;
    EventHandler();
  }
}

}  // namespace

void DrawNebulas() {
  G.InNebula = False;
  DrawNebulaLayer();

  G.AsteroidFrame += 0.5;
  if (G.AsteroidFrame > 35) G.AsteroidFrame = 0;
  bool inField = false;
  const int last = std::min<int>(G.AsteroidFieldCount, decltype(G.AsteroidField)::kHi);
  for (int i = 1; i <= last; ++i) {
    const AsteroidFieldRecord& f = G.AsteroidField[i];
    DrawClipped(CInt(AnchorX(f.X)), CInt(AnchorY(f.Y)), 200, 200,
                200 * static_cast<int>(Int(G.AsteroidFrame)), 0, GFX.AsteroidFieldPicture);
    if (f.X + 20 < G.ShipX && G.ShipX < f.X + 180 && f.Y + 20 < G.ShipY && G.ShipY < f.Y + 180) {
      inField = true;
      AsteroidDamage();
    }
  }
  if (inField && G.InAsteroids == False) {
    G.InAsteroids = True;
    PlaySoundFx(2, 2);
    SetMessage("",
               OfficerSkill(1) <= 3 ? "WE ARE IN AN ASTEROID FIELD!"
                                    : "WE ARE MANOUVERING THROUGH THE ASTEROID FIELD!",
               "", 1);
  }
  if (!inField) G.InAsteroids = False;
}

}  // namespace lf
