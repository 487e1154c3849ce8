#pragma once

// NAME=VALUE arguments of the command line as the named values of a request.

#include <string>
#include <vector>

#include "amortix2/json/tree.h"

namespace amortix2::cli {

/// A VALUE: JSON when it is valid JSON, a date when it reads YYYY-MM-DD, else a text. Raises RequestError for
/// a value that opens a JSON array or object and is none, and for bytes that are no UTF-8.
json::Tree ReadValue(const std::string& value);

/// Each argument as a field. Raises RequestError for one without a name or "=", and as ReadValue does.
json::Fields ReadArguments(const std::vector<std::string>& arguments);

}  // namespace amortix2::cli
