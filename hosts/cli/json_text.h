#pragma once

// Writing JSON: each function appends one value to a text. What comes out is valid JSON in valid UTF-8
// whatever goes in, and the same bytes under any locale.

#include <cstdint>
#include <string>
#include <string_view>

#include "amortix2/cli/json.h"

namespace amortix2::cli {

/// Quoted and escaped. Bytes that are no UTF-8 become U+FFFD.
void AppendText(std::string& out, std::string_view text);

bool IsUtf8(std::string_view text);

/// The shortest digits that read back to the same double; -0.0 keeps its sign. Raises Overflow for a value
/// that is not finite.
void AppendNumber(std::string& out, double value);
void AppendNumber(std::string& out, std::int64_t value);

/// A whole tree.
void AppendJson(std::string& out, const Json& value);

/// Appends what `append(item)` appends for each item, with commas between.
template <class Items, class Append>
void AppendSeparated(std::string& out, const Items& items, const Append& append) {
  bool first = true;
  for (const auto& item : items) {
    if (!first) out += ',';
    first = false;
    append(item);
  }
}

}  // namespace amortix2::cli
