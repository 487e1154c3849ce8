#include "amortix2/cli/currency_text.h"

#include <charconv>

#include "amortix2/automation/text_scanner.h"

namespace amortix2::cli {
namespace {

constexpr std::size_t kDecimals = 4;

}  // namespace

std::string CurrencyText(Currency amount) {
  const bool negative = amount.scaled < 0;
  std::string digits = std::to_string(amount.scaled).substr(negative ? 1 : 0);
  if (digits.size() <= kDecimals) digits.insert(0, kDecimals + 1 - digits.size(), '0');
  digits.insert(digits.size() - kDecimals, 1, '.');
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return negative ? '-' + digits : digits;
}

std::optional<Currency> ParseCurrency(std::string_view text) {
  TextScanner scanner(text);
  const bool negative = scanner.Take('-');
  std::string digits(scanner.TakeWhile(IsDigit));
  if (digits.empty()) return std::nullopt;
  const std::string_view decimals = scanner.Take('.') ? scanner.TakeWhile(IsDigit) : std::string_view{};
  if (decimals.size() > kDecimals || !scanner.AtEnd()) return std::nullopt;
  digits += decimals;
  digits.append(kDecimals - decimals.size(), '0');
  if (negative) digits.insert(0, 1, '-');
  Currency amount;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), amount.scaled);
  if (read.ec != std::errc{}) return std::nullopt;
  return amount;
}

}  // namespace amortix2::cli
