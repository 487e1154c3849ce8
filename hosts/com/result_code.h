#pragma once

// Failures at the edge of the library. Inside they are exceptions; no exception ever crosses to a caller.
// Every entry point ends in one of the two functions below, which turn whatever was thrown into a result
// code: the automation error number in the platform's own range (0x800A0000 and the number), with source and
// description for who asks. Running out of memory is reported without asking for any.

#include <exception>
#include <string>

#include "amortix2/automation/error.h"
#include "amortix2/com/platform.h"
#include "amortix2/component/description.h"

namespace amortix2::com {

/// A failure that another object reported, passed on as it came.
class ForeignError : public std::exception {
 public:
  explicit ForeignError(HRESULT code, std::wstring source = {}, std::wstring description = {})
      : code_(code), source_(std::move(source)), description_(std::move(description)) {}
  HRESULT Code() const noexcept { return code_; }
  const std::wstring& Source() const noexcept { return source_; }
  const std::wstring& Description() const noexcept { return description_; }

 private:
  HRESULT code_;
  std::wstring source_;
  std::wstring description_;
};

/// An error that lies in one argument of a call.
class ArgumentError : public AutomationError {
 public:
  ArgumentError(ErrorNumber number, const ParameterInfo& parameter) noexcept
      : AutomationError(number), parameter_(&parameter) {}
  const ParameterInfo& Parameter() const noexcept { return *parameter_; }

 private:
  const ParameterInfo* parameter_;
};

/// Raises ForeignError (std::bad_alloc for E_OUTOFMEMORY) unless `result` says success.
void Check(HRESULT result);

constexpr HRESULT ResultCode(ErrorNumber number) noexcept {
  return static_cast<HRESULT>(0x800A0000U + static_cast<unsigned>(number));
}

/// Whose failure it is: the program identifier and the interface that was called.
struct ErrorOrigin {
  std::string programId;
  GUID interfaceId;
};

/// Only while an exception is handled: the result code that stands for it.
HRESULT CurrentResultCode() noexcept;

/// Only while an exception is handled: reports it as the thread's error object and, unless null, in
/// `details`. Returns what the caller returns: DISP_E_EXCEPTION with details, else the code itself.
HRESULT ReportCurrentFailure(const ErrorOrigin& origin, EXCEPINFO* details) noexcept;

/// Runs the body of an entry point without rich errors.
template <class Body>
HRESULT Guarded(Body body) noexcept {
  try {
    return body();
  } catch (...) {
    return CurrentResultCode();
  }
}

}  // namespace amortix2::com
