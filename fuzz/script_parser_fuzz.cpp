// The headless driver's script parser.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    for (const lf::ScriptCommand& c : lf::ParseScript(text)) {
      // Every command keeps to the ranges the driver relies on.
      if (c.line < 1 || c.x < 0 || c.x > 639 || c.y < 0 || c.y > 479 || c.count < 0 ||
          c.count > lf::kMaxScriptFrames)
        std::abort();
    }
  } catch (const lf::ScriptError& e) {
    if (e.line < 1 || e.what.empty()) std::abort();
  }
  return 0;
}
