#pragma once

// The errors that a caller of the component can see. Every failure, wherever it arises, is one
// AutomationError that carries the automation runtime's error number; hosts turn it into what their callers
// expect. Raising one allocates nothing, so that OutOfMemory can be reported too.

#include <cstdint>
#include <exception>
#include <string_view>

#include "amortix2/automation/public.h"

namespace AMORTIX2_PUBLIC amortix2 {

enum class ErrorNumber : std::int32_t {
  InvalidProcedureCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  ArrayFixed = 10,
  DivisionByZero = 11,
  TypeMismatch = 13,
  InternalError = 51,
  FileNotFound = 53,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  NoSuchMember = 438,
  ArgumentNotOptional = 449,
};

/// The number's name as it stands in the enumeration ("Overflow"); "Unknown" for any other value.
std::string_view ErrorName(ErrorNumber number) noexcept;

/// One plain sentence for a person ("A number became too large for its type.").
std::string_view ErrorDescription(ErrorNumber number) noexcept;

class AutomationError : public std::exception {
 public:
  /// `argument` is a literal.
  explicit AutomationError(ErrorNumber number, const char* argument = "") noexcept
      : number_(number), argument_(argument) {}
  ErrorNumber Number() const noexcept { return number_; }
  /// Which argument is at fault, where that is known; else "".
  std::string_view Argument() const noexcept { return argument_; }
  const char* what() const noexcept override { return ErrorName(number_).data(); }

 private:
  ErrorNumber number_;
  const char* argument_;
};

[[noreturn]] void Raise(ErrorNumber number);
/// Names the argument at fault, a literal.
[[noreturn]] void Raise(ErrorNumber number, const char* argument);

/// Only while an exception is handled: the number that stands for it, the same in every host. An
/// AutomationError's own; OutOfMemory for memory or a length that there is not; InternalError for anything
/// else.
ErrorNumber CurrentErrorNumber() noexcept;

}  // namespace amortix2
