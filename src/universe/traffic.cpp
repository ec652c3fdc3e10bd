// The other ships at run time: each frame every ship may turn on the player
// or start a fight, a friendly Human trader may call, a ship that has
// reached its target picks a new course, ships fly, and the sensors draw
// what they see.
#include <algorithm>
#include <cmath>
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/comms.h"
#include "bridge/comms_texts.h"
#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "media/media.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"
#include "shell/screens.h"
#include "universe/catalogue.h"
#include "universe/universe_procedures.h"

namespace lf {

namespace {

bool Armed(ShipKind kind) { return kind == ShipKind::Military || kind == ShipKind::Pirate; }
bool InFlight() { return G.OrbitState == 0 || G.OrbitState == 1; }

// Steps 1 and 2: whether ship i hunts the player. A hostile or mission ship
// within 50 units of a flying player starts the fight (and the frame ends).
bool Chasing(int i, OtherShipRecord& s, ShipKind kind, int relation, double d) {
  bool chasing = false;
  if (d < G.SensorRange - 20 && G.InNebula == 0 && (s.Free == 0 || (relation < 35 && Armed(kind)))) {
    if (d < 50 && InFlight()) {
      G.FightShip = static_cast<std::int16_t>(i);
      G.MouseLook = False;
      d_FightLoop();
    }
    chasing = true;
  }
  if (s.Free == 0 && d < G.SensorRange) chasing = true;
  if (chasing) {
    // Its target becomes its own place, so that it picks a course at once.
    Assign(s.TargetX, s.X);
    Assign(s.TargetY, s.Y);
  }
  return chasing;
}

// Step 3: a friendly Human trader with goods calls the player once.
void TraderCall(int i, OtherShipRecord& s, int race, int relation, double d) {
  if (!(d < G.SensorRange - 20 && G.InNebula == 0 && relation >= 65 && s.ShipClass == 2 &&
        s.WantsTrade == True && G.HailedShip == 0 && ButtonState(2, 3) != 1 && NoPrompt() &&
        InFlight() && G.TranslatorOwned[race] == True))
    return;
  PlaySoundFx(1, 3);
  G.HailedShip = static_cast<std::int16_t>(i);
  PlayTrack(5);
  LoadOShipOSidePic();
  const auto& call = comms::kTraderCall;
  SetLine(std::string(call[0]), std::string(call[1]), std::string(call[2]), 2);
  if (s.InfoGiven != 0 && Rnd() * 2 < 0.25) s.InfoGiven = False;
  if (s.TradeInfoGiven != 0 && Rnd() * 2 < 0.25) s.TradeInfoGiven = False;
  G.OrbitState = 5;
  ButtonState(2, 8) = 1;
  G.MouseLook = False;
  MakePageOpen(2);
  s.WantsTrade = False;
}

void TargetAround(OtherShipRecord& s, double x, double y, double spread, double shift) {
  Assign(s.TargetX, x + Int(Rnd() * spread - shift));
  Assign(s.TargetY, y + Int(Rnd() * spread - shift));
}

// A random inhabited body; false when the quadrant has none.
const PlanetRecord* InhabitedBody() {
  const int bodies = std::clamp<int>(G.PlanetCount, 0, decltype(G.Planet)::kHi);
  bool any = false;
  for (int b = 1; b <= bodies && !any; ++b) any = G.Planet[b].Race != 0;
  if (!any) return nullptr;
  for (;;) {
    const PlanetRecord& p = G.Planet[RandomInt(bodies)];
    if (p.Race != 0) return &p;
  }
}

// Speed divisor by ship class: traders slowest, the two warship groups next.
double SpeedDivisor(int shipClass, ShipKind kind) {
  if (kind == ShipKind::Trader) return 2.2;
  switch (shipClass) {
    case 3: case 7: case 12: case 16: return 1.7;
    case 4: case 11: case 13: case 18: return 1.9;
    default: return 1;
  }
}

// Step 4: a new target, and the step towards it.
void NewCourse(OtherShipRecord& s, ShipKind kind, bool chasing, int relation) {
  const bool hunt = chasing && (relation <= 35 || s.Free == 0);
  switch (kind) {
    case ShipKind::Scout:
      Assign(s.TargetX, Int(Rnd() * 5000));
      Assign(s.TargetY, Int(Rnd() * 5000));
      break;
    case ShipKind::Trader:
      if (const PlanetRecord* p = InhabitedBody())
        TargetAround(s, p->X, p->Y, 50, 50);
      else  // a quadrant without a people: the trader roams as a scout
        TargetAround(s, 0, 0, 5000, 0);
      break;
    case ShipKind::Military:
    case ShipKind::Pirate:
      if (hunt) {
        Assign(s.TargetX, G.ShipX + 10);
        Assign(s.TargetY, G.ShipY + 6);
      } else if (kind == ShipKind::Military) {
        TargetAround(s, s.HomeX, s.HomeY, 250, 125);
      } else {
        TargetAround(s, s.HomeX, s.HomeY, 1000, 500);
      }
      break;
    default: return;
  }
  if (s.TargetX != s.X) s.StepX = (s.TargetX - s.X) / 100;
  if (s.TargetY != s.Y) s.StepY = (s.TargetY - s.Y) / 100;
  const double larger = std::max(std::abs(s.StepX), std::abs(s.StepY));
  if (larger > 0) {
    s.StepX /= larger;
    s.StepY /= larger;
  }
  const double divisor = SpeedDivisor(s.ShipClass, kind);
  s.StepX /= divisor;
  s.StepY /= divisor;
}

bool Frozen() {
  return G.OrbitState >= 3 || ButtonState(3, 4) == 1 || ButtonState(2, 1) == 1 || PromptUp();
}

// Step 5: each axis is stepped in two halves, each behind a guard against
// one edge. A ship that meets an edge takes its place there as its target on
// that axis and stays on the edge, so it picks a new course at once.
void Fly(OtherShipRecord& s) {
  const double size = G.SectorSize;
  if (s.X > 0) s.X += s.StepX; else Assign(s.TargetX, s.X);
  if (s.X < size) s.X += s.StepX; else Assign(s.TargetX, s.X);
  if (s.Y < size) s.Y += s.StepY; else Assign(s.TargetY, s.Y);
  if (s.Y > 0) s.Y += s.StepY; else Assign(s.TargetY, s.Y);
  if (s.X < 0 || s.X > size) {
    s.X = std::clamp(s.X, 0.0, size);
    Assign(s.TargetX, s.X);
  }
  if (s.Y < 0 || s.Y > size) {
    s.Y = std::clamp(s.Y, 0.0, size);
    Assign(s.TargetY, s.Y);
  }
}

// Step 6: what the sensors see. An identified ship shows its class.
void DrawSeen(const OtherShipRecord& s) {
  if (s.ShipClass == 19) return;  // no picture of its own
  const Bitmap& picture = GFX.ShipPicture[s.Identified == True ? s.ShipClass : 0];
  const int left = CInt(300 + s.X - Int(G.ViewX) - 15);
  const int top = CInt(125 + s.Y - G.ViewY - 10);
  DrawClipped(left, top, 30, 20, 0, 0, picture);
}

void StepShip(int i) {
  OtherShipRecord& s = G.OtherShip[i];
  const ShipClassInfo info = ClassInfo(s.ShipClass);
  const double d = std::hypot(s.X - G.ShipX, s.Y - G.ShipY);
  // A row without a ship of the catalogue only drifts.
  if (info.Race != 0) {
    const int relation = G.RaceRelation[info.Race];
    const bool chasing = Chasing(i, s, info.Kind, relation, d);
    TraderCall(i, s, info.Race, relation, d);
    if (std::hypot(s.X - s.TargetX, s.Y - s.TargetY) < 5) NewCourse(s, info.Kind, chasing, relation);
  }
  if (!Frozen()) Fly(s);
  if (info.Race != 0 && d < G.SensorRange && G.SensorLevel >= 100 && G.InNebula == 0) DrawSeen(s);
}

}  // namespace

void DrawOtherShips() {
  const int last = std::min<int>(G.OtherShipCount, decltype(G.OtherShip)::kHi);
  for (int i = 1; i <= last; ++i) Skip([i] { StepShip(i); });
}

}  // namespace lf
