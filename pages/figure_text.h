#pragma once

// Figures as people in the interface's country read them: "$1,264.14", "6.5%", "30 years", "12/01/2026".

#include <string>

#include "amortix2/automation/variant.h"
#include "amortix2/component/call_values.h"

namespace amortix2::pages {

/// A value with its unit; from 24 on, months are told in years and months.
std::string FigureText(const Variant& value, Unit unit);

/// The same, where periods have the word of the member's frequency ("24 quarters"), and those of a plan that
/// never ends are "for ever".
std::string FigureText(const Inputs& inputs, const Variant& value, Unit unit);

/// A table's cell, whose column tells the unit: money without its sign, times without their word.
std::string CellText(const Variant& value, Unit unit);

}  // namespace amortix2::pages
