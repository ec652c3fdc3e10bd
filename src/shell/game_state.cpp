#include "shell/game_state.h"

#include <memory>

namespace lf {

namespace {
std::unique_ptr<Game> g_instance = std::make_unique<Game>();
}  // namespace

Game& G = *g_instance;

void ResetGame() {
  // Built on the heap: the record is too large to pass through the stack.
  auto fresh = std::make_unique<Game>();
  G = std::move(*fresh);
}

double Rnd() { return NextRandom(G.Random); }

int RandomInt(int n) { return static_cast<int>(Int(Rnd() * n)) + 1; }

}  // namespace lf
