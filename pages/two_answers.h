#pragma once

// Two answers of the same calculator side by side: what was changed, and what came of it.

#include <string>
#include <vector>

#include "amortix2/charts/escaped_markup.h"
#include "amortix2/pages/calculation.h"

namespace amortix2::pages {

/// A single value of an answer, whatever it stands in.
struct NamedFigure {
  std::string title;
  Variant value;
  Unit unit = Unit::None;
  bool isFound = false;  ///< what was asked for
  bool isEcho = false;   ///< an input that came back as it was given
  bool isCell = false;   ///< of a table that is shown as one
};

/// The single results of an answered calculation, and the cells of its small tables that have titles on both
/// sides, what was asked for first.
std::vector<NamedFigure> FiguresOf(const Calculation& calculation);

/// A table of the inputs that differ and of all figures, with the difference. Both are of one member.
void AppendTwoAnswers(EscapedMarkup& out, const Calculation& first, const Calculation& second);

}  // namespace amortix2::pages
