#pragma once

// What can be wrong with a request, and what callers are told of a call that failed. A RequestError is a
// request that cannot be carried out: it is no request, or it names something that is not there. Errors that
// the component itself raises are AutomationErrors and stay what they are. Doors turn whatever they catch
// into a Failure by CurrentFailure, so that nothing thrown ever leaves them.

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "amortix2/automation/error.h"

namespace amortix2::json {

class RequestError : public std::exception {
 public:
  /// Not a request at all (a wrong shape, an unreadable value): number 0, BadRequest.
  explicit RequestError(std::string message) noexcept : message_(std::move(message)) {}
  /// A request for something that is not there.
  RequestError(ErrorNumber number, std::string message) noexcept
      : number_(number), message_(std::move(message)) {}

  ErrorNumber Number() const noexcept { return number_; }
  std::string TakeMessage() noexcept { return std::move(message_); }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  ErrorNumber number_{0};
  std::string message_;
};

/// A text of the request as messages show it: its beginning when it is long.
std::string_view Shortened(std::string_view text) noexcept;
std::string Quoted(std::string_view text);

struct Failure {
  ErrorNumber number{0};    ///< 0: the request is none
  std::string_view name{};  ///< the number's name, "BadRequest" for 0
  std::string message{};    ///< empty when the number says all there is to say
  bool ofRequest = false;   ///< the request is at fault; else the component raised it
};

/// Only while an exception is handled: what it comes to. Allocates nothing.
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

}  // namespace amortix2::json
