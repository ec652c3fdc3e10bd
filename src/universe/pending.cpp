// Universe procedures not written yet.
#include "universe/universe_procedures.h"

namespace lf {

}  // namespace lf
