// The two guards that recur in the bridge's rules, and a button's state.
#pragma once

#include <cstdint>

#include "shell/game_state.h"

namespace lf {

// No prompt: neither a question nor a message holds the strip.
inline bool NoPrompt() { return G.QuestionPending == 0 && G.MessagePending == 0; }
inline bool PromptUp() { return !NoPrompt(); }
// Free bridge: no prompt and no hail.
inline bool FreeBridge() { return NoPrompt() && G.HailedShip == 0; }

// State of button b of officer page p: 0 idle, 1 on, 2 unavailable.
inline std::int16_t& ButtonState(int p, int b) { return G.BridgeButton[p][b].State; }

}  // namespace lf
