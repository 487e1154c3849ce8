#pragma once

// A request that the command line cannot carry out: it is no request, or it names something that is not
// there. Errors that the component itself raises are AutomationErrors and stay what they are.

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "amortix2/automation/error.h"

namespace amortix2::cli {

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

}  // namespace amortix2::cli
