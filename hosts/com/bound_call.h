#pragma once

// One call, however it came: the caller's arguments become one value per parameter of the component's member;
// afterwards its results go back into the caller's variables.

#include <optional>
#include <span>
#include <vector>

#include "amortix2/com/changes.h"
#include "amortix2/com/platform.h"
#include "amortix2/com/platform_records.h"
#include "amortix2/com/type_library.h"
#include "amortix2/component/invocation.h"

namespace amortix2::com {

/// Which argument of a late-bound call belongs to which parameter; null where there is none.
struct Binding {
  std::vector<VARIANT*> arguments;
  HRESULT result = S_OK;  ///< why the arguments do not fit, in the platform's terms
  UINT argument = 0;      ///< and which one
};
Binding Bind(const MemberInfo& member, const DISPPARAMS& parameters);

/// One parameter's value, before and after the call.
class Argument {
 public:
  /// `source` is the caller's argument, null when it is left out; `value` is what a call has that leaves it
  /// out. Raises ArgumentNotOptional when it may not be left out, and what reading the source raises.
  Argument(const ParameterInfo& parameter, VARIANT* source, Value& value);

  /// Adds what the call changed, if the caller can see it.
  void AddTo(Changes& changes) const;

 private:
  void Read(VARIANT& source);
  void ReadRecordsInto(void* records) const;

  const ParameterInfo* parameter_;
  VARIANT* source_;
  Value* value_;
  std::optional<Value> before_;           // only of by-reference parameters
  const TypeLibrary* library_ = nullptr;  // only for records
  RecordArgument records_;
};

class BoundCall {
 public:
  /// One argument, or null, per parameter of the member. What is wrong with one raises ArgumentError.
  BoundCall(const MemberInfo& member, std::span<VARIANT* const> arguments);

  /// Raises what the member raises; StoreResults then stores what had been written.
  void Call(Object& object) { invocation_.Call(object); }

  /// Writes back the by-reference results. What does not fit its place raises ArgumentError, and nothing is
  /// written.
  void StoreResults() const;

  /// What the member returned; Empty when it returns nothing.
  OwnedVariant Result() const;

 private:
  Invocation invocation_;
  std::vector<Argument> arguments_;
};

}  // namespace amortix2::com
