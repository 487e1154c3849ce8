#pragma once

// The single values of an answer, whatever they stand in, each with its title.

#include <string>
#include <vector>

#include "amortix2/automation/variant.h"
#include "amortix2/component/meaning.h"
#include "amortix2/pages/calculation.h"

namespace amortix2::pages {

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

}  // namespace amortix2::pages
