#pragma once

// Writing to a file descriptor, in large pieces.

#include <string>
#include <string_view>

namespace amortix2::cli {

/// Writes all bytes. Raises std::system_error when that fails.
void WriteAll(int descriptor, std::string_view bytes);

class Output {
 public:
  explicit Output(int descriptor) : descriptor_(descriptor) {}

  /// Both raise std::system_error when writing fails.
  void WriteLine(std::string_view line);
  void Flush();

 private:
  int descriptor_;
  std::string waiting_;
};

}  // namespace amortix2::cli
