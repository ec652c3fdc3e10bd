#include "shell/save_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace lf {
namespace {

namespace fs = std::filesystem;

int g_faultStep = -1;
int g_faultError = 0;
int g_steps = 0;

// A crash injected by a test: the save stops where it stands.
struct InjectedCrash {};

// Counts a step; fails it when a fault is injected there.
int Step() {
  const int n = g_steps++;
  if (n != g_faultStep) return 0;
  if (g_faultError == 0) throw InjectedCrash{};
  return g_faultError;
}

struct SaveFailure {
  int error;
};
void Check(int error) {
  if (error != 0) throw SaveFailure{error};
}
int Errno(bool ok) { return ok ? 0 : (errno != 0 ? errno : EIO); }

int WriteAll(int fd, const std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    done += static_cast<std::size_t>(n);
  }
  return 0;
}

// An open file that is closed when it goes out of scope.
struct OpenFile {
  int fd = -1;
  OpenFile() = default;
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (fd >= 0) ::close(fd);
  }
};

void WriteFile(OpenFile& file, const fs::path& path, const std::string& text) {
  Check(Step());
  file.fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  Check(Errno(file.fd >= 0));
  Check(WriteAll(file.fd, text));
}

void Close(OpenFile& file) {
  const int error = Errno(::close(file.fd) == 0);
  file.fd = -1;
  Check(error);
}

void SyncFolder(const fs::path& path) {
  Check(Step());
  const int fd = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Check(Errno(fd >= 0));
  const int error = Errno(::fsync(fd) == 0);
  ::close(fd);
  Check(error);
}

// The files' contents and the new folder reach the disk in one flush of the
// file system they stand on, rather than one wait for each file.
void SyncFiles(const fs::path& folder) {
  Check(Step());
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Check(Errno(fd >= 0));
  const int error = Errno(::syncfs(fd) == 0);
  ::close(fd);
  Check(error);
}

void Rename(const fs::path& from, const fs::path& to) {
  Check(Step());
  Check(Errno(::rename(from.c_str(), to.c_str()) == 0));
}

fs::path NewFolder(const fs::path& folder) { return folder.string() + ".new"; }
fs::path OldFolder(const fs::path& folder) { return folder.string() + ".old"; }

bool IsFolder(const fs::path& p) {
  std::error_code ec;
  return fs::is_directory(fs::symlink_status(p, ec)) || fs::is_directory(p, ec);
}
bool Exists(const fs::path& p) {
  std::error_code ec;
  return fs::exists(fs::symlink_status(p, ec));
}

// Finishes a swap a crash interrupted. The old folder is moved aside only
// once the new one is complete, so with the save folder gone the new one
// goes in; with no new one left, the old one comes back.
void Recover(const fs::path& folder) {
  std::error_code ec;
  if (Exists(folder)) return;
  if (!IsFolder(OldFolder(folder))) return;
  if (IsFolder(NewFolder(folder)))
    fs::rename(NewFolder(folder), folder, ec);
  else
    fs::rename(OldFolder(folder), folder, ec);
}

std::string SaveMessage(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return "POSITION NOT SAVED: THE DISK IS FULL.";
    case EACCES:
    case EPERM:
    case EROFS:
      return "POSITION NOT SAVED: SAVE FOLDER NOT WRITABLE.";
    case ENOTDIR:
    case EEXIST:
      return "POSITION NOT SAVED: SAVE FOLDER IS A FILE.";
    default:
      return "POSITION NOT SAVED: WRITE ERROR.";
  }
}

// The first part of a save: the files written into the fresh folder beside
// the save folder. Returns the strip's line on failure.
std::string WritePositionFiles(const fs::path& folder, const PositionTexts& texts) {
  const fs::path fresh = NewFolder(folder);
  try {
    Recover(folder);
    if (Exists(folder) && !IsFolder(folder)) return SaveMessage(ENOTDIR);
    std::error_code ec;
    if (folder.has_parent_path()) {
      fs::create_directories(folder.parent_path(), ec);
      if (ec) return SaveMessage(ec.value());
    }
    // What an interrupted save left: a half-written new folder, or the old
    // folder of a swap that completed.
    fs::remove_all(fresh, ec);
    fs::remove_all(OldFolder(folder), ec);
    Check(Errno(::mkdir(fresh.c_str(), 0755) == 0));
    std::array<OpenFile, kSaveFileCount> files;
    for (std::size_t f = 0; f < files.size(); ++f)
      WriteFile(files[f], fresh / std::string(kSaveFileNames[f]), texts[f]);
    for (OpenFile& file : files) Close(file);
    return {};
  } catch (const InjectedCrash&) {
    return "POSITION NOT SAVED: INTERRUPTED.";
  } catch (const SaveFailure& f) {
    std::error_code ec;
    fs::remove_all(fresh, ec);
    return SaveMessage(f.error);
  } catch (const fs::filesystem_error& e) {
    return SaveMessage(e.code().value());
  }
}

