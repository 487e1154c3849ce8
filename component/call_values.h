#pragma once

// The variants of one call by their names: what a member was given, and what came back. Only looks; holds no
// value of its own but the few inputs that a call may overwrite where they stand.

#include <deque>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/component/description.h"
#include "amortix2/component/figure.h"

namespace amortix2 {

/// False for Empty, Null, Missing and blank text: an input that was left out.
bool IsGiven(const Variant& value);

/// The elements of a list, or the one value that is no array; none of what is not given.
std::span<const Variant> ElementsOf(const Variant& value);

/// What a member was given. To be made before the call, with one value per parameter, which must outlive it.
class Inputs {
 public:
  Inputs(const MemberInfo& member, std::span<const Value> arguments);
  Inputs(Inputs&&) = default;
  Inputs& operator=(Inputs&&) = default;

  const MemberInfo& Member() const noexcept { return *member_; }

  /// The input of a parameter by its place or its name; Empty for what is no variant, and for an unknown
  /// name.
  const Variant& At(std::size_t place) const { return *values_[place]; }
  const Variant& At(std::string_view name) const;

  /// False for a table by reference, which is not looked at: it may be large, and stands as Empty.
  bool IsSeen(std::size_t place) const noexcept;

  /// The input as calculators read it: 0 for what is no number.
  double Number(std::string_view name) const;

 private:
  const MemberInfo* member_;
  std::vector<const Variant*> values_;
  std::deque<Variant> kept_;  ///< inputs by reference, which the call may change (a deque: they never move)
};

/// What a call left in its by-reference arguments.
class Results {
 public:
  Results(const MemberInfo& member, std::span<const Value> arguments)
      : member_(&member), values_(arguments) {}

  /// The variant that a figure names; null when there is none (no such cell, an error before it was written).
  const Variant* Find(const Figure& figure) const;
  /// The figure's number ("vResPayment", "vGrid(4,3)"); nothing when it is none.
  std::optional<double> Number(std::string_view figure) const;

 private:
  const MemberInfo* member_;
  std::span<const Value> values_;
};

/// The unit of a figure: the parameter's, or that of the table's column, row or whole.
Unit UnitOf(const MemberInfo& member, const Figure& figure);

}  // namespace amortix2
