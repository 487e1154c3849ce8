#pragma once

// What went wrong, as callers are told. Every entry point of the command line turns what it catches into a
// Failure by CurrentFailure, so that nothing thrown ever leaves it.

#include <optional>
#include <string>
#include <string_view>

#include "amortix2/automation/error.h"

namespace amortix2::cli {

struct Failure {
  ErrorNumber number{0};    ///< 0: the request is none
  std::string_view name{};  ///< the number's name, "BadRequest" for 0
  std::string message{};    ///< empty when the number says all there is to say
  bool ofRequest = false;   ///< the request is at fault; else the component raised it
};

/// The exception that is being handled. Allocates nothing.
Failure CurrentFailure() noexcept;

/// Does `work`; nothing when it came to its end.
template <class Work>
std::optional<Failure> Try(const Work& work) noexcept {
  try {
    work();
    return std::nullopt;
  } catch (...) {
    return CurrentFailure();
  }
}

}  // namespace amortix2::cli
