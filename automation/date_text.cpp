#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <span>

#include "amortix2/automation/conversion.h"
#include "amortix2/automation/text_scanner.h"

// Date text is a row of parts: numbers, one of which may be a month's name, and a time of day. The parts are
// collected first; then the first order of month, day and year that makes a valid day wins. Weekdays are
// passed over. A month and a day without a year are no date, because which day they mean would depend on the
// clock.

namespace amortix2 {
namespace {

constexpr std::array<std::string_view, 12> kMonths{"january",   "february", "march",    "april",
                                                   "may",       "june",     "july",     "august",
                                                   "september", "october",  "november", "december"};
constexpr std::array<std::string_view, 7> kWeekdays{"sunday",   "monday", "tuesday", "wednesday",
                                                    "thursday", "friday", "saturday"};
constexpr std::array<std::string_view, 2> kHalvesOfDay{"am", "pm"};

/// The place, from 1, of a name in its list, in full or by its first three letters in any case; 0 when it is
/// not in the list.
int PlaceOfName(std::string_view word, std::span<const std::string_view> names) {
  const auto matches = [word](std::string_view name) {
    return std::ranges::equal(word, name, {}, ToLower) ||
           std::ranges::equal(word, name.substr(0, 3), {}, ToLower);
  };
  const auto found = std::ranges::find_if(names, matches);
  return found == names.end() ? 0 : static_cast<int>(found - names.begin()) + 1;
}

struct Part {
  int value = 0;
  bool isMonthName = false;
};

/// Which part is the month, the day and the year.
struct Order {
  std::size_t month, day, year;
};

constexpr Order kMonthDayYear{0, 1, 2};
constexpr Order kDayMonthYear{1, 0, 2};
constexpr Order kYearMonthDay{1, 2, 0};
constexpr Order kYearDayMonth{2, 1, 0};
constexpr std::array kOrdersOfNumbers{kMonthDayYear, kYearMonthDay, kDayMonthYear, kYearDayMonth};
constexpr std::array kOrdersWithName{kMonthDayYear, kDayMonthYear, kYearMonthDay, kYearDayMonth};
// Two parts, completed by a third.
constexpr std::array kOrdersOfMonthAndDay{kMonthDayYear, kDayMonthYear};
constexpr std::array kOrdersOfMonthAndYear{Order{0, 2, 1}, Order{1, 2, 0}};

int FullYear(int year) { return year < 30 ? year + 2000 : year < 100 ? year + 1900 : year; }

bool IsValidDay(int year, int month, int day) {
  if (month < 1 || month > 12 || day < 1) return false;
  const std::chrono::year_month_day_last end{std::chrono::year{year} / month / std::chrono::last};
  return day <= static_cast<int>(static_cast<unsigned>(end.day()));
}

/// "01-31-2026", as schedules have it, which are read by the thousand; nothing where it takes a reader to
/// tell.
std::optional<Date> ScheduleDate(std::string_view text) {
  constexpr std::string_view kForm = "00-00-0000";
  const auto fits = [](char c, char form) { return form == '0' ? IsDigit(c) : c == form; };
  if (!std::ranges::equal(text, kForm, fits) || text[6] == '0') return std::nullopt;
  const auto number = [text](std::size_t from, std::size_t end) {
    int value = 0;
    for (std::size_t i = from; i < end; ++i) value = value * 10 + (text[i] - '0');
    return value;
  };
  const int month = number(0, 2);
  const int day = number(3, 5);
  const int year = number(6, 10);
  if (!IsValidDay(year, month, day)) return std::nullopt;
  return MakeDate(year, month, day);
}

class DateReader {
 public:
  explicit DateReader(std::string_view text) : scanner_(text) {}

  std::optional<Date> Read() {
    for (;;) {
      scanner_.TakeWhile(IsGap);
      if (scanner_.AtEnd()) return Arranged();
      const bool taken = IsLetter(scanner_.Peek()) ? TakeName() : TakeTime() || TakeNumber();
      if (!taken) return std::nullopt;
    }
  }

 private:
  static bool IsGap(char c) { return IsBlank(c) || c == ','; }

  bool TakeName() {
    const std::string_view word = scanner_.TakeWhile(IsLetter);
    if (PlaceOfName(word, kWeekdays) > 0) return true;
    const int month = PlaceOfName(word, kMonths);
    return month > 0 && AddPart({month, true});
  }

  bool TakeNumber() {
    const int number = NumberBelow(scanner_, 10'000);
    return number >= 0 && AddPart({number, false});
  }

  /// Keeps a part, and takes the stroke or hyphen behind it, which must have another part to follow.
  bool AddPart(Part part) {
    if (count_ == parts_.size()) return false;
    parts_[count_++] = part;
    scanner_.TakeWhile(IsBlank);
    if (!scanner_.TakeAnyOf("/-")) return true;
    scanner_.TakeWhile(IsBlank);
    return IsDigit(scanner_.Peek()) || IsLetter(scanner_.Peek());
  }

  /// "10:30", "10:30:15", either with AM or PM, or "10 PM". Nothing is taken when the text goes on otherwise.
  bool TakeTime() {
    TextScanner ahead = scanner_;
    if (hasTime_ || NumberBelow(ahead, 24) < 0) return false;
    int colons = 0;
    while (colons < 2 && ahead.Take(':')) {
      ++colons;
      if (NumberBelow(ahead, 60) < 0) return false;
    }
    const bool hasHalf = TakeHalfOfDay(ahead);
    if (colons == 0 && !hasHalf) return false;
    scanner_ = ahead;
    return hasTime_ = true;
  }

  static bool TakeHalfOfDay(TextScanner& scanner) {
    TextScanner ahead = scanner;
    ahead.TakeWhile(IsBlank);
    if (PlaceOfName(ahead.TakeWhile(IsLetter), kHalvesOfDay) == 0) return false;
    scanner = ahead;
    return true;
  }

  /// The next digits as a number; -1 when there are none or when they reach the limit.
  static int NumberBelow(TextScanner& scanner, int limit) {
    const std::string_view digits = scanner.TakeWhile(IsDigit);
    int value = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return parsed.ec == std::errc{} && value < limit ? value : -1;
  }

  std::optional<Date> Arranged() {
    const bool hasName = std::ranges::any_of(parts_, &Part::isMonthName);
    if (count_ == 3) return FirstFit(hasName ? kOrdersWithName : kOrdersOfNumbers);
    if (count_ < 2) return std::nullopt;
    constexpr Part kLeapYear{2000};
    constexpr Part kFirstOfMonth{1};
    parts_[2] = kLeapYear;
    if (FirstFit(kOrdersOfMonthAndDay)) return std::nullopt;
    parts_[2] = kFirstOfMonth;
    return FirstFit(kOrdersOfMonthAndYear);
  }

  std::optional<Date> FirstFit(std::span<const Order> orders) const {
    for (const Order& order : orders) {
      if (parts_[order.day].isMonthName || parts_[order.year].isMonthName) continue;
      const int year = FullYear(parts_[order.year].value);
      const int month = parts_[order.month].value;
      const int day = parts_[order.day].value;
      if (IsValidDay(year, month, day)) return MakeDate(year, month, day);
    }
    return std::nullopt;
  }

  TextScanner scanner_;
  std::array<Part, 3> parts_{};
  std::size_t count_ = 0;
  bool hasTime_ = false;
};

}  // namespace

std::optional<Date> ParseDate(std::string_view text) {
  if (const auto date = ScheduleDate(text)) return date;
  if (text.ends_with(',')) return std::nullopt;
  return DateReader(text).Read();
}

}  // namespace amortix2
