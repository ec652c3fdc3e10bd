#include "display/blit_observer.h"

namespace lf {

BlitObserver g_blit_observer = nullptr;

}  // namespace lf
