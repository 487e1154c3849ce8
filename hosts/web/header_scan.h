#pragma once

// Finds the end of a request's header in bytes as they come, and what no honest client sends before it: line
// ends other than CR LF, lines that go on in the next, control characters. Servers before and behind each
// other must never differ on where a request ends, so nothing of the kind is forgiven.

#include <cstddef>
#include <string_view>

namespace amortix2::web {

enum class HeaderState { Unfinished, Complete, Wrong };

class HeaderScan {
 public:
  /// Reads on in the bytes so far, of which those that were there the last time are the same.
  HeaderState Read(std::string_view bytes) noexcept;

  /// True once the request's first line is there.
  bool HasLine() const noexcept { return lines_ > 0; }

 private:
  bool IsWrong(char before, char c) const noexcept;

  std::size_t read_ = 0;
  std::size_t lines_ = 0;
  std::size_t lineStart_ = 0;
};

}  // namespace amortix2::web
