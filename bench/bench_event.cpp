// The story event screen: one frame of its loop with the letters typing and
// a reply lit, and the entry into an event (the scripts written anew, the
// picture, background and font read). With LANEFARER_DATA set to a
// generated data folder the pictures are real.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "display/screen.h"
#include "events/events_procedures.h"
#include "shell/game_state.h"
#include "shell/host.h"
#include "shell/paths.h"
#include "shell/prompts.h"
#include "shell/screens.h"

namespace {

lf::ScriptedHost g_host;

template <class F>
void Enter(F loop) {
  try {
    loop();
  } catch (const lf::ScreenChange&) {
  }
}

void RaiseEvent(int e) {
  if (const char* data = std::getenv("LANEFARER_DATA")) lf::SetDataFolder(data);
  lf::ResetGame();
  lf::ResetScreens();
  lf::SetHost(&g_host);
  lf::InicializeDirectDraw();
  lf::G.StatusSlot[lf::EventSlot].Active = lf::True;
  lf::G.StatusSlot[lf::EventSlot].Value = static_cast<std::int16_t>(e);
  lf::G.EventActive = lf::True;
}

void BM_EventFrame(benchmark::State& state) {
  RaiseEvent(1);
  g_host.cursorX = 320;
  g_host.cursorY = 414;  // over the first reply
  Enter(lf::c_EnterEvent);
  int frames = 0;
  for (auto _ : state) {
    if (++frames % 120 == 0) lf::a_ClearTermScreen();  // keep the letters typing
    lf::RunNextFrame();
  }
}
BENCHMARK(BM_EventFrame)->Repetitions(5)->ReportAggregatesOnly(true);

void BM_EnterEvent(benchmark::State& state) {
  RaiseEvent(10);
  for (auto _ : state) Enter(lf::c_EnterEvent);
}
BENCHMARK(BM_EnterEvent)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

}  // namespace
