#pragma once

// Writing JSON: each function appends one value to a text. What comes out is valid JSON in valid UTF-8
// whatever goes in, and the same bytes under any locale.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "amortix2/json/tree.h"

namespace amortix2::json {

/// Quoted and escaped. Bytes that are no UTF-8 become U+FFFD.
void AppendText(std::string& out, std::string_view text);

/// The shortest digits that read back to the same double; -0.0 keeps its sign. Raises Overflow for a value
/// that is not finite.
void AppendNumber(std::string& out, double value);
void AppendNumber(std::string& out, std::int64_t value);

/// Bytes as base64 with padding, a text in one line.
void AppendBase64(std::string& out, std::span<const std::uint8_t> bytes);

/// A whole tree.
void AppendTree(std::string& out, const Tree& tree);

/// Appends what `append(item)` appends for each item, with commas between.
template <class List, class Append>
void AppendSeparated(std::string& out, const List& items, const Append& append) {
  bool first = true;
  for (const auto& item : items) {
    if (!first) out += ',';
    first = false;
    append(item);
  }
}

/// An object that is being written: each name begins a field, whose value the caller appends.
class ObjectWriter {
 public:
  explicit ObjectWriter(std::string& out) : out_(out) { out_ += '{'; }
  std::string& Field(std::string_view name) {
    if (!first_) out_ += ',';
    first_ = false;
    AppendText(out_, name);
    out_ += ':';
    return out_;
  }
  void Close() { out_ += '}'; }

 private:
  std::string& out_;
  bool first_ = true;
};

}  // namespace amortix2::json
