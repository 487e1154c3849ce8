#include "amortix2/charts/read_through.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "support.h"

namespace amortix2 {
namespace {

TEST(ReadThrough, RefusesLargeFilesAlone) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path();
  const std::string file = (folder / ("read_through_" + std::to_string(getpid()))).string();
  const auto read = [&](std::size_t size) {
    std::ofstream(file) << std::string(size, 's');
    return ErrorOf([&] { ReadThrough(file); });
  };
  EXPECT_EQ(read(0), std::nullopt);
  EXPECT_EQ(read(32767), std::nullopt);
  EXPECT_EQ(read(32768), ErrorNumber::Overflow);
  std::filesystem::remove(file);
  for (const std::string& none : {file, std::string(), folder.string(), std::string("/dev/zero")}) {
    EXPECT_EQ(ErrorOf([&] { ReadThrough(none); }), std::nullopt) << none;
  }
}

}  // namespace
}  // namespace amortix2
