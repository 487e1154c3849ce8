#pragma once

// A request carried out: one call of one method on a fresh object. It is made and run in one go; what fails
// on the way leaves a Failure, and what had been written to by-reference arguments by then can still be read.

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/component/invocation.h"
#include "amortix2/json/captured_page.h"
#include "amortix2/json/request.h"
#include "amortix2/json/request_error.h"

namespace amortix2::json {

enum class Keep { Results, GivenToo };

class Execution {
 public:
  /// Creates the object, reads the arguments, applies the settings and calls. The clock must outlive the
  /// call. Only with Keep::GivenToo IsUnchanged can be asked.
  Execution(const Request& request, const Clock& clock, Keep keep = Keep::Results) noexcept;

  const std::optional<Failure>& Error() const noexcept { return error_; }

  /// The call with its values as they stand; null when there is no such class or method.
  const Invocation* Call() const noexcept { return call_ ? &*call_ : nullptr; }

  /// What was written to the page's response.
  std::span<const std::uint8_t> Response() const noexcept;

  /// True for a variant argument that is as it was given, or left out: nothing came back in it.
  bool IsUnchanged(std::size_t argument) const;

 private:
  void Run(const Request& request, const Clock& clock, Keep keep);

  std::optional<Failure> error_;
  std::optional<Object> object_;
  std::optional<Invocation> call_;
  std::vector<Variant> given_;
  std::shared_ptr<CapturedPage> page_;
};

}  // namespace amortix2::json
