#include "shell/prompts.h"

#include <algorithm>

#include "display/bitmap_sets.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/screens.h"

namespace lf {
namespace {

constexpr int kStripX = 60;       // first letter of a line
constexpr int kStripY = 422;      // line 1
constexpr int kLineSpacing = 15;
constexpr int kLetter = 8;        // cells of font_sml
constexpr int kSecondColour = 128;
constexpr int kPassingFrames = 150;

bool PromptUp() { return G.QuestionPending != 0 || G.MessagePending != 0; }

void ClearLines(int from, int to) {
  for (int n = from; n <= to; ++n) G.PromptLine[n].clear();
}

// Inside the 40x40 answer button at (left, 420), strictly.
bool OnAnswerButton(int left) {
  return G.MouseX > left && G.MouseX < left + 40 && G.MouseY > 420 && G.MouseY < 460;
}

void DrawButton(int x, const Bitmap& bitmap) {
  SetSrc(0, 0, 40, 40);
  BltFast(x, 420, bitmap, true);
}

// Letter k of a line lights once the one before it has passed 4.
void FadeLine(int n) {
  G.PromptFade[n][0] = 15;
  const int length = CodePointCount(G.PromptLine[n]);
  for (int k = 1; k <= length; ++k) {
    Skip([&] {
      double& fade = G.PromptFade[n][k];
      if (G.PromptFade[n][k - 1] > 4) fade = std::min(fade + 3, 15.0);
    });
  }
}

void DrawLine(int n) {
  const std::string& line = G.PromptLine[n];
  const int colour = FirstCodePoint(line) == U' ' ? kSecondColour : 0;
  const int y = kStripY + kLineSpacing * (n - 1);
  ForEachCell(line, [&](int k, int cell) {
    if (cell < 0) return;  // a blank, or a character outside the set
    Skip([&] {
      const int left = kLetter * static_cast<int>(Int(G.PromptFade[n][k])) + colour;
      SetSrc(left, kLetter * cell, left + kLetter, kLetter * cell + kLetter);
      BltFast(kStripX + kLetter * (k - 1), y, GFX.FontSml, true);
    });
  });
}

}  // namespace

void SetLine(const std::string& l1, const std::string& l2, const std::string& l3, double face) {
  G.PromptLine[1] = l1;
  G.PromptLine[2] = l2;
  G.PromptLine[3] = l3;
  G.PromptAge = 0;
  G.PromptFace = face;
}

void SetMessage(const std::string& l1, const std::string& l2, const std::string& l3, double face,
                const std::string& l4, const std::string& l5, const std::string& l6) {
  G.PromptLine[1] = l1;
  G.PromptLine[2] = l2;
  G.PromptLine[3] = l3;
  G.PromptLine[4] = l4;
  G.PromptLine[5] = l5;
  G.PromptLine[6] = l6;
  G.MessagePending = True;
  G.QuestionPending = False;
  G.PromptAge = -1;
  if (face >= 0) G.PromptFace = face;
}

void SetQuestion(const std::string& l1, const std::string& l2, const std::string& l3, double face) {
  G.PromptLine[1] = l1;
  G.PromptLine[2] = l2;
  G.PromptLine[3] = l3;
  G.QuestionPending = True;
  G.MessagePending = False;
  G.PromptFace = face;
}

void DrawText() {
  if (!PromptUp()) {
    G.PromptAge += 1;
    if (G.PromptAge >= kPassingFrames) {
      ClearLines(1, 3);
      G.PromptAge = 0;
      G.PromptFace = 0;
    }
  }
  for (int n = 1; n <= 3; ++n) {
    FadeLine(n);
    DrawLine(n);
  }
  if (G.MessagePending == True) {
    G.MouseLook = False;
    DrawButton(560, GFX.Yes);
  }
  if (G.QuestionPending == True) {
    G.MouseLook = False;
    DrawButton(560, GFX.No);
    DrawButton(490, GFX.Yes);
  }
  if (G.PromptFace != 0) {
    Skip([] {
      const Bitmap& portrait = GFX.PromptPortrait[CInt(G.PromptFace)];
      SetSrc(0, 0, 34, 42);
      BltFast(17, 420, portrait, true);
    });
  }
}

void CheckQuestion() {
  if (G.QuestionPending == True) {
    if (OnAnswerButton(490)) {
      PlaySoundFx(4, 1);
      ClearLines(1, 3);
      G.TimeStep = 0.1;
      if (G.OrbitState == 1) {
        G.OrbitState = 2;
        LoadOrbitPic();
        G.FollowMode = 0;
        G.FollowShip = 0;
      }
      G.OrbitOfferOpen = False;
      G.QuestionPending = False;
    } else if (OnAnswerButton(560)) {
      PlaySoundFx(8, 1);
      G.QuestionPending = False;
      ClearLines(1, 3);
      G.OrbitOfferOpen = False;
      G.TimeStep = 0.1;
    }
  }
  if (G.MessagePending == True) {
    ReadCursor();
    if (!OnAnswerButton(560)) return;
    PlaySoundFx(4, 1);
    G.ScanRequested = False;
    if (FirstCodePoint(G.PromptLine[4]) == U'_') {
      for (int n = 1; n <= 3; ++n) G.PromptLine[n] = std::move(G.PromptLine[n + 3]);
      ClearLines(4, 6);
      G.MessagePending = True;
      G.QuestionPending = False;
      G.PromptAge = -1;
    } else {
      ClearLines(1, 3);
      G.MessagePending = False;
    }
    G.TimeStep = 0.1;
    a_ClearTermScreen();
    const StatusRecord& dead = G.StatusSlot[DeadSlot];
    if (dead.Active == True && dead.Value == 1) {
      G.MenuActive = True;
      DrawMainMenu();
    }
  }
}

void a_ClearTermScreen() {
  for (auto& line : G.PromptFade) {
    line.Items.fill(0);
    line[0] = 3;
  }
}

void a_AddToLetterCount() {
  for (int l = 1; l <= 20; ++l) {
    auto& fade = G.PromptFade[l].Items;
    for (std::size_t k = 1; k < fade.size(); ++k)
      if (fade[k - 1] > 0.3) fade[k] = std::min(3.0, fade[k] + 0.3);
  }
}

}  // namespace lf
