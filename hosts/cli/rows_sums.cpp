#include "amortix2/cli/rows_sums.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <optional>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/request_error.h"

namespace amortix2::cli {
namespace {

constexpr std::array<std::string_view, 5> kColumns{"Date", "Payment", "Principal", "Interest", "Balance"};
const json::CsvRecord kHeader{"month", "payments", "principal", "interest", "balance"};

constexpr std::int32_t kMonths = 12;

int Digits(std::string_view text) {
  int number = 0;
  for (const char c : text) number = IsDigit(c) ? number * 10 + (c - '0') : -1'000'000;
  return number;
}

/// The month of "mm-dd-yyyy" or, `isIso`, of "yyyy-mm", counted from the year 0.
std::optional<std::int32_t> MonthOf(std::string_view text, bool isIso) {
  if (text.size() != (isIso ? 7u : 10u) || text[isIso ? 4 : 2] != '-') return std::nullopt;
  const int year = Digits(isIso ? text.substr(0, 4) : text.substr(6));
  const int month = Digits(isIso ? text.substr(5) : text.substr(0, 2));
  if (year < 0 || month < 1 || month > kMonths) return std::nullopt;
  return year * kMonths + month - 1;
}

std::int64_t ToCents(double amount) {
  constexpr double kNoFraction = 0x1.8p52;  // a sum with it has no room for a fraction
  const double cents = amount * 100;
  if (!(std::abs(cents) < 0x1p51)) {
    throw json::RequestError(ErrorNumber::Overflow, "an amount is too large to be added up in cents");
  }
  return std::bit_cast<std::int64_t>(cents + kNoFraction) - std::bit_cast<std::int64_t>(kNoFraction);
}

template <class Cents>
std::string ToText(Cents cents) {
  std::string text;
  const bool isNegative = cents < 0;
  for (int place = 0; cents != 0 || place < 3; ++place) {
    if (place == 2) text += '.';
    const auto digit = static_cast<int>(cents % 10);
    text += static_cast<char>('0' + (digit < 0 ? -digit : digit));
    cents /= 10;
  }
  if (isNegative) text += '-';
  std::ranges::reverse(text);
  return text;
}

/// Reads what ToText writes.
template <class Cents>
std::optional<Cents> FromText(std::string_view text) {
  constexpr std::size_t kMostDigits = 36;
  TextScanner scanner(text);
  const bool isNegative = scanner.Take('-');
  const std::string_view whole = scanner.TakeWhile(IsDigit);
  const bool hasPoint = scanner.Take('.');
  const std::string_view decimals = scanner.TakeWhile(IsDigit);
  if (whole.empty() || whole.size() > kMostDigits || !hasPoint || decimals.size() != 2 || !scanner.AtEnd()) {
    return std::nullopt;
  }
  Cents cents = 0;
  for (const std::string_view part : {whole, decimals}) {
    for (const char c : part) cents = cents * 10 + (c - '0');
  }
  return isNegative ? -cents : cents;
}

std::string MonthText(std::int32_t month) {
  const std::string year = std::to_string(month / kMonths);
  const std::string number = std::to_string(month % kMonths + 1);
  return std::string(4 - std::min<std::size_t>(4, year.size()), '0') + year +
         (number.size() < 2 ? "-0" : "-") + number;
}

}  // namespace

void NeedLoanSchedule(const ParameterInfo& result) {
  const TableInfo* table = result.table;
  const bool isSchedule =
      table && !table->repeats && table->columns.size() >= kColumns.size() &&
      std::ranges::equal(kColumns, table->columns.first(kColumns.size()), {}, {}, &HeadingInfo::title);
  if (!isSchedule) throw json::RequestError(std::string(result.name) + " is no schedule of one loan");
}

void MonthSums::ReadLines(const Array& schedule) {
  lines_.clear();
  if (schedule.Rank() != 2 || schedule.Dimension(2).upper < static_cast<std::int32_t>(kColumns.size()))
    return;
  const Bounds rows = schedule.Dimension(1);
  for (std::int64_t row = rows.lower; row <= rows.upper; ++row) {
    const Variant& date = schedule.At(row, 1);
    const auto month = date.Type() == VariantType::String ? MonthOf(date.GetString(), false) : std::nullopt;
    if (!month) return;
    Line& line = lines_.emplace_back();
    line.month = *month;
    const Variant* cell = &date;
    for (std::int64_t& cents : line.cents) {
      ++cell;
      cents = ToCents(cell->Type() == VariantType::Double ? cell->GetDouble() : ToDouble(*cell));
    }
  }
}

void MonthSums::Add(const Variant& schedule) {
  lines_.clear();
  if (schedule.Type() == VariantType::Array) ReadLines(schedule.GetArray());
  if (lines_.empty()) {
    throw json::RequestError(ErrorNumber::TypeMismatch, "there is no schedule: the inputs determine no loan");
  }
  const auto [first, last] = std::ranges::minmax_element(lines_, {}, &Line::month);
  Cover(first->month, last->month);
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    Amounts& sums = At(line.month);
    for (std::size_t column = 0; column < kBalance; ++column) sums[column] += line.cents[column];
    // The balance stands until the next line's month, and the last one in its own.
    const std::int32_t until = i + 1 < lines_.size() ? lines_[i + 1].month : line.month + 1;
    for (std::int32_t month = line.month; month < until; ++month) {
      At(month)[kBalance] += line.cents[kBalance];
    }
  }
}

void MonthSums::Add(const MonthSums& other) {
  if (other.months_.empty()) return;
  Cover(other.first_, other.first_ + static_cast<std::int32_t>(other.months_.size()) - 1);
  for (std::size_t i = 0; i < other.months_.size(); ++i) {
    Amounts& sums = months_[static_cast<std::size_t>(other.first_ - first_) + i];
    std::ranges::transform(sums, other.months_[i], sums.begin(), std::plus());
  }
}

void MonthSums::Cover(std::int32_t first, std::int32_t last) {
  if (months_.empty()) first_ = first;
  if (first < first_) {
    months_.insert(months_.begin(), static_cast<std::size_t>(first_ - first), {});
    first_ = first;
  }
  const auto count = static_cast<std::size_t>(last - first_) + 1;
  if (count > months_.size()) months_.resize(count);
}

void MonthSums::AddText(std::string_view text, char separator) {
  const std::vector<json::CsvRecord> records = json::ParseCsv(text, separator);
  if (records.empty() || records.front() != kHeader) {
    throw json::RequestError("this is no sum by month: its header is not month,payments,...");
  }
  for (auto record = records.begin() + 1; record != records.end(); ++record) {
    const auto month = MonthOf(record->front(), true);
    if (!month) throw json::RequestError(json::Quoted(record->front()) + " is no month YYYY-MM");
    Cover(*month, *month);
    for (std::size_t column = 0; column < At(*month).size(); ++column) {
      const auto cents = FromText<Cents>((*record)[column + 1]);
      if (!cents) throw json::RequestError(json::Quoted((*record)[column + 1]) + " is no amount in cents");
      At(*month)[column] += *cents;
    }
  }
}

void MonthSums::AppendTo(std::string& out, char separator) const {
  json::AppendCsv(out, kHeader, separator);
  std::int32_t month = first_;
  for (const Amounts& sums : months_) {
    json::CsvRecord record{MonthText(month++)};
    for (const Cents cents : sums) record.push_back(ToText(cents));
    json::AppendCsv(out, record, separator);
  }
}

}  // namespace amortix2::cli