// The second part: the fresh folder made durable and put in place of the
// old one. Touches nothing but the disk, so it may run beside the game.
std::string CommitPositionFiles(const fs::path& folder) {
  const fs::path fresh = NewFolder(folder);
  const fs::path old = OldFolder(folder);
  bool oldMovedAside = false;
  try {
    SyncFiles(fresh);
    if (IsFolder(folder)) {
      Rename(folder, old);
      oldMovedAside = true;
    }
    Rename(fresh, folder);
    oldMovedAside = false;
    // The new position stands from here on; what is left is housekeeping
    // that a later save repeats.
    try {
      SyncFolder(folder.has_parent_path() ? folder.parent_path() : fs::path("."));
      Check(Step());
      std::error_code ec;
      fs::remove_all(old, ec);
    } catch (const SaveFailure&) {
    }
    return {};
  } catch (const InjectedCrash&) {
    return "POSITION NOT SAVED: INTERRUPTED.";
  } catch (const SaveFailure& f) {
    std::error_code ec;
    if (oldMovedAside) fs::rename(old, folder, ec);
    fs::remove_all(fresh, ec);
    return SaveMessage(f.error);
  } catch (const fs::filesystem_error& e) {
    return SaveMessage(e.code().value());
  }
}

// The commit under way on the worker thread, if any. Only the thread
// writes `result`, and only after `done`; the game reads it after joining.
struct Commit {
  std::thread worker;
  std::atomic<bool> done{false};
  std::string result;
  // The last commit's failure not yet reported.
  std::optional<std::string> failure;

  void Join() {
    if (!worker.joinable()) return;
    worker.join();
    if (!result.empty()) failure = result;
  }
  // The program's last save reaches the disk before the program ends.
  ~Commit() {
    if (worker.joinable()) worker.join();
  }
};

Commit& TheCommit() {
  static Commit commit;
  return commit;
}

bool g_background = false;

}  // namespace

void InjectSaveFault(int step, int error) {
  g_faultStep = step;
  g_faultError = error;
}

int SaveStepsTaken() { return g_steps; }

void SetBackgroundCommits(bool on) { g_background = on; }

void WaitForCommit() { TheCommit().Join(); }

std::optional<std::string> FinishedCommitFailure() {
  Commit& c = TheCommit();
  if (c.worker.joinable() && c.done.load(std::memory_order_acquire)) c.Join();
  if (c.worker.joinable()) return std::nullopt;
  return std::exchange(c.failure, std::nullopt);
}

std::string StorePosition(const std::string& folderName, const PositionTexts& texts) {
  WaitForCommit();
  TheCommit().failure.reset();  // this save's outcome is the one to tell
  g_steps = 0;
  const fs::path folder = folderName;
  if (std::string problem = WritePositionFiles(folder, texts); !problem.empty()) return problem;
  if (!g_background) return CommitPositionFiles(folder);
  Commit& c = TheCommit();
  c.done.store(false, std::memory_order_relaxed);
  c.result.clear();
  try {
    c.worker = std::thread([&c, folder] {
      c.result = CommitPositionFiles(folder);
      c.done.store(true, std::memory_order_release);
    });
  } catch (const std::system_error&) {
    // No thread to be had: the commit is done here and now.
    return CommitPositionFiles(folder);
  }
  return {};
}

bool PositionStands(const std::string& folderName) {
  WaitForCommit();
  Recover(folderName);
  return Exists(folderName);
}

std::string FetchPosition(const std::string& folderName, PositionTexts& texts) {
  WaitForCommit();
  const fs::path folder = folderName;
  Recover(folder);
  if (Exists(folder) && !IsFolder(folder)) return "CANNOT LOAD: SAVE FOLDER IS A FILE.";
  if (!IsFolder(folder)) return "THERE IS NO SAVED POSITION TO LOAD.";
  // A saved file is a few hundred kilobytes at most; more is not a save.
  constexpr std::size_t kMaxFile = 4 << 20;
  for (int f = 0; f < kSaveFileCount; ++f) {
    const std::string name = UpperName(f);
    const int fd = ::open((folder / std::string(kSaveFileNames[static_cast<std::size_t>(f)])).c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return "CANNOT LOAD: " + name + " IS MISSING.";
    std::string& text = texts[static_cast<std::size_t>(f)];
    text.clear();
    char buf[65536];
    bool failed = false;
    for (;;) {
      const ssize_t n = ::read(fd, buf, sizeof buf);
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) failed = true;
      if (n <= 0) break;
      text.append(buf, static_cast<std::size_t>(n));
      if (text.size() > kMaxFile) {
        failed = true;
        break;
      }
    }
    ::close(fd);
    if (failed) return "CANNOT LOAD: " + name + " IS UNREADABLE.";
  }
  return {};
}

}  // namespace lf
