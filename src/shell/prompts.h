// The prompt strip at the foot of the bridge: passing lines, messages that
// hold the game until OK, yes-or-no questions, and second pages.
#pragma once

#include <string>

namespace lf {

// A passing line: the three strings, PromptAge = 0, the speaker's portrait.
void SetLine(const std::string& l1, const std::string& l2, const std::string& l3, double face);
// A message held until OK (lines 4..6 a second page when line 4 begins "_").
// face < 0 leaves PromptFace as it is.
void SetMessage(const std::string& l1, const std::string& l2, const std::string& l3, double face = -1,
                const std::string& l4 = {}, const std::string& l5 = {}, const std::string& l6 = {});
// A yes-or-no question.
void SetQuestion(const std::string& l1, const std::string& l2, const std::string& l3, double face);

void DrawText();
void CheckQuestion();
// All PromptFade to 0 and every line's first entry to 3.
void a_ClearTermScreen();

}  // namespace lf
