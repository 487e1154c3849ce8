#include "amortix2/automation/error.h"

#include <algorithm>
#include <array>
#include <new>
#include <stdexcept>

namespace amortix2 {
namespace {

struct ErrorText {
  ErrorNumber number;
  std::string_view name;
  std::string_view description;
};

// Names are string literals, so that data() is a terminated string.
constexpr std::array kErrorTexts{
    ErrorText{ErrorNumber::InvalidProcedureCall, "InvalidProcedureCall",
              "An argument has a value that cannot be used here."},
    ErrorText{ErrorNumber::Overflow, "Overflow", "A number became too large for its type."},
    ErrorText{ErrorNumber::OutOfMemory, "OutOfMemory", "The result would need more memory than there is."},
    ErrorText{ErrorNumber::SubscriptOutOfRange, "SubscriptOutOfRange",
              "An array has no element at this index."},
    ErrorText{ErrorNumber::ArrayFixed, "ArrayFixed",
              "An array of fixed size, or one that is in use, cannot be replaced."},
    ErrorText{ErrorNumber::DivisionByZero, "DivisionByZero", "A number was divided by zero."},
    ErrorText{ErrorNumber::TypeMismatch, "TypeMismatch", "A value is not of a type that can be used here."},
    ErrorText{ErrorNumber::InternalError, "InternalError", "The component failed for an unknown reason."},
    ErrorText{ErrorNumber::FileNotFound, "FileNotFound", "The file does not exist."},
    ErrorText{ErrorNumber::PathFileAccess, "PathFileAccess", "The file cannot be read or written."},
    ErrorText{ErrorNumber::PathNotFound, "PathNotFound", "The folder of the file does not exist."},
    ErrorText{ErrorNumber::ObjectNotSet, "ObjectNotSet", "An object that is needed has not been given."},
    ErrorText{ErrorNumber::NoSuchMember, "NoSuchMember", "The object has no member of this name."},
    ErrorText{ErrorNumber::ArgumentNotOptional, "ArgumentNotOptional",
              "An argument that must be given is missing."},
};

const ErrorText* Find(ErrorNumber number) noexcept {
  const auto found = std::ranges::find(kErrorTexts, number, &ErrorText::number);
  return found == kErrorTexts.end() ? nullptr : &*found;
}

}  // namespace

std::string_view ErrorName(ErrorNumber number) noexcept {
  const ErrorText* text = Find(number);
  return text ? text->name : "Unknown";
}

std::string_view ErrorDescription(ErrorNumber number) noexcept {
  const ErrorText* text = Find(number);
  return text ? text->description : "The call failed.";
}

void Raise(ErrorNumber number) { throw AutomationError(number); }
void Raise(ErrorNumber number, const char* argument) { throw AutomationError(number, argument); }

ErrorNumber CurrentErrorNumber() noexcept {
  try {
    throw;
  } catch (const AutomationError& error) {
    return error.Number();
  } catch (const std::bad_alloc&) {
    return ErrorNumber::OutOfMemory;
  } catch (const std::length_error&) {
    return ErrorNumber::OutOfMemory;
  } catch (...) {
    return ErrorNumber::InternalError;
  }
}

}  // namespace amortix2
