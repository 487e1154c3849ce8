#include "amortix2/cli/rows_sums.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <utility>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/request_error.h"

namespace amortix2::cli {
namespace {

const json::CsvRecord kHeader{"month", "payments", "principal", "interest", "balance"};

/// The month of "yyyy-mm".
std::optional<std::int32_t> ReadMonth(std::string_view text) {
  TextScanner scanner(text);
  const std::string_view year = scanner.TakeWhile(IsDigit);
  const bool isParted = scanner.Take('-');
  const std::string_view month = scanner.TakeWhile(IsDigit);
  if (year.size() != 4 || !isParted || month.size() != 2 || !scanner.AtEnd()) return std::nullopt;
  const auto digits = [](std::string_view part) {
    return std::accumulate(part.begin(), part.end(), 0, [](int sum, char c) { return sum * 10 + (c - '0'); });
  };
  const int number = digits(month);
  if (number < 1 || number > kMonths) return std::nullopt;
  return digits(year) * kMonths + number - 1;
}

template <class Cents>
std::string CentsText(Cents cents) {
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

/// Reads what CentsText writes.
template <class Cents>
std::optional<Cents> ReadCents(std::string_view text) {
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

/// Adds the lines to the open sums.
void MonthSums::Book(std::span<const CentLine> lines) {
  std::int32_t before = lines.front().month;
  std::int64_t balance = 0;
  for (const CentLine& line : lines) {
    // The balance stands until the next line's month, and gives way to another in its own.
    for (std::int32_t between = before + 1; between < line.month; ++between) {
      OpenAt(between)[kBalance] += balance;
    }
    OpenAmounts& sums = OpenAt(line.month);
    if (line.month == before) sums[kBalance] -= balance;
    for (std::size_t i = 0; i < kAmounts; ++i) sums[i] += line.cents[i];
    balance = line.cents[kBalance];
    before = line.month;
  }
}

void MonthSums::Add(const CentSchedule& schedule) {
  const std::span<const CentLine> lines = schedule.Lines();
  if (lines.empty()) {
    throw json::RequestError(ErrorNumber::TypeMismatch, "there is no schedule: the inputs determine no loan");
  }
  // No month gets more than each line's amount, and a balance that stands.
  const double most = schedule.Largest() * static_cast<double>(lines.size() + 1);
  constexpr double kRoom = 0x1p62;
  if (!(schedule.Largest() <= 0x1p51 && most <= kRoom)) {
    throw json::RequestError(ErrorNumber::Overflow, "an amount is too large to be added up in cents");
  }
  if (open_ + most > kRoom) Close();
  const auto [first, last] = std::ranges::minmax(lines, {}, &CentLine::month);
  Cover(first.month, last.month);
  Book(lines);
  open_ += most;
}

/// Moves the open sums to where there is room for all.
void MonthSums::Close() {
  for (std::size_t month = 0; month < months_.size(); ++month) {
    for (std::size_t i = 0; i < kAmounts; ++i) {
      months_[month][i] += std::exchange(openMonths_[month][i], 0);
    }
  }
  open_ = 0;
}

void MonthSums::Add(MonthSums other) {
  if (other.months_.empty()) return;
  other.Close();
  Cover(other.first_, other.first_ + static_cast<std::int32_t>(other.months_.size()) - 1);
  for (std::size_t i = 0; i < other.months_.size(); ++i) {
    Amounts& sums = months_[static_cast<std::size_t>(other.first_ - first_) + i];
    std::ranges::transform(sums, other.months_[i], sums.begin(), std::plus());
  }
}

void MonthSums::Cover(std::int32_t first, std::int32_t last) {
  if (months_.empty()) first_ = first;
  if (first < first_) {
    const auto more = static_cast<std::size_t>(first_ - first);
    months_.insert(months_.begin(), more, {});
    openMonths_.insert(openMonths_.begin(), more, {});
    first_ = first;
  }
  const auto count = static_cast<std::size_t>(last - first_) + 1;
  months_.resize(std::max(count, months_.size()));
  openMonths_.resize(months_.size());
}

void MonthSums::AddText(std::string_view text, char separator) {
  const std::vector<json::CsvRecord> records = json::ParseCsv(text, separator);
  if (records.empty() || records.front() != kHeader) {
    throw json::RequestError("this is no sum by month: its header is not month,payments,...");
  }
  for (auto record = records.begin() + 1; record != records.end(); ++record) {
    const auto month = ReadMonth(record->front());
    if (!month) throw json::RequestError(json::Quoted(record->front()) + " is no month YYYY-MM");
    Cover(*month, *month);
    for (std::size_t column = 0; column < At(*month).size(); ++column) {
      const auto cents = ReadCents<Cents>((*record)[column + 1]);
      if (!cents) throw json::RequestError(json::Quoted((*record)[column + 1]) + " is no amount in cents");
      At(*month)[column] += *cents;
    }
  }
}

void MonthSums::AppendTo(std::string& out, char separator) {
  Close();
  json::AppendCsv(out, kHeader, separator);
  std::int32_t month = first_;
  for (const Amounts& sums : months_) {
    json::CsvRecord record{MonthText(month++)};
    for (const Cents cents : sums) record.push_back(CentsText(cents));
    json::AppendCsv(out, record, separator);
  }
}

}  // namespace amortix2::cli
