#include "amortix2/charts/read_through.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <vector>

#include "amortix2/automation/checked.h"

namespace amortix2 {

void ReadThrough(const std::string& path) {
  std::error_code failure;
  const std::filesystem::path name(std::u8string(path.begin(), path.end()));
  if (!std::filesystem::is_regular_file(name, failure)) return;
  const auto size = std::filesystem::file_size(name, failure);
  if (failure || size == 0) return;
  std::vector<char> content(static_cast<std::size_t>(Narrow<std::int16_t>(size)));
  std::ifstream file(name, std::ios::binary);
  if (!file.read(content.data(), std::ssize(content))) Raise(ErrorNumber::PathFileAccess);
}

}  // namespace amortix2
