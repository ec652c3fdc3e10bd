#include "shell/program.h"

#include "shell/menu.h"
#include "shell/screens.h"
#include "shell/table.h"

namespace lf {

void BeginProgram() {
  ResetScreens();
  try {
    Form_Load();
  } catch (const ScreenChange&) {
  } catch (const StatementFailed&) {
  }
}

int RunProgram() {
  try {
    BeginProgram();
    for (;;) RunNextFrame();
  } catch (const ProgramEnd& end) {
    return end.status;
  }
}

}  // namespace lf
