#include "platform/folders.h"

#include <filesystem>
#include <system_error>

namespace lf {

std::string ChooseDataFolder(const std::optional<std::string>& option, const char* envData,
                             const std::string& exeDir, const std::function<bool(const std::string&)>& isDir) {
  if (option) return *option;
  if (envData && *envData) return envData;
  if (!exeDir.empty()) {
    for (const char* beside : {"/data", "/../share/lanefarer"}) {
      const std::string candidate = exeDir + beside;
      if (isDir(candidate)) return candidate;
    }
  }
  return "data";
}

std::string ChooseSaveFolder(const std::optional<std::string>& option, const char* xdgDataHome, const char* home) {
  if (option) return *option;
  if (xdgDataHome && xdgDataHome[0] == '/') return std::string(xdgDataHome) + "/lanefarer/save";
  if (home && *home) return std::string(home) + "/.local/share/lanefarer/save";
  return "save";
}

std::string ExecutableDir(const char* argv0) {
  std::error_code ec;
  auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  if (ec && argv0) exe = std::filesystem::absolute(argv0, ec);
  if (ec || exe.empty()) return {};
  return exe.parent_path().string();
}

}  // namespace lf
