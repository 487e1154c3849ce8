#pragma once

// Runs the executable by shell lines, in a folder of the test's own.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace amortix2::cli {

inline constexpr const char* kLoan =
    R"("call":"Calculator.SimpleLoanCalculator","args":{"vPurchaseAmt":200000,"vPeriod":360,"vIntRate":6.5}})";

class Program : public ::testing::Test {
 protected:
  Program()
      : folder_(std::filesystem::temp_directory_path() / ("amortix2_test_" + std::to_string(getpid()))) {
    std::filesystem::create_directory(folder_);
  }
  ~Program() override { std::filesystem::remove_all(folder_); }

  std::string Path(const char* name) const { return (folder_ / name).string(); }

  std::string Read(const char* name) const {
    std::ostringstream text;
    text << std::ifstream(Path(name), std::ios::binary).rdbuf();
    return text.str();
  }

  /// Runs the program by a shell line; its output and error text are the files "out" and "err".
  int Run(const std::string& arguments, const std::string& input = "", const std::string& before = "") {
    std::ofstream(Path("in"), std::ios::binary) << input;
    const std::string line = before + " '" AMORTIX2_PROGRAM "' " + arguments + " <'" + Path("in") + "' >'" +
                             Path("out") + "' 2>'" + Path("err") + "'";
    return WEXITSTATUS(std::system(line.c_str()));
  }

  std::vector<std::string> Lines() const {
    std::istringstream text(Read("out"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace amortix2::cli
