#include "amortix2/pages/two_answers.h"

#include <algorithm>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/answer.h"
#include "amortix2/json/result_table.h"
#include "amortix2/pages/figure_text.h"
#include "amortix2/pages/schedule.h"

namespace amortix2::pages {
namespace {

/// The cells of a small table that has titles on both sides.
void AddCells(std::vector<NamedFigure>& figures, const json::ResultTable& table, bool isList) {
  for (std::int64_t row = table.rows.lower; row <= table.rows.upper && !table.rowTitles.empty(); ++row) {
    const std::string& title = table.rowTitles[static_cast<std::size_t>(row - table.rows.lower)];
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      figures.push_back({isList ? title : title + ", " + table.columns[column], table.cell(row, column),
                         table.unit(row, column), false, false, !isList});
    }
  }
}

void AddFigure(std::vector<NamedFigure>& figures, const Calculation& calculation,
               const ParameterInfo& parameter) {
  const FindInfo* found = FoundBy(calculation.In());
  const bool isFound = found && found->figure == parameter.name;
  const Variant* value = calculation.Out().Find({.parameter = parameter.name});
  if (!value || !IsGiven(*value)) return;
  if (value->Type() != VariantType::Array) {
    const bool isEcho = !parameter.echoes.empty() && !isFound;
    figures.push_back({std::string(parameter.title), *value, parameter.unit, isFound, isEcho});
  } else if (parameter.table && !parameter.table->rows.empty()) {
    const Array& array = value->GetArray();
    AddCells(figures, json::TableOf(calculation.In(), parameter, array), array.Rank() == 1);
  }
}

/// A figure of both answers.
struct Pair {
  NamedFigure one;
  NamedFigure other;
};

/// The inputs that differ and are given in both, then the figures that at least one of both was asked for.
std::vector<Pair> Pairs(const Calculation& first, const Calculation& second) {
  std::vector<Pair> pairs;
  for (const ParameterInfo& parameter : first.Member().parameters) {
    if (!parameter.IsInput()) continue;
    const Variant& one = first.In().At(parameter.name);
    const Variant& other = second.In().At(parameter.name);
    const bool isArray = one.Type() == VariantType::Array || other.Type() == VariantType::Array;
    if (isArray || one == other || !IsGiven(one) || !IsGiven(other)) continue;
    const std::string title(parameter.title);
    pairs.push_back({{title, one, parameter.unit}, {title, other, parameter.unit}});
  }
  const std::vector<NamedFigure> others = FiguresOf(second);
  for (const NamedFigure& one : FiguresOf(first)) {
    const auto other = std::ranges::find(others, one.title, &NamedFigure::title);
    if (other != others.end() && !(one.isEcho && other->isEcho)) pairs.push_back({one, *other});
  }
  return pairs;
}

void AppendRow(EscapedMarkup& out, const Calculation& calculation, const Pair& pair) {
  const NamedFigure& one = pair.one;
  const NamedFigure& other = pair.other;
  const auto text = [&](const Variant& value) { return FigureText(calculation.In(), value, one.unit); };
  out.Open("tr");
  out.TextElement("th", {{"scope", "row"}}, one.title);
  out.TextElement("td", {}, text(one.value));
  out.TextElement("td", {}, text(other.value));
  const bool isNumber =
      amortix2::IsNumber(one.unit) && one.unit != Unit::Code && IsGiven(one.value) && IsGiven(other.value);
  const double difference = NumericOrZero(other.value) - NumericOrZero(one.value);
  out.TextElement("td", {},
                  isNumber ? (difference > 0 ? "+" : "") + text(Variant(difference)) : std::string());
  out.Close();
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

void AppendTwoAnswers(EscapedMarkup& out, const Calculation& first, const Calculation& second) {
  OpenTable(out, "Beside the first answer");
  out.Open("thead");
  out.Open("tr");
  out.TextElement("td", {}, {});
  for (const char* title : {"First", "Now", "Difference"}) out.TextElement("th", {{"scope", "col"}}, title);
  out.Close();
  out.Close();
  out.Open("tbody");
  for (const Pair& pair : Pairs(first, second)) AppendRow(out, second, pair);
  out.Close();
  CloseTable(out);
}

}  // namespace amortix2::pages
