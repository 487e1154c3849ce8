#include "amortix2/pages/typed_input.h"

#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/request_error.h"
#include "amortix2/json/variant_reader.h"
#include "amortix2/pages/figure_text.h"

namespace amortix2::pages {
namespace {

/// What may stand behind a number, and by what it multiplies it.
struct UnitWord {
  std::string_view word;
  double factor;
};
constexpr UnitWord kMonthWords[] = {{"months", 1}, {"month", 1}, {"mos", 1},  {"mo", 1},  {"m", 1},
                                    {"years", 12}, {"year", 12}, {"yrs", 12}, {"yr", 12}, {"y", 12}};
constexpr UnitWord kYearWords[] = {{"years", 1}, {"year", 1}, {"yrs", 1}, {"yr", 1}, {"y", 1}};
constexpr UnitWord kDayWords[] = {{"days", 1}, {"day", 1}};
constexpr UnitWord kPercentWords[] = {{"%", 1}, {"percent", 1}};
constexpr UnitWord kMoneyWords[] = {{"dollars", 1}, {"usd", 1}, {"k", 1000}};

std::span<const UnitWord> WordsOf(Unit unit) {
  switch (unit) {
    case Unit::Currency:
    case Unit::MonthlyCurrency:
      return kMoneyWords;
    case Unit::Percent:
    case Unit::AnnualPercent:
    case Unit::PercentagePoints:
      return kPercentWords;
    case Unit::Months:
      return kMonthWords;
    case Unit::Years:
      return kYearWords;
    case Unit::Days:
      return kDayWords;
    default:
      return {};
  }
}

void SkipBlanks(TextScanner& scanner) { scanner.TakeWhile(IsBlank); }

/// The digits of an unsigned number, whose commas part thousands: "1,5" is no number of anybody's.
std::optional<double> ReadNumber(TextScanner& scanner) {
  std::string digits(scanner.TakeWhile(IsDigit));
  if (scanner.Peek() == ',' && (digits.empty() || digits.size() > 3)) return std::nullopt;
  while (scanner.Take(',')) {
    const std::string_view group = scanner.TakeWhile(IsDigit);
    if (group.size() != 3) return std::nullopt;
    digits += group;
  }
  const bool hasPoint = scanner.Take('.');
  const std::string_view decimals = hasPoint ? scanner.TakeWhile(IsDigit) : std::string_view();
  if (digits.empty() && decimals.empty()) return std::nullopt;
  return ParseNumber((digits.empty() ? "0" : digits) + "." + std::string(decimals));
}

/// The factor of the word that stands next; nothing for a word that the unit has not.
std::optional<double> ReadWord(TextScanner& scanner, Unit unit) {
  SkipBlanks(scanner);
  std::string word;
  if (scanner.Take('%')) {
    word = "%";
  } else {
    for (const char c : scanner.TakeWhile(IsLetter)) word += ToLower(c);
  }
  if (word.empty()) return 1;
  for (const UnitWord& known : WordsOf(unit)) {
    if (known.word == word) return known.factor;
  }
  return std::nullopt;
}

/// "-$1,250.50", "6.5 %", "2 years 6 months".
std::optional<double> ReadQuantity(std::string_view text, Unit unit) {
  TextScanner scanner(text);
  const bool isNegative = scanner.Take('-');
  SkipBlanks(scanner);
  if (IsMoney(unit) && scanner.Take('$')) SkipBlanks(scanner);
  double sum = 0;
  do {
    const auto number = ReadNumber(scanner);
    const auto factor = number ? ReadWord(scanner, unit) : std::nullopt;
    if (!factor) return std::nullopt;
    sum += *number * *factor;
    SkipBlanks(scanner);
    scanner.TakeWhile([](char c) { return c == ','; });
    SkipBlanks(scanner);
  } while (!scanner.AtEnd() && unit == Unit::Months);
  if (!scanner.AtEnd()) return std::nullopt;
  return isNegative && sum != 0 ? -sum : sum;
}

json::Tree NumberTree(double number) {
  constexpr double kLargest = std::numeric_limits<std::int32_t>::max();
  if (std::abs(number) <= kLargest && number == std::trunc(number)) return static_cast<std::int64_t>(number);
  return number;
}

Typed Refused(std::string sentence) { return {nullptr, std::move(sentence)}; }

Typed ReadNumberOf(const ParameterInfo& parameter, std::string_view text) {
  const auto number = ReadQuantity(text, parameter.unit);
  if (!number) {
    const double like = parameter.range.least > 0 ? parameter.range.least : parameter.range.most;
    const auto example = ReadQuantity(parameter.example, parameter.unit);
    return Refused(json::Quoted(text) + " cannot be read. Write it like " +
                   FigureText(Variant(example.value_or(like)), parameter.unit) + ".");
  }
  const Range& range = parameter.range;
  // A "find it" input's range is that of given values; 0 is left out, which is settled elsewhere.
  const bool isZero = *number == 0 && parameter.omitted != Omitted::Required;
  if (range.IsGiven() && !range.Contains(*number) && !isZero) {
    return Refused("Enter a value from " + FigureText(Variant(range.least), parameter.unit) + " to " +
                   FigureText(Variant(range.most), parameter.unit) + ".");
  }
  if (range.step == 1 && *number != std::trunc(*number)) return Refused("Enter a whole number.");
  return {NumberTree(*number)};
}

Typed ReadDateOf(std::string_view text) {
  auto date = json::ParseIsoDate(text);
  if (!date) date = ParseDate(text);
  if (!date) return Refused(json::Quoted(text) + " is no date. Write it like 12/31/2026.");
  const auto iso = FormatIso(*date);
  return {{{"type", "Date"}, {"value", View(iso)}}};
}

Typed ReadChoiceOf(const ParameterInfo& parameter, std::string_view text) {
  const ChoiceInfo* choice = FindChoice(*parameter.choices, text);
  if (!choice) return Refused(json::Quoted(text) + " is none of the choices.");
  if (parameter.unit == Unit::Text) return {choice->text};
  return {NumberTree(ParseNumber(choice->text).value_or(0))};
}

}  // namespace

Typed ReadTyped(const ParameterInfo& parameter, std::string_view text) {
  text = Trimmed(text);
  if (text.empty()) return {};
  if (parameter.choices) return ReadChoiceOf(parameter, text);
  if (parameter.unit == Unit::Date) return ReadDateOf(text);
  if (IsNumber(parameter.unit)) return ReadNumberOf(parameter, text);
  return {std::string(text)};
}

}  // namespace amortix2::pages
