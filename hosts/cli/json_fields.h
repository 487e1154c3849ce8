#pragma once

// Objects of JSON that have a fixed set of fields.

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "amortix2/cli/json.h"

namespace amortix2::cli {

/// Finds the fields of an object, each at most once and none but those in `names`; `found` receives them in
/// the order of `names`, null where one is left out. Raises RequestError, in which `what` names the object.
void TakeFields(const Json::Fields& fields, std::string_view what, std::span<const std::string_view> names,
                std::span<const Json*> found);

template <std::size_t N>
std::array<const Json*, N> TakeFields(const Json::Fields& fields, std::string_view what,
                                      const std::string_view (&names)[N]) {
  std::array<const Json*, N> found{};
  TakeFields(fields, what, std::span(names), found);
  return found;
}

}  // namespace amortix2::cli
