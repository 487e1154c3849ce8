#include "amortix2/pages/two_answers.h"

#include <algorithm>

#include "amortix2/automation/conversion.h"
#include "amortix2/component/answer.h"
#include "amortix2/pages/figure_text.h"
#include "amortix2/pages/figures.h"
#include "amortix2/pages/schedule.h"

namespace amortix2::pages {
namespace {

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
