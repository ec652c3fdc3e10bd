// The rule of each button of the officer pages, applied by CheckButton on a
// press that hits the button.
#pragma once

namespace lf {

// Applies the rule of button b of page p; false for a button without one
// (a blank plate), so that the press goes on to the next button.
bool ApplyButtonRule(int p, int b);

}  // namespace lf
