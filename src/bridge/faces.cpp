// The six officers' faces beside the view, and the press that opens or
// closes an officer's page.
#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"

namespace lf {

namespace {

bool PostFilled(int post) {
  const CrewPostRecord& crew = G.CrewPost[post];
  return crew.Health > 2 && crew.Person != 0;
}

}  // namespace

void DrawFaces() {
  for (int post = 1; post <= 6; ++post) {
    Skip([post] {
      const CrewPostRecord& crew = G.CrewPost[post];
      const Bitmap* face = &GFX.ComputerFace[post];
      if (PostFilled(post)) {
        if (crew.Quarantined == 0) face = &GFX.CharacterFace[crew.Person];
      } else {
        // An empty post, or an officer who has lost his skill for good.
        G.Character[crew.Person].Skill = 1;
      }
      const int left = G.PageOpen[post] * 80;
      SetSrc(left, 0, left + 80, 100);
      BltFast(G.FaceX[post], G.FaceY[post], *face, false);
    });
  }
}

void CheckFace() {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;
  if (!((x > 0 && x < 120) || (x > 520 && x < 640))) return;
  for (int post = 1; post <= 6; ++post) {
    const int left = G.FaceX[post], top = G.FaceY[post];
    if (!(x > left && x < left + G.FaceWidth[post] && y > top && y < top + G.FaceHeight[post]))
      continue;
    PlaySoundFx(4, 1);
    if (G.PageOpen[post] != 0) {
      G.PageOpen[post] = 0;
      for (int b = 1; b <= 10; ++b) G.BridgeButton[post][b].Visible = False;
    } else {
      G.PageOpen[post] = 1;
      for (int b = 1; b <= 10; ++b)
        if (G.BridgeButton[post][b].Present != 0) G.BridgeButton[post][b].Visible = True;
      const int line = PostFilled(post) ? RandomInt(3) : 0;
      SetLine("", G.OfficerLine[post][line], "", post);
    }
    for (int other = 1; other <= 6; ++other)
      if (other != post) G.PageOpen[other] = 0;
    return;
  }
}

}  // namespace lf
