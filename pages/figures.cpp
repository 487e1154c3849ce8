#include "amortix2/pages/figures.h"

#include <algorithm>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/answer.h"
#include "amortix2/json/result_table.h"

namespace amortix2::pages {
namespace {

/// The cells of a small table that has titles on both sides.
void AddCells(std::vector<NamedFigure>& figures, const json::ResultTable& table, bool isList) {
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper && !table.rowTitles.empty(); ++row) {
    const std::string& title = table.rowTitles[static_cast<std::size_t>(row - table.rows.lower)];
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      figures.push_back({.title = isList ? title : title + ", " + table.columns[column],
                         .value = table.cell(row, column),
                         .unit = table.unit(row, column),
                         .isCell = !isList});
    }
  }
}

/// Whether a result is its input as it was given. Rounding may have left something of it, which is told.
bool ComesBack(const Calculation& calculation, const ParameterInfo& result, const Variant& value) {
  const Variant& given = calculation.In().At(result.echoes);
  return !IsNumber(result.unit) || NumericOrZero(given) == NumericOrZero(value);
}

void AddFigure(std::vector<NamedFigure>& figures, const Calculation& calculation,
               const ParameterInfo& parameter) {
  const FindInfo* found = FoundBy(calculation.In());
  const bool isFound = found && found->figure == parameter.name;
  const Variant* value = calculation.Out().Find({.parameter = parameter.name});
  if (!value || !IsGiven(*value)) return;
  if (value->Type() != VariantType::Array) {
    const bool isEcho = !parameter.echoes.empty() && !isFound && ComesBack(calculation, parameter, *value);
    figures.push_back({.title = std::string(parameter.title),
                       .value = *value,
                       .unit = parameter.unit,
                       .isFound = isFound,
                       .isEcho = isEcho});
  } else if (parameter.table && !parameter.table->rows.empty()) {
    const Array& array = value->GetArray();
    AddCells(figures, json::TableOf(calculation.In(), parameter, array), array.Rank() == 1);
  }
}

}  // namespace

std::vector<NamedFigure> FiguresOf(const Calculation& calculation) {
  std::vector<NamedFigure> figures;
  for (const ParameterInfo& parameter : calculation.Member().parameters) {
    if (parameter.role == Role::Result) AddFigure(figures, calculation, parameter);
  }
  // What was asked for stands first.
  std::stable_partition(figures.begin(), figures.end(),
                        [](const NamedFigure& figure) { return figure.isFound; });
  return figures;
}

}  // namespace amortix2::pages
