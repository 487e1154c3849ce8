#include "amortix2/cli/iso_date.h"

#include "amortix2/automation/text_scanner.h"

namespace amortix2::cli {
namespace {

std::optional<int> TakeNumber(TextScanner& scanner, int digits) {
  int number = 0;
  for (; digits > 0; --digits) {
    if (!IsDigit(scanner.Peek())) return std::nullopt;
    number = number * 10 + (scanner.Peek() - '0');
    scanner.Skip();
  }
  return number;
}

}  // namespace

std::optional<Date> ParseIsoDate(std::string_view text) {
  TextScanner scanner(text);
  const auto year = TakeNumber(scanner, 4);
  if (!year || *year < 100 || !scanner.Take('-')) return std::nullopt;
  const auto month = TakeNumber(scanner, 2);
  if (!month || *month < 1 || *month > 12 || !scanner.Take('-')) return std::nullopt;
  const auto day = TakeNumber(scanner, 2);
  if (!day || *day < 1 || *day > 31 || !scanner.AtEnd()) return std::nullopt;
  // A day that its month lacks rolls over into the next month.
  const Date date = MakeDate(*year, *month, *day);
  if (ToCivil(date) != CivilDate{*year, *month, *day}) return std::nullopt;
  return date;
}

}  // namespace amortix2::cli
