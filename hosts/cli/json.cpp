#include "amortix2/cli/json.h"

#include <limits>
#include <nlohmann/json.hpp>

#include "amortix2/cli/request_error.h"

namespace amortix2::cli {
namespace {

/// Takes the library's events and grows the tree at its innermost open array or object.
class TreeBuilder {
 public:
  bool null() { return Add(Json()); }
  bool boolean(bool value) { return Add(Json(value)); }
  bool number_integer(std::int64_t value) { return Add(Json(value)); }
  bool number_unsigned(std::uint64_t value) {
    const bool fits = value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return Add(fits ? Json(static_cast<std::int64_t>(value)) : Json(static_cast<double>(value)));
  }
  bool number_float(double value, const std::string&) { return Add(Json(value)); }
  bool string(std::string& text) { return Add(Json(std::move(text))); }
  bool binary(nlohmann::json::binary_t&) { return false; }

  bool start_array(std::size_t) { return Open(Json(Json::Items{})); }
  bool end_array() { return Close(); }
  bool start_object(std::size_t) { return Open(Json(Json::Fields{})); }
  bool end_object() { return Close(); }
  bool key(std::string& name) {
    open_.back()->Object()->push_back({std::move(name), Json()});
    return true;
  }

  bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception& error) {
    constexpr int kNumberTooLarge = 406;
    if (error.id == kNumberTooLarge) {
      throw RequestError("a number at byte " + std::to_string(position) + " is beyond the range of doubles");
    }
    badByte_ = position;
    return false;
  }

  Json TakeRoot() { return std::move(root_); }
  std::size_t BadByte() const noexcept { return badByte_; }

 private:
  Json& Place(Json value) {
    if (open_.empty()) return root_ = std::move(value);
    if (Json::Items* items = open_.back()->Array()) return items->emplace_back(std::move(value));
    return open_.back()->Object()->back().value = std::move(value);
  }
  bool Add(Json value) {
    Place(std::move(value));
    return true;
  }
  bool Open(Json container) {
    if (open_.size() == kDeepest) {
      throw RequestError("JSON nested deeper than " + std::to_string(kDeepest) + " levels");
    }
    open_.push_back(&Place(std::move(container)));
    return true;
  }
  bool Close() {
    open_.pop_back();
    return true;
  }

  Json root_;
  std::vector<Json*> open_;
  std::size_t badByte_ = 0;
};

}  // namespace

std::optional<double> Json::Number() const noexcept {
  if (const std::int64_t* integer = Integer()) return static_cast<double>(*integer);
  if (const double* decimal = Decimal()) return *decimal;
  return std::nullopt;
}

std::optional<Json> ParseJson(std::string_view text, std::size_t* badByte) {
  TreeBuilder builder;
  // The library takes a NUL byte for the end of its input.
  const std::size_t nul = text.find('\0');
  const bool read = nlohmann::json::sax_parse(text.begin(), text.end(), &builder);
  if (read && nul == std::string_view::npos) return builder.TakeRoot();
  if (badByte) *badByte = read ? nul + 1 : builder.BadByte();
  return std::nullopt;
}

}  // namespace amortix2::cli
