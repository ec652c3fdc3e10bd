// Universe procedures not written yet.
#include "universe/universe_procedures.h"

namespace lf {

// Other ships: filled by the other ships' rules.
void DrawOtherShips() {}

}  // namespace lf
