#include "amortix2/web/process.h"

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <ctime>

namespace amortix2::web {

std::size_t RaiseFileLimit(std::size_t wanted, std::size_t more) noexcept {
  constexpr std::size_t kOtherFiles = 64;
  const std::size_t beside = more + kOtherFiles;
  rlimit files{};
  if (getrlimit(RLIMIT_NOFILE, &files) != 0) return wanted;
  if (files.rlim_cur < wanted + beside) {
    const rlim_t before = files.rlim_cur;
    files.rlim_cur = std::min<rlim_t>(wanted + beside, files.rlim_max);
    if (setrlimit(RLIMIT_NOFILE, &files) != 0) files.rlim_cur = before;
  }
  return std::min<std::size_t>(wanted, files.rlim_cur > beside ? files.rlim_cur - beside : 1);
}

std::string UtcText(const char* format) {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  gmtime_r(&now, &utc);
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &utc)};
}

}  // namespace amortix2::web
