#pragma once

// A request carried out: one call of one method on a fresh object. It is made and run in one go; what fails
// on the way leaves a Failure, and what had been written to by-reference arguments by then can still be read.

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/date.h"
#include "amortix2/component/call_values.h"
#include "amortix2/component/invocation.h"
#include "amortix2/component/notes.h"
#include "amortix2/json/captured_page.h"
#include "amortix2/json/request.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/strangers.h"

namespace amortix2::json {

enum class Keep {
  Results,
  Inputs,    ///< what notes, causes and answers are made of
  GivenToo,  ///< and copies of all that was given
};

/// Why a call failed, for a person.
struct Cause {
  std::string text;            ///< "SimpleSavingsCalculator: vStartDate=\"soon\" is no date"
  std::string_view parameter;  ///< or setting; empty when that is not known
};

enum class Caller {
  Owner,     ///< of the machine: may do all that the component can
  Stranger,  ///< may do what strangers.h allows
};

class Execution {
 public:
  /// Creates the object, reads the arguments, applies the settings and calls. The clock must outlive the
  /// call. Only with Keep::GivenToo IsUnchanged can be asked.
  Execution(const Request& request, const Clock& clock, Keep keep = Keep::Results,
            Caller caller = Caller::Owner) noexcept;

  const std::optional<Failure>& Error() const noexcept { return error_; }

  /// The call with its values as they stand; null when there is no such class or method.
  const Invocation* Call() const noexcept { return call_ ? &*call_ : nullptr; }

  /// What was written to the page's response.
  std::span<const std::uint8_t> Response() const noexcept;

  /// True when the request asks for the result of this name ("return" and "response" too).
  bool Wants(std::string_view result) const noexcept;

  // The next three need Keep::Inputs.

  /// What the call was given; null when it was not made.
  const Inputs* Given() const noexcept { return inputs_ ? &*inputs_ : nullptr; }

  /// What a person should be told beside the answer; nothing of a call that failed.
  std::vector<Note> Notes() const;

  /// Only of a call that failed.
  Cause WhyFailed() const;

  /// True for a variant argument that is as it was given, or left out: nothing came back in it.
  bool IsUnchanged(std::size_t argument) const;

 private:
  void ReadByName(const Fields& fields);
  void Apply(const Fields& settings, Caller caller);
  void Run(const Request& request, const Clock& clock, Keep keep, Caller caller);

  void Check(const Invocation& call);

  std::optional<Failure> error_;
  std::optional<Object> object_;
  std::optional<Invocation> call_;
  std::optional<std::vector<std::string_view>> only_;
  std::string_view reading_;  // the argument or setting that is being read, made or refused
  std::optional<Date> today_;
  std::optional<Inputs> inputs_;
  std::vector<Variant> given_;
  std::shared_ptr<CapturedPage> page_;
  GivenSize size_;  // of a stranger's inputs
};

}  // namespace amortix2::json
