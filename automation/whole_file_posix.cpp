// The new file has no name while it is written, where the file system knows such files: a process that ends
// meanwhile leaves nothing behind. It then takes a name of its own beside the target and is renamed to it in
// one step, or, where there is no target yet, takes its name at once.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <string_view>
#include <utility>

#include "amortix2/automation/error.h"
#include "amortix2/automation/whole_file.h"

namespace amortix2 {
namespace {

class Descriptor {
 public:
  explicit Descriptor(int number) noexcept : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { static_cast<void>(Close()); }

  int Number() const noexcept { return number_; }
  bool IsOpen() const noexcept { return number_ >= 0; }
  bool Close() noexcept { return number_ < 0 || close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

/// Keeps the signals that end a program waiting while a file has a passing name.
class SignalsHeld {
 public:
  SignalsHeld() noexcept {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&ending, signal);
    pthread_sigmask(SIG_BLOCK, &ending, &before_);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

/// The file that a path stands for, its links followed, whether or not it is there.
std::string Resolve(std::string path) {
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks; ++links) {
    std::array<char, 4096> target{};
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return path;
    const std::string_view next(target.data(), static_cast<std::size_t>(length));
    path = next.starts_with('/') ? std::string(next) : FolderOf(path).append(next);
  }
  Raise(ErrorNumber::PathFileAccess);
}

bool Write(int file, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

std::string NewNameIn(const std::string& folder) {
  static std::atomic<unsigned> count{0};
  return folder + ".amortix2-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".tmp";
}

enum class Outcome { Written, Failed, NoNewFile };

/// Tries names until one is free; empty when the action fails for another reason.
template <class Action>
std::string UnderNewName(const std::string& folder, Action action) {
  for (;;) {
    std::string name = NewNameIn(folder);
    if (action(name.c_str())) return name;
    if (errno != EEXIST) return {};
  }
}

Outcome RenameTo(const std::string& name, const std::string& target) {
  if (rename(name.c_str(), target.c_str()) == 0) return Outcome::Written;
  unlink(name.c_str());
  return Outcome::NoNewFile;
}

constexpr mode_t kReadableAndWritable = 0666;  // less the process's mask

/// By way of a file without a name. NoNewFile where there are none.
Outcome ReplaceUnnamed([[maybe_unused]] const std::string& folder, [[maybe_unused]] const std::string& target,
                       [[maybe_unused]] const struct stat* old,
                       [[maybe_unused]] std::span<const std::uint8_t> bytes) {
#ifdef O_TMPFILE
  Descriptor file(
      open(folder.empty() ? "." : folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kReadableAndWritable));
  if (!file.IsOpen()) return Outcome::NoNewFile;
  if (!Write(file.Number(), bytes)) return Outcome::Failed;
  if (old != nullptr) static_cast<void>(fchmod(file.Number(), old->st_mode & 07777));
  const std::string self = "/proc/self/fd/" + std::to_string(file.Number());
  const auto linkTo = [&](const char* name) {
    return linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
  };
  if (old == nullptr && linkTo(target.c_str())) return Outcome::Written;
  const SignalsHeld held;
  const std::string name = UnderNewName(folder, linkTo);
  return name.empty() ? Outcome::NoNewFile : RenameTo(name, target);
#else
  return Outcome::NoNewFile;
#endif
}

/// By way of a file with a name of its own.
Outcome ReplaceNamed(const std::string& folder, const std::string& target, const struct stat* old,
                     std::span<const std::uint8_t> bytes) {
  const SignalsHeld held;
  int number = -1;
  const std::string name = UnderNewName(folder, [&](const char* free) {
    number = open(free, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kReadableAndWritable);
    return number >= 0;
  });
  Descriptor file(number);
  if (!file.IsOpen()) return Outcome::NoNewFile;
  const bool isWritten = Write(file.Number(), bytes);
  if (old != nullptr) static_cast<void>(fchmod(file.Number(), old->st_mode & 07777));
  if (isWritten && file.Close()) return RenameTo(name, target);
  unlink(name.c_str());
  return Outcome::Failed;
}

bool Overwrite(Descriptor& file, std::span<const std::uint8_t> bytes) {
  return Write(file.Number(), bytes) && ftruncate(file.Number(), static_cast<off_t>(bytes.size())) == 0 &&
         file.Close();
}

}  // namespace

void WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  if (path.empty() || path.find('\0') != std::string::npos) Raise(ErrorNumber::PathFileAccess);
  const std::string target = Resolve(path);
  const std::string folder = FolderOf(target);
  struct stat status {};
  if (stat(folder.empty() ? "." : folder.c_str(), &status) != 0) Raise(ErrorNumber::PathNotFound);
  const bool exists = stat(target.c_str(), &status) == 0;
  // Not blocking, should it become a pipe meanwhile.
  Descriptor present(
      exists && S_ISREG(status.st_mode) ? open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK) : -1);
  if (exists && !present.IsOpen()) Raise(ErrorNumber::PathFileAccess);

  const struct stat* old = exists ? &status : nullptr;
  Outcome outcome = ReplaceUnnamed(folder, target, old, bytes);
  if (outcome == Outcome::NoNewFile) outcome = ReplaceNamed(folder, target, old, bytes);
  if (outcome == Outcome::NoNewFile && exists && Overwrite(present, bytes)) return;
  if (outcome != Outcome::Written) Raise(ErrorNumber::PathFileAccess);
}

}  // namespace amortix2
