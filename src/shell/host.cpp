#include "shell/host.h"

namespace lf {
namespace {
ScriptedHost g_default_host;
Host* g_host = &g_default_host;
}  // namespace

Host& CurrentHost() { return *g_host; }
void SetHost(Host* host) { g_host = host ? host : &g_default_host; }

}  // namespace lf
