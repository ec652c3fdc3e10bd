#include "shell/data_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace lf {
namespace {

std::optional<std::vector<std::uint8_t>> Refuse(std::string* why, std::string text) {
  if (why) *why = std::move(text);
  return std::nullopt;
}

struct FileCloser {
  int fd;
  ~FileCloser() {
    if (fd >= 0) ::close(fd);
  }
};

}  // namespace

std::optional<std::vector<std::uint8_t>> ReadDataFile(const std::string& file, std::size_t maxBytes,
                                                      std::string* why) {
  // Not blocking: opening a FIFO for reading would otherwise wait for a
  // writer before the check below could refuse it.
  const int fd = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) return Refuse(why, errno == ENOENT ? "missing" : std::string("cannot be opened: ") + std::strerror(errno));
  const FileCloser closer{fd};
  struct stat st {};
  if (::fstat(fd, &st) != 0) return Refuse(why, std::string("cannot be read: ") + std::strerror(errno));
  if (!S_ISREG(st.st_mode)) return Refuse(why, "not a regular file");
  if (st.st_size < 0 || static_cast<unsigned long long>(st.st_size) > maxBytes)
    return Refuse(why, "larger than any file the game reads (" + std::to_string(st.st_size) + " bytes)");
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(st.st_size));
  std::size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t n = ::read(fd, bytes.data() + got, bytes.size() - got);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return Refuse(why, std::string("cannot be read: ") + std::strerror(errno));
    if (n == 0) break;  // the file shrank while being read
    got += static_cast<std::size_t>(n);
  }
  bytes.resize(got);
  return bytes;
}

bool IsRegularFile(const std::string& file) {
  struct stat st {};
  return ::stat(file.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

}  // namespace lf
