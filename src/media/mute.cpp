#include "media/mute.h"

namespace lf {
namespace {
bool g_muted = false;
}  // namespace

void SetMuted(bool on) { g_muted = on; }
bool Muted() { return g_muted; }

}  // namespace lf
