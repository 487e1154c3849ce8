// The plain way, on what every standard library has: a new file with a name of its own, renamed when it is
// complete.

#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <string_view>

#include "amortix2/automation/error.h"
#include "amortix2/automation/whole_file.h"

namespace amortix2 {
namespace {

namespace fs = std::filesystem;

fs::path ToPath(const std::string& path) { return {std::u8string(path.begin(), path.end())}; }

// The file that a path stands for, with links followed, so that a link stays one when its file is replaced.
fs::path Resolve(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) Raise(ErrorNumber::PathFileAccess);
  std::error_code failure;
  const fs::path resolved = fs::canonical(ToPath(path), failure);
  return failure ? ToPath(path) : resolved;
}

// Writers of the same file at the same time must not meet: each has a name of its own.
fs::path NewNameBeside(const fs::path& target) {
  std::random_device random;
  const std::uint64_t number = std::uint64_t{random()} << 32 | random();
  return target.parent_path() / ("gif" + std::to_string(number) + ".tmp");
}

class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target) : name_(NewNameBeside(target)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    std::error_code ignored;
    if (!renamed_) fs::remove(name_, ignored);
  }

  const fs::path& Name() const { return name_; }

  bool RenameTo(const fs::path& target) {
    std::error_code failure;
    fs::rename(name_, target, failure);
    renamed_ = !failure;
    return renamed_;
  }

 private:
  fs::path name_;
  bool renamed_ = false;
};

bool MayBeReplaced(const fs::path& target, fs::file_status status) {
  if (!fs::is_regular_file(status)) return false;
  return std::ofstream(target, std::ios::binary | std::ios::app).is_open();
}

bool Write(const fs::path& path, std::span<const std::uint8_t> bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}

}  // namespace

void WriteWholeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  const fs::path target = Resolve(path);
  std::error_code failure;
  if (target.has_parent_path() && !fs::is_directory(target.parent_path(), failure)) {
    Raise(ErrorNumber::PathNotFound);
  }
  const fs::file_status old = fs::status(target, failure);
  if (fs::exists(old) && !MayBeReplaced(target, old)) Raise(ErrorNumber::PathFileAccess);

  TemporaryFile temporary(target);
  if (!Write(temporary.Name(), bytes)) Raise(ErrorNumber::PathFileAccess);
  if (fs::exists(old)) fs::permissions(temporary.Name(), old.permissions(), failure);
  if (!temporary.RenameTo(target)) Raise(ErrorNumber::PathFileAccess);
}

}  // namespace amortix2
