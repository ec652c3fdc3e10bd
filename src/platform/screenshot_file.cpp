#include "platform/screenshot_file.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "display/png_writer.h"

namespace lf {

std::optional<std::string> ScreenshotFolder(const char* xdgPictures, const char* xdgDataHome, const char* home) {
  if (xdgPictures && xdgPictures[0] == '/') return std::string(xdgPictures) + "/lanefarer";
  if (xdgDataHome && xdgDataHome[0] == '/') return std::string(xdgDataHome) + "/lanefarer/screenshots";
  if (home && home[0] == '/') return std::string(home) + "/.local/share/lanefarer/screenshots";
  return std::nullopt;
}

std::string ScreenshotName(const std::tm& when) {
  char buf[64];
  std::strftime(buf, sizeof buf, "lanefarer-%Y%m%d-%H%M%S", &when);
  return std::string(buf) + ".png";
}

bool WriteScreenshot(const std::uint16_t* frame, std::string& where) {
  namespace fs = std::filesystem;
  const auto folder = ScreenshotFolder(std::getenv("XDG_PICTURES_DIR"), std::getenv("XDG_DATA_HOME"),
                                       std::getenv("HOME"));
  if (!folder) {
    where = "no folder for screenshots (HOME is not set)";
    return false;
  }
  std::error_code ec;
  fs::create_directories(*folder, ec);
  if (ec || !fs::is_directory(*folder, ec)) {
    where = "cannot make the folder " + *folder;
    return false;
  }
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const std::string name = ScreenshotName(local);
  fs::path file = fs::path(*folder) / name;
  for (int n = 2; fs::exists(file, ec) && n < 1000; ++n)
    file = fs::path(*folder) / (name.substr(0, name.size() - 4) + "-" + std::to_string(n) + ".png");
  if (!WritePng(file.string(), frame, 640 * 2)) {
    where = "cannot write " + file.string();
    return false;
  }
  where = file.string();
  return true;
}

}  // namespace lf
