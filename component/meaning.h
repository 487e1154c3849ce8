#pragma once

// What a host tells people about members and their parameters: groups, choices, ranges, tables, charts, and
// the sentence that gives an answer. Plain tables that live as long as the program; nothing here computes.
//
// A figure is written as in a sentence's place: `vResPayment` is that result, `vGrid(4,3)` row 4 and column 3
// of a table, `vGrid(2)` element 2 of a list, `vGrid(4,-1)` the last column (component/answer.h reads them).

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace amortix2 {

struct EnumerationInfo;

enum class Unit : std::uint8_t {
  None,              ///< no number (a record, a table, an object)
  Text,              ///< text
  Flag,              ///< zero or not zero
  Count,             ///< a plain count or index
  Code,              ///< a number of an enumeration
  Currency,          ///< an amount of money
  MonthlyCurrency,   ///< an amount of money a month
  Percent,           ///< percent of an amount
  AnnualPercent,     ///< percent a year
  PercentagePoints,  ///< added to an annual percentage
  Days,
  Months,
  Years,
  Periods,  ///< periods of the plan's own frequency
  Date,
  Pixels,
  Table,  ///< a two-dimensional array
  List,   ///< a one-dimensional array
};

/// The unit in words ("annual percent").
std::string_view UnitName(Unit unit) noexcept;

/// True for the units of single numbers (codes and flags too), not of dates and texts.
constexpr bool IsNumber(Unit unit) {
  return unit != Unit::None && unit != Unit::Text && unit != Unit::Date && unit != Unit::Table &&
         unit != Unit::List;
}

constexpr bool IsMoney(Unit unit) { return unit == Unit::Currency || unit == Unit::MonthlyCurrency; }

constexpr bool IsPercent(Unit unit) {
  return unit == Unit::Percent || unit == Unit::AnnualPercent || unit == Unit::PercentagePoints;
}

/// What a member is about, in the order in which a person looks through them.
enum class Group : std::uint8_t {
  Loans,
  Leases,
  Mortgages,
  Comparisons,
  Savings,
  Retirement,
  Records,
  Charts,
  Survey,
};
inline constexpr std::size_t kGroups = static_cast<std::size_t>(Group::Survey) + 1;

/// The group's heading ("Loans").
std::string_view GroupTitle(Group group) noexcept;

/// Up to N values written in braces inside a description.
template <class T, std::size_t N>
class ShortList {
 public:
  constexpr ShortList() = default;
  constexpr ShortList(std::initializer_list<T> items) {  // NOLINT(google-explicit-constructor)
    if (items.size() > N) throw "more items than a description has room for";
    for (const T& item : items) items_[size_++] = item;
  }
  // As the ranges of the standard library are spelt. NOLINTBEGIN(readability-identifier-naming)
  constexpr const T* begin() const { return items_.data(); }
  constexpr const T* end() const { return items_.data() + size_; }
  constexpr std::size_t size() const { return size_; }
  constexpr bool empty() const { return size_ == 0; }
  // NOLINTEND(readability-identifier-naming)
  constexpr operator std::span<const T>() const {  // NOLINT(google-explicit-constructor)
    return {begin(), size_};
  }

 private:
  std::array<T, N> items_{};
  std::size_t size_ = 0;
};

// ---- Inputs

struct ChoiceInfo {
  std::string_view text;   ///< as it is given in a request: "4", "C"
  std::string_view title;  ///< "Monthly"
  std::string_view help;
  std::string_view name{};  ///< of the enumeration's constant ("monthlyMode"); empty for a letter
};

struct ChoicesInfo {
  std::string_view title;  ///< "Frequency"
  std::span<const ChoiceInfo> choices;
  std::string_view otherwise;          ///< what any other value counts as, in words; empty: it has no meaning
  const EnumerationInfo* enumeration;  ///< whose constants these are; null for letters and flags
  bool anyCase = false;                ///< a letter may be given in either case
};

/// A question of a survey; its answers are given one after the other, from the list's index 1 on.
struct QuestionInfo {
  std::string_view text;
  std::span<const ChoiceInfo> answers;
};

/// What makes sense for a number (inclusive); step 0: any number between. A date's are day counts.
struct Range {
  double least = 0;
  double most = 0;
  double step = 0;

  constexpr bool IsGiven() const { return least != 0 || most != 0; }
  constexpr bool Contains(double value) const { return value >= least && value <= most; }
};

enum class Role : std::uint8_t {
  Input,    ///< read, and left as it is, also where it is passed by reference
  Result,   ///< written, never read
  InOut,    ///< read and written: records and tables that are worked on, inputs that come back changed
  Ignored,  ///< accepted and not read
};

/// What an input means that is left out (or empty).
enum class Omitted : std::uint8_t {
  Required,   ///< no useful answer without it, whatever the core makes of it
  Zero,       ///< none of it: counts as 0
  Today,      ///< the day of the call
  WholeTerm,  ///< as long as the loan runs
  FindIt,     ///< 0 or nothing asks for it
  Nothing,    ///< what its help says (an empty text, the first choice, an old setting)
};

// ---- Results

/// What stands for a year when a table of periods is folded into years.
enum class Yearly : std::uint8_t {
  Nothing,
  Sum,   ///< the year's cells added up
  Last,  ///< the cell of the year's last line
};

enum class Better : std::uint8_t { Neither, Lower, Higher };

/// The heading of a table's row or column.
struct HeadingInfo {
  std::string_view title;
  Unit unit = Unit::None;
  Yearly yearly = Yearly::Nothing;  ///< of columns
  Better better = Better::Neither;  ///< of rows whose cells are compared
  bool runs = false;                ///< of columns: what it comes to so far is worth a column of its own
};

/// An axis of the payment grid: its values are not in the table, the middle one and its neighbours follow
/// from inputs: value of row (or column) i = centre + (i - steps - 1) * step.
struct AxisInfo {
  std::string_view title;
  Unit unit = Unit::None;
  std::string_view centre;  ///< the input that is the middle value
  std::string_view step;    ///< the input that is the step to the next
  std::string_view steps;   ///< the input that counts the values on each side
};

/// A table (or list) of results. A cell's unit is its column's where that has one, else its row's, else the
/// table's.
struct TableInfo {
  std::string_view title;                  ///< "Schedule"
  std::int32_t firstRow = 0;               ///< index of the first row in use; those before it are empty
  std::int32_t firstColumn = 1;            ///< index of the first column in use
  std::span<const HeadingInfo> columns{};  ///< from firstColumn on; none: a list of one dimension, or an axis
  std::span<const HeadingInfo> rows{};     ///< from firstRow on; none: a row for each line, or an axis
  Unit unit = Unit::None;
  bool isSchedule = false;  ///< a line each period; row 0 is the state at the start, before the first one
  bool repeats = false;     ///< the columns stand again for each further item of the member's list of inputs
  const AxisInfo* rowAxis = nullptr;
  const AxisInfo* columnAxis = nullptr;
};

// ---- Members

/// A sentence with places for figures: "The loan costs {vResPayment} a month." A figure's text carries its
/// unit where that is a word or a sign ("360 months", "6.5 %"); `{vGrid(3,3):size}` leaves out its minus
/// sign.
struct SentenceInfo {
  enum class When : std::uint8_t { Always, Above, Below, Equal };

  std::string_view text;
  When when = When::Always;  ///< Above, Below, Equal: only when `figure` is so compared with `value`
  std::string_view figure{};
  double value = 0;
  std::string_view than{};  ///< compared with this input or figure instead of `value`
};

/// A quantity that a member finds. A member that always finds the same has one, without an input; others list
/// theirs in the order in which the core looks: the first whose input is 0 (or nothing) is found, and
/// with all given the one that says so.
struct FindInfo {
  std::string_view input{};                   ///< the input whose 0 asks for it; empty: it is always found
  std::string_view figure;                    ///< where it stands in the results
  ShortList<SentenceInfo, 4> sentences;       ///< the first whose condition holds gives the answer
  ShortList<std::string_view, 3> needs{};     ///< inputs that must not be 0 then
  ShortList<std::string_view, 2> needsOne{};  ///< inputs of which one must not be 0 then
  bool whenAllGiven = false;                  ///< found anew when no input is 0
};

enum class ChartKind : std::uint8_t { Lines, Columns, StackedColumns };

/// What a chart draws: a table's column from its first row on, or with a row that one cell.
struct SeriesInfo {
  std::string_view title;
  std::string_view parameter;
  std::int32_t column = 0;
  std::int32_t row = -1;  ///< -1: every row
};

struct ChartInfo {
  std::string_view title;
  ChartKind kind = ChartKind::Lines;
  bool perYear = true;  ///< folded into years (HeadingInfo::yearly); else a point a line
  ShortList<SeriesInfo, 4> series;
};

/// Inputs that stand side by side for each item of a list (`vCurrBal`, `vCurrPay`, `vCurrRate` of each debt):
/// each is a one-dimensional array, all of one length.
struct ListInfo {
  std::string_view title;  ///< of one item: "Current loan"
  ShortList<std::string_view, 4> inputs;
  std::int32_t most = 0;  ///< items that a server lets in
  /// A server lets in no item whose first input is more than so many times its second: a debt whose payment
  /// makes a long schedule. 0: any.
  std::int32_t mostPayments = 0;
};

/// One side of a comparison: a column of a grid (-1: its last).
struct SideInfo {
  std::string_view parameter;
  std::int32_t column = 0;
};

struct ComparisonInfo {
  SideInfo current;             ///< what there is, or the first offer
  SideInfo proposed;            ///< what is proposed, or the second offer
  std::int32_t difference = 0;  ///< the current grid's column that holds the difference; 0: none
  std::int32_t decides = 0;     ///< the row in which the better side is the better answer

  constexpr bool IsGiven() const { return decides != 0; }
};

}  // namespace amortix2
