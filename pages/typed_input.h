#pragma once

// Reading what people type in a form's fields: "$200,000", "6.5 %", "30 years" where months are counted,
// "12/01/2026". What cannot be meant is refused with a sentence that says what would be read.

#include <string>
#include <string_view>

#include "amortix2/component/description.h"
#include "amortix2/json/tree.h"

namespace amortix2::pages {

struct Typed {
  json::Tree value;     ///< as a request holds it; null when nothing was typed, or with an error
  std::string error{};  ///< a sentence for a person; empty when the text was read
};

/// Reads an input of a member: a number with or without its unit within the parameter's range, whole where
/// its steps are; a date; one of its choices by value, title or name; for a list one of its elements. Blanks
/// alone are nothing typed.
Typed ReadTyped(const ParameterInfo& parameter, std::string_view text);

}  // namespace amortix2::pages
