#include "shell/call_trace.h"

#include "shell/table.h"

namespace lf {
namespace {
CallProbe g_probe = nullptr;
}  // namespace

void SetCallProbe(CallProbe probe) { g_probe = probe; }

void TraceCall(const char* name) {
  if (g_probe) g_probe(name);
}

void Call(const char* name, void (*procedure)()) {
  TraceCall(name);
  Skip(procedure);
}

}  // namespace lf
