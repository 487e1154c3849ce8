#pragma once

// What is said on standard error, and how the program ends when something fails. Nothing here takes memory,
// so that a failed allocation can be told too, wherever it happens: before main, and in a destructor.

#include <array>
#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

#include "amortix2/json/request_error.h"

namespace amortix2::cli {

/// A file that could not be written.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A count in words' company, written without memory.
class Digits {
 public:
  explicit Digits(std::uint64_t number) noexcept {
    end_ = std::to_chars(digits_.data(), digits_.data() + digits_.size(), number).ptr;
  }
  std::string_view View() const noexcept { return {digits_.data(), end_}; }

 private:
  std::array<char, 20> digits_{};
  const char* end_;
};

/// Says the parts as one line; one that cannot be written changes nothing.
void Say(std::initializer_list<std::string_view> parts) noexcept;

/// The same with the program's name in front.
void Complain(std::initializer_list<std::string_view> parts) noexcept;

/// Says what went wrong and returns the exit status that belongs to it.
int Report(const json::Failure& failure, std::string_view cause) noexcept;

/// Only while an exception is handled: says what went wrong, prints the reply of no memory where the command
/// line asks for JSON, and returns the exit status. Where the output's reader went away, ends as other
/// filters do, by the signal that says so.
int ReportCurrent() noexcept;

}  // namespace amortix2::cli
