#pragma once

// The inputs in an address: "vPrinBal=%24200%2C000&vIntRate=6.5" in its names and values, and back again. A
// form in a browser writes an address's query in the same way, with "+" for a space.

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace amortix2::pages {

class Query {
 public:
  struct Field {
    std::string name;
    std::string value;
  };

  Query() = default;

  /// Nothing for what no form sends: a percent sign without two hexadecimal digits, a control character other
  /// than line ends and tabs, bytes that are no UTF-8.
  static std::optional<Query> Read(std::string_view text);

  const std::vector<Field>& Fields() const noexcept { return fields_; }

  /// The first value of a name, letter by letter; null when there is none.
  const std::string* Find(std::string_view name) const noexcept;

  /// The same, empty when there is none.
  std::string_view Get(std::string_view name) const noexcept;

  /// All values of a name, in their order. They are the query's and live as long as it is not changed.
  std::vector<std::string_view> All(std::string_view name) const;

  /// Adds one more value, behind all others.
  void Append(std::string_view name, std::string_view value);

  /// Replaces all values of a name where the first stood, or appends it; Remove takes them out.
  void Set(std::string_view name, std::string_view value);
  void Remove(std::string_view name);

  /// As it stands in an address behind "?". Read gives back the same fields.
  std::string Text() const;

 private:
  std::vector<Field> fields_;
};

}  // namespace amortix2::pages
