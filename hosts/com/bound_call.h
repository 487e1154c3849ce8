#pragma once

// One late-bound call: the caller's arguments, by place and by name, become one value per parameter of the
// component's member; afterwards its results go back into the caller's variables.

#include <optional>
#include <vector>

#include "amortix2/com/changes.h"
#include "amortix2/com/platform.h"
#include "amortix2/com/platform_records.h"
#include "amortix2/com/type_library.h"
#include "amortix2/component/description.h"

namespace amortix2::com {

/// Which argument belongs to which parameter; null where there is none.
struct Binding {
  std::vector<VARIANT*> arguments;
  HRESULT result = S_OK;  ///< why the arguments do not fit, in the platform's terms
  UINT argument = 0;      ///< and which one
};
Binding Bind(const MemberInfo& member, const DISPPARAMS& parameters);

/// One parameter's value, before and after the call.
class Argument {
 public:
  /// `source` is the caller's argument, null when it is left out. Raises ArgumentNotOptional then unless the
  /// parameter is optional, and what reading the value raises.
  Argument(const ParameterInfo& parameter, VARIANT* source);

  void* Value() noexcept { return value_.Get(); }

  /// Adds what the call changed, if the caller can see it.
  void AddTo(Changes& changes);

 private:
  void Read(VARIANT& source);
  void ReadRecordsInto(void* value);

  const ParameterInfo* parameter_;
  VARIANT* source_;
  amortix2::Value value_;
  std::optional<amortix2::Value> before_;  // only of by-reference parameters
  const TypeLibrary* library_ = nullptr;   // only for records
  RecordArgument records_;
};

/// The caller's side of the call in the order of its steps: construct, call the member with Values(),
/// StoreResults.
class Call {
 public:
  Call(const MemberInfo& member, const Binding& binding);

  std::vector<void*> Values();
  void* Result() noexcept { return result_ ? result_->Get() : nullptr; }

  /// Writes back the by-reference results, and the member's own result unless `result` is null.
  void StoreResults(VARIANT* result);

 private:
  std::vector<Argument> arguments_;
  std::optional<Value> result_;
};

}  // namespace amortix2::com
