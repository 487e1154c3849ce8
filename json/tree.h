#pragma once

// JSON as it was read: a tree that keeps an object's fields in their order, those given twice included, and
// whole numbers of 64 bits apart from other numbers. A tree is never deeper than kDeepest, so walking one
// recursively is safe.

#include <array>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace amortix2::json {

using Tree = nlohmann::ordered_json;
using Items = Tree::array_t;
using Fields = Tree::object_t;

inline constexpr std::size_t kDeepest = 64;

struct ParsedTree {
  std::optional<Tree> tree;  ///< nothing when the text is no JSON
  std::size_t badByte = 0;   ///< the place (from 1) where reading stopped then
};

/// Reads one JSON text in UTF-8. Raises RequestError for JSON that is nested deeper than kDeepest or has a
/// number beyond the range of doubles.
ParsedTree ParseTree(std::string_view text);

/// Empties an array or an object without taking memory. The library's own end of one that is not empty takes
/// some, and ends the program where there is none.
void TakeApart(Tree& tree) noexcept;
void TakeApart(Fields& fields) noexcept;

/// Fields that end so.
class OwnFields : public Fields {
 public:
  OwnFields() = default;
  OwnFields(const OwnFields&) = delete;
  OwnFields& operator=(const OwnFields&) = delete;
  ~OwnFields() { TakeApart(*this); }
};

// What a value holds; null when it is of another kind.
inline const bool* BooleanOf(const Tree& tree) { return tree.get_ptr<const bool*>(); }
inline const std::int64_t* IntegerOf(const Tree& tree) { return tree.get_ptr<const std::int64_t*>(); }
inline const std::string* TextOf(const Tree& tree) { return tree.get_ptr<const std::string*>(); }
inline const Items* ItemsOf(const Tree& tree) { return tree.get_ptr<const Items*>(); }
inline const Fields* FieldsOf(const Tree& tree) { return tree.get_ptr<const Fields*>(); }

/// True for bytes that are text in UTF-8.
bool IsUtf8(std::string_view text);

/// Any number as a double.
std::optional<double> NumberOf(const Tree& tree);

/// The first field of a name; null when there is none, or when the tree is no object.
const Tree* FieldNamed(const Tree& tree, std::string_view name) noexcept;

/// Finds the fields of an object, each at most once and none but those in `names`; `found` receives them in
/// the order of `names`, null where one is left out. Raises RequestError, in which `what` names the object.
void TakeFields(const Fields& fields, std::string_view what, std::span<const std::string_view> names,
                std::span<const Tree*> found);

template <std::size_t N>
std::array<const Tree*, N> TakeFields(const Fields& fields, std::string_view what,
                                      const std::string_view (&names)[N]) {
  std::array<const Tree*, N> found{};
  TakeFields(fields, what, std::span(names), found);
  return found;
}

}  // namespace amortix2::json
