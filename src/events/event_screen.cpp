// The event screen: entering an event, and each pass of its loop: the
// background, the node's picture, six lines of text typing themselves out,
// the replies with the one under the cursor lit, the cursor.
#include <string>

#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "events/event_effects.h"
#include "events/events_procedures.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "shell/screens.h"

namespace lf {
namespace {

constexpr int kTextTop = 15;
constexpr int kReplyTop = 410;
constexpr int kLineHeight = 9;
// The reply under the cursor takes the font's chosen colour, whose band
// starts at row 64 and fades in like the plain one.
constexpr int kLitRow = 64;

int RunningEvent() { return G.StatusSlot[EventSlot].Value; }

// The running event's node stands in its script.
bool NodeStands() {
  const int e = RunningEvent();
  if (e < 1 || e > 18) return false;
  return FindNodeRule(e, G.EventScript[e].Node) != nullptr;
}

// Letter i of a line at (25 + 6i, y) from the band that starts at row
// `band`, at the letter's fade; a letter not yet lit is not drawn.
void DrawLine(const std::string& line, int fadeLine, int y, int band) {
  ForEachCell(line, [&](int i, int cell) {
    if (cell < 0) return;
    Skip([&] {
      const double fade = G.PromptFade[fadeLine][i];
      if (fade <= 1) return;
      const int top = band + CInt((fade - 1) * 8);
      SetSrc(cell * 8, top, cell * 8 + 8, top + 8);
      BltFast(25 + i * 6, y, GFX.StationFontOcr, true);
    });
  });
}

}  // namespace

void c_EnterEvent() {
  Skip(DefineEventTextAndTemplate);
  const int e = RunningEvent();
  Skip([e] { G.EventScript[e].Node = 1; });
  G.EventActive = True;
  GFX.EventPicture = LoadBitmapIntoDXS("\\gfx\\events\\" + std::to_string(e) + "\\1.bmp");
  GFX.EventBackground = LoadBitmapIntoDXS("\\gfx\\events\\back.bmp");
  GFX.StationFontOcr = LoadBitmapIntoDXS("\\gfx\\station\\a_fonts\\ocr.bmp");
  GFX.StationFontOcr.KeepPlainRows();
  a_ClearTermScreen();
  c_EventLoop();
}

void c_DrawBackground() {
  SetSrc(0, 0, 640, 480);
  BltFast(0, 0, GFX.EventBackground, false);
}

void c_DrawEventPic() {
  SetSrc(0, 0, 640, 320);
  BltFast(0, 80, GFX.EventPicture, false);
}

void c_DrawDescText() {
  const StoryEvent& script = G.EventScript[RunningEvent()];
  const auto& text = script.Text[script.Node];
  for (int l = 1; l <= 6; ++l) DrawLine(text[l], l, kTextTop + (l - 1) * kLineHeight, 0);
}

void c_DrawResponces() {
  ReadCursor();
  const StoryEvent& script = G.EventScript[RunningEvent()];
  const auto& reply = script.Reply[script.Node];
  const auto& marks = script.ReplyStart[script.Node];
  const int lit = EventChoiceAt(G.MouseY);
  for (int l = 1; l <= 6; ++l) {
    const bool inLit = lit != 0 && marks[lit] <= l && l < marks[lit + 1];
    DrawLine(reply[l], 6 + l, kReplyTop + (l - 1) * kLineHeight, inLit ? kLitRow : 0);
  }
}

int EventChoiceAt(int y) {
  int choice = 0;
  Skip([&] {
    const StoryEvent& script = G.EventScript[RunningEvent()];
    const auto& marks = script.ReplyStart[script.Node];
    for (int k = 1; k <= 5 && marks[k + 1] != 0; ++k) {
      if (y > kReplyTop + (marks[k] - 1) * kLineHeight && y < kReplyTop + (marks[k + 1] - 1) * kLineHeight) {
        choice = k;
        return;
      }
    }
  });
  return choice;
}

void c_EventLoopFrame() {
  if (!NodeStands()) LeaveEventForBridge();
  Skip(c_DrawBackground);
  Skip(c_DrawEventPic);
  Skip(c_DrawDescText);
  Skip(c_DrawResponces);
  Skip(a_DrawCursor);
  a_AddToLetterCount();
  FlipBuffers();
  Yield();
}

}  // namespace lf
