#include "amortix2/cli/rows_sums.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <functional>
#include <optional>
#include <utility>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/csv.h"
#include "amortix2/json/request_error.h"

namespace amortix2::cli {
namespace {

constexpr std::array<std::string_view, 5> kColumns{"Date", "Payment", "Principal", "Interest", "Balance"};
const json::CsvRecord kHeader{"month", "payments", "principal", "interest", "balance"};

constexpr std::int32_t kMonths = 12;

constexpr std::int32_t Digit(char c) { return c - '0'; }
constexpr std::int32_t TwoDigits(const char* text) { return Digit(text[0]) * 10 + Digit(text[1]); }

/// Reads months of years in their digits; those of one year follow each other, mostly.
class MonthReader {
 public:
  /// The month counted from the year 0; negative where there is none.
  std::int32_t At(const char* year, const char* month) {
    std::uint32_t digits = 0;
    std::memcpy(&digits, year, sizeof digits);
    if (digits != year_) {
      year_ = digits;
      january_ = (TwoDigits(year) * 100 + TwoDigits(year + 2)) * kMonths;
    }
    const std::int32_t number = TwoDigits(month);
    return number >= 1 && number <= kMonths ? january_ + number - 1 : -1;
  }

 private:
  std::uint32_t year_ = 0;  // the digits, as they lie in memory
  std::int32_t january_ = 0;
};

/// The month of "yyyy-mm".
std::optional<std::int32_t> ReadMonth(std::string_view text) {
  TextScanner scanner(text);
  const std::string_view year = scanner.TakeWhile(IsDigit);
  const bool isParted = scanner.Take('-');
  const std::string_view month = scanner.TakeWhile(IsDigit);
  if (year.size() != 4 || !isParted || month.size() != 2 || !scanner.AtEnd()) return std::nullopt;
  const std::int32_t number = MonthReader().At(year.data(), month.data());
  return number < 0 ? std::nullopt : std::optional(number);
}

/// A number of cents, rounded; up to 2^51 of them.
std::uint64_t ToWhole(double cents) {
  constexpr double kNoFraction = 0x1.8p52;  // a sum with it has no room for a fraction
  return std::bit_cast<std::uint64_t>(cents + kNoFraction) - std::bit_cast<std::uint64_t>(kNoFraction);
}

double AmountIn(const Variant& cell) {
  return cell.Type() == VariantType::Double ? cell.GetDouble() : ToDouble(cell);
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

/// The months of the schedule's lines, as far as it has some; and where their cells are.
void MonthSums::ReadMonths(const Array& schedule) {
  constexpr Bounds kUsed{1, kColumns.size()};
  if (schedule.Rank() != 2) return;
  const Bounds columns = schedule.Dimension(2);
  if (!columns.Contains(kUsed.lower) || !columns.Contains(kUsed.upper)) return;
  width_ = static_cast<std::size_t>(columns.Count());
  const auto first = static_cast<std::size_t>(kUsed.lower - columns.lower);
  cells_ = schedule.Cells();
  lineMonths_.resize(cells_.size() / width_);
  MonthReader months;
  std::size_t lines = 0;
  for (; lines < lineMonths_.size(); ++lines) {
    // "mm-dd-yyyy"
    const Variant& date = cells_[lines * width_ + first];
    if (date.Type() != VariantType::String) break;
    const std::string_view text = date.GetString();
    const std::int32_t month = text.size() == sizeof(DateText) ? months.At(text.data() + 6, text.data()) : -1;
    if (month < 0) break;
    lineMonths_[lines] = month;
  }
  lineMonths_.resize(lines);
  if (lines > 0) cells_ = cells_.subspan(first);
}

/// Adds the lines to the open sums, or takes them off again; returns the largest amount in cents.
template <class Operation>
double MonthSums::Book(const Operation& operation) {
  std::array<double, kAmounts> largest{};
  std::array<std::uint64_t, kAmounts> cents{};
  std::int32_t before = lineMonths_.front();
  const auto add = [&](std::uint64_t& sum, std::uint64_t amount) { sum = operation(sum, amount); };
  const Variant* row = cells_.data();
  for (const std::int32_t month : lineMonths_) {
    // The balance stands until the next line's month, and gives way to another in its own.
    for (std::int32_t between = before + 1; between < month; ++between) {
      add(OpenAt(between)[kBalance], cents[kBalance]);
    }
    OpenAmounts& sums = OpenAt(month);
    if (month == before) sums[kBalance] = operation(sums[kBalance], 0 - cents[kBalance]);
    const auto book = [&](std::size_t i) {
      const double amount = 100 * AmountIn(row[i + 1]);
      largest[i] = std::max(largest[i], std::abs(amount));
      cents[i] = ToWhole(amount);
      add(sums[i], cents[i]);
    };
    // One by one, so that all of it stays in registers.
    static_assert(kAmounts == 4);
    book(0);
    book(1);
    book(2);
    book(3);
    before = month;
    row += width_;
  }
  return std::ranges::max(largest);
}

void MonthSums::Add(const Variant& schedule) {
  lineMonths_.clear();
  if (schedule.Type() == VariantType::Array) ReadMonths(schedule.GetArray());
  if (lineMonths_.empty()) {
    throw json::RequestError(ErrorNumber::TypeMismatch, "there is no schedule: the inputs determine no loan");
  }
  const auto [first, last] = std::ranges::minmax(lineMonths_);
  Cover(first, last);
  const double largest = Book(std::plus());
  // No month gets more than each line's amount, and a balance that stands.
  const double most = largest * static_cast<double>(lineMonths_.size() + 1);
  constexpr double kRoom = 0x1p62;
  if (!(largest <= 0x1p51 && most <= kRoom)) {
    Book(std::minus());
    throw json::RequestError(ErrorNumber::Overflow, "an amount is too large to be added up in cents");
  }
  if (open_ + most > kRoom) {
    Book(std::minus());
    Close();
    Book(std::plus());
  }
  open_ += most;
}

/// Moves the open sums to where there is room for all.
void MonthSums::Close() {
  for (std::size_t month = 0; month < months_.size(); ++month) {
    for (std::size_t i = 0; i < kAmounts; ++i) {
      months_[month][i] += static_cast<std::int64_t>(std::exchange(openMonths_[month][i], 0));
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
      const auto cents = FromText<Cents>((*record)[column + 1]);
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
    for (const Cents cents : sums) record.push_back(ToText(cents));
    json::AppendCsv(out, record, separator);
  }
}

}  // namespace amortix2::cli
