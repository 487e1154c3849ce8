#include "amortix2/pages/figure_text.h"

#include <cmath>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/number_format.h"
#include "amortix2/component/answer.h"

namespace amortix2::pages {
namespace {

std::string DateOf(Date date) {
  std::string text(View(FormatMonthDayYear(date)));
  text[2] = text[5] = '/';
  return text;
}

std::string Counted(double number, const char* one, const char* many) {
  static const NumberPattern kCount("#,##0.######");
  return kCount.FormatFigure(number) + (number == 1 ? one : many);
}

/// From two years on in years and months.
std::string MonthsText(double months) {
  constexpr double kYear = 12;
  const double size = std::abs(months);
  if (size < 2 * kYear || size != std::trunc(size)) return Counted(months, " month", " months");
  const double rest = std::fmod(months, kYear);
  std::string text = Counted((months - rest) / kYear, " year", " years");
  if (rest != 0) text += " " + Counted(std::abs(rest), " month", " months");
  return text;
}

bool IsPlain(const Variant& value) {
  return value.Type() != VariantType::Array && value.Type() != VariantType::Boolean && IsNumeric(value);
}

}  // namespace

std::string CellText(const Variant& value, Unit unit) {
  static const NumberPattern kMoney("#,##0.00");
  static const NumberPattern kOther("#,##0.###");
  if (!IsGiven(value)) return {};
  if (value.Type() == VariantType::Date) return DateOf(value.GetDate());
  if (value.Type() == VariantType::String && unit == Unit::Date) {
    const auto date = ParseDate(value.GetString());
    return date ? DateOf(*date) : std::string(value.GetString());
  }
  if (value.Type() == VariantType::String || !IsPlain(value)) {
    return value.Type() == VariantType::Array ? std::string() : ToText(value);
  }
  const double number = NumericOrZero(value);
  switch (unit) {
    case Unit::Currency:
    case Unit::MonthlyCurrency:
      return kMoney.FormatFigure(number);
    case Unit::Percent:
    case Unit::AnnualPercent:
    case Unit::PercentagePoints:
      return kOther.FormatFigure(number) + "%";
    default:
      return kOther.FormatFigure(number);
  }
}

std::string FigureText(const Variant& value, Unit unit) {
  if (!IsGiven(value) || !IsPlain(value)) return CellText(value, unit);
  const double number = NumericOrZero(value);
  switch (unit) {
    case Unit::Currency:
    case Unit::MonthlyCurrency: {
      std::string text = CellText(value, unit);
      return text.insert(text.starts_with('-') ? 1 : 0, "$");
    }
    case Unit::Months:
      return MonthsText(number);
    case Unit::Years:
      return Counted(number, " year", " years");
    case Unit::Days:
      return Counted(number, " day", " days");
    default:
      return CellText(value, unit);
  }
}

std::string FigureText(const Inputs& inputs, const Variant& value, Unit unit) {
  if (unit != Unit::Periods) return FigureText(value, unit);
  // A plan that never ends has -1 of them.
  if (NumericOrZero(value) < 0) return "for ever";
  const std::string text = PlainFigure(inputs, value, unit);
  return text.ends_with(" months") ? FigureText(value, Unit::Months) : text;
}

}  // namespace amortix2::pages
