#pragma once

// NAME=VALUE arguments of the command line as the named values of a request. A value that a person writes is
// read with what its parameter is: a choice may be given by its name.

#include <string>
#include <string_view>
#include <vector>

#include "amortix2/component/description.h"
#include "amortix2/json/tree.h"

namespace amortix2::cli {

/// NAME=VALUE in its parts.
struct Assignment {
  std::string name;
  std::string value;
};

/// Raises RequestError for an argument without a name or "=".
std::vector<Assignment> SplitArguments(const std::vector<std::string>& arguments);

/// The parameter of this name, or the input of this title or of this name without the "v"; null when there is
/// none.
const ParameterInfo* FindNamedInput(const MemberInfo& member, std::string_view name);

/// The input that a person calls by its name, by its title ("interest-rate") or by its name without the "v"
/// ("period"), in any case; null when there is none. Raises RequestError for what is only a part of one
/// title, which it suggests.
const ParameterInfo* FindInput(const MemberInfo& member, std::string_view name);

/// The same; raises RequestError, which says what there is, instead of finding none.
const ParameterInfo& NeedInput(const MemberInfo& member, std::string_view name);

/// A VALUE: what is in a file where it begins with "@" ("@-": standard input; JSON or CSV), JSON when it is
/// valid JSON, a date when it reads YYYY-MM-DD, else a text. A text that names a choice of the parameter is
/// that choice; in an input that is a list (ListInfo), commas part its elements. Raises RequestError for a
/// value that opens a JSON array or object and is none, for bytes that are no UTF-8 and for a file that is
/// neither JSON nor CSV; std::system_error when it cannot be read.
json::Tree ReadValue(const std::string& value, const MemberInfo& member, const ParameterInfo& parameter);

/// The same where nothing is known of what it is for.
json::Tree ReadValue(const std::string& value);

/// A VALUE that names no file: an "@" is a part of it.
json::Tree ReadPlainValue(const std::string& value, const MemberInfo& member, const ParameterInfo& parameter);

}  // namespace amortix2::cli
