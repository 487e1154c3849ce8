#include "amortix2/json/tree.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

/// Takes the library's events. Values wait in a list until their array or object ends and takes them, so that
/// each container is made once, of its final size.
class TreeBuilder {
 public:
  TreeBuilder() = default;
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;
  ~TreeBuilder() {
    for (Tree& value : values_) TakeApart(value);
  }

  bool null() { return Add(nullptr); }
  bool boolean(bool value) { return Add(value); }
  bool number_integer(std::int64_t value) { return Add(value); }
  bool number_unsigned(std::uint64_t value) {
    if (std::in_range<std::int64_t>(value)) return Add(static_cast<std::int64_t>(value));
    return Add(static_cast<double>(value));
  }
  bool number_float(double value, const std::string&) { return Add(value); }
  bool string(std::string& text) { return Add(std::move(text)); }
  bool binary(nlohmann::json::binary_t&) { return false; }

  bool start_array(std::size_t) { return Open(); }
  bool start_object(std::size_t) { return Open(); }
  bool key(std::string& name) {
    names_.push_back(std::move(name));
    return true;
  }
  bool end_array() {
    Tree array = Tree::array();
    auto& items = array.get_ref<Items&>();
    const auto first = FirstValue();
    items.reserve(static_cast<std::size_t>(values_.end() - first));
    std::move(first, values_.end(), std::back_inserter(items));
    return Close(std::move(array));
  }
  bool end_object() {
    Tree object = Tree::object();
    auto& fields = object.get_ref<Fields&>();
    const auto first = FirstValue();
    auto name = names_.end() - (values_.end() - first);
    fields.reserve(static_cast<std::size_t>(values_.end() - first));
    for (auto value = first; value != values_.end(); ++value, ++name) {
      fields.emplace_back(std::move(*name), std::move(*value));
    }
    names_.resize(names_.size() - fields.size());
    return Close(std::move(object));
  }

  bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception& error) {
    constexpr int kNumberTooLarge = 406;
    if (error.id == kNumberTooLarge) {
      throw RequestError("a number at byte " + std::to_string(position) + " is beyond the range of doubles");
    }
    badByte_ = position;
    return false;
  }

  Tree TakeRoot() { return std::move(values_.front()); }
  std::size_t BadByte() const noexcept { return badByte_; }

 private:
  template <class Value>
  bool Add(Value&& value) {
    values_.emplace_back(std::forward<Value>(value));
    return true;
  }
  bool Open() {
    if (starts_.size() == kDeepest) {
      throw RequestError("JSON nested deeper than " + std::to_string(kDeepest) + " levels");
    }
    starts_.push_back(values_.size());
    return true;
  }
  std::vector<Tree>::iterator FirstValue() {
    return values_.begin() + static_cast<std::ptrdiff_t>(starts_.back());
  }
  bool Close(Tree container) {
    values_.resize(starts_.back());
    starts_.pop_back();
    return Add(std::move(container));
  }

  std::vector<Tree> values_;         // of all open containers
  std::vector<std::string> names_;   // of all open objects' values
  std::vector<std::size_t> starts_;  // of each open container's values
  std::size_t badByte_ = 0;
};

}  // namespace

void TakeApart(Tree& tree) noexcept {
  if (auto* const fields = tree.get_ptr<Fields*>()) return TakeApart(*fields);
  auto* const items = tree.get_ptr<Items*>();
  if (!items) return;
  for (Tree& item : *items) TakeApart(item);
  items->clear();
}

void TakeApart(Fields& fields) noexcept {
  for (auto& [name, value] : fields) TakeApart(value);
  fields.clear();
}

ParsedTree ParseTree(std::string_view text) {
  TreeBuilder builder;
  // The library takes a NUL byte for the end of its input.
  const std::size_t nul = text.find('\0');
  const bool read = Tree::sax_parse(text.begin(), text.end(), &builder);
  if (read && nul == std::string_view::npos) return {builder.TakeRoot()};
  return {std::nullopt, read ? nul + 1 : builder.BadByte()};
}

bool IsUtf8(std::string_view text) {
  try {
    static_cast<void>(Tree(text).dump());
    return true;
  } catch (const Tree::type_error&) {
    return false;
  }
}

std::optional<double> NumberOf(const Tree& tree) {
  return tree.is_number() ? std::optional(tree.get<double>()) : std::nullopt;
}

const Tree* FieldNamed(const Tree& tree, std::string_view name) noexcept {
  const Fields* fields = FieldsOf(tree);
  if (!fields) return nullptr;
  const auto found = std::ranges::find(*fields, name, &Fields::value_type::first);
  return found == fields->end() ? nullptr : &found->second;
}

void TakeFields(const Fields& fields, std::string_view what, std::span<const std::string_view> names,
                std::span<const Tree*> found) {
  for (const auto& [fieldName, value] : fields) {
    const auto name = std::ranges::find(names, fieldName);
    if (name == names.end()) {
      std::string message = std::string(what) + " has no field " + Quoted(fieldName) + "; there are";
      for (const std::string_view known : names) message.append(" ").append(known);
      throw RequestError(std::move(message));
    }
    const Tree*& place = found[static_cast<std::size_t>(name - names.begin())];
    if (place) throw RequestError(std::string(what) + " has the field " + Quoted(fieldName) + " twice");
    place = &value;
  }
}

}  // namespace amortix2::json
