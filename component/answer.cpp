#include "amortix2/component/answer.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/engine/records.h"

namespace amortix2 {
namespace {

bool IsSolvable(const FindInfo& find, const Inputs& inputs) {
  const auto isZero = [&](std::string_view name) { return inputs.Number(name) == 0; };
  const bool hasOne =
      find.needsOne.empty() || !std::ranges::all_of(find.needsOne.begin(), find.needsOne.end(), isZero);
  return hasOne && std::ranges::none_of(find.needs.begin(), find.needs.end(), isZero);
}

bool Holds(const SentenceInfo& sentence, const Inputs& inputs, const Results& results) {
  using When = SentenceInfo::When;
  if (sentence.when == When::Always) return true;
  const std::optional<double> figure = results.Number(sentence.figure);
  if (!figure) return false;
  const ParameterInfo* input = FindParameter(inputs.Member(), sentence.than);
  double value = sentence.value;
  if (input && input->IsInput()) {
    value = inputs.Number(sentence.than);
  } else if (!sentence.than.empty()) {
    const std::optional<double> other = results.Number(sentence.than);
    if (!other) return false;
    value = *other;
  }
  if (sentence.when == When::Above) return *figure > value;
  return sentence.when == When::Below ? *figure < value : *figure == value;
}

/// The words for one and for several periods of the member's frequency.
std::array<std::string_view, 2> PeriodWords(const Inputs& inputs) {
  for (const ParameterInfo& parameter : inputs.Member().parameters) {
    if (!parameter.choices || !parameter.choices->enumeration || parameter.unit != Unit::Code) continue;
    const double code = inputs.Number(parameter.name);
    switch (code >= double{dailymode} && code <= double{continuousMode} ? static_cast<int>(code) : 0) {
      case dailymode:
        return {"day", "days"};
      case weeklyMode:
        return {"week", "weeks"};
      case monthlyMode:
        return {"month", "months"};
      case quarterlyMode:
        return {"quarter", "quarters"};
      case annualMode:
        return {"year", "years"};
      default:
        break;
    }
    break;
  }
  return {"period", "periods"};
}

std::string Counted(double number, std::array<std::string_view, 2> words) {
  return NumberText(number) + " " + std::string(words[number == 1 ? 0 : 1]);
}

std::string TextOf(const Variant& value) {
  return value.Type() == VariantType::Array || !IsGiven(value) ? std::string() : ToText(value);
}

}  // namespace

const FindInfo* FoundBy(const Inputs& inputs) {
  const FindInfo* whenAllGiven = nullptr;
  for (const FindInfo& find : inputs.Member().finds) {
    if (find.input.empty()) return &find;
    if (inputs.Number(find.input) == 0) return IsSolvable(find, inputs) ? &find : nullptr;
    if (find.whenAllGiven) whenAllGiven = &find;
  }
  return whenAllGiven;
}

std::string PlainFigure(const Inputs& inputs, const Variant& value, Unit unit) {
  static const NumberPattern kMoney("#,##0.00");
  static const NumberPattern kRate("#,##0.###");
  if (!IsNumeric(value) || !IsGiven(value)) return TextOf(value);
  const double number = NumericOrZero(value);
  switch (unit) {
    case Unit::Currency:
    case Unit::MonthlyCurrency:
      return kMoney.FormatFigure(number);
    case Unit::Percent:
    case Unit::AnnualPercent:
    case Unit::PercentagePoints:
      return kRate.FormatFigure(number) + " %";
    case Unit::Days:
      return Counted(number, {"day", "days"});
    case Unit::Months:
      return Counted(number, {"month", "months"});
    case Unit::Years:
      return Counted(number, {"year", "years"});
    case Unit::Periods:
      return Counted(number, PeriodWords(inputs));
    default:
      return NumberText(number);
  }
}

std::string AnswerSentence(const Inputs& inputs, const Results& results, const FigureText& figure) {
  const FindInfo* found = FoundBy(inputs);
  if (!found) return {};
  const auto* sentence =
      std::ranges::find_if(found->sentences.begin(), found->sentences.end(),
                           [&](const SentenceInfo& candidate) { return Holds(candidate, inputs, results); });
  std::string answer;
  bool complete = true;
  ForEachPart(
      sentence->text, [&](std::string_view text) { answer += text; },
      [&](const Figure& place) {
        const Variant* value = results.Find(place);
        if (!value || !IsGiven(*value)) {
          complete = false;
          return;
        }
        const Unit unit = UnitOf(inputs.Member(), place);
        const Variant shown = place.size ? Variant(std::abs(NumericOrZero(*value))) : *value;
        answer += figure ? figure(shown, unit) : PlainFigure(inputs, shown, unit);
      });
  return complete ? answer : std::string();
}

}  // namespace amortix2
