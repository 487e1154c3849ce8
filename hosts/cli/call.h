#pragma once

// One call of one method on a fresh object, from a request to what came back. It is made and run in one go;
// what fails on the way leaves a Failure, and what had been written to by-reference arguments by then can
// still be read.

#include <memory>
#include <optional>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/cli/failure.h"
#include "amortix2/cli/names.h"
#include "amortix2/cli/page.h"
#include "amortix2/cli/request.h"
#include "amortix2/component/description.h"

namespace amortix2::cli {

class Call {
 public:
  /// Creates the object, reads the arguments, applies the settings and calls. The clock must outlive the
  /// call.
  Call(const Request& request, const Clock& clock) noexcept;

  const std::optional<Failure>& Error() const noexcept { return error_; }

  /// Null when there is no such class or method.
  const ClassInfo* Class() const noexcept { return object_ ? &object_->Class() : nullptr; }
  const MemberInfo* Method() const noexcept { return method_; }

  /// One value per parameter as it stands after the call; none when the request could not be understood.
  const std::vector<Value>& Arguments() const noexcept { return arguments_; }

  /// What the method returned; null when it returns nothing or failed.
  const Value* Result() const noexcept { return result_ ? &*result_ : nullptr; }

  /// What was written to the page's response.
  std::span<const std::uint8_t> Response() const noexcept;

 private:
  void Run(const Request& request, const Clock& clock);

  std::optional<Failure> error_;
  std::optional<Object> object_;
  const MemberInfo* method_ = nullptr;
  std::vector<Value> arguments_;
  std::optional<Value> result_;
  std::shared_ptr<Page> page_;
};

}  // namespace amortix2::cli
