// A notice on the terminal: its lines replace the text, which types itself
// out anew, and TermPrompt names what the OK does next.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace lf {

// Sound 4 on channel 1, the lines, TermPrompt = prompt, the text cleared
// so that it types itself out.
void ShowNotice(std::int16_t prompt, std::initializer_list<std::string> lines);

// Takes up to `sum` from Cash, never below 0; returns what was taken.
double TakeCash(double sum);

// Yes to the medical question: the infected are treated and billed.
void a_TreatInfectedCrew();

}  // namespace lf
