#include "shell/paths.h"

#include <cctype>
#include <cstdio>
#include <set>

namespace lf {
namespace {
std::string g_data = "data";
bool g_verbose = false;
std::set<std::string> g_reported;
}  // namespace

void SetDataFolder(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  g_data = std::move(folder);
}
const std::string& DataFolder() { return g_data; }

std::string DataPath(std::string_view gamePath) {
  std::string out = g_data;
  if (!gamePath.empty() && gamePath.front() != '\\' && gamePath.front() != '/') out += '/';
  for (char c : gamePath) {
    if (c == '\\') c = '/';
    out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return out;
}

void SetVerbose(bool on) { g_verbose = on; }
bool Verbose() { return g_verbose; }

bool ReportWouldBeSilent(const std::string& file) { return !g_verbose || g_reported.count(file) != 0; }

void ReportMissing(const std::string& file, std::string_view why) {
  if (!g_verbose || !g_reported.insert(file).second) return;
  std::fprintf(stderr, "lanefarer: %s: %.*s\n", file.c_str(), static_cast<int>(why.size()), why.data());
}

}  // namespace lf
