#include "shell/save_folder.h"

namespace lf {
namespace {
std::string g_save = "save";
}

void SetSaveFolder(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  g_save = std::move(folder);
}
const std::string& SaveFolder() { return g_save; }

}  // namespace lf
