#pragma once

// JSON as it was read: a tree that keeps an object's fields in their order, duplicates included, and integer
// literals apart from other numbers. Sixteen bytes a value, so that the longest line allowed stays small in
// memory. A tree is never deeper than kDeepest, so walking one recursively is safe.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace amortix2::cli {

class Json {
 public:
  struct Field;
  using Items = std::vector<Json>;
  using Fields = std::vector<Field>;

  Json() noexcept = default;  ///< null
  explicit Json(bool value) noexcept : value_(value) {}
  explicit Json(std::int64_t value) noexcept : value_(value) {}
  explicit Json(double value) noexcept : value_(value) {}  ///< finite
  explicit Json(std::string value) : value_(std::make_unique<std::string>(std::move(value))) {}
  explicit Json(Items items) : value_(std::make_unique<Items>(std::move(items))) {}
  explicit Json(Fields fields);

  // Each returns null when the value is of another kind.
  bool IsNull() const noexcept { return std::holds_alternative<std::nullptr_t>(value_); }
  const bool* Boolean() const noexcept { return std::get_if<bool>(&value_); }
  const std::int64_t* Integer() const noexcept { return std::get_if<std::int64_t>(&value_); }
  const double* Decimal() const noexcept { return std::get_if<double>(&value_); }
  const std::string* Text() const noexcept { return Held<std::string>(); }
  const Items* Array() const noexcept { return Held<Items>(); }
  const Fields* Object() const noexcept { return Held<Fields>(); }
  Items* Array() noexcept { return const_cast<Items*>(std::as_const(*this).Array()); }
  Fields* Object() noexcept { return const_cast<Fields*>(std::as_const(*this).Object()); }

  /// Any number as a double.
  std::optional<double> Number() const noexcept;

 private:
  template <class T>
  const T* Held() const noexcept {
    const auto* held = std::get_if<std::unique_ptr<T>>(&value_);
    return held ? held->get() : nullptr;
  }

  std::variant<std::nullptr_t, bool, std::int64_t, double, std::unique_ptr<std::string>,
               std::unique_ptr<Items>, std::unique_ptr<Fields>>
      value_;
};

struct Json::Field {
  std::string name;
  Json value;
};

inline Json::Json(Fields fields) : value_(std::make_unique<Fields>(std::move(fields))) {}

inline constexpr int kDeepest = 64;

/// Reads one JSON text in UTF-8. Nothing when it is no JSON; `badByte`, when given, is then the place (from
/// 1) where reading stopped. Raises RequestError for JSON that is nested deeper than kDeepest or has a number
/// beyond the range of doubles.
std::optional<Json> ParseJson(std::string_view text, std::size_t* badByte = nullptr);

}  // namespace amortix2::cli
