#pragma once

// Single values for a person to read, one a line: name, value, and what the value is.

#include <string>
#include <string_view>
#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/component/description.h"

namespace amortix2::cli {

struct Line {
  std::string_view name;
  Variant value;
  Unit unit;
  std::string_view help;
  const EnumerationInfo* enumeration = nullptr;  ///< of a value that is a code
};

/// Appends lines that belong together, aligned. A text may be long and is its own meaning, so that nothing
/// stands behind it.
void AppendLines(std::string& out, const std::vector<Line>& lines);

}  // namespace amortix2::cli
