#pragma once

// A field of a form: its label, its control with the unit beside it, a hint, and what was wrong with it, each
// tied to the control for those who hear the page. OpenField, then one control, then CloseField.

#include <string>
#include <string_view>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/component/meaning.h"

namespace amortix2::pages {

struct FormField {
  std::string id;
  std::string_view name{};  ///< of the value in the query
  std::string_view label{};
  std::string_view value{};  ///< as it was typed, or the choice's text
  std::string_view unit{};   ///< "$", "$ a month", "months"; empty: none
  std::string hint{};
  std::string_view error{};
  std::string style = "field";
};

void OpenField(EscapedMarkup& out, const FormField& field);
void CloseField(EscapedMarkup& out, const FormField& field);

/// A line of text. `type` is that of the input element, `isDecimal` asks a telephone for its digits.
void AppendInput(EscapedMarkup& out, const FormField& field, std::string_view type = "text",
                 bool isDecimal = false);

/// Many lines of text.
void AppendArea(EscapedMarkup& out, const FormField& field);

/// A list of the choices, on the one that the value names. `unlisted` is a choice's second name.
void AppendSelect(EscapedMarkup& out, const FormField& field, const ChoicesInfo& choices,
                  std::string_view unlisted = {});

}  // namespace amortix2::pages
