// The prompt strip at the foot of the bridge: passing lines, messages that
// hold the game until OK, yes-or-no questions, and second pages.
// A question and a message never stand together: each writer clears the other.
#pragma once

#include <string>

namespace lf {

// A passing line: the three strings, PromptAge = 0, the speaker's portrait.
void SetLine(const std::string& l1, const std::string& l2, const std::string& l3, double face);
// A message held until OK (lines 4..6 a second page when line 4 begins "_";
// given none, a second page already waiting stays). face < 0 leaves
// PromptFace as it is.
void SetMessage(const std::string& l1, const std::string& l2, const std::string& l3, double face = -1,
                const std::string& l4 = {}, const std::string& l5 = {}, const std::string& l6 = {});
// A yes-or-no question.
void SetQuestion(const std::string& l1, const std::string& l2, const std::string& l3, double face);

// The strip, each frame while a prompt is up or PromptAge >= 0.
void DrawText();
// The strip's answer buttons, on a bridge click while a prompt is up.
void CheckQuestion();
// All PromptFade to 0 and every line's first entry to 3.
void a_ClearTermScreen();
// Each frame of the station, event and fight screens: every letter whose
// left neighbour is above 0.3 brightens by 0.3, up to 3.
void a_AddToLetterCount();

}  // namespace lf
